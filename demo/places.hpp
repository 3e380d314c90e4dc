// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace demo {

// The share folder beside the program's own bin: of the build tree, of a staged or moved installation.
std::filesystem::path share_folder();

// A theme that is installed: what zo_theme_set_theme_path and zo_theme_use_theme take.
struct theme_place {
    std::string path;
    std::string name;
};

// Every folder with a sheet under the themes beside the program, or else under those of the working folder.
std::vector<theme_place> installed_themes();

}  // namespace demo
