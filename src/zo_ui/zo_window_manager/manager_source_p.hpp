// SPDX-License-Identifier: MIT
// Where the manager's posts, locks and reports say they come from; see the window's.
#pragma once

namespace zo::manager_source {

inline constexpr const char* file = "src/zo_ui/zo_window_manager";

// Reasons given to what the manager destroys.
inline constexpr int closes_notification = 421;
inline constexpr int destroys_window = 472;

// Posted operations.
inline constexpr int destroy_with_reason = 134;
inline constexpr int open = 150;
inline constexpr int show = 158;
inline constexpr int hide = 166;
inline constexpr int close = 174;
inline constexpr int destroy = 182;
inline constexpr int extend = 190;
inline constexpr int retract = 198;
inline constexpr int keep_extended = 214;

// Locks.
inline constexpr int constructor = 60;
inline constexpr int destroy_guard = 126;
inline constexpr int set_keep_extended = 208;
inline constexpr int state_reader = 226;
inline constexpr int state_writer = 236;
inline constexpr int open_task = 250;
inline constexpr int show_task = 360;
inline constexpr int hide_task = 388;
inline constexpr int close_task = 404;
inline constexpr int close_window_task = 412;
inline constexpr int destroy_task = 450;
inline constexpr int destroy_task_end = 460;
inline constexpr int registration = 500;
inline constexpr int leaving = 520;
inline constexpr int task_button_reader = 560;
inline constexpr int task_button_writer = 580;
inline constexpr int task_text_reader = 600;
inline constexpr int lock_clicked = 640;
inline constexpr int callback_setter = 700;

}  // namespace zo::manager_source
