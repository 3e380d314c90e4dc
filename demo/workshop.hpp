// SPDX-License-Identifier: MIT
// What the demo's windows share.
#pragma once

#include "callback_log.hpp"

#include <zo_ui/zo_ui.hpp>

#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace demo {

// The windows, and what one of them changes for the others.
struct workshop {
    zo_window_manager_ptr panel;
    zo_window_ptr gallery;
    zo_window_ptr notes;  // the two samples, which the pages work on
    zo_window_ptr studio;
    zo_window_ptr subject;                    // the sample that the pages of windows change
    zo_appindicator_ptr tray;                 // empty until it is shown
    std::vector<zo_notification_ptr> raised;  // those that are not closed
    bool messages_on_panel = false;
    bool messages_leave = false;
    callback_log log;
    bool ask_before_closing = false;
    bool leaving = false;       // quit() has been called
    GtkBox* toolbar = nullptr;  // null while the panel has none
    std::string page = "life-cycle";
    std::string photo_folder = ".";
    std::string notes_text;
    std::vector<std::jthread> workers;  // the threads that a page has started
};

// Makes the panel: a launcher at the left, a clock at the right. Comes before the windows, which join it.
void make_panel(workshop& shop);

// Puts a toolbar under the panel's row, or takes it away.
void show_toolbar(workshop& shop, bool on);

// Each makes its window and sets its callbacks; nothing is on screen before start().
void make_gallery_window(workshop& shop);
void make_notes_window(workshop& shop);
void make_studio_window(workshop& shop);

// How wide the gallery is on this screen.
int gallery_width();

// Logs what the library reports of the window.
void log_life_cycle(workshop& shop, const zo_window_ptr& window, const std::string& name);

// Opens and shows the panel and the gallery; the samples wait to be launched.
void start(workshop& shop);

// Opens a window if it is closed, shows it if it is hidden, and activates it.
void summon(workshop& shop, const zo_window_ptr& window);

// Closes a window and opens it again in its place, so that changed flags take effect.
void reopen(workshop& shop, const zo_window_ptr& window);

bool is_opened(const zo_window_ptr& window);

// Ends the tray, the notifications and the panel with its windows, and then the main loop.
void quit(workshop& shop);

}  // namespace demo
