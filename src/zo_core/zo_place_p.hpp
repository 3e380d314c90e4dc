// SPDX-License-Identifier: MIT
// Where the library's own files are.
#pragma once

#include <zo_core/zo_export.hpp>

#include <string>

namespace zo {

// `folder` ("share/locale") in the prefix that the library stands in, wherever that was staged or moved to:
// the nearest one in which `probe`, a file or folder below it, exists. `configured` when there is none.
ZO_EXPORT std::string installed_folder(const char* folder, const char* probe, const char* configured);

}  // namespace zo
