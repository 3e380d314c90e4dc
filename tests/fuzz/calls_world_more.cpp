// SPDX-License-Identifier: MIT
// Calls beside the lives of windows, panels and notifications: callbacks, flags, widgets and the process's.
#include "fuzz/calls_tables.hpp"
#include "fuzz/calls_world.hpp"
#include "fuzz/target.hpp"

using fuzz::world;

namespace {

using window_setter = bool (*)(zo_window_ptr, std::function<void(zo_window_ptr)>);
constexpr std::pair<fuzz::event, window_setter> window_setters[] = {
    {fuzz::event::open, zo_window_set_window_open_callback},
    {fuzz::event::show, zo_window_set_window_show_callback},
    {fuzz::event::hide, zo_window_set_window_hide_callback},
    {fuzz::event::close, zo_window_set_window_close_callback},
    {fuzz::event::activate, zo_window_set_window_activate_callback},
    {fuzz::event::restore, zo_window_set_window_restore_callback},
    {fuzz::event::destroy, zo_window_set_window_destroy_callback},
    {fuzz::event::exit, zo_window_set_window_exit_app_request_callback},
    {fuzz::event::hint, zo_window_set_window_hint_request_callback},
    {fuzz::event::back, zo_window_set_window_go_back_callback}};

using manager_setter = bool (*)(zo_window_manager_ptr, std::function<void(zo_window_manager_ptr)>);
constexpr std::pair<fuzz::event, manager_setter> manager_setters[] = {
    {fuzz::event::open, zo_window_manager_on_open},
    {fuzz::event::show, zo_window_manager_on_show},
    {fuzz::event::hide, zo_window_manager_on_hide},
    {fuzz::event::close, zo_window_manager_on_close},
    {fuzz::event::destroy, zo_window_manager_on_destroy}};

// The places of a panel: left, right, toolbar.
struct place {
    bool (*add)(zo_window_manager_ptr, GtkWidget*);
    bool (*remove)(zo_window_manager_ptr, GtkWidget*);
};
constexpr place places[fuzz::widget_places] = {
    {zo_window_manager_add_widget_left, zo_window_manager_remove_widget_left},
    {zo_window_manager_add_widget_right, zo_window_manager_remove_widget_right},
    {[](zo_window_manager_ptr m, GtkWidget* w) { return zo_window_manager_add_toolbar(m, GTK_BOX(w)); },
     [](zo_window_manager_ptr m, GtkWidget* w) { return zo_window_manager_remove_toolbar(m, GTK_BOX(w)); }}};

}  // namespace

bool world::set_callback(int w, event what, bool there) {
    const zo_window_ptr window = windows_[w];
    const auto told = [this, w, what](auto&&...) { return tell(kind::window, w, what); };
    for (const auto& [of, set] : window_setters)
        if (of == what) return there ? set(window, told) : set(window, nullptr);
    if (what == event::close_request)
        return there ? zo_window_set_window_close_request_callback(window, told)
                     : zo_window_set_window_close_request_callback(window, nullptr);
    if (what == event::title_change)
        return there ? zo_window_set_window_title_text_change_callback(window, told)
                     : zo_window_set_window_title_text_change_callback(window, nullptr);
    if (what == event::photo) {
        const auto take = [this, w](const zo_window_ptr&, GdkPixbuf* photo) {
            fuzz::check(GDK_IS_PIXBUF(photo), [] { return "no photo"; });
            tell(kind::window, w, event::photo);
        };
        return there ? zo_window_set_save_to_photo_handler(window, take)
                     : zo_window_set_save_to_photo_handler(window, nullptr);
    }
    if (what == event::menu) {
        const auto fill = [this, w](const zo_window_ptr&, GtkGrid* grid) { fill_menu(w, grid); };
        return there ? zo_window_set_menu_create_handler(window, fill)
                     : zo_window_set_menu_create_handler(window, nullptr);
    }
    return there ? zo_window_set_window_event_callback(window, told)
                 : zo_window_set_window_event_callback(window, nullptr);
}

void world::fill_menu(int w, GtkGrid* grid) {
    GtkWidget* const entry = gtk_button_new_with_label("Entry");
    gtk_grid_attach(grid, entry, 0, 0, 1, 1);
    zo_ui_connect_button_click_signal(entry, [this, w](GtkWidget*) {
        if (answers({kind::window, w, event::menu_entry})) tell(kind::window, w, event::menu_entry);
    });
    tell(kind::window, w, event::menu);
}

bool world::set_manager_callback(int m, event what, bool there) {
    const auto told = [this, m, what](const zo_window_manager_ptr&) { tell(kind::manager, m, what); };
    for (const auto& [of, set] : manager_setters)
        if (of == what) return there ? set(managers_[m], told) : set(managers_[m], nullptr);
    return false;
}

bool world::make_other_window_call(const call& made) {
    const zo_window_ptr window = windows_[made.who];
    switch (made.what) {
        case verb::set_callback:
        case verb::clear_callback:
            return set_callback(made.who, event_of(made, window_events), made.what == verb::set_callback);
        case verb::set_other_callback:
            if (const auto told = other_event_of(made.with))
                return set_callback(made.who, *told, made.with % 2);
            return set_other_callback(window, made.with);
        case verb::set_title_flags:
            return set_title_flags(window, made.with);
        case verb::set_built_in_title:
            return zo_window_set_use_built_in_title(window, made.with > 0);
        case verb::set_flag:
            return set_flag(window, made.with);
        case verb::add_content: {
            GtkWidget* const child = GTK_WIDGET(g_object_ref_sink(gtk_label_new("child")));
            const bool added = zo_window_add_content_child(window, child, made.with % 2, made.with % 3 == 0,
                                                           made.with, made.with % 2 == 0);
            g_object_unref(child);
            return added;
        }
        default:
            // Nobody holds the window while its tasks wait but those tasks and the library.
            zo_window_destroy(window);
            prepare_window(made.who);
            return true;
    }
}

// Its windows stay joined to it, and its panel on screen unless it is closed, until its tasks have run.
void world::forget_manager(int m, bool close) {
    if (close) zo_window_manager_close(managers_[m]);
    zo_window_manager_destroy(managers_[m]);
    for (int place = 0; place < widget_places; ++place) let_widget_go(m, place);
    prepare_manager(m);
}

void world::let_widget_go(int m, int place) {
    if (GtkWidget* const widget = std::exchange(widgets_[m][place], nullptr)) {
        gtk_widget_destroy(widget);
        g_object_unref(widget);
    }
}

bool world::make_widget_call(const call& made) {
    const zo_window_manager_ptr manager = managers_[made.who];
    const int place = made.with % widget_places;
    GtkWidget*& widget = widgets_[made.who][place];
    switch (made.what) {
        case verb::manager_extend:
            return zo_window_manager_extend(manager);
        case verb::manager_retract:
            return zo_window_manager_retract(manager);
        case verb::manager_remove_widget:
            if (!widget) return places[place].remove(manager, nullptr);
            return places[place].remove(manager, widget);
        default:
            break;
    }
    // One that is in its place already is refused; one whose panel is gone died with it.
    if (!widget || !gtk_widget_get_parent(widget)) {
        let_widget_go(made.who, place);
        widget = GTK_WIDGET(g_object_ref_sink(gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0)));
    }
    return places[place].add(manager, widget);
}

bool world::make_process_call(const call& made) {
    if (made.what == verb::null_handle) return refuses_null(made.with);
    if (made.what == verb::timeout) {
        const auto late = [] { fuzz::fail("a timeout that was cleared, or is of an hour, has run"); };
        zo_system_service_timeout_clear(timeout_);
        timeout_ = zo_system_service_timeout(late, 3600000, "fuzz", made.with);
        return timeout_ != 0;
    }
    if (made.what == verb::indicator_destroy) {
        if (indicator_) zo_appindicator_to_object(indicator_)->destroy("fuzz", made.with);
        indicator_.reset();
        return true;
    }
    if (made.what == verb::indicator_choose) return press_indicator(made.with);
    if (!indicator_) indicator_ = zo_appindicator_new("fuzz", "Fuzz", "mail-unread");
    if (made.what == verb::indicator_show) return zo_appindicator_show(indicator_);
    const auto chosen = [this, action = made.with](const zo_appindicator_ptr&, const std::string& name) {
        fuzz::check(name == std::to_string(action), [&] { return "chosen as " + name; });
        if (answers({kind::indicator, action, event::chosen})) tell(kind::indicator, action, event::chosen);
    };
    return zo_appindicator_add_action(indicator_, std::to_string(made.with), "Action", chosen);
}
