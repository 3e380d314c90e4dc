// SPDX-License-Identifier: MIT
// A program with windows, a panel, notifications and a tray icon, for scripts that look at it from outside.
// Reads commands from its standard input, one a line, and answers each with one line that begins with "= ",
// when all it posted has run.
#include "desktops/objects.hpp"
#include "desktops/widgets.hpp"

#include <functional>
#include <iostream>
#include <map>
#include <sstream>

namespace {

using words = std::vector<std::string>;
using driver::window;

// Hears what the server has to tell by now.
void listen() {
    gdk_display_sync(gdk_display_get_default());
    while (gdk_events_pending()) gtk_main_iteration_do(FALSE);
}

const std::map<std::string, std::function<std::string(const words&)>> commands{
    {"new", [](const words& w) { return driver::make_window(w[1], w.size() < 3), "ok"; }},
    {"show", [](const words& w) { return zo_window_show(window(w[1])), "ok"; }},
    {"hide", [](const words& w) { return zo_window_hide(window(w[1])), "ok"; }},
    {"pair", [](const words& w) { return zo_window_hide(window(w[1])), zo_window_show(window(w[1])), "ok"; }},
    {"activate", [](const words& w) { return zo_window_activate(window(w[1])), "ok"; }},
    {"open", [](const words& w) { return zo_window_open(window(w[1])), "ok"; }},
    {"close", [](const words& w) { return zo_window_close(window(w[1])), "ok"; }},
    {"move", [](const words& w) { return zo_window_move(window(w[1]), stoi(w[2]), stoi(w[3])), "ok"; }},
    {"veto", [](const words& w) { return driver::veto = w[1] == "yes", "ok"; }},
    {"state", [](const words& w) { return driver::state(w[1]); }},
    {"xid", [](const words& w) { return driver::xid(w[1]); }},
    {"part", [](const words& w) { return driver::place(driver::part(driver::named(w[1]), w[2])); }},
    {"told", [](const words&) { return listen(), driver::told(); }},
    {"panel", [](const words& w) { return driver::make_panel(w[1] == "extended"), "ok"; }},
    {"notify", [](const words& w) { return driver::make_notification(w[1]), "ok"; }},
    {"tray", [](const words&) { return driver::make_tray(), "ok"; }}};

void answer(const words& line) {
    const auto command = commands.find(line[0]);
    const std::string text = command == commands.end() ? "unknown command" : command->second(line);
    zo_system_service_exec([text] { std::cout << "= " << text << std::endl; }, "driver", 0);
}

gboolean on_input(GIOChannel* input, GIOCondition, gpointer) {
    char* text = nullptr;
    if (g_io_channel_read_line(input, &text, nullptr, nullptr, nullptr) != G_IO_STATUS_NORMAL) {
        gtk_main_quit();
        return G_SOURCE_REMOVE;
    }
    std::istringstream line(text);
    g_free(text);
    words all;
    for (std::string word; line >> word;) all.push_back(word);
    if (!all.empty()) answer(all);
    return G_SOURCE_CONTINUE;
}

}  // namespace

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    zo_ui_init();
    GIOChannel* input = g_io_channel_unix_new(0);
    g_io_add_watch(input, static_cast<GIOCondition>(G_IO_IN | G_IO_HUP), on_input, nullptr);
    gtk_main();
    g_io_channel_unref(input);
    zo_system_service_end();
    std::cout.flush();
    std::_Exit(0);
}
