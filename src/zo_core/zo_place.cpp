// SPDX-License-Identifier: MIT
#include <zo_core/zo_place_p.hpp>

#include <dlfcn.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

// From prefix/lib/triplet/libzo_core.so up to the prefix.
constexpr int most_steps_up = 3;

// An exported function would not tell where the library is: in a program that takes its address, it may be
// the program's own entry.
fs::path library_file() {
    Dl_info self;
    std::error_code error;
    if (!dladdr(reinterpret_cast<const void*>(&library_file), &self) || !self.dli_fname) return {};
    return fs::canonical(self.dli_fname, error);
}

}  // namespace

std::string zo::installed_folder(const char* folder, const char* probe, const char* configured) {
    std::error_code error;
    fs::path prefix = library_file().parent_path();
    for (int up = 0; up < most_steps_up && prefix.has_relative_path(); ++up) {
        prefix = prefix.parent_path();
        if (const fs::path candidate = prefix / folder; fs::exists(candidate / probe, error))
            return candidate.string();
    }
    return configured;
}
