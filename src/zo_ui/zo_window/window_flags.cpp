// SPDX-License-Identifier: MIT
// The exported flags, and bool properties by name.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>

namespace {

constexpr zo::spelling read_value{"&value", "ptr->property_list", false};

bool read_flag(_zo_window& window, const std::string& name) {
    bool value = false;
    zo::property_guard guard(window, zo::window_source::file, zo::window_source::bool_getter);
    guard.read(name, value, read_value);
    return value;
}

bool read_flag(_zo_window& window, const zo::flag_name& name) {
    return zo::property_guard::flag(window, name, zo::window_source::file, zo::window_source::bool_getter,
                                    read_value);
}

template <typename Name>
void write_flag(_zo_window& window, const Name& name, bool value) {
    zo::property_guard guard(window, zo::window_source::file, zo::window_source::bool_setter);
    guard.write(name, value, {"value", "ptr->property_list", false});
}

}  // namespace

bool zo_window_get_bool_property(zo_window_ptr window, std::string name) {
    return !zo::refuse_null(window, __func__) && read_flag(*window, name);
}

bool zo_window_set_bool_property(zo_window_ptr window, std::string name, bool value) {
    if (zo::refuse_null(window, __func__)) return false;
    write_flag(*window, name, value);
    return true;
}

// exported name, property
#define ZO_WINDOW_FLAG(flag, property)                                         \
    bool zo_window_get_##flag(zo_window_ptr window) {                          \
        static const zo::flag_name name(property);                             \
        return !zo::refuse_null(window, __func__) && read_flag(*window, name); \
    }                                                                          \
    bool zo_window_set_##flag(zo_window_ptr window, bool value) {              \
        if (zo::refuse_null(window, __func__)) return false;                   \
        write_flag(*window, property, value);                                  \
        return true;                                                           \
    }

ZO_WINDOW_FLAG(managed_window, "window-managed")
ZO_WINDOW_FLAG(popup_window, "popup-window")
ZO_WINDOW_FLAG(use_rgba_visual, "use-rgba-visual")
ZO_WINDOW_FLAG(use_system_decoration, "use-system-decoration")
ZO_WINDOW_FLAG(skip_pager, "skip-pager")
ZO_WINDOW_FLAG(skip_taskbar_hint, "skip-taskbar-hint")
ZO_WINDOW_FLAG(resizable, "re-sizable")
ZO_WINDOW_FLAG(keep_above, "keep-above")
ZO_WINDOW_FLAG(drag_enabled, "drag-enabled")
ZO_WINDOW_FLAG(use_built_in_title, "use-built-in-title")
ZO_WINDOW_FLAG(enable_title_back, "enable-title-back")
ZO_WINDOW_FLAG(enable_title_exit, "enable-title-exit")
ZO_WINDOW_FLAG(enable_title_menu, "enable-title-menu")
ZO_WINDOW_FLAG(enable_title_hint, "enable-title-hint")
ZO_WINDOW_FLAG(enable_title_save_to_photo, "enable-title-save-to-photo")
ZO_WINDOW_FLAG(enable_title_close, "enable-title-close")
ZO_WINDOW_FLAG(enable_title_minimize, "enable-title-minimize")
ZO_WINDOW_FLAG(enable_content_ads, "enable-content-ads")
ZO_WINDOW_FLAG(use_scroll, "use_scroll")
