// SPDX-License-Identifier: MIT
// Notifications of every kind, for the messages window, the tray and the tour.
#pragma once

#include "workshop.hpp"

namespace demo {

// What a notification says and offers.
struct message {
    const char* label;  // of the button that raises it
    const char* title;
    const char* content;
    std::vector<const char*> actions;
    bool is_markup = true;
};

const std::vector<message>& messages();

// Raises one on the stack, and with the timeout, that the messages window is set to.
void raise_message(workshop& shop, const message& kind);

void close_messages(workshop& shop);

}  // namespace demo
