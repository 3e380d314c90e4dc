// SPDX-License-Identifier: MIT
// What the driver has on the desktop. Every callback tells a word, which scripts ask for.
#pragma once
#include <zo_ui/zo_ui.hpp>

#include <string>

namespace driver {

// The words told since this was last asked.
std::string told();

extern bool veto;

zo_window_ptr window(const std::string& id);
void make_window(const std::string& id, bool keep_above);
void make_panel(bool keep_extended);
void make_notification(const std::string& name);
void make_tray();

// "unknown", or "opened" or "closed" with "visible" or "hidden".
std::string state(const std::string& id);

}  // namespace driver
