// SPDX-License-Identifier: MIT
// What a person does to windows, and the tool menu.
#include "fuzz/calls_model.hpp"

#include <utility>

using fuzz::model;

fuzz::title_flags model::default_title_flags() {
    title_flags flags{};
    for (const title_button button : {title_button::close, title_button::minimize})
        flags[static_cast<std::size_t>(button)] = true;
    return flags;
}

bool model::press_some_window(const call& made) {
    return first_window(made, [this](const call& one) { return press_window(one); });
}

bool model::press_window(const call& made) {
    const int w = present_windows_[made.who];
    window& it = windows_[w];
    for (const auto& [press, button] : title_presses)
        if (press == made.what) return press_title(w, button);
    switch (made.what) {
        case verb::click_menu_entry:
        case verb::leave_menu:
        case verb::destroy_menu:
            return press_menu(w, made.what);
        case verb::ask_to_close:
            if (!it.tree) return false;
            request_close(w);
            return true;
        case verb::destroy_toplevel:
            if (!it.tree) return false;
            close(w);
            return true;
        case verb::click_task:
            if (!it.task) return false;
            if (it.visible) {
                hide(w);
            } else {
                show(w);
                activate(w);
            }
            return true;
        default:  // click_task_close
            if (it.task) post([=, this] { close(w); });
            return it.task;
    }
}

bool model::press_title(int w, title_button button) {
    const window& it = windows_[w];
    if (!it.titled || !it.buttons[static_cast<std::size_t>(button)]) return false;
    switch (button) {
        case title_button::exit:
            tell_window(w, event::exit);
            break;
        case title_button::hint:
            tell_window(w, event::hint);
            break;
        case title_button::back:
            tell_window(w, event::back);
            break;
        case title_button::photo:
            if (it.mapped) tell_window(w, event::photo);  // what is not on screen has no picture
            break;
        case title_button::close:
            request_close(w);
            break;
        case title_button::minimize:
            hide(w);
            break;
        default:
            open_menu(w);
    }
    return true;
}

// The callback that fills the menu may close, hide or show the window: then there is no menu.
void model::open_menu(int w) {
    window& it = windows_[w];
    if (!it.answers.count(event::menu)) return;
    const int tree = it.tree;
    const bool visible = it.visible;
    tell_window(w, event::menu);
    if (!still(w, tree) || it.visible != visible) return;
    it.menu = ++menus_;
    it.menu_shown = true;
}

// An entry does what the application wants, and closes its menu; not one that was opened meanwhile.
bool model::press_menu(int w, verb what) {
    window& it = windows_[w];
    const int menu = it.menu;
    if (!menu) return false;
    if (what == verb::click_menu_entry && has_callback({kind::window, it.who, event::menu_entry}))
        answer(kind::window, it.who, event::menu_entry);
    const bool leaves_hidden = what == verb::leave_menu && !it.menu_shown;
    if (it.menu == menu && !leaves_hidden) it.menu = 0;
    return !leaves_hidden;
}
