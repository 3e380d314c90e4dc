// SPDX-License-Identifier: MIT
// A button that shows only an icon.
#pragma once

#include <gtk/gtk.h>
#include <string>

namespace zo {

// As zo_ui_button16_new(). Its tooltip is the name that assistive programs read: what holds the name for them
// is made only when one asks for it.
GtkWidget* icon_button16_new(const char* style_class, const std::string& tooltip);

}  // namespace zo
