// SPDX-License-Identifier: MIT
/// @file
/// The theme: one style sheet for everything the library builds, and further sheets that stay.
///
/// @thread the loop's, after `gtk_init`
#pragma once

#include <zo_core/zo_export.hpp>

#include <gtk/gtk.h>
#include <string>

/// Does nothing; kept for the start-up sequence.
ZO_EXPORT void zo_theme_init();

/// Takes the current theme off the default screen. Sheets of zo_theme_add_css_permanent() stay.
/// @state without a theme nothing happens
ZO_EXPORT void zo_theme_uninit();

/// Sets the folder that themes are found in. At first it is `./share/themes/brevant/`. Names are appended to
/// `path` as they are: end it with a separator.
ZO_EXPORT void zo_theme_set_theme_path(std::string path);

/// The folder that themes are found in.
ZO_EXPORT std::string zo_theme_get_theme_path();

/// The folder of the themes that came with the library, ending with a separator: prefix/share/themes/brevant/
/// of the installation that the library was loaded from, also when that was moved. In a build tree it is the
/// build's. Nothing uses it by itself; an installed program says, before zo_theme_use_theme(),
///
///     zo_theme_set_theme_path(zo_theme_get_system_path());
///
/// and finds its theme from whatever folder it is started in.
/// @thread any; needs no display
ZO_EXPORT std::string zo_theme_get_system_path();

/// The name given to zo_theme_use_theme() last, even if that failed; at first `brevant`.
ZO_EXPORT std::string zo_theme_get_theme_name();

/// Makes the theme path + `name` + `/style.css` the theme, in place of the current one. `error` becomes null,
/// or GTK's error when the sheet cannot be loaded; there is then no theme. Each parsing error is a line on
/// standard output. Priority: `GTK_STYLE_PROVIDER_PRIORITY_APPLICATION`.
/// @owner the caller frees `error`
ZO_EXPORT void zo_theme_use_theme(std::string name, GError*& error);

/// Adds the sheet theme path + `file` with the same priority, until the process ends. Of sheets with one
/// priority the last added wins. `error` becomes null, or GTK's error when the sheet cannot be loaded;
/// nothing is then added.
/// @owner the caller frees `error`
ZO_EXPORT void zo_theme_add_css_permanent(std::string file, GError*& error);
