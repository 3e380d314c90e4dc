// SPDX-License-Identifier: MIT
#include "theme/scene.hpp"

#include "support/loop.hpp"
#include "theme/states.hpp"
#include "theme/walk.hpp"

#include <algorithm>
#include <initializer_list>

namespace {

void enable_title(const zo_window_ptr& window) {
    for (auto set : {zo_window_set_enable_title_back, zo_window_set_enable_title_exit,
                     zo_window_set_enable_title_menu, zo_window_set_enable_title_hint,
                     zo_window_set_enable_title_save_to_photo, zo_window_set_enable_title_close,
                     zo_window_set_enable_title_minimize, zo_window_set_use_built_in_title})
        set(window, true);
}

zo_window_ptr window_new(const char* id, const char* title, const zo_window_manager_ptr& panel) {
    const zo_window_ptr window = zo_window_new(id);
    zo_window_set_title(window, title);
    enable_title(window);
    if (panel) {
        zo_window_set_managed_window(window, true);
        zo_window_set_window_manager(window, panel);
    }
    return window;
}

void fill_menu(zo_window_ptr, GtkGrid* grid) {
    gtk_grid_attach(grid, gtk_button_new_with_label("Copy"), 0, 0, 2, 1);
    gtk_grid_attach(grid, gtk_separator_new(GTK_ORIENTATION_HORIZONTAL), 0, 1, 2, 1);
    gtk_grid_attach(grid, gtk_button_new_with_label("Save as"), 0, 2, 2, 1);
    GtkWidget* small = zo_ui_button24_new("icon-edit");
    gtk_widget_set_halign(small, GTK_ALIGN_CENTER);
    gtk_grid_attach(grid, small, 0, 3, 2, 1);
}

// What its callback puts into a window.
using filling = GtkWidget* (*)();

void open(theme::scene& scene, const zo_window_ptr& window, filling fill) {
    scene.windows.push_back(window);
    zo_window_set_window_open_callback(window, [fill](zo_window_ptr opened) {
        zo_window_add_content_child(opened, fill(), false, false, 0, false);
    });
    zo_window_open(window);
    zo_window_show(window);
    test::run_tasks();
}

GtkWidget* few_words() {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
    gtk_box_pack_start(GTK_BOX(box), gtk_label_new("Few words"), FALSE, FALSE, 0);
    gtk_box_pack_start(GTK_BOX(box), zo_ui_button_new_with_label("Fine"), FALSE, FALSE, 0);
    gtk_widget_show_all(box);
    return box;
}

// Has the window become as wide as its content, which it does some layouts after it is shown?
bool is_laid_out(GtkWidget* toplevel) {
    GtkWidget* const content = theme::find_class(toplevel, "window-content");
    if (!content) return true;
    int natural = 0;
    gtk_widget_get_preferred_width(content, nullptr, &natural);
    return gtk_widget_get_allocated_width(content) >= natural &&
           gtk_widget_get_allocated_width(toplevel) >= gtk_widget_get_allocated_width(content);
}

GtkWidget* launcher_new() {
    GtkWidget* menu = gtk_menu_new();
    GtkWidget* disabled = gtk_menu_item_new_with_label("Studio");
    gtk_widget_set_sensitive(disabled, FALSE);
    GtkWidget* checked = gtk_check_menu_item_new_with_label("Settings");
    gtk_check_menu_item_set_active(GTK_CHECK_MENU_ITEM(checked), TRUE);
    for (GtkWidget* item :
         {gtk_menu_item_new_with_label("Notes"), disabled, gtk_separator_menu_item_new(), checked})
        gtk_menu_shell_append(GTK_MENU_SHELL(menu), item);
    gtk_widget_show_all(menu);
    GtkWidget* button = gtk_menu_button_new();
    gtk_widget_set_name(button, "launcher");
    gtk_button_set_label(GTK_BUTTON(button), "Windows");
    gtk_menu_button_set_popup(GTK_MENU_BUTTON(button), menu);
    return button;
}

void open_panel(theme::scene& scene) {
    scene.panel = zo_window_manager_new("panel");
    zo_window_manager_set_keep_extended(scene.panel, true);
    zo_window_manager_on_open(scene.panel, [](zo_window_manager_ptr panel) {
        GtkWidget* entry = gtk_entry_new();
        gtk_entry_set_text(GTK_ENTRY(entry), "find");
        g_object_set_data(G_OBJECT(entry), theme::chosen_length, GINT_TO_POINTER(2));
        GtkWidget* tools = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 6);
        for (GtkWidget* tool : {gtk_button_new_with_label("Hide all"), zo_ui_button24_new("icon-settings"),
                                zo_ui_button16_new("lock-unlocked"), gtk_toggle_button_new_with_label("Pin")})
            theme::pack(tools, tool);
        gtk_widget_show_all(tools);
        zo_window_manager_add_toolbar(panel, GTK_BOX(tools));
        for (GtkWidget* left : {launcher_new(), entry}) {
            gtk_widget_show(left);
            zo_window_manager_add_widget_left(panel, left);
        }
        GtkWidget* clock = gtk_label_new("12:34");
        gtk_widget_show(clock);
        zo_window_manager_add_widget_right(panel, clock);
    });
    zo_window_manager_open(scene.panel);
    zo_window_manager_show(scene.panel);
    test::run_tasks();
}

void notify(theme::scene& scene, const char* title, const char* content,
            std::initializer_list<const char*> actions) {
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, title);
    zo_notification_set_content(notification, content);
    zo_notification_set_is_markup(notification, true);
    zo_notification_set_timeout(notification, 0);
    for (const char* action : actions)
        zo_notification_add_action(notification, action, action, [](const std::string&) {});
    zo_notification_open_show(notification);
    scene.notifications.push_back(notification);
    test::run_tasks();
}

bool is_on_screen(GtkWidget* toplevel) {
    GdkWindow* const window = gtk_widget_get_mapped(toplevel) ? gtk_widget_get_window(toplevel) : nullptr;
    return window && gdk_window_is_viewable(window);
}

GtkWidget* named(const char* name) {
    const auto is_it = [name](GtkWidget* widget) { return g_str_equal(gtk_widget_get_name(widget), name); };
    for (GtkWidget* stage : theme::stages())
        if (GtkWidget* found = theme::find(stage, is_it)) return found;
    return nullptr;
}

// The menu of the panel's launcher and a popover, without the grab that would end with the next press.
void open_menus() {
    GtkWidget* const menu = GTK_WIDGET(gtk_menu_button_get_popup(GTK_MENU_BUTTON(named("launcher"))));
    gtk_widget_show(menu);
    gtk_widget_show(gtk_widget_get_toplevel(menu));
    gtk_popover_popup(GTK_POPOVER(theme::popover_new(named("plain"))));
}

// The window has to be the active one first: its going to rest would close the menu.
void open_menu(const zo_window_ptr& window) {
    GtkWidget* const toplevel = gtk_widget_get_toplevel(named("plain"));
    zo_window_activate(window);
    test::turn_until([&] { return is_on_screen(toplevel) && theme::has_class(toplevel, "active"); });
    gtk_button_clicked(GTK_BUTTON(theme::find_class(toplevel, "title-menu")));
}

}  // namespace

theme::scene theme::build_scene() {
    scene made;
    open_panel(made);
    open(made, window_new("hidden", "Put away", made.panel), few_words);
    zo_window_hide(made.windows.back());
    open(made, window_new("resting", "At rest", made.panel), few_words);
    open(made, window_new("alone", "Without a panel", nullptr), few_words);
    const zo_window_ptr popup = window_new("popup", "", nullptr);
    zo_window_set_popup_window(popup, true);
    zo_window_set_use_built_in_title(popup, false);
    zo_window_set_enable_content_ads(popup, true);
    open(made, popup, few_words);
    const zo_window_ptr main = window_new("main", "Everything", made.panel);
    zo_window_set_enable_content_ads(main, true);
    zo_window_set_menu_create_handler(main, fill_menu);
    open(made, main, ordinary_widgets);
    notify(made, "Backup finished",
           "Three files were <b>left out</b>, see <a href=\"file:///\">the list</a>.", {"Open", "Later"});
    notify(made, "Message", "Shall we meet at ten?", {"Reply"});
    notify(made, "Battery", "Charging goes on until it is full.", {});
    open_menu(main);
    open_menus();
    made.complete = test::turn_until([] {
        const std::vector<GtkWidget*> all = stages();
        return all.size() == 10 && std::all_of(all.begin(), all.end(), is_on_screen) &&
               std::all_of(all.begin(), all.end(), is_laid_out);
    });
    return made;
}

std::vector<GtkWidget*> theme::stages() {
    std::vector<GtkWidget*> result;
    GList* all = gtk_window_list_toplevels();
    for (GList* item = all; item; item = item->next) {
        auto* const toplevel = GTK_WIDGET(item->data);
        const bool ours = has_class(toplevel, "zo-window") || has_class(toplevel, "zo-manager") ||
                          has_class(toplevel, "zo-notification") ||
                          GTK_IS_MENU(gtk_bin_get_child(GTK_BIN(toplevel)));
        if (ours && gtk_widget_get_visible(toplevel)) result.push_back(toplevel);
    }
    g_list_free(all);
    return result;
}
