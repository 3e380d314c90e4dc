// SPDX-License-Identifier: MIT
#include "page.hpp"

#include "controls.hpp"
#include "texts.hpp"

std::span<const demo::page* const> demo::pages() {
    static constexpr const page* all[] = {
        &life_cycle_page,    &flags_page,   &contents_page,
        &title_bar_page,     &panel_page,   &slots_page,
        &notifications_page, &tray_page,    &theme_page,
        &widgets_page,       &redraws_page, &languages_page,
        &desktop_page,       &threads_page, &inside_page,
    };
    return all;
}

GtkWidget* demo::subject_chooser_new(workshop& shop,
                                     std::function<void()> chosen) {
    const auto choose = [&shop, chosen](const zo_window_ptr& sample) {
        return [&shop, chosen, sample] {
            shop.subject = sample;
            if (chosen) chosen();
        };
    };
    return row_new(
        _("Sample window"),
        choice_new({{"subject-studio", _("Studio"), choose(shop.studio)},
                    {"subject-notes", _("Notes"), choose(shop.notes)}},
                   shop.subject == shop.notes ? 1 : 0));
}
