// SPDX-License-Identifier: MIT
// alone PREFIX: a stranger's program, started in a folder without themes or catalogues. The library installed
// in PREFIX gives it the theme and its user's language, German. It stays until its window is closed.
#include <zo_ui/zo_ui.hpp>

#include <clocale>
#include <cstdio>
#include <cstring>

namespace {

int fail(const std::string& what) {
    std::printf("alone: %s\n", what.c_str());
    return 1;
}

void count_translated(GtkWidget* widget, void* count) {
    char* tooltip = gtk_widget_get_tooltip_text(widget);
    if (tooltip && std::strcmp(tooltip, "Fenster schließen") == 0) ++*static_cast<int*>(count);
    g_free(tooltip);
    if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), count_translated, count);
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    if (!gtk_init_check(&argc, &argv) || argc != 2) return fail("no display, or no prefix named");
    zo_ui_init();
    zo_theme_init();
    const std::string themes = zo_theme_get_system_path();
    if (themes != std::string(argv[1]) + "/share/themes/brevant/") return fail("themes in " + themes);
    zo_theme_set_theme_path(themes);
    GError* error = nullptr;
    zo_theme_use_theme(zo_theme_get_theme_name(), error);
    if (error) return fail(error->message);

    int translated = 0;
    const zo_window_ptr window = zo_window_new("alone");
    zo_window_set_title(window, "Alone");
    zo_window_set_window_show_callback(window, [&](zo_window_ptr) {
        GList* toplevels = gtk_window_list_toplevels();
        for (GList* at = toplevels; at; at = at->next)
            count_translated(static_cast<GtkWidget*>(at->data), &translated);
        g_list_free(toplevels);
    });
    zo_window_set_window_close_callback(window, [](zo_window_ptr) { gtk_main_quit(); });
    zo_window_open(window);
    zo_window_show(window);
    gtk_main();
    zo_window_destroy(window);
    zo_system_service_end();
    return translated == 1 ? 0 : fail("no title bar in German");
}
