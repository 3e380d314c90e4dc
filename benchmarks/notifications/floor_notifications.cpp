// SPDX-License-Identifier: MIT
// floor_notifications COUNT oldest|random|all: the same popups in plain GTK calls, with remembered sizes, and
// stacked once a turn.
#include <desktop/desktop.hpp>
#include <notifications/burst.hpp>

#include <utility>

namespace {

struct popup {
    GtkWidget* window;
    int height;
    int y;
};

void add_class(GtkWidget* widget, const char* name) {
    gtk_style_context_add_class(gtk_widget_get_style_context(widget), name);
}

void pack(GtkWidget* box, GtkWidget* child, bool fill = false, guint padding = 0) {
    gtk_box_pack_start(GTK_BOX(box), child, fill, fill, padding);
}

GtkWidget* window_new(const char* title) {
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_window_set_type_hint(GTK_WINDOW(window), GDK_WINDOW_TYPE_HINT_NOTIFICATION);
    gtk_window_set_default_size(GTK_WINDOW(window), 500, -1);
    gtk_window_set_skip_taskbar_hint(GTK_WINDOW(window), TRUE);
    gtk_window_set_skip_pager_hint(GTK_WINDOW(window), TRUE);
    gtk_window_set_title(GTK_WINDOW(window), title);
    gtk_window_set_decorated(GTK_WINDOW(window), FALSE);
    gtk_window_set_resizable(GTK_WINDOW(window), FALSE);
    gtk_window_set_keep_above(GTK_WINDOW(window), TRUE);
    add_class(window, "zo-notification");
    if (GdkVisual* visual = gdk_screen_get_rgba_visual(gtk_widget_get_screen(window)))
        gtk_widget_set_visual(window, visual);
    return window;
}

void on_close(GtkWidget*, gpointer) {}

GtkWidget* title_new(const char* title) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    add_class(box, "window-title");
    gtk_widget_set_size_request(box, 300, 16);
    GtkWidget* label = gtk_label_new(title);
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 48);
    add_class(label, "title-text");
    gtk_box_set_center_widget(GTK_BOX(box), label);
    GtkWidget* close = gtk_button_new();
    add_class(close, "size-16");
    add_class(close, "title-close");
    gtk_widget_set_size_request(close, 16, 16);
    gtk_widget_set_tooltip_text(close, "Close notification");
    atk_object_set_name(gtk_widget_get_accessible(close), "Close notification");
    g_signal_connect(close, "clicked", G_CALLBACK(on_close), nullptr);
    pack(box, close);
    return box;
}

GtkWidget* content_new(const char* text) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 4);
    add_class(box, "content");
    add_class(box, "no-actions");
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_halign(row, GTK_ALIGN_START);
    gtk_widget_set_valign(row, GTK_ALIGN_CENTER);
    pack(box, row, false, 20);
    GtkWidget* label = gtk_label_new(nullptr);
    gtk_label_set_markup(GTK_LABEL(label), text);
    gtk_label_set_selectable(GTK_LABEL(label), TRUE);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 30);
    gtk_widget_set_size_request(label, 500, -1);
    gtk_label_set_line_wrap(GTK_LABEL(label), TRUE);
    gtk_label_set_line_wrap_mode(GTK_LABEL(label), PANGO_WRAP_WORD);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    add_class(label, "content-text");
    GtkWidget* padding = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_valign(padding, GTK_ALIGN_CENTER);
    gtk_widget_set_halign(padding, GTK_ALIGN_START);
    pack(padding, label);
    pack(row, padding);
    return box;
}

void move(popup& shown, int y) {
    if (shown.y == y) return;
    shown.y = y;
    gtk_window_move(GTK_WINDOW(shown.window), 50, std::min(y, 32767));
}

popup show(int number, int y) {
    const std::string title = bench::notification_title(number);
    const std::string text = bench::notification_text(number);
    popup shown{window_new(title.c_str()), 0, 0};
    GtkWidget* wrapper = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_widget_set_name(wrapper, "window-wrapper");
    pack(wrapper, title_new(title.c_str()));
    pack(wrapper, content_new(text.c_str()), true);
    gtk_container_add(GTK_CONTAINER(shown.window), wrapper);
    AtkObject* accessible = gtk_widget_get_accessible(shown.window);
    atk_object_set_role(accessible, ATK_ROLE_NOTIFICATION);
    atk_object_set_name(accessible, title.c_str());
    atk_object_set_description(accessible, text.c_str());
    move(shown, y);
    gtk_widget_show_all(shown.window);
    gtk_window_get_size(GTK_WINDOW(shown.window), nullptr, &shown.height);
    return shown;
}

void restack(std::vector<popup>& shown) {
    int y = 75;
    for (popup& each : shown) {
        if (!each.window) continue;
        move(each, y);
        y += each.height + 2;
    }
}

}  // namespace

int main(int, char** arguments) {
    const int count = std::atoi(arguments[1]);
    const bench::closing how = bench::closing_of(arguments[2]);
    bench::begin();
    std::vector<popup> shown;
    {
        const bench::drawn_popups drawn;
        const bench::step step("show", count);
        int y = 75;
        for (int i = 0; i < count; ++i) {
            shown.push_back(show(i, y));
            y += shown.back().height + 2;
        }
        bench::turn_until([&] { return drawn.count() >= count; });
        bench::turn();
    }
    const bench::step step("close", count);
    for (const std::size_t index : bench::closing_order(count, how)) {
        gtk_widget_destroy(std::exchange(shown[index].window, nullptr));
        if (how == bench::closing::in_one_turn) continue;
        restack(shown);
        bench::turn();
    }
    restack(shown);
    bench::turn();
    gdk_display_sync(gdk_display_get_default());
    bench::turn();
}
