// SPDX-License-Identifier: MIT
// The task row: for each open window a button with its title and a close button beside it.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_ui/toolkit/long_text_p.hpp>
#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_ui_connect.hpp>
#include <zo_ui/zo_ui_tools.hpp>
#include <zo_ui/zo_ui_widgets.hpp>
#include <zo_ui/zo_window/window_p.hpp>
#include <zo_ui/zo_window_manager/task_row_p.hpp>

namespace source = zo::manager_source;

namespace {

using click_function = std::function<void(GtkWidget*)>;

constexpr int longest_title = 24;  // characters; the rest is in the tooltip
constexpr int task_margin = 2;
constexpr double hidden_opacity = 0.6;

struct task_text {
    std::string title;
    std::string id;
};

task_text text_of(const zo_window_ptr& window) {
    task_text text;
    zo::property_guard guard(*window, source::file, source::task_text_reader);
    guard.read("window-title-text", text.title, {"&title", "ptr->property_list"});
    guard.read("window-id", text.id, {"&id", "ptr->property_list"});
    return text;
}

// GTK makes a new label for each text.
void set_title(GtkWidget* button, const std::string& text) {
    const std::string title = zo::readable(text);
    gtk_button_set_label(GTK_BUTTON(button), zo::as_title(title).c_str());
    if (GtkWidget* label = gtk_bin_get_child(GTK_BIN(button)); GTK_IS_LABEL(label)) {
        gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
        gtk_label_set_max_width_chars(GTK_LABEL(label), longest_title);
    }
    gtk_widget_set_tooltip_text(button, zo::as_tooltip(title).c_str());
    atk_object_set_name(gtk_widget_get_accessible(button), title.c_str());
}

void on_task_destroyed(GtkWidget* button, zo::task_map* tasks) { tasks->erase(button); }

void on_task_clicked(GtkWidget* button, gpointer click) { (*static_cast<click_function*>(click))(button); }

}  // namespace

bool _zo_window_manager::is_task(GtkWidget* widget, zo::task_role role, const zo_window_ptr& window) const {
    const auto place = tasks_.find(widget);
    return place != tasks_.end() &&
           place->second == std::pair<const _zo_window*, zo::task_role>(window.get(), role);
}

// Somebody may hold a button that has left the row, and click it when its handler is gone.
void _zo_window_manager::let_go_of(GtkWidget* task) {
    g_signal_handlers_disconnect_matched(task, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr,
                                         reinterpret_cast<gpointer>(on_task_clicked), nullptr);
}

// The widgets may outlive the manager now.
void _zo_window_manager::forget_tasks() {
    for (const auto& [widget, owner] : tasks_) {
        g_signal_handlers_disconnect_by_data(widget, &tasks_);
        let_go_of(widget);
    }
    tasks_.clear();
}

void _zo_window_manager::open_task_buttons_of_all() {
    // Some joined when they were open and there was no panel.
    for (const zo_window_ptr& window : registered_windows_.snapshot())
        if (window->is_opened()) shown_windows_.add(window);
    const std::vector<zo_window_ptr> windows = shown_windows_.snapshot();
    for (const zo_window_ptr& window : windows) open_task_buttons(window);
    // GTK computes a style to dim a button, and anew when the next comes beside it.
    for (const zo_window_ptr& window : windows)
        if (!window->is_visible()) set_task_opacity(window, hidden_opacity);
}

void _zo_window_manager::open_task_buttons(const zo_window_ptr& window) {
    if (zo_window_get_popup_window(window)) return;
    const task_text text = text_of(window);
    const zo::task task = zo::read_task(window);
    zo_assertion_faild(task.click != nullptr, "cb != nullptr", "manager-click-cb", source::file,
                       source::task_button_reader + 4);
    if (!is_task(task.close, zo::task_role::close, window))
        zo::write_task_close(window, make_close_button(window, text.title));
    if (is_task(task.button, zo::task_role::button, window)) return;
    GtkWidget* button = make_task_button(window, text.title, task.click);
    zo::write_task_button(window, button);
    if (!text.id.empty()) gtk_widget_set_name(button, text.id.c_str());
    newest_task_ = button;
}

GtkWidget* _zo_window_manager::make_close_button(const zo_window_ptr& window, const std::string& title) {
    GtkWidget* button = zo_ui_button16_new("title-close");
    zo::set_tooltip(button, zo_ui_get_translate("tooltip_close_window"));
    atk_object_set_description(gtk_widget_get_accessible(button), title.c_str());
    zo_ui_connect_button_click_signal(button, [window](GtkWidget*) { zo_window_close(window); });
    pack_task(button, zo::task_role::close, window);
    return button;
}

GtkWidget* _zo_window_manager::make_task_button(const zo_window_ptr& window, const std::string& title,
                                                click_function* cb) {
    GtkWidget* button = gtk_button_new_with_label("");
    set_title(button, title);
    if (cb) g_signal_connect(button, "clicked", G_CALLBACK(on_task_clicked), cb);
    gtk_widget_set_margin_start(button, task_margin);
    pack_task(button, zo::task_role::button, window);
    return button;
}

// At the end: each new pair stands left of those made before, and a task button left of its close button.
void _zo_window_manager::pack_task(GtkWidget* button, zo::task_role role, const zo_window_ptr& window) {
    tasks_[button] = {window.get(), role};
    g_signal_connect(button, "destroy", G_CALLBACK(on_task_destroyed), &tasks_);
    GtkWidget* wrapper = zo_ui_get_left_padding_widget(button, true);
    zo::task_row_add(widgets_.taskbox_center, wrapper);
}

void _zo_window_manager::set_task_opacity(const zo_window_ptr& window, double opacity) {
    const zo::task task = zo::read_task_buttons(window);
    if (is_task(task.button, zo::task_role::button, window)) gtk_widget_set_opacity(task.button, opacity);
    if (is_task(task.close, zo::task_role::close, window)) gtk_widget_set_opacity(task.close, opacity);
}

void _zo_window_manager::on_window_title(zo_window_ptr window) {
    if (!registered_windows_.contains(window) || !is_opened()) return;
    const zo::task task = zo::read_titled_task(window);
    if (is_task(task.button, zo::task_role::button, window)) set_title(task.button, text_of(window).title);
    if (is_task(task.close, zo::task_role::close, window))
        atk_object_set_description(gtk_widget_get_accessible(task.close), text_of(window).title.c_str());
}

// After the next layout of the row, when the button has its place (test "ANewButtonIsScrolledIntoView").
void _zo_window_manager::scroll_to_newest() {
    if (!newest_task_) return;
    scrolling_.ask([this] {
        GtkWidget* const button = std::exchange(newest_task_, nullptr);
        if (!tasks_.count(button) || !widgets_.taskbox_scroll) return;
        GtkAllocation place{};
        gtk_widget_get_allocation(button, &place);
        GtkAdjustment* row =
            gtk_scrolled_window_get_hadjustment(GTK_SCROLLED_WINDOW(widgets_.taskbox_scroll));
        gtk_adjustment_clamp_page(row, place.x, place.x + place.width);
    });
}
