// SPDX-License-Identifier: MIT
// Texts that are much longer than what they are meant for. X has no windows of more than 32767 pixels, and
// nobody reads what is beyond the desktop's edge. Usual texts are neither changed nor measured.
#pragma once

#include <gtk/gtk.h>
#include <string>

namespace zo {

// For a label that ends in an ellipsis: on one line if it has more lines than a bar may have, and no longer
// than what Pango can measure.
std::string as_title(const std::string& text);

// For a tooltip: the beginning of a long text.
std::string as_tooltip(const std::string& text);

// A label whose whole text would be wider or higher than the desktop shows `lines` lines of it, without
// markup.
void keep_on_desktop(GtkWidget* label, int lines);

}  // namespace zo
