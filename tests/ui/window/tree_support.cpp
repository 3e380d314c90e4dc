// SPDX-License-Identifier: MIT
#include "ui/window/tree_support.hpp"

#include <cstdlib>

std::ostream& test::operator<<(std::ostream& out, const packing& p) {
    return out << "expand=" << p.expand << " fill=" << p.fill << " padding=" << p.padding
               << (p.type == GTK_PACK_START ? " start" : " end");
}

test::packing test::packing_of(GtkWidget* child) {
    gboolean expand = FALSE;
    gboolean fill = FALSE;
    guint padding = 0;
    GtkPackType type = GTK_PACK_START;
    gtk_box_query_child_packing(GTK_BOX(gtk_widget_get_parent(child)), child, &expand, &fill, &padding,
                                &type);
    return {expand != FALSE, fill != FALSE, padding, type};
}

bool test::has_handler(GtkWidget* widget, const char* signal) {
    const guint id = g_signal_lookup(signal, G_OBJECT_TYPE(widget));
    return g_signal_handler_find(widget, G_SIGNAL_MATCH_ID, id, 0, nullptr, nullptr, nullptr) != 0;
}

guint test::handlers_of(gpointer data, GtkWidget* widget, const char* signal) {
    const guint id = g_signal_lookup(signal, G_OBJECT_TYPE(widget));
    const auto match = static_cast<GSignalMatchType>(G_SIGNAL_MATCH_ID | G_SIGNAL_MATCH_DATA);
    const guint found = g_signal_handlers_block_matched(widget, match, id, 0, nullptr, nullptr, data);
    g_signal_handlers_unblock_matched(widget, match, id, 0, nullptr, nullptr, data);
    return found;
}

guint test::own_handlers(const zo_window_ptr& window, GtkWidget* widget, const char* signal) {
    return handlers_of(window.get(), widget, signal);
}

void test::enable_title_buttons(const zo_window_ptr& window, bool enabled) {
    for (const auto set :
         {zo_window_set_enable_title_back, zo_window_set_enable_title_exit, zo_window_set_enable_title_menu,
          zo_window_set_enable_title_hint, zo_window_set_enable_title_save_to_photo,
          zo_window_set_enable_title_close, zo_window_set_enable_title_minimize})
        set(window, enabled);
}

GtkWidget* test::block(int width, int height) {
    GtkWidget* button = gtk_button_new();
    gtk_widget_set_size_request(button, width, height);
    gtk_widget_show(button);
    return button;
}

void test::use_theme() {
    zo_theme_set_theme_path(std::string(std::getenv("ZO_SOURCE_DIR")) + "/share/themes/brevant/");
    GError* error = nullptr;
    zo_theme_use_theme("brevant", error);
    EXPECT_EQ(error, nullptr) << error->message;
}

std::string test::accessible_name(GtkWidget* widget) {
    const char* name = atk_object_get_name(gtk_widget_get_accessible(widget));
    return name ? name : "";
}

std::string test::tooltip_of(GtkWidget* widget) {
    char* text = gtk_widget_get_tooltip_text(widget);
    const std::string result = text ? text : "";
    g_free(text);
    return result;
}
