// SPDX-License-Identifier: MIT
#pragma once

#include "tour_tools.hpp"
#include "workshop.hpp"

#include <string>

namespace demo::tour {

// One visit: the windows, where the pictures go, and how many there are.
struct visit {
    workshop& shop;
    std::string folder;
    int pictures = 0;
    place gallery_home{};  // where the gallery stands while no notification is over its controls

    // Writes the next numbered screenshot and prints its path.
    void picture(const std::string& name);

    void expect_logged(const std::string& window, const std::string& what);
};

// The tour's steps on the panel. Each throws failed_step when something does not happen.
void panel_by_the_pointer(visit& v);
void panel_lock(visit& v);
void task_buttons(visit& v);
void panel_toolbar(visit& v);
void panel_closed_and_opened(visit& v);
void panel_closed_for_a_while(visit& v);
void closing_by_the_task(visit& v);
void active_title(visit& v);

}  // namespace demo::tour
