// SPDX-License-Identifier: MIT
// Where the notification's posts, locks and reports say they come from; see the window's.
#pragma once

namespace zo::notification_source {

inline constexpr const char* file = "src/zo_ui/zo_notification";

// Posted operations.
inline constexpr int open = 204;
inline constexpr int show = 375;
inline constexpr int timeout = 421;
inline constexpr int hide = 427;
inline constexpr int destroy = 510;
inline constexpr int exported_destroy = 653;

// Locks.
inline constexpr int constructor = 138;
inline constexpr int state_reader = 160;
inline constexpr int state_writer = 170;
inline constexpr int settings = 180;
inline constexpr int callables = 190;
inline constexpr int hide_task = 571;

}  // namespace zo::notification_source
