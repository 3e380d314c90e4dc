// SPDX-License-Identifier: MIT
#include "texts.hpp"

#include "places.hpp"

#include <glib.h>
#include <libintl.h>

namespace {

constexpr const char* domain = "zo-demo";

}  // namespace

void demo::bind_texts() {
    bindtextdomain(domain, (share_folder() / "locale").c_str());
    bind_textdomain_codeset(domain, "UTF-8");
}

const char* demo::_(const char* text) {
    return *text ? g_dgettext(domain, text) : text;  // gettext answers "" with the catalogue's head
}
