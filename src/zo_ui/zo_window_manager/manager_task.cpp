// SPDX-License-Identifier: MIT
#include <zo_ui/zo_window_manager/manager_task_p.hpp>

#include <zo_ui/zo_window/window_p.hpp>
#include <zo_ui/zo_window_manager/manager_source_p.hpp>

namespace source = zo::manager_source;

namespace {

constexpr const char* list = "ptr->property_list";
constexpr const char* button_name = "manager-widget";
constexpr const char* close_name = "manager-close-widget";
constexpr const char* click_name = "manager-click-cb";

using click_function = std::function<void(GtkWidget*)>;

// Hides a window that is visible, brings one back that is not. The window may be destroyed by it, and the
// callable that holds it: the caller gives a handle of its own.
void toggle(zo_window_ptr&& window) {
    if (window->is_visible()) return window->_hide();
    window->_show();
    window->_activate();
}

click_function* new_click_handler(const zo_window_ptr& window) {
    return new click_function([window](GtkWidget*) { toggle(zo_window_ptr(window)); });
}

}  // namespace

void zo::join_task(const zo_window_ptr& window) {
    click_function* unused = new_click_handler(window);
    {
        const property_guard guard(*window, source::file, source::registration);
        ::property_list& properties = window->property_list;
        for (const char* name : {button_name, close_name})
            zo_property_set<GtkWidget*>(properties, name, nullptr);
        click_function* present = nullptr;
        zo_property_init<click_function*>(properties, click_name, nullptr);
        zo_property_get_extract<click_function*>(properties, click_name, &present);
        if (!present)
            zo_property_set<click_function*>(properties, click_name, std::exchange(unused, nullptr));
    }
    delete unused;
}

zo::task zo::read_task(const zo_window_ptr& window) {
    task read;
    property_guard guard(*window, source::file, source::task_button_reader);
    guard.read(button_name, read.button, {"&exwidget", list});
    guard.read(close_name, read.close, {"&exwidget2", list});
    guard.read(click_name, read.click, {"&cb", list});
    return read;
}

zo::task zo::read_task_buttons(const zo_window_ptr& window) {
    task read;
    property_guard guard(*window, source::file, source::task_button_reader);
    guard.read(button_name, read.button, {"&exwidget", list});
    guard.read(close_name, read.close, {"&exwidget2", list});
    return read;
}

zo::task zo::read_titled_task(const zo_window_ptr& window) {
    task read;
    property_guard guard(*window, source::file, source::task_button_reader);
    guard.read(button_name, read.button, {"&exwidget", list});
    zo_property_get_extract<GtkWidget*>(window->property_list, close_name, &read.close);
    return read;
}

void zo::write_task_button(const zo_window_ptr& window, GtkWidget* button) {
    property_guard guard(*window, source::file, source::task_button_writer);
    const char* text = button ? "button" : "nullptr";
    guard.write(button_name, button, {text, list});
}

void zo::write_task_close(const zo_window_ptr& window, GtkWidget* button) {
    property_guard guard(*window, source::file, source::task_button_writer);
    const char* text = button ? "button" : "nullptr";
    guard.write(close_name, button, {text, list});
}

void zo::write_task_click(const zo_window_ptr& window, std::function<void(GtkWidget*)>* click) {
    property_guard guard(*window, source::file, source::task_button_writer);
    const char* text = click ? "cb" : "nullptr";
    guard.write(click_name, click, {text, list});
}
