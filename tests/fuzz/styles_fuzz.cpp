// SPDX-License-Identifier: MIT
// Style sheets of any bytes: loaded, shown on a window, reported when they do not parse, and let go.
#include "fuzz/calls_widgets.hpp"
#include "fuzz/target.hpp"

#include <zo_ui/zo_ui.hpp>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace {

std::filesystem::path folder;
constexpr const char* sentinel =
    "zo_fuzz_sentinel";  // a colour that every sheet defines before anything else

void turn() {
    while (g_main_context_pending(nullptr)) g_main_context_iteration(nullptr, FALSE);
}

// Loads the theme; true when GTK took the sheet.
bool use_theme() {
    GError* error = nullptr;
    zo_theme_use_theme("x", error);
    const bool taken = !error;
    g_clear_error(&error);
    turn();
    return taken;
}

bool is_in_effect(GtkWidget* widget) {
    GdkRGBA colour;
    return gtk_style_context_lookup_color(gtk_widget_get_style_context(widget), sentinel, &colour);
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
    static const zo_window_ptr window = zo_window_new("w");
    static GtkWidget* const shown = [] {
        zo_window_set_class(window, "fuzzed");
        zo_window_open(window);
        zo_window_show(window);
        turn();
        return fuzz::toplevels("fuzzed").at(0);
    }();
    const std::filesystem::path sheet = folder / "x" / "style.css";
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    // GTK's parser steps over the end of a sheet, once for each bracket or comment that is still open, and
    // reads what happens to stand there: zeroes end it.
    const std::string beyond(size + 1, '\0');
    std::ofstream(sheet, std::ios::binary) << "@define-color " << sentinel << " #123456;\n" << text << beyond;
    const bool taken = use_theme();
    fuzz::check(is_in_effect(shown) == taken, [&] {
        return std::string(taken ? "a sheet that was taken is not" : "a sheet that was refused is") +
               " in effect";
    });
    std::filesystem::remove(sheet);
    fuzz::check(!use_theme(), [] { return std::string("a sheet that is not there was loaded"); });
    fuzz::check(!is_in_effect(shown), [] { return std::string("the theme before is still in effect"); });
    return 0;
}
