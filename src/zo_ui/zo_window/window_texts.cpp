// SPDX-License-Identifier: MIT
// Id, class and title: stored at once, followed by an opened window on the loop.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_service.hpp>
#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_window/window_hold_p.hpp>

namespace {

namespace source = zo::window_source;

bool get_text(const zo_window_ptr& window, std::string& text, const char* function, const char* property) {
    if (zo::refuse_null(window, function)) return false;
    zo::property_guard guard(*window, source::file, source::text_getter);
    // Into the caller's own memory where it is large enough.
    if (!guard.read(property, text, {"&value", "ptr->property_list"})) text.clear();
    return true;
}

}  // namespace

const zo::window_text zo::window_text::id{"window-id", "window-id-change", source::set_id,
                                          &_zo_window::apply_id, false};
const zo::window_text zo::window_text::style_class{"window-class", "window-class-change", source::set_class,
                                                   &_zo_window::apply_class, false};
const zo::window_text zo::window_text::title{"window-title-text", "window-title-change", source::set_title,
                                             &_zo_window::apply_title, true};

void _zo_window::post_text_change(const zo::window_text& text, std::string s) {
    const zo_window_ptr self = handle();  // outlives the lock, though the task may have run by then
    std::string old;
    std::string stored = s;
    // Posted under the lock: of two threads the one that stores last is followed last. Another lock would be
    // in the way of a thread that holds this one already.
    zo::property_guard guard(*this, source::file, source::text_setter);
    guard.exchange(text.property, stored, old, {"&old"}, {"s"});
    zo_system_service_exec(
        [self, &text, old = std::move(old), s = std::move(s)] { self->on_text_changed(text, old, s); },
        source::file, text.line);
}

void _zo_window::on_text_changed(const zo::window_text& text, const std::string& old,
                                 const std::string& changed) {
    const auto fn = callback<void(zo_window_ptr, std::string)>(text.change_callback, source::text_task);
    if (old == changed) return;
    const zo::held_widget window = zo::hold(widgets_.window);
    const bool follows = is_opened() && window;
    if (follows) (this->*text.apply)(old, changed);
    if (fn) fn(handle(), changed);
    if (text.told_to_manager && follows && still_open(window.get()))
        tell_manager(&zo::window_host::on_window_title);
}

void _zo_window::apply_id(const std::string&, const std::string& id) {
    gtk_widget_set_name(widgets_.window, id.c_str());
    gtk_widget_set_name(widgets_.content_box, zo::content_name(id).c_str());
}

void _zo_window::apply_class(const std::string& old, const std::string& style_class) {
    for (GtkWidget* widget : {widgets_.window, widgets_.tool_menu}) {
        if (!widget) continue;
        zo::remove_class(widget, old.c_str());
        zo::add_class(widget, style_class.c_str());
    }
    apply_fixed_classes();
}

void _zo_window::apply_title(const std::string&, const std::string& title) {
    if (widgets_.title_label) show_title(title);
}

void _zo_window::set_id(std::string s) { post_text_change(zo::window_text::id, std::move(s)); }
void _zo_window::set_class(std::string s) { post_text_change(zo::window_text::style_class, std::move(s)); }
void _zo_window::set_title(std::string s) { post_text_change(zo::window_text::title, std::move(s)); }

bool zo_window_get_id(zo_window_ptr window, std::string& text) {
    return get_text(window, text, __func__, "window-id");
}

bool zo_window_get_class(zo_window_ptr window, std::string& text) {
    return get_text(window, text, __func__, "window-class");
}

bool zo_window_get_title(zo_window_ptr window, std::string& text) {
    return get_text(window, text, __func__, "window-title-text");
}

bool zo_window_set_id(zo_window_ptr window, std::string text) {
    if (zo::refuse_null(window, __func__)) return false;
    window->set_id(std::move(text));
    return true;
}

bool zo_window_set_class(zo_window_ptr window, std::string text) {
    if (zo::refuse_null(window, __func__)) return false;
    window->set_class(std::move(text));
    return true;
}

bool zo_window_set_title(zo_window_ptr window, std::string text) {
    if (zo::refuse_null(window, __func__)) return false;
    window->set_title(std::move(text));
    return true;
}
