// SPDX-License-Identifier: MIT
#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_ui/zo_window/window_p.hpp>

namespace {

using zo::window_settings;

struct flag_row {
    const char* property;
    bool window_settings::*member;
    const char* variable;
};

constexpr flag_row flags[] = {
    {"popup-window", &window_settings::popup_window, "&popup_window"},
    {"window-managed", &window_settings::window_managed, "&window_managed"},
    {"use-rgba-visual", &window_settings::use_rgba_visual, "&use_rgba_visual"},
    {"use-system-decoration", &window_settings::use_system_decoration, "&use_system_decoration"},
    {"skip-pager", &window_settings::skip_pager, "&skip_pager"},
    {"skip-taskbar-hint", &window_settings::skip_taskbar_hint, "&skip_taskbar_hint"},
    {"re-sizable", &window_settings::resizable, "&re_sizable"},
    {"keep-above", &window_settings::keep_above, "&keep_above"},
    {"drag-enabled", &window_settings::drag_enabled, "&drag_enabled"},
    {"use-built-in-title", &window_settings::use_built_in_title, "&use_built_in_title"},
    {"enable-title-back", &window_settings::enable_title_back, "&enable_title_back"},
    {"enable-title-exit", &window_settings::enable_title_exit, "&enable_title_exit"},
    {"enable-title-menu", &window_settings::enable_title_menu, "&enable_title_menu"},
    {"enable-title-hint", &window_settings::enable_title_hint, "&enable_title_hint"},
    {"enable-title-save-to-photo", &window_settings::enable_title_save_to_photo,
     "&enable_title_save_to_photo"},
    {"enable-title-close", &window_settings::enable_title_close, "&enable_title_close"},
    {"enable-title-minimize", &window_settings::enable_title_minimize, "&enable_title_minimize"},
    {"enable-content-ads", &window_settings::enable_content_ads, "&enable_content_ads"},
    {"use_scroll", &window_settings::use_scroll, "&use_scroll"},
};

}  // namespace

zo::window_settings zo::read_window_settings(_zo_window& window) {
    window_settings settings;
    property_guard guard(window, window_source::file, window_source::settings);
    guard.read("window-open", settings.on_open, {"&fn"});
    for (const flag_row& row : flags) guard.read(row.property, settings.*row.member, {row.variable});
    guard.read("window-title-text", settings.title, {"&window_title_text"});
    guard.read("window-class", settings.style_class, {"&window_class"});
    guard.read("window-id", settings.id, {"&window_id"});
    return settings;
}

void zo::normalise(window_settings& settings) {
    if (!settings.use_built_in_title) settings.use_system_decoration = true;
    if (!settings.popup_window) return;
    // Said for every popup, whatever its flags were (test "EveryPopupWritesTheWarning").
    log_line("warning, popup window should not have any decoration enabled");
    settings.use_built_in_title = false;
    settings.use_system_decoration = false;
    settings.window_managed = false;
}

std::string zo::content_name(const std::string& id) { return "messagebox" + id; }
