// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "places.hpp"
#include "texts.hpp"

#include <set>

using demo::_;

namespace {

// begin: theme
// One sheet for everything the library builds; open windows follow.
void use_theme(demo::workshop& shop, const demo::theme_place& theme) {
    GError* error = nullptr;
    zo_theme_set_theme_path(theme.path);
    zo_theme_use_theme(theme.name, error);
    shop.log.add("theme",
                 error ? error->message : "loaded: " + theme.name);
    g_clear_error(&error);
}

// Loads the theme again whenever somebody saves a file of that folder.
void follow_folder(demo::workshop& shop, GtkWidget* page,
                   const std::string& folder) {
    GFile* watched = g_file_new_for_path(folder.c_str());
    GFileMonitor* monitor = g_file_monitor_directory(
        watched, G_FILE_MONITOR_NONE, nullptr, nullptr);
    g_object_unref(watched);
    if (!monitor) return;
    const auto on_change =
        +[](GFileMonitor*, GFile* file, GFile*, GFileMonitorEvent event,
            demo::workshop* s) {
            const std::string name = g_file_peek_path(file);
            if (event == G_FILE_MONITOR_EVENT_CHANGES_DONE_HINT &&
                name.ends_with(".css"))
                use_theme(*s, {zo_theme_get_theme_path(),
                               zo_theme_get_theme_name()});
        };
    g_signal_connect(monitor, "changed", G_CALLBACK(on_change), &shop);
    zo_ui_connect_widget_destroy(page,
                                 [monitor] { g_object_unref(monitor); });
}

// A sheet of the application's own, which stays whatever theme is chosen.
void add_sheet(demo::workshop& shop, const std::string& folder,
               const std::string& file) {
    GError* error = nullptr;
    const std::string themes = zo_theme_get_theme_path();
    zo_theme_set_theme_path(folder);
    zo_theme_add_css_permanent(file, error);
    zo_theme_set_theme_path(themes);
    shop.log.add("theme", error ? error->message : "added: " + file);
    g_clear_error(&error);
}
// end: theme

void write_and_add_sheet(demo::workshop& shop) {
    const std::string folder =
        std::string(g_get_user_cache_dir()) + "/zo-demo/";
    const std::string file = "titles.css";
    g_mkdir_with_parents(folder.c_str(), 0700);
    g_file_set_contents((folder + file).c_str(),
                        ".zo-window .title-text { font-style: italic; }",
                        -1, nullptr);
    add_sheet(shop, folder, file);
}

constexpr const char* palette[] = {
    "zo_bg",       "zo_raised",     "zo_sunken", "zo_line",
    "zo_border",   "zo_fg_dim",     "zo_fg",     "zo_accent",
    "zo_link",     "zo_danger",     "zo_focus",  "zo_title_bg",
    "zo_title_fg", "zo_title_mark", "zo_ink_bg", "zo_ink_raised",
    "zo_ink_fg",   "zo_ink_mark",
};

bool draw_swatch(GtkWidget* swatch, cairo_t* cairo, const char* name) {
    GtkStyleContext* style = gtk_widget_get_style_context(swatch);
    GdkRGBA colour;
    GdkRGBA edge;
    if (!gtk_style_context_lookup_color(style, name, &colour))
        return false;
    const double width = gtk_widget_get_allocated_width(swatch);
    const double height = gtk_widget_get_allocated_height(swatch);
    gdk_cairo_set_source_rgba(cairo, &colour);
    cairo_rectangle(cairo, 0.5, 0.5, width - 1, height - 1);
    cairo_fill_preserve(cairo);
    if (gtk_style_context_lookup_color(style, "zo_border", &edge)) {
        gdk_cairo_set_source_rgba(cairo, &edge);
        cairo_set_line_width(cairo, 1);
        cairo_stroke(cairo);
    }
    return false;
}

GtkWidget* palette_new() {
    constexpr int columns = 6;
    GtkWidget* grid = gtk_grid_new();
    gtk_grid_set_column_homogeneous(GTK_GRID(grid), TRUE);
    gtk_grid_set_column_spacing(GTK_GRID(grid), 6);
    gtk_grid_set_row_spacing(GTK_GRID(grid), 6);
    int i = 0;
    for (const char* name : palette) {
        GtkWidget* swatch = gtk_drawing_area_new();
        gtk_widget_set_size_request(swatch, -1, 28);
        gtk_widget_set_hexpand(swatch, TRUE);
        gtk_widget_set_tooltip_text(swatch, name);
        zo_ui_connect_on_draw_signal(
            swatch, [name](GtkWidget* widget, cairo_t* cairo) {
                return draw_swatch(widget, cairo, name);
            });
        gtk_grid_attach(GTK_GRID(grid), swatch, i % columns, i / columns,
                        1, 1);
        ++i;
    }
    return grid;
}

GtkWidget* theme_list(demo::workshop& shop) {
    GtkWidget* list = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
    gtk_widget_set_name(list, "themes");
    GtkRadioButton* group = nullptr;
    for (const demo::theme_place& theme : demo::installed_themes()) {
        GtkWidget* button = gtk_radio_button_new_with_label_from_widget(
            group, theme.name.c_str());
        group = GTK_RADIO_BUTTON(button);
        gtk_widget_set_name(button, ("theme-" + theme.name).c_str());
        gtk_toggle_button_set_active(
            GTK_TOGGLE_BUTTON(button),
            theme.name == zo_theme_get_theme_name());
        zo_ui_connect_toogle_click_signal(
            button, [&shop, theme](GtkToggleButton* chosen) {
                if (gtk_toggle_button_get_active(chosen))
                    use_theme(shop, theme);
            });
        demo::append(list, button);
    }
    return list;
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(controls, demo::heading_new(_("Installed themes")));
    demo::append(controls, theme_list(shop));
    std::set<std::string> folders;
    for (const demo::theme_place& theme : demo::installed_themes())
        folders.insert({theme.path, theme.path + theme.name});
    for (const std::string& folder : folders)
        follow_folder(shop, controls, folder);
    demo::append(
        controls,
        demo::buttons_new(
            {{"add-sheet", _("Add a sheet that stays: italic titles"),
              [&shop] { write_and_add_sheet(shop); }}},
            1));
    demo::append(controls, demo::heading_new(_("Its colours")));
    demo::append(controls, palette_new());
    demo::append(controls,
                 demo::heading_new(_("Every widget of the process")));
    demo::append(
        controls,
        demo::toggle_new(
            "right-to-left", _("Right to left"),
            gtk_widget_get_default_direction() == GTK_TEXT_DIR_RTL,
            [](bool on) {
                gtk_widget_set_default_direction(on ? GTK_TEXT_DIR_RTL
                                                    : GTK_TEXT_DIR_LTR);
            }));
    gboolean animated = FALSE;
    g_object_get(gtk_settings_get_default(), "gtk-enable-animations",
                 &animated, nullptr);
    demo::append(
        controls,
        demo::toggle_new(
            "animations", _("Animations"), animated, [](bool on) {
                g_object_set(gtk_settings_get_default(),
                             "gtk-enable-animations",
                             static_cast<gboolean>(on), nullptr);
            }));
    demo::append(controls,
                 demo::note_new(_("While this page is open, a theme "
                                  "whose sheet is saved is loaded "
                                  "again.")));
}

}  // namespace

const demo::page demo::theme_page{
    "theme",
    N_("Look"),
    N_("Theme"),
    N_("One style sheet for everything, changed while it runs."),
    code::theme,
    fill,
};
