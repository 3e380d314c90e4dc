// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

#include <clocale>

using demo::_;
using demo::N_;

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

GtkWidget* texts_new() {
    GtkWidget* list = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
    for (const char* key : keys) {
        demo::append(list,
                     demo::text_label("<tt><small>" + std::string(key) +
                                      "</small></tt>"));
        demo::append(list,
                     demo::note_new(zo_ui_get_translate(key).c_str()));
    }
    return list;
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
    demo::append(controls, texts_new());
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
