// SPDX-License-Identifier: MIT
// Where the indicator's posts, locks and reports say they come from; see the window's.
#pragma once

namespace zo::appindicator_source {

inline constexpr const char* file = "src/zo_ui/zo_appindicator";

// Posted operations.
inline constexpr int destroy_with_reason = 161;
inline constexpr int add_action = 184;
inline constexpr int show = 278;
inline constexpr int release = 80;

// Locks.
inline constexpr int constructor = 52;
inline constexpr int destroy_guard = 152;
inline constexpr int destroy_task = 162;
inline constexpr int destroy_task_end = 172;
inline constexpr int add_task = 183;
inline constexpr int item_clicked = 210;
inline constexpr int show_task_record = 270;
inline constexpr int show_task = 278;

// Reports without a lock.
inline constexpr int no_display = 284;

}  // namespace zo::appindicator_source
