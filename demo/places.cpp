// SPDX-License-Identifier: MIT
#include "places.hpp"

#include <algorithm>

namespace fs = std::filesystem;

fs::path demo::share_folder() {
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    return self.parent_path().parent_path() / "share";
}

// The library joins path, name and "/style.css": a family of themes is a folder of folders.
std::vector<demo::theme_place> demo::installed_themes() {
    std::vector<theme_place> found;
    std::error_code error;
    fs::path root = share_folder() / "themes";
    if (!fs::is_directory(root, error)) root = fs::path("share") / "themes";
    for (const fs::directory_entry& family : fs::directory_iterator(root, error)) {
        if (!family.is_directory(error)) continue;
        for (const fs::directory_entry& theme : fs::directory_iterator(family.path(), error))
            if (fs::exists(theme.path() / "style.css", error))
                found.push_back({family.path().string() + "/", theme.path().filename().string()});
    }
    std::sort(found.begin(), found.end(),
              [](const theme_place& a, const theme_place& b) { return a.name < b.name; });
    return found;
}
