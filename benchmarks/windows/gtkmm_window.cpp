// SPDX-License-Identifier: MIT
// gtkmm_window ALIVE: the floor's tree, as somebody would write it with gtkmm.
#include <desktop/desktop.hpp>
#include <windows/window_run.hpp>

#include <gtkmm.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>

namespace {

Gdk::Rectangle workarea;

void add_class(Gtk::Widget& widget, const char* name) { widget.get_style_context()->add_class(name); }

class window : public Gtk::Window {
  public:
    explicit window(int number) {
        const std::string name = "window" + std::to_string(number);
        const std::string title = "Window " + std::to_string(number);
        set_up(title, name);
        fixed_.set_name("window-fixed");
        wrapper_.set_name("window-wrapper");
        fixed_.put(wrapper_, 0, 0);
        build_title(title);
        build_content("messagebox" + name);
        add(fixed_);
        set_position(Gtk::WIN_POS_CENTER);
        show_all();
    }
    window(const window&) = delete;
    window& operator=(const window&) = delete;
    ~window() override {
        if (active_ == this) active_ = nullptr;
    }

  private:
    void set_up(const std::string& title, const std::string& name) {
        set_type_hint(Gdk::WINDOW_TYPE_HINT_DIALOG);
        Gdk::Geometry geometry{};
        geometry.max_width = workarea.get_width();
        geometry.max_height = workarea.get_height() - 120;
        set_geometry_hints(*this, geometry, Gdk::HINT_MAX_SIZE);
        set_skip_taskbar_hint(true);
        set_skip_pager_hint(true);
        for (const char* style_class : {"zo-window", "managed", "global-window"})
            add_class(*this, style_class);
        set_name(name);
        set_title(title);
        set_decorated(false);
        set_resizable(false);
        set_keep_above(true);
        if (GdkVisual* visual = gdk_screen_get_rgba_visual(gtk_widget_get_screen(GTK_WIDGET(gobj()))))
            gtk_widget_set_visual(GTK_WIDGET(gobj()), visual);
        add_events(Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK | Gdk::FOCUS_CHANGE_MASK);
        signal_focus_in_event().connect([this](GdkEventFocus*) { return on_focus(); });
        signal_focus_out_event().connect([](GdkEventFocus*) { return false; });
        signal_window_state_event().connect([](GdkEventWindowState*) { return false; });
        signal_configure_event().connect([](GdkEventConfigure*) { return false; });
        signal_map_event().connect([](GdkEventAny*) { return false; });
        signal_delete_event().connect([](GdkEventAny*) { return false; });
        signal_key_press_event().connect([](GdkEventKey*) { return false; });
        signal_set_focus().connect([](Gtk::Widget*) {});
    }

    // The window with the focus has another look.
    bool on_focus() {
        if (active_ == this) return false;
        add_class(*this, "active");
        if (active_) active_->get_style_context()->remove_class("active");
        active_ = this;
        return false;
    }

    void build_title(const std::string& title) {
        add_class(title_, "window-title");
        title_.set_size_request(300, 15);
        label_.set_text(title);
        add_class(label_, "title-text");
        title_.set_center_widget(label_);
        add_button(close_, "title-close", "Close window");
        add_button(minimize_, "title-minimize", "Minimize window");
        add_class(title_handle_, "title-event-box");
        title_handle_.add_events(Gdk::POINTER_MOTION_MASK | Gdk::BUTTON_PRESS_MASK |
                                 Gdk::BUTTON_RELEASE_MASK);
        title_handle_.add(title_);
        title_handle_.signal_button_press_event().connect([](GdkEventButton*) { return false; });
        title_handle_.signal_button_release_event().connect([](GdkEventButton*) { return false; });
        title_handle_.signal_motion_notify_event().connect([](GdkEventMotion*) { return false; });
        title_.signal_size_allocate().connect(
            [this](Gtk::Allocation& place) { title_height_ = place.get_height(); });
        wrapper_.pack_start(title_handle_, false, false);
    }

    void add_button(Gtk::Button& button, const char* style_class, const char* tooltip) {
        add_class(button, "size-16");
        add_class(button, style_class);
        button.set_size_request(16, 16);
        button.set_tooltip_text(tooltip);
        button.get_accessible()->set_name(tooltip);
        button.signal_clicked().connect([] {});
        title_.pack_end(button, false, false);
    }

    void build_content(const std::string& name) {
        add_class(content_, "window-content");
        content_.set_name(name);
        content_.pack_start(text_, false, false);
        content_.signal_size_allocate().connect([this](Gtk::Allocation&) { on_content_size(); });
        content_handle_.add_events(Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK);
        content_handle_.signal_button_press_event().connect([](GdkEventButton*) { return false; });
        content_handle_.add(content_);
        add_class(scroll_, "window-scroll");
        scroll_.set_placement(Gtk::CORNER_BOTTOM_RIGHT);
        scroll_.add(content_handle_);
        wrapper_.pack_start(scroll_, true, true);
    }

    void on_content_size() {
        if (!content_.get_mapped()) return fit();
        Glib::signal_idle().connect_once(sigc::mem_fun(*this, &window::fit), Glib::PRIORITY_HIGH_IDLE);
    }

    void fit() {
        scroll_.set_min_content_width(std::min(content_.get_allocated_width(), workarea.get_width()));
        scroll_.set_min_content_height(
            std::min(content_.get_allocated_height(), workarea.get_height() - title_height_));
    }

    static inline window* active_ = nullptr;
    int title_height_ = 0;
    Gtk::Fixed fixed_;
    Gtk::Box wrapper_{Gtk::ORIENTATION_VERTICAL};
    Gtk::EventBox title_handle_;
    Gtk::Box title_;
    Gtk::Label label_;
    Gtk::Button close_;
    Gtk::Button minimize_;
    Gtk::ScrolledWindow scroll_;
    Gtk::EventBox content_handle_;
    Gtk::Box content_{Gtk::ORIENTATION_VERTICAL};
    Gtk::Label text_{"Something to read"};
};

std::map<int, std::unique_ptr<window>> windows;

GtkWidget* open(int number) {
    windows[number] = std::make_unique<window>(number);
    return GTK_WIDGET(windows[number]->gobj());
}

void destroy(int number) { windows.erase(number); }

}  // namespace

int main(int, char** arguments) {
    Gtk::Main::init_gtkmm_internals();
    bench::begin();
    Gdk::Display::get_default()->get_monitor(0)->get_workarea(workarea);
    return bench::run_windows({open, destroy}, arguments);
}
