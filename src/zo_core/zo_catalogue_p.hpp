// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zo {

// Whether everything a compiled catalogue (.mo) points to is inside of it. gettext follows it wherever it
// points, and a damaged one would end the process.
bool is_sound_catalogue(const std::string& content);

// Whether those of the user's languages are, as far as they are there.
bool are_catalogues_sound(const std::string& locale_folder, const std::string& domain);

}  // namespace zo
