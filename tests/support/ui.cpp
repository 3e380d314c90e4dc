// SPDX-License-Identifier: MIT
#include "support/ui.hpp"

#include <cstdlib>
#include <memory>

bool test::prepare_gtk(int* argc, char*** argv) {
    g_set_prgname("zo-test");
    return gtk_init_check(argc, argv);
}

bool test::prepare_ui(int* argc, char*** argv) {
    if (!prepare_gtk(argc, argv)) return false;
    zo_ui_init();
    return true;
}

std::string test::session_wm() {
    const char* wm = std::getenv("ZO_SESSION_WM");
    return wm ? wm : "none";
}

bool test::has_class(GtkWidget* widget, const std::string& name) {
    return gtk_style_context_has_class(gtk_widget_get_style_context(widget), name.c_str());
}

std::vector<GtkWidget*> test::children(GtkWidget* container) {
    std::vector<GtkWidget*> result;
    if (!GTK_IS_CONTAINER(container)) return result;
    gtk_container_forall(
        GTK_CONTAINER(container),
        [](GtkWidget* child, gpointer data) {
            static_cast<std::vector<GtkWidget*>*>(data)->push_back(child);
        },
        &result);
    return result;
}

GtkWidget* test::find(GtkWidget* root, const std::function<bool(GtkWidget*)>& wanted) {
    if (!root || wanted(root)) return root;
    for (GtkWidget* child : children(root))
        if (GtkWidget* found = find(child, wanted)) return found;
    return nullptr;
}

GtkWidget* test::find_class(GtkWidget* root, const std::string& style_class) {
    return find(root, [&](GtkWidget* widget) { return has_class(widget, style_class); });
}

GtkWidget* test::find_name(GtkWidget* root, const std::string& name) {
    return find(root, [&](GtkWidget* widget) { return name == gtk_widget_get_name(widget); });
}

std::vector<GtkWidget*> test::toplevels(const std::string& style_class) {
    std::vector<GtkWidget*> result;
    GList* all = gtk_window_list_toplevels();
    for (GList* item = all; item; item = item->next)
        if (auto* widget = GTK_WIDGET(item->data); has_class(widget, style_class)) result.push_back(widget);
    g_list_free(all);
    return result;
}

GtkWidget* test::toplevel_named(const std::string& id) {
    for (GtkWidget* widget : toplevels("zo-window"))
        if (id == gtk_widget_get_name(widget)) return widget;
    return nullptr;
}

bool test::is_on_screen(GtkWidget* widget) {
    GdkWindow* window = gtk_widget_get_mapped(widget) ? gtk_widget_get_window(widget) : nullptr;
    if (!window || !gdk_window_is_viewable(window)) return false;
    return gdk_frame_clock_get_frame_counter(gtk_widget_get_frame_clock(widget)) >=
           0;  // the first is frame 0
}

test::state test::state_of(const zo_window_ptr& window) {
    state s;
    zo_window_is_opened(window, &s.opened);
    zo_window_is_visible(window, &s.visible);
    zo_window_is_destroyed(window, &s.destroyed);
    return s;
}

std::ostream& test::operator<<(std::ostream& out, const state& s) {
    return out << "opened=" << s.opened << " visible=" << s.visible << " destroyed=" << s.destroyed;
}

test::scoped_window::~scoped_window() {
    zo_window_destroy(window_);
    run_tasks();
}

GtkWidget* test::scoped_window::open() {
    zo_window_open(window_);
    run_tasks();
    std::string id;
    zo_window_get_id(window_, id);
    return toplevel_named(id);
}

GtkWidget* test::scoped_window::show() {
    GtkWidget* window = open();
    zo_window_show(window_);
    run_tasks();
    EXPECT_TRUE(window && turn_until([&] { return is_on_screen(window); }));
    return window;
}
