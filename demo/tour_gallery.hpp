// SPDX-License-Identifier: MIT
#pragma once

#include "tour_panel.hpp"

namespace demo::tour {

// Chooses a page in the sidebar and waits until it is shown.
void open_page(const std::string& id);

// A widget of the shown page, by its name.
GtkWidget* on_page(const std::string& name);

// A picture of each page, with what belongs to it done by the pointer. Throws failed_step when something does
// not happen.
void gallery_pages(visit& v);

// Adds a sheet for good: near the end, since every later picture shows it.
void sheet_that_stays(visit& v);

}  // namespace demo::tour
