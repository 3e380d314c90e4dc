// SPDX-License-Identifier: MIT
/// @file
/// The texts of the library in the user's language.
#pragma once

#include <zo_core/zo_export.hpp>

#include <string>

/// The text for `key` in the language of the process (setlocale; LANGUAGE), in UTF-8 and valid as Pango
/// markup. English when there is no translation; the key itself when it is unknown.
///
/// The catalogues are those of the installation that the library was loaded from (prefix/share/locale); the
/// application names no folder.
/// @thread any
ZO_EXPORT std::string zo_lang_get_string(std::string key);
