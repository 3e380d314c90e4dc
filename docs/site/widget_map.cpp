// SPDX-License-Identifier: MIT
// Puts everything that the library builds on one screen, and tells where each widget is: for the pictures of
// the guide to themes. Reads commands from standard input, a line each:
//     map      a line for each widget on the screen (see `tell`), then an empty one
//     menu     opens the window's tool menu
//     unlock   lets the panel slide away
#include <zo_ui/zo_ui.hpp>

#include <glib-unix.h>
#include <iostream>
#include <map>

namespace {

std::map<GtkWidget*, int> numbers;
zo_window_manager_ptr panel;

// number, parent's number, node, name, classes, x, y, width, height: parted by blanks, lists by commas
void tell(GtkWidget* widget, void* parent) {
    if (!gtk_widget_get_mapped(widget)) return;
    const int number = numbers[widget] = static_cast<int>(numbers.size());
    GtkWidget* top = gtk_widget_get_toplevel(widget);
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, top, 0, 0, &x, &y);
    int root_x = 0;
    int root_y = 0;
    gdk_window_get_origin(gtk_widget_get_window(top), &root_x, &root_y);
    const std::string name = gtk_widget_get_name(widget);
    std::cout << number << ' ' << GPOINTER_TO_INT(parent) << ' '
              << gtk_widget_class_get_css_name(GTK_WIDGET_GET_CLASS(widget)) << ' '
              << (name == G_OBJECT_TYPE_NAME(widget) ? "-" : name) << ' ';
    GList* classes = gtk_style_context_list_classes(gtk_widget_get_style_context(widget));
    for (GList* each = classes; each; each = each->next)
        std::cout << static_cast<const char*>(each->data) << ',';
    g_list_free(classes);
    std::cout << " - " << root_x + x << ' ' << root_y + y << ' ' << gtk_widget_get_allocated_width(widget)
              << ' ' << gtk_widget_get_allocated_height(widget) << '\n';
    if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), tell, GINT_TO_POINTER(number));
}

void press_menu_button(GtkWidget* widget, void*) {
    if (gtk_style_context_has_class(gtk_widget_get_style_context(widget), "title-menu"))
        gtk_button_clicked(GTK_BUTTON(widget));
    else if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(GTK_CONTAINER(widget), press_menu_button, nullptr);
}

void for_all_windows(void (*act)(GtkWidget*, void*), int number) {
    GList* tops = gtk_window_list_toplevels();
    for (GList* each = tops; each; each = each->next) act(GTK_WIDGET(each->data), GINT_TO_POINTER(number));
    g_list_free(tops);
}

int obey(int, GIOCondition, void*) {
    std::string line;
    if (!std::getline(std::cin, line)) gtk_main_quit();
    if (line == "menu") for_all_windows(press_menu_button, 0);
    if (line == "unlock") zo_window_manager_set_keep_extended(panel, false);
    if (line == "map") {
        numbers.clear();
        for_all_windows(tell, -1);
        std::cout << std::endl;
    }
    return G_SOURCE_CONTINUE;
}

void make_panel() {
    panel = zo_window_manager_new("");
    zo_window_manager_set_keep_extended(panel, true);
    zo_window_manager_on_open(panel, [](zo_window_manager_ptr opened) {
        zo_window_manager_add_widget_left(opened, gtk_button_new_with_label("Left"));
        zo_window_manager_add_widget_right(opened, gtk_label_new("Right"));
        GtkWidget* toolbar = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 6);
        gtk_container_add(GTK_CONTAINER(toolbar), gtk_button_new_with_label("Toolbar"));
        gtk_widget_show_all(toolbar);
        zo_window_manager_add_toolbar(opened, GTK_BOX(toolbar));
    });
    zo_window_manager_open(panel);
    zo_window_manager_show(panel);
}

void fill(const zo_window_ptr& window) {
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 12);
    for (GtkWidget* button :
         {zo_ui_button_new_with_label("A button of the library"), zo_ui_button32_new("title-menu"),
          zo_ui_button24_new("title-menu"), zo_ui_button16_new("title-menu")})
        gtk_container_add(GTK_CONTAINER(row), zo_ui_get_centared_widget(button, true));
    GtkWidget* icons = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 4);
    for (const char* name :
         {"icon-add", "icon-remove", "icon-check", "icon-search", "icon-settings", "icon-save", "icon-open",
          "icon-edit", "icon-copy", "icon-info", "icon-warning", "icon-down", "icon-next"})
        gtk_container_add(GTK_CONTAINER(icons), zo_ui_button24_new(name));
    for (const char* name : {"suggested-action", "destructive-action"}) {
        GtkWidget* button = zo_ui_button_new_with_label(name);
        gtk_style_context_add_class(gtk_widget_get_style_context(button), name);
        gtk_container_add(GTK_CONTAINER(icons), button);
    }
    for (GtkWidget* each : {row, icons}) {
        zo_window_add_content_child(window, each, false, false, 12, false);
        gtk_widget_show_all(each);
    }
}

void make_windows() {
    zo_window_ptr window = zo_window_new("my-id");
    zo_window_set_title(window, "A window");
    zo_window_set_class(window, "my-class");
    for (const auto enable : {zo_window_set_enable_title_back, zo_window_set_enable_title_exit,
                              zo_window_set_enable_title_menu, zo_window_set_enable_title_hint,
                              zo_window_set_enable_title_save_to_photo, zo_window_set_enable_content_ads})
        enable(window, true);
    zo_window_set_window_manager(window, panel);
    zo_window_set_window_open_callback(window, fill);
    zo_window_set_menu_create_handler(window, [](zo_window_ptr, GtkGrid* grid) {
        for (int row = 0; const char* label : {"First tool", "Second tool"})
            gtk_grid_attach(grid, gtk_button_new_with_label(label), 0, row++, 1, 1);
    });
    zo_window_ptr popup = zo_window_new("my-popup");
    zo_window_set_popup_window(popup, true);
    zo_window_set_window_open_callback(popup, [](zo_window_ptr opened) {
        zo_window_add_content_child(opened, gtk_label_new("A popup window"), false, false, 12, false);
    });
    int place = 0;
    for (const zo_window_ptr& each : {popup, window}) {
        zo_window_open(each);
        zo_window_move(each, 40 + 240 * place++, 400);
        zo_window_show(each);
    }
    zo_window_activate(window);
}

void make_notifications() {
    for (int actions : {2, 1, 0}) {
        zo_notification_ptr notification = zo_notification_new();
        zo_notification_set_title(notification, "A notification");
        zo_notification_set_content(notification,
                                    "Its text, with <a href=\"https://example.org\">a link</a>.");
        for (int i = 0; i < actions; ++i)
            zo_notification_add_action(notification, "my-action-" + std::to_string(i),
                                       i ? "Another" : "Action", [](std::string) {});
        zo_notification_open_show(notification);
    }
}

}  // namespace

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    zo_ui_init();
    GError* error = nullptr;
    zo_theme_use_theme("brevant", error);
    if (error) {
        std::cerr << "widget_map: " << error->message << '\n';
        return 1;
    }
    make_panel();
    make_windows();
    make_notifications();
    g_unix_fd_add(0, G_IO_IN, obey, nullptr);
    gtk_main();
}
