// SPDX-License-Identifier: MIT
// Every exported function with the signature that programs compile against: a changed one does not compile
// here, a missing one does not link.
#include <zo_ui/zo_ui.hpp>

#include "signatures.hpp"

namespace {

void check_1() {
    check<bool(zo_object_ptr)>(zo_is_window);
    check<zo_object_ptr(zo_window_ptr)>(zo_window_to_object);
    check<zo_window_ptr(zo_object_ptr)>(zo_window_from_object);
    check<bool(zo_object_ptr)>(zo_is_window_event);
    check<zo_object_ptr(zo_window_event_ptr)>(zo_window_event_to_object);
    check<zo_window_event_ptr(zo_object_ptr)>(zo_window_event_from_object);
    check<bool(zo_object_ptr)>(zo_is_window_manager);
    check<zo_object_ptr(zo_window_manager_ptr)>(zo_window_manager_to_object);
    check<zo_window_manager_ptr(zo_object_ptr)>(zo_window_manager_from_object);
    check<zo_window_event_ptr(int)>(zo_window_event_new);
    check<zo_window_ptr(std::string)>(zo_window_new);
    check<bool(zo_window_ptr)>(zo_window_get_managed_window);
    check<bool(zo_window_ptr, bool)>(zo_window_set_managed_window);
    check<bool(zo_window_ptr)>(zo_window_get_popup_window);
    check<bool(zo_window_ptr, bool)>(zo_window_set_popup_window);
    check<bool(zo_window_ptr)>(zo_window_get_use_rgba_visual);
    check<bool(zo_window_ptr, bool)>(zo_window_set_use_rgba_visual);
    check<bool(zo_window_ptr)>(zo_window_get_use_system_decoration);
    check<bool(zo_window_ptr, bool)>(zo_window_set_use_system_decoration);
    check<bool(zo_window_ptr)>(zo_window_get_skip_pager);
    check<bool(zo_window_ptr, bool)>(zo_window_set_skip_pager);
    check<bool(zo_window_ptr)>(zo_window_get_skip_taskbar_hint);
    check<bool(zo_window_ptr, bool)>(zo_window_set_skip_taskbar_hint);
    check<bool(zo_window_ptr)>(zo_window_get_resizable);
    check<bool(zo_window_ptr, bool)>(zo_window_set_resizable);
    check<bool(zo_window_ptr)>(zo_window_get_keep_above);
    check<bool(zo_window_ptr, bool)>(zo_window_set_keep_above);
    check<bool(zo_window_ptr)>(zo_window_get_drag_enabled);
    check<bool(zo_window_ptr, bool)>(zo_window_set_drag_enabled);
    check<bool(zo_window_ptr)>(zo_window_get_use_built_in_title);
    check<bool(zo_window_ptr, bool)>(zo_window_set_use_built_in_title);
    check<bool(zo_window_ptr)>(zo_window_get_enable_title_back);
    check<bool(zo_window_ptr, bool)>(zo_window_set_enable_title_back);
    check<bool(zo_window_ptr)>(zo_window_get_enable_title_exit);
    check<bool(zo_window_ptr, bool)>(zo_window_set_enable_title_exit);
    check<bool(zo_window_ptr)>(zo_window_get_enable_title_menu);
    check<bool(zo_window_ptr, bool)>(zo_window_set_enable_title_menu);
    check<bool(zo_window_ptr)>(zo_window_get_enable_title_hint);
    check<bool(zo_window_ptr, bool)>(zo_window_set_enable_title_hint);
    check<bool(zo_window_ptr)>(zo_window_get_enable_title_save_to_photo);
    check<bool(zo_window_ptr, bool)>(zo_window_set_enable_title_save_to_photo);
    check<bool(zo_window_ptr)>(zo_window_get_enable_title_close);
    check<bool(zo_window_ptr, bool)>(zo_window_set_enable_title_close);
    check<bool(zo_window_ptr)>(zo_window_get_enable_title_minimize);
    check<bool(zo_window_ptr, bool)>(zo_window_set_enable_title_minimize);
}

void check_2() {
    check<bool(zo_window_ptr)>(zo_window_get_enable_content_ads);
    check<bool(zo_window_ptr, bool)>(zo_window_set_enable_content_ads);
    check<bool(zo_window_ptr)>(zo_window_get_use_scroll);
    check<bool(zo_window_ptr, bool)>(zo_window_set_use_scroll);
    check<bool(zo_window_ptr, std::string)>(zo_window_get_bool_property);
    check<bool(zo_window_ptr, std::string, bool)>(zo_window_set_bool_property);
    check<bool(zo_window_ptr, bool*)>(zo_window_is_opened);
    check<bool(zo_window_ptr, bool*)>(zo_window_is_visible);
    check<bool(zo_window_ptr, bool*)>(zo_window_is_destroyed);
    check<bool(zo_window_ptr, std::string&)>(zo_window_get_id);
    check<bool(zo_window_ptr, std::string)>(zo_window_set_id);
    check<bool(zo_window_ptr, std::string&)>(zo_window_get_class);
    check<bool(zo_window_ptr, std::string)>(zo_window_set_class);
    check<bool(zo_window_ptr, std::string&)>(zo_window_get_title);
    check<bool(zo_window_ptr, std::string)>(zo_window_set_title);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(zo_window_set_window_open_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(zo_window_set_window_show_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(zo_window_set_window_hide_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(zo_window_set_window_close_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(zo_window_set_window_activate_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(zo_window_set_window_restore_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(zo_window_set_window_destroy_callback);
    check<bool(zo_window_ptr, std::function<bool(zo_window_ptr)>)>(
        zo_window_set_window_close_request_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(zo_window_set_window_go_back_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(
        zo_window_set_window_hint_request_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr)>)>(
        zo_window_set_window_exit_app_request_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr, GdkPixbuf*)>)>(
        zo_window_set_save_to_photo_handler);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr, GtkGrid*)>)>(
        zo_window_set_menu_create_handler);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr, std::string)>)>(
        zo_window_set_window_title_text_change_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr, std::string)>)>(
        zo_window_set_window_class_change_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr, std::string)>)>(
        zo_window_set_window_id_change_callback);
    check<bool(zo_window_ptr, std::function<void(zo_window_ptr, zo_window_event_ptr)>)>(
        zo_window_set_window_event_callback);
    check<bool(zo_window_ptr, zo_window_manager_ptr)>(zo_window_set_window_manager);
    check<zo_window_manager_ptr(zo_window_ptr)>(zo_window_get_window_manager);
    check<bool(zo_window_ptr, GtkWidget*, bool, bool, int, bool)>(zo_window_add_content_child);
    check<int(zo_window_ptr)>(zo_window_instance_id);
    check<bool(zo_window_ptr)>(zo_window_open);
    check<bool(zo_window_ptr)>(zo_window_show);
    check<bool(zo_window_ptr)>(zo_window_hide);
    check<bool(zo_window_ptr)>(zo_window_activate);
    check<bool(zo_window_ptr)>(zo_window_restore);
    check<bool(zo_window_ptr)>(zo_window_close);
    check<bool(zo_window_ptr)>(zo_window_destroy);
    check<bool(zo_window_ptr)>(zo_window_save);
    check<bool(zo_window_ptr, int, int)>(zo_window_move);
}

void check_3() {
    check<bool(zo_window_ptr, zo_window_event_ptr)>(zo_window_push_event);
    check<bool(zo_window_ptr, std::string, int)>(zo_window_destroy);
    check<zo_window_manager_ptr(std::string)>(zo_window_manager_new);
    check<bool(zo_window_manager_ptr)>(zo_window_manager_open);
    check<bool(zo_window_manager_ptr)>(zo_window_manager_show);
    check<bool(zo_window_manager_ptr)>(zo_window_manager_hide);
    check<bool(zo_window_manager_ptr)>(zo_window_manager_close);
    check<bool(zo_window_manager_ptr)>(zo_window_manager_destroy);
    check<bool(zo_window_manager_ptr)>(zo_window_manager_extend);
    check<bool(zo_window_manager_ptr)>(zo_window_manager_retract);
    check<bool(zo_window_manager_ptr, std::string, int)>(zo_window_manager_destroy);
    check<bool(zo_window_manager_ptr, bool*)>(zo_window_manager_is_opened);
    check<bool(zo_window_manager_ptr, bool*)>(zo_window_manager_is_visible);
    check<bool(zo_window_manager_ptr, bool*)>(zo_window_manager_is_destroyed);
    check<bool(zo_window_manager_ptr)>(zo_window_manager_get_keep_extended);
    check<bool(zo_window_manager_ptr, bool)>(zo_window_manager_set_keep_extended);
    check<bool(zo_window_manager_ptr, GtkWidget*)>(zo_window_manager_add_widget_left);
    check<bool(zo_window_manager_ptr, GtkWidget*)>(zo_window_manager_remove_widget_left);
    check<bool(zo_window_manager_ptr, GtkWidget*)>(zo_window_manager_add_widget_right);
    check<bool(zo_window_manager_ptr, GtkWidget*)>(zo_window_manager_remove_widget_right);
    check<bool(zo_window_manager_ptr, GtkBox*)>(zo_window_manager_add_toolbar);
    check<bool(zo_window_manager_ptr, GtkBox*)>(zo_window_manager_remove_toolbar);
    check<bool(zo_window_manager_ptr, std::map<unsigned long, GtkWidget*>**)>(
        zo_window_manager_get_local_notification_container);
    check<bool(zo_window_manager_ptr, std::function<void(zo_window_manager_ptr)>)>(zo_window_manager_on_open);
    check<bool(zo_window_manager_ptr, std::function<void(zo_window_manager_ptr)>)>(zo_window_manager_on_show);
    check<bool(zo_window_manager_ptr, std::function<void(zo_window_manager_ptr)>)>(zo_window_manager_on_hide);
    check<bool(zo_window_manager_ptr, std::function<void(zo_window_manager_ptr)>)>(
        zo_window_manager_on_close);
    check<bool(zo_window_manager_ptr, std::function<void(zo_window_manager_ptr)>)>(
        zo_window_manager_on_destroy);
    check<bool(GtkWidget*, std::function<void(GtkWidget*)>)>(zo_ui_connect_button_click_signal);
    check<bool(GtkWidget*, std::function<void(GtkToggleButton*)>)>(zo_ui_connect_toogle_click_signal);
    check<bool(GtkWidget*, std::function<void(GtkComboBox*)>)>(
        zo_ui_connect_combobox_selection_change_signal);
    check<bool(GtkWidget*, std::function<void(GtkSwitch*)>)>(zo_ui_connect_switch_button_change_signal);
    check<bool(GtkWidget*, std::function<void(GtkEditable*)>)>(zo_ui_connect_editable_text_change_signal);
    check<bool(GtkWidget*, std::function<void(GtkScaleButton*, double)>)>(
        zo_ui_connect_scale_value_change_signal);
    check<bool(GtkWidget*, std::function<void(GtkMenuItem*)>)>(zo_ui_connect_menuitem_click_signal);
    check<bool(GtkWidget*, std::function<bool(GtkLabel*, std::string&)>)>(zo_ui_connect_label_link_activate);
    check<bool(GtkWidget*, std::function<bool(GtkWidget*, cairo_t*)>)>(zo_ui_connect_on_draw_signal);
    check<bool(GtkWidget*, std::function<int(GtkWidget*, GdkEventButton*)>)>(
        zo_ui_connect_event_click_signal);
    check<bool(GtkWidget*, std::function<int(GtkWidget*, GdkEventButton*)>)>(
        zo_ui_connect_event_button_press_signal);
    check<bool(GtkWidget*, std::function<int(GtkWidget*, GdkEventButton*)>)>(
        zo_ui_connect_event_button_release_signal);
    check<void(GtkWidget*, std::function<void()>)>(zo_ui_connect_widget_destroy);
    check<void()>(zo_ui_init);
    check<int()>(zo_ui_screen_x);
    check<int()>(zo_ui_screen_y);
    check<int()>(zo_ui_screen_width);
}

void check_4() {
    check<int()>(zo_ui_screen_height);
    check<int()>(zo_ui_workarea_x);
    check<int()>(zo_ui_workarea_y);
    check<int()>(zo_ui_workarea_width);
    check<int()>(zo_ui_workarea_height);
    check<GtkWidget*()>(zo_ui_button_new);
    check<GtkWidget*(std::string)>(zo_ui_button_new_with_label);
    check<GtkWidget*(std::string)>(zo_ui_button32_new);
    check<GtkWidget*(std::string)>(zo_ui_button24_new);
    check<GtkWidget*(std::string)>(zo_ui_button16_new);
    check<GtkWidget*(GtkWidget*, bool)>(zo_ui_get_top_centared_widget);
    check<GtkWidget*(GtkWidget*, bool)>(zo_ui_get_centared_widget);
    check<GtkWidget*(GtkWidget*, bool)>(zo_ui_get_left_top_padding_widget);
    check<GtkWidget*(GtkWidget*, bool)>(zo_ui_get_left_padding_widget);
    check<GtkWidget*(GtkWidget*, bool)>(zo_ui_get_right_padding_widget);
    check<std::string(std::string)>(zo_ui_get_translate);
    check<void(GtkWidget*)>(zo_ui_gtk_fix_visual_rgba);
    check<void(GtkWidget*, GdkScreen*, void*)>(zo_ui_gtk_fix_visual_rgba_on_screen_changed);
    check<bool(GtkLabel*, char*, void*)>(zo_ui_on_link_activated_default_open);
    check<void(GtkClipboard*, std::function<void(GtkClipboard*, const char*)>)>(zo_ui_get_clipboard_text);
    check<void(int)>(zo_ui_set_fps);
    check<void(GtkWidget*)>(zo_ui_add_fps_widget);
    check<void()>(zo_ui_output_listeners_stats);
}

void check_messages() {
    check<bool(zo_object_ptr)>(zo_is_notification);
    check<zo_object_ptr(zo_notification_ptr)>(zo_notification_to_object);
    check<zo_notification_ptr(zo_object_ptr)>(zo_notification_from_object);
    check<zo_notification_ptr()>(zo_notification_new);
    check<bool(zo_notification_ptr, std::string)>(zo_notification_set_title);
    check<bool(zo_notification_ptr, std::string)>(zo_notification_set_content);
    check<bool(zo_notification_ptr, int)>(zo_notification_set_timeout);
    check<bool(zo_notification_ptr, bool)>(zo_notification_set_is_markup);
    check<bool(zo_notification_ptr, zo_window_manager_ptr)>(zo_notification_set_manager);
    check<bool(zo_notification_ptr, std::string, std::string, std::function<void(std::string)>)>(
        zo_notification_add_action);
    check<bool(zo_notification_ptr, std::function<void(zo_notification_ptr)>)>(zo_notification_on_close);
    check<bool(zo_notification_ptr, std::function<bool(zo_notification_ptr, std::string&)>)>(
        zo_notification_on_activate_link_callback);
    check<bool(zo_notification_ptr)>(zo_notification_open_show);
    check<bool(zo_notification_ptr)>(zo_notification_destroy);
    check<unsigned long(zo_notification_ptr)>(zo_notification_get_id);
    check<bool(zo_object_ptr)>(zo_is_appindicator);
    check<zo_object_ptr(zo_appindicator_ptr)>(zo_appindicator_to_object);
    check<zo_appindicator_ptr(zo_object_ptr)>(zo_appindicator_from_object);
    check<zo_appindicator_ptr(std::string, std::string, std::string)>(zo_appindicator_new);
    check<bool(zo_appindicator_ptr, std::string, std::string,
               std::function<void(zo_appindicator_ptr, std::string&)>)>(zo_appindicator_add_action);
    check<bool(zo_appindicator_ptr)>(zo_appindicator_show);
}

void check_theme() {
    check<void()>(zo_theme_init);
    check<void()>(zo_theme_uninit);
    check<void(std::string)>(zo_theme_set_theme_path);
    check<std::string()>(zo_theme_get_theme_path);
    check<std::string()>(zo_theme_get_theme_name);
    check<std::string()>(zo_theme_get_system_path);
    check<void(std::string, GError*&)>(zo_theme_use_theme);
    check<void(std::string, GError*&)>(zo_theme_add_css_permanent);
}

}  // namespace

void check_ui_signatures() {
    check_1();
    check_2();
    check_3();
    check_4();
    check_messages();
    check_theme();
}
