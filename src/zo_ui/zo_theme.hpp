// SPDX-License-Identifier: MIT
// The theme: one style sheet for everything the library builds, and further sheets that stay.
//
// Only on the loop's thread, after gtk_init.
#pragma once

#include <zo_core/zo_export.hpp>

#include <gtk/gtk.h>
#include <string>

// Does nothing; kept for the start-up sequence.
ZO_EXPORT void zo_theme_init();

// Takes the current theme off the default screen. Sheets of zo_theme_add_css_permanent stay.
ZO_EXPORT void zo_theme_uninit();

// The folder that themes are found in, at first "./share/themes/brevant/". Names are appended as they are:
// end the path with a separator.
ZO_EXPORT void zo_theme_set_theme_path(std::string path);
ZO_EXPORT std::string zo_theme_get_theme_path();

// The name given to zo_theme_use_theme last, even if that failed; at first "brevant".
ZO_EXPORT std::string zo_theme_get_theme_name();

// Makes path + name + "/style.css" the theme, in place of the current one. `error` becomes null, or GTK's
// error when the sheet cannot be loaded, for the caller to free; there is then no theme. Each parsing error
// is a line on standard output. Priority: GTK_STYLE_PROVIDER_PRIORITY_APPLICATION.
ZO_EXPORT void zo_theme_use_theme(std::string name, GError*& error);

// Adds the sheet path + file with the same priority, until the process ends. Of sheets with one priority the
// last added wins. `error` as above.
ZO_EXPORT void zo_theme_add_css_permanent(std::string file, GError*& error);
