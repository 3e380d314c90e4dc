// SPDX-License-Identifier: MIT
// Where the window's posts, locks and reports say they come from. The module is several files; reports name
// it as one, by these numbers, which stay when code moves.
#pragma once

namespace zo::window_source {

inline constexpr const char* file = "src/zo_ui/zo_window";

// Posted operations.
inline constexpr int destroy_with_reason = 118;
inline constexpr int on_event = 133;
inline constexpr int set_window_manager = 149;
inline constexpr int open = 158;
inline constexpr int show = 166;
inline constexpr int hide = 174;
inline constexpr int activate = 182;
inline constexpr int restore = 190;
inline constexpr int move = 200;
inline constexpr int close = 210;
inline constexpr int destroy = 219;
inline constexpr int set_id = 296;
inline constexpr int set_class = 330;
inline constexpr int set_title = 360;

// Locks.
inline constexpr int constructor = 40;
inline constexpr int destroy_guard = 109;
inline constexpr int event_task = 137;
inline constexpr int text_setter = 288;
inline constexpr int text_task = 298;
inline constexpr int state_reader = 386;
inline constexpr int state_writer = 396;
inline constexpr int settings = 410;
inline constexpr int show_task = 612;
inline constexpr int hide_task = 638;
inline constexpr int activate_task = 660;
inline constexpr int restore_task = 690;
inline constexpr int save_now = 712;
inline constexpr int close_task = 730;
inline constexpr int destroy_task = 760;
inline constexpr int destroy_task_end = 802;
inline constexpr int title_action = 840;
inline constexpr int menu_action = 900;
inline constexpr int bool_getter = 1010;
inline constexpr int bool_setter = 1020;
inline constexpr int text_getter = 1030;
inline constexpr int callback_setter = 1040;
inline constexpr int instance_id = 1050;

}  // namespace zo::window_source
