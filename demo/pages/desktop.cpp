// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

#include <zo_ui/platform/linux.hpp>

#include <gdk/gdkx.h>

using demo::_;

namespace {

// begin: desktop
// Which window of the desktop is active, whoever it belongs to.
struct active_window {
    unsigned long id = 0;
    std::string title;
    std::string res_name;
    std::string res_class;
    int pid = 0;
};

active_window ask() {
    active_window found;
    getActiveWindowInfo(found.id, found.title, found.res_name,
                        found.res_class, found.pid);
    return found;
}

// Any window of the desktop is activated by its X11 id.
bool activate(GtkWidget* toplevel) {
    return setActiveWindow(
        gdk_x11_window_get_xid(gtk_widget_get_window(toplevel)));
}
// end: desktop

// X11 names are in whatever encoding their program chose.
std::string valid(const std::string& text) {
    char* made = g_utf8_make_valid(text.c_str(), -1);
    std::string result = made;
    g_free(made);
    return result;
}

std::string pointer_place() {
    GdkSeat* seat =
        gdk_display_get_default_seat(gdk_display_get_default());
    int x = 0;
    int y = 0;
    gdk_device_get_position(gdk_seat_get_pointer(seat), nullptr, &x, &y);
    return std::to_string(x) + ", " + std::to_string(y);
}

std::string rectangle(int x, int y, int width, int height) {
    return std::to_string(width) + " × " + std::to_string(height) +
           "  +" + std::to_string(x) + " +" + std::to_string(y);
}

GtkWidget* active_facts() {
    return demo::facts_new({
        {_("Title"), [] { return valid(ask().title); }},
        {_("Class"), [] { return valid(ask().res_class); }},
        {_("Name"), [] { return valid(ask().res_name); }},
        {_("Process"), [] { return std::to_string(ask().pid); }},
        {_("X11 id"), [] { return std::to_string(ask().id); }},
    });
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(controls, demo::heading_new(_("Active window")));
    demo::append(controls, active_facts());
    demo::append(controls, demo::heading_new(_("Pointer and screen")));
    demo::append(
        controls,
        demo::facts_new({
            {_("Pointer"), pointer_place},
            {_("Screen"),
             [] {
                 return rectangle(zo_ui_screen_x(), zo_ui_screen_y(),
                                  zo_ui_screen_width(),
                                  zo_ui_screen_height());
             }},
            {_("Work area"),
             [] {
                 return rectangle(zo_ui_workarea_x(), zo_ui_workarea_y(),
                                  zo_ui_workarea_width(),
                                  zo_ui_workarea_height());
             }},
        }));
    demo::append(
        controls,
        demo::buttons_new(
            {{"activate-gallery", _("Activate the gallery in a second"),
              [&shop, controls] {
                  constexpr unsigned long second = 1000;
                  zo_system_service_timeout(
                      [&shop, kept = GTK_WIDGET(g_object_ref(controls))] {
                          GtkWidget* toplevel =
                              gtk_widget_get_toplevel(kept);
                          if (gtk_widget_get_mapped(toplevel))
                              shop.log.add("desktop", activate(toplevel)
                                                          ? "asked"
                                                          : "no display");
                          g_object_unref(kept);
                      },
                      second, "demo", __LINE__);
              }}},
            1));
    demo::append(
        controls,
        demo::note_new(
            _("Activate another window: the facts follow. A query takes "
              "a connection of its own, and may run on any thread.")));
}

}  // namespace

const demo::page demo::desktop_page{
    "desktop",
    N_("Desktop"),
    N_("Queries"),
    N_("What the desktop tells of its windows and its pointer."),
    code::desktop,
    fill,
};
