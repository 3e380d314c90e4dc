// SPDX-License-Identifier: MIT
// Everything of the toolkit that exists once in the process, in one place: made on first use, emptied when
// the process exits, never destroyed, since widgets may still be taken down after that.
#pragma once

#include <zo_ui/toolkit/listener_list_p.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <string>
#include <vector>

namespace zo {

struct toolkit_state {
    listener_list<void(GtkWidget*)> button_click_list;
    listener_list<void(GtkToggleButton*)> toogle_change_list;
    listener_list<void(GtkComboBox*)> combobox_change_list;
    listener_list<void(GtkSwitch*)> switch_change_list;
    listener_list<void(GtkEditable*)> editable_text_change;
    listener_list<void(GtkScaleButton*, double)> scale_change_list;
    listener_list<void(GtkMenuItem*)> menuitem_click_list;
    listener_list<bool(GtkLabel*, std::string&)> label_link_list;
    listener_list<bool(GtkWidget*, cairo_t*)> draw_list;
    listener_list<int(GtkWidget*, GdkEventButton*)> button_press_list;
    listener_list<int(GtkWidget*, GdkEventButton*)> button_release_list;
    listener_list<void()> widget_destroy_list;

    std::vector<GtkWidget*> fps_widgets;
    GdkRectangle screen{};
    GdkRectangle workarea{};
    std::function<void(GtkClipboard*, const char*)> clipboard_request;

    std::string theme_path = "./share/themes/brevant/";
    std::string theme_name = "brevant";
    GtkCssProvider* theme_provider = nullptr;  // owned; null without a theme

    // Takes the callables of all lists off their widgets.
    void disconnect();
};

toolkit_state& toolkit();

}  // namespace zo
