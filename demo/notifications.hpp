// SPDX-License-Identifier: MIT
// Notifications of every kind, for their page, the tray and the tour.
#pragma once

#include "workshop.hpp"

#include <utility>

namespace demo {

// What a notification says and offers.
struct message {
    const char* name;   // in the log
    const char* label;  // of the button that raises it
    const char* title;
    const char* content;
    std::vector<std::pair<const char*, const char*>> actions;  // names and labels
    bool is_markup = true;
};

const std::vector<message>& messages();

// Raises one on the stack, and with the timeout, that their page is set to.
void raise_message(workshop& shop, const message& kind);

// Raises one with a title and a text of the user's.
void raise_own_message(workshop& shop, const std::string& title, const std::string& content);

void close_messages(workshop& shop);

}  // namespace demo
