// SPDX-License-Identifier: MIT
// Translations through gettext. The message ids are the keys, so that a changed English text breaks no
// catalogue.
#include <zo_core/zo_lang.hpp>

#include <zo_core/zo_catalogue_p.hpp>
#include <zo_core/zo_place_p.hpp>

#include <glib.h>
#include <libintl.h>

#include <array>
#include <mutex>
#include <string_view>

namespace {

constexpr const char* domain = "zo";

struct english_text {
    std::string_view key;
    std::string_view text;
};

constexpr std::array<english_text, 10> english{{
    {"tooltip_back", "Go back"},
    {"tooltip_close_app", "Exit the application"},
    {"tooltip_close_window", "Close the window"},
    {"tooltip_how_to", "How to use this window"},
    {"tooltip_menu", "Menu"},
    {"tooltip_minimize_window", "Minimize the window"},
    {"tooltip_save_window_photo", "Save a picture of the window"},
    {"tooltip_close_notification", "Close the notification"},
    {"toolbar-locked", "The panel stays open. Click to let it slide away."},
    {"toolbar-unlocked", "The panel slides away. Click to keep it open."},
}};

// With a damaged catalogue the texts are English: gettext finds none where there is none.
void bind_domain() {
    const std::string folder = zo::installed_folder("share/locale", "de/LC_MESSAGES/zo.mo", ZO_LOCALEDIR);
    bindtextdomain(domain, zo::are_catalogues_sound(folder, domain) ? folder.c_str() : "/nonexistent");
    bind_textdomain_codeset(domain, "UTF-8");
}

}  // namespace

std::string zo_lang_get_string(std::string key) {
    static std::once_flag bound;
    std::call_once(bound, bind_domain);
    if (key.empty()) return key;  // gettext answers "" with the catalogue's head
    // What a damaged catalogue answers is empty, or no text at all.
    const char* translated = g_dgettext(domain, key.c_str());
    if (translated != key.c_str() && *translated && g_utf8_validate(translated, -1, nullptr))
        return translated;
    for (const english_text& entry : english)
        if (entry.key == key) return std::string(entry.text);
    return key;
}
