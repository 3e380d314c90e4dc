// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;
using demo::N_;

namespace {

// begin: flags
struct flag {
    const char* name;
    const char* label;
    bool (*get)(zo_window_ptr);
    bool (*set)(zo_window_ptr, bool);
};

// A group of flags begins with a name alone.
#define FLAG(name, label) \
    { #name, label, zo_window_get_##name, zo_window_set_##name }
constexpr flag flags[] = {
    {nullptr, N_("Title bar"), nullptr, nullptr},
    FLAG(use_built_in_title, N_("Built-in title bar")),
    FLAG(enable_title_back, N_("Back button")),
    FLAG(enable_title_exit, N_("Exit button")),
    FLAG(enable_title_menu, N_("Menu button")),
    FLAG(enable_title_hint, N_("Help button")),
    FLAG(enable_title_save_to_photo, N_("Photo button")),
    FLAG(enable_title_minimize, N_("Hide button")),
    FLAG(enable_title_close, N_("Close button")),
    FLAG(drag_enabled, N_("Dragged by its title bar")),
    {nullptr, N_("Content"), nullptr, nullptr},
    FLAG(enable_content_ads, N_("Advertisement strip")),
    FLAG(use_scroll, N_("Scrolls what is too large")),
    FLAG(use_rgba_visual, N_("Alpha channel")),
    {nullptr, N_("On the desktop"), nullptr, nullptr},
    FLAG(managed_window, N_("Managed by the panel")),
    FLAG(keep_above, N_("Above other windows")),
    FLAG(resizable, N_("Resizable")),
    FLAG(skip_taskbar_hint, N_("Left out of task bars")),
    FLAG(skip_pager, N_("Left out of pagers")),
    FLAG(use_system_decoration, N_("Framed by the desktop")),
    FLAG(popup_window, N_("Popup without a frame")),
};
#undef FLAG

// What shapes a window takes effect when it is opened next: at once.
void flip(demo::workshop& shop, const flag& entry, bool on) {
    entry.set(shop.subject, on);
    shop.log.add("flags",
                 std::string(entry.name) + (on ? ": on" : ": off"));
    if (demo::is_opened(shop.subject)) demo::reopen(shop, shop.subject);
}
// end: flags

struct switches {
    std::vector<std::pair<GtkSwitch*, const flag*>> all;
    bool following = false;  // they are being set, not used
};

void follow_subject(switches& s, const zo_window_ptr& subject) {
    s.following = true;
    for (const auto& [button, entry] : s.all)
        gtk_switch_set_active(button, entry->get(subject));
    s.following = false;
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    const auto s = std::make_shared<switches>();
    demo::append(controls, demo::subject_chooser_new(shop, [&shop, s] {
                     follow_subject(*s, shop.subject);
                 }));
    demo::append(controls,
                 demo::buttons_new(
                     {{"summon", _("Open, show and activate"),
                       [&shop] { demo::summon(shop, shop.subject); }}},
                     1));
    for (const flag& entry : flags) {
        if (!entry.name) {
            demo::append(controls, demo::heading_new(_(entry.label)));
            continue;
        }
        GtkWidget* button = gtk_switch_new();
        gtk_widget_set_name(button, entry.name);
        s->all.emplace_back(GTK_SWITCH(button), &entry);
        zo_ui_connect_switch_button_change_signal(
            button, [&shop, s, &entry](GtkSwitch* changed) {
                if (!s->following)
                    flip(shop, entry, gtk_switch_get_active(changed));
            });
        demo::append(controls, demo::row_new(_(entry.label), button));
    }
    follow_subject(*s, shop.subject);
}

}  // namespace

const demo::page demo::flags_page{
    "flags",
    N_("Windows"),
    N_("Flags"),
    N_("Nineteen switches. An open sample is opened again when you flip "
       "one."),
    code::flags,
    fill,
};
