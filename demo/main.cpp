// SPDX-License-Identifier: MIT
// zo-demo: what the library does, on the user's desktop, or in a scripted tour:
//     zo-demo [--tour FOLDER]
#include "places.hpp"
#include "texts.hpp"
#include "tour.hpp"
#include "workshop.hpp"

#include <iostream>

namespace {

bool load_theme() {
    GError* error = nullptr;
    zo_theme_init();
    for (const demo::theme_place& theme : demo::installed_themes())
        if (theme.name == zo_theme_get_theme_name()) zo_theme_set_theme_path(theme.path);
    zo_theme_use_theme(zo_theme_get_theme_name(), error);
    if (!error) return true;
    std::cerr << "zo-demo: " << error->message << "\n";
    g_error_free(error);
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    g_set_prgname("zo-demo");
    demo::bind_texts();
    if (!gtk_init_check(&argc, &argv)) {
        std::cerr << "zo-demo: no display; script/demo brings one\n";
        return 1;
    }
    zo_ui_init();
    if (!load_theme()) return 1;

    demo::workshop shop;
    demo::make_panel(shop);
    demo::make_notes_window(shop);
    demo::make_studio_window(shop);
    demo::make_gallery_window(shop);
    shop.subject = shop.studio;
    demo::start(shop);

    const bool touring = argc == 3 && std::string(argv[1]) == "--tour";
    int result = 0;
    if (touring) demo::schedule_tour(shop, argv[2], result);
    gtk_main();
    zo_system_service_end();
    zo_theme_uninit();
    return result;
}
