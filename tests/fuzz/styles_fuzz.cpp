// SPDX-License-Identifier: MIT
// Style sheets of any bytes: loaded, shown on a window, reported when they do not parse, and let go.
#include "fuzz/target.hpp"

#include <fuzzer/FuzzedDataProvider.h>
#include <zo_ui/zo_ui.hpp>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

std::filesystem::path folder;

void turn() {
    while (g_main_context_pending(nullptr)) g_main_context_iteration(nullptr, FALSE);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::prepare(argc, argv);
    fuzz::allow_warning("Theme");  // GTK's own word about a sheet that uses what it gave up
    folder = std::filesystem::temp_directory_path() / ("zo-styles-" + std::to_string(g_random_int()));
    std::filesystem::create_directories(folder / "x");
    std::atexit([] { std::filesystem::remove_all(folder); });
    zo_theme_set_theme_path(folder.string() + "/");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const zo_window_ptr window = [] {
        const zo_window_ptr made = zo_window_new("w");
        zo_window_open(made);
        zo_window_show(made);
        turn();
        return made;
    }();
    const std::filesystem::path sheet = folder / "x" / "style.css";
    std::ofstream(sheet, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<long>(size));
    GError* error = nullptr;
    zo_theme_use_theme("x", error);
    g_clear_error(&error);
    turn();
    fuzz::check(zo_theme_get_theme_name() == "x", [] { return std::string("another theme"); });
    std::filesystem::remove(sheet);
    zo_theme_use_theme("x", error);
    fuzz::check(error, [] { return std::string("a sheet that is not there was loaded"); });
    g_clear_error(&error);
    turn();
    return 0;
}
