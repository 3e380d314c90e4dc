// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

#include <clocale>

using demo::_;

namespace {

// begin: languages
// The library's own texts have keys. Each is answered in the language of
// the process: from a catalogue, or else in English.
constexpr const char* keys[] = {"tooltip_back",
                                "tooltip_close_app",
                                "tooltip_close_window",
                                "tooltip_how_to",
                                "tooltip_menu",
                                "tooltip_minimize_window",
                                "toolbar-locked",
                                "tooltip_save_window_photo",
                                "tooltip_close_notification",
                                "toolbar-unlocked"};

void add_text(GtkWidget* list, const char* key) {
    GtkWidget* text = demo::note_new(zo_ui_get_translate(key).c_str());
    gtk_style_context_remove_class(gtk_widget_get_style_context(text),
                                   "dim-label");
    demo::append(list, text);
    GtkWidget* name = demo::text_label(key);
    demo::add_class(name, "gallery-key");
    demo::append(list, name);
}
// end: languages

std::string language() {
    const char* found = std::setlocale(LC_MESSAGES, nullptr);
    const char* asked = g_getenv("LANGUAGE");
    return (asked && *asked ? std::string(asked) + ", " : std::string()) +
           (found ? found : "");
}

void fill(demo::workshop&, GtkWidget* controls) {
    demo::append(
        controls,
        demo::facts_new({{_("Language"), language},
                         {_("Reading direction"), [] {
                              return gtk_widget_get_default_direction() ==
                                             GTK_TEXT_DIR_RTL
                                         ? _("right to left")
                                         : _("left to right");
                          }}}));
    demo::append(controls, demo::heading_new(_("Texts of the library")));
    for (const char* key : keys) {
        GtkWidget* pair = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
        add_text(pair, key);
        demo::append(controls, pair);
    }
}

}  // namespace

const demo::page demo::languages_page{
    "languages",
    N_("Look"),
    N_("Languages"),
    N_("The library speaks the language of the process."),
    code::languages,
    fill,
};
