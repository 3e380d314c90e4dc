// SPDX-License-Identifier: MIT
// The gallery's pages: one file each, which also holds the code that the
// page shows.
#pragma once

#include "code_view.hpp"
#include "workshop.hpp"

#include <span>

namespace demo {

struct page {
    const char* id;     // of its row in the sidebar
    const char* group;  // the rows of one group stand together
    const char* title;
    const char* summary;
    code_region code;
    void (*fill)(workshop& shop,
                 GtkWidget* controls);  // packs the page's controls
};

extern const page life_cycle_page, flags_page, contents_page,
    title_bar_page;
extern const page panel_page, slots_page, notifications_page, tray_page;
extern const page theme_page, widgets_page, redraws_page, languages_page;
extern const page desktop_page, threads_page, inside_page;

// All of them, in the order of the sidebar.
std::span<const page* const> pages();

// The choice of the sample that the pages of windows change; `chosen` is
// called after it was made.
GtkWidget* subject_chooser_new(workshop& shop,
                               std::function<void()> chosen);

}  // namespace demo
