// SPDX-License-Identifier: MIT
// The gallery: a sidebar of pages, the controls of the chosen one, its code, and the log of all callbacks.
#include "code_regions.hpp"
#include "controls.hpp"
#include "pages/page.hpp"
#include "texts.hpp"

#include <algorithm>

using demo::_;

namespace {

constexpr int sidebar_width = 176;
constexpr int controls_width = 400;
constexpr int log_height = 140;

// The places that change with the page; null while the window is closed.
struct parts {
    demo::workshop* shop;
    GtkWidget* page = nullptr;
    GtkWidget* head = nullptr;
    GtkWidget* controls = nullptr;
    GtkWidget* code = nullptr;
};

GtkWidget* header_of(const demo::page& page) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 2);
    GtkWidget* title = demo::text_label("");
    gtk_label_set_text(GTK_LABEL(title), _(page.title));
    demo::add_class(title, "gallery-title");
    GtkWidget* summary = demo::text_label("");
    gtk_label_set_text(GTK_LABEL(summary), _(page.summary));
    gtk_label_set_ellipsize(GTK_LABEL(summary), PANGO_ELLIPSIZE_END);
    demo::add_class(summary, "gallery-summary");
    demo::append(box, title);
    demo::append(box, summary);
    return box;
}

GtkWidget* controls_of(demo::workshop& shop, const demo::page& page) {
    GtkWidget* controls = gtk_box_new(GTK_ORIENTATION_VERTICAL, 8);
    gtk_widget_set_name(controls, "controls");
    demo::add_class(controls, "gallery-controls");
    page.fill(shop, controls);
    GtkWidget* scroll = gtk_scrolled_window_new(nullptr, nullptr);
    // External: long texts wrap instead of widening the column, which is the same on every page.
    gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scroll), GTK_POLICY_EXTERNAL, GTK_POLICY_AUTOMATIC);
    gtk_scrolled_window_set_overlay_scrolling(GTK_SCROLLED_WINDOW(scroll), FALSE);
    gtk_widget_set_size_request(scroll, controls_width, -1);
    gtk_widget_set_hexpand(scroll, FALSE);  // what expands inside shares this width
    gtk_container_add(GTK_CONTAINER(scroll), controls);
    return scroll;
}

void replace(GtkWidget* place, GtkWidget* child) {
    gtk_container_foreach(
        GTK_CONTAINER(place), [](GtkWidget* old, gpointer) { gtk_widget_destroy(old); }, nullptr);
    gtk_box_pack_start(GTK_BOX(place), child, TRUE, TRUE, 0);
}

void show_page(parts& p, const demo::page& page) {
    p.shop->page = page.id;
    replace(p.head, header_of(page));
    replace(p.controls, controls_of(*p.shop, page));
    replace(p.code, demo::code_view_new(page.code));
    gtk_widget_set_name(p.page, (std::string("page-") + page.id).c_str());
    gtk_widget_show_all(p.page);
}

void head_of_group(GtkListBoxRow* row, GtkListBoxRow* before, gpointer) {
    const auto group = [](GtkListBoxRow* of) {
        return demo::pages()[static_cast<std::size_t>(gtk_list_box_row_get_index(of))]->group;
    };
    if (before && std::string_view(group(row)) == group(before))
        return gtk_list_box_row_set_header(row, nullptr);
    GtkWidget* head = demo::text_label("");
    gtk_label_set_text(GTK_LABEL(head), _(group(row)));
    demo::add_class(head, "gallery-group");
    gtk_widget_show(head);
    gtk_list_box_row_set_header(row, head);
}

GtkWidget* sidebar_new(parts& p) {
    GtkWidget* list = gtk_list_box_new();
    gtk_widget_set_name(list, "pages");
    gtk_list_box_set_selection_mode(GTK_LIST_BOX(list), GTK_SELECTION_BROWSE);
    for (const demo::page* page : demo::pages()) {
        GtkWidget* row = gtk_list_box_row_new();
        gtk_widget_set_name(row, page->id);
        gtk_container_add(GTK_CONTAINER(row), demo::text_label(""));
        gtk_label_set_text(GTK_LABEL(gtk_bin_get_child(GTK_BIN(row))), _(page->title));
        gtk_container_add(GTK_CONTAINER(list), row);
    }
    gtk_list_box_set_header_func(GTK_LIST_BOX(list), head_of_group, nullptr, nullptr);
    g_signal_connect(
        list, "row-selected", G_CALLBACK(+[](GtkListBox*, GtkListBoxRow* row, parts* chosen) {
            if (row)
                show_page(*chosen, *demo::pages()[static_cast<std::size_t>(gtk_list_box_row_get_index(row))]);
        }),
        &p);
    GtkWidget* scroll = gtk_scrolled_window_new(nullptr, nullptr);
    gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scroll), GTK_POLICY_NEVER, GTK_POLICY_AUTOMATIC);
    gtk_widget_set_size_request(scroll, sidebar_width, -1);
    gtk_container_add(GTK_CONTAINER(scroll), list);
    demo::add_class(scroll, "gallery-sidebar");
    return scroll;
}

void select_page(GtkWidget* sidebar, const std::string& id) {
    GtkWidget* list = gtk_bin_get_child(GTK_BIN(gtk_bin_get_child(GTK_BIN(sidebar))));
    for (int i = 0; GtkListBoxRow* row = gtk_list_box_get_row_at_index(GTK_LIST_BOX(list), i); ++i)
        if (id == gtk_widget_get_name(GTK_WIDGET(row))) gtk_list_box_select_row(GTK_LIST_BOX(list), row);
}

GtkWidget* log_new(demo::workshop& shop) {
    GtkWidget* column = gtk_box_new(GTK_ORIENTATION_VERTICAL, 4);
    demo::append(column, demo::heading_new(_("Callbacks, as they come")));
    GtkWidget* log = shop.log.view_new();
    gtk_widget_set_size_request(log, -1, log_height);
    gtk_box_pack_start(GTK_BOX(column), log, TRUE, TRUE, 0);
    return column;
}

GtkWidget* page_new(parts& p) {
    p.page = gtk_box_new(GTK_ORIENTATION_VERTICAL, 14);
    demo::add_class(p.page, "gallery-page");
    p.head = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    p.controls = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    p.code = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    GtkWidget* right = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
    gtk_box_pack_start(GTK_BOX(right), p.code, TRUE, TRUE, 0);
    gtk_box_pack_start(GTK_BOX(right), log_new(*p.shop), FALSE, FALSE, 0);
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 10);
    gtk_box_pack_start(GTK_BOX(row), p.controls, FALSE, FALSE, 0);
    gtk_box_pack_start(GTK_BOX(row), right, TRUE, TRUE, 0);
    demo::append(p.page, p.head);
    gtk_box_pack_start(GTK_BOX(p.page), row, TRUE, TRUE, 0);
    return p.page;
}

// The widgets hold the parts: a destroyed window lets its callbacks go before them.
void build_content(const std::shared_ptr<parts>& held, const zo_window_ptr& window) {
    parts& p = *held;
    GtkWidget* body = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_size_request(body, demo::gallery_width(), std::min(720, zo_ui_workarea_height() - 100));
    GtkWidget* sidebar = sidebar_new(p);
    gtk_box_pack_start(GTK_BOX(body), sidebar, FALSE, FALSE, 0);
    gtk_box_pack_start(GTK_BOX(body), page_new(p), TRUE, TRUE, 0);
    zo_ui_connect_widget_destroy(body,
                                 [held] { held->page = held->head = held->controls = held->code = nullptr; });
    gtk_widget_show_all(body);
    zo_window_add_content_child(window, body, true, true, 0, false);
    select_page(sidebar, p.shop->page);
}

// Above the theme's sheet, whose every loading would otherwise put it above this one.
void load_sheet() {
    GtkCssProvider* sheet = gtk_css_provider_new();
    gtk_css_provider_load_from_data(sheet, demo::code::gallery_css, -1, nullptr);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(sheet),
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION + 1);
    g_object_unref(sheet);
}

}  // namespace

int demo::gallery_width() { return std::min(1280, zo_ui_workarea_width() - 48); }

void demo::make_gallery_window(workshop& shop) {
    load_sheet();
    const auto p = std::make_shared<parts>(parts{&shop});
    shop.gallery = zo_window_new("gallery");
    zo_window_set_title(shop.gallery, _("Gallery"));
    zo_window_set_enable_title_exit(shop.gallery, true);
    zo_window_set_keep_above(shop.gallery, false);  // the samples stand before it
    zo_window_set_skip_taskbar_hint(shop.gallery, false);
    log_life_cycle(shop, shop.gallery, "gallery");
    zo_window_set_window_open_callback(shop.gallery, [p](zo_window_ptr window) {
        build_content(p, window);
        p->shop->log.add("gallery", "open");
    });
    zo_window_set_window_close_request_callback(shop.gallery, nullptr);
    zo_window_set_window_close_callback(shop.gallery, [&shop](zo_window_ptr) {
        shop.log.add("gallery", "close");
        quit(shop);
    });
    zo_window_set_window_exit_app_request_callback(shop.gallery, [&shop](zo_window_ptr) {
        shop.log.add("gallery", "exit");
        quit(shop);
    });
}
