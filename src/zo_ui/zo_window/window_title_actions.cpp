// SPDX-License-Identifier: MIT
// What the title bar's buttons do. Most hand the click to a callback of the application.
#include <zo_ui/zo_window/window_p.hpp>

#include <memory>

namespace {

struct object_unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using pixbuf_ptr = std::unique_ptr<GdkPixbuf, object_unref>;

}  // namespace

void _zo_window::init() {
    const auto bind = [this](zo::title_button button, title_action action) {
        title_actions_[static_cast<std::size_t>(button)] = action;
    };
    bind(zo::title_button::exit, &_zo_window::on_exit_clicked);
    bind(zo::title_button::hint, &_zo_window::on_hint_clicked);
    bind(zo::title_button::photo, &_zo_window::on_photo_clicked);
    bind(zo::title_button::close, &_zo_window::request_close);
    bind(zo::title_button::minimize, &_zo_window::on_minimize_clicked);
    bind(zo::title_button::back, &_zo_window::on_back_clicked);
    bind(zo::title_button::menu, &_zo_window::on_menu_clicked);
    drag_source_ = [this] { return widgets_.tool_menu ? nullptr : widgets_.window; };
    tool_menu_left_ = [this](GtkWidget*, GdkEventCrossing* event) { return on_tool_menu_left(*event); };
}

// Most windows have few of the buttons, so a handler is made with its button. It knows the window, not holds
// it: it is the window's own. It takes the window's handle while it runs.
const _zo_window::click_handler& _zo_window::click_handler_of(zo::title_button button) {
    const auto place = static_cast<std::size_t>(button);
    click_handler& handler = title_handlers_[place];
    if (!handler)
        handler = std::make_shared<zo::listener<void(GtkWidget*)>>([this, place](GtkWidget*) {
            const zo_window_ptr self = handle();
            if (const title_action action = title_actions_[place]) (this->*action)();
        });
    return handler;
}

void _zo_window::call_back(const char* property) {
    const auto fn = callback<void(zo_window_ptr)>(property, zo::window_source::title_action);
    if (fn) fn(handle());
}

void _zo_window::on_exit_clicked() { call_back("app-exit-request"); }
void _zo_window::on_hint_clicked() { call_back("hint-request"); }
void _zo_window::on_back_clicked() { call_back("go-back"); }
void _zo_window::on_minimize_clicked() { _hide(); }

// A hidden window has no picture.
void _zo_window::on_photo_clicked() {
    if (!widgets_.window || !gtk_widget_get_mapped(widgets_.window)) return;
    int width = 0;
    int height = 0;
    gtk_window_get_size(GTK_WINDOW(widgets_.window), &width, &height);
    const pixbuf_ptr photo(
        gdk_pixbuf_get_from_window(gtk_widget_get_window(widgets_.window), 0, 0, width, height));
    const auto fn =
        callback<void(zo_window_ptr, GdkPixbuf*)>("handle-photo", zo::window_source::title_action);
    if (fn && photo) fn(handle(), photo.get());
}
