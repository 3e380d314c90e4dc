// SPDX-License-Identifier: MIT
#include "tour_tools.hpp"

#include <chrono>

namespace {

constexpr auto patience = std::chrono::seconds(15);

GtkWidget* find(GtkWidget* root, const std::function<bool(GtkWidget*)>& wanted) {
    if (wanted(root)) return root;
    if (!GTK_IS_CONTAINER(root)) return nullptr;
    GList* children = gtk_container_get_children(GTK_CONTAINER(root));
    GtkWidget* found = nullptr;
    for (GList* item = children; item && !found; item = item->next)
        found = find(GTK_WIDGET(item->data), wanted);
    g_list_free(children);
    return found;
}

GtkWidget* find_toplevel(const std::function<bool(GtkWidget*)>& wanted) {
    GList* all = gtk_window_list_toplevels();
    GtkWidget* found = nullptr;
    for (GList* item = all; item; item = item->next)
        if (wanted(GTK_WIDGET(item->data))) found = GTK_WIDGET(item->data);
    g_list_free(all);
    return found;
}

std::function<bool(GtkWidget*)> of_name(const std::string& name) {
    return [name](GtkWidget* widget) { return name == gtk_widget_get_name(widget); };
}

std::function<bool(GtkWidget*)> of_class(const std::string& style_class) {
    return [style_class](GtkWidget* widget) {
        return gtk_style_context_has_class(gtk_widget_get_style_context(widget), style_class.c_str()) !=
               FALSE;
    };
}

GtkWidget* required(GtkWidget* widget, const std::string& what) {
    if (!widget) throw demo::tour::failed_step("not there: " + what);
    return widget;
}

demo::tour::place middle_of(GtkWidget* widget) {
    GtkWidget* toplevel = gtk_widget_get_toplevel(widget);
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, toplevel, gtk_widget_get_allocated_width(widget) / 2,
                                     gtk_widget_get_allocated_height(widget) / 2, &x, &y);
    const int scale = gtk_widget_get_scale_factor(widget);
    const demo::tour::place origin = demo::tour::place_of(toplevel);
    return {origin.x + x * scale, origin.y + y * scale};
}

std::function<bool(GtkWidget*)> of_label(const std::string& label) {
    return [label](GtkWidget* widget) {
        return GTK_IS_BUTTON(widget) &&
               g_strcmp0(gtk_button_get_label(GTK_BUTTON(widget)), label.c_str()) == 0;
    };
}

void scroll_to(GtkWidget* widget) {
    for (GtkWidget* view = gtk_widget_get_ancestor(widget, GTK_TYPE_VIEWPORT); view;
         view = gtk_widget_get_ancestor(gtk_widget_get_parent(view), GTK_TYPE_VIEWPORT)) {
        GtkWidget* content = gtk_bin_get_child(GTK_BIN(view));
        int y = 0;
        gtk_widget_translate_coordinates(widget, content, 0, 0, nullptr, &y);
        gtk_adjustment_clamp_page(gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(view)), y,
                                  y + gtk_widget_get_allocated_height(widget));
    }
}

std::vector<std::string> move_to(const demo::tour::place& to) {
    return {"xdotool", "mousemove", std::to_string(to.x), std::to_string(to.y)};
}

}  // namespace

namespace demo::tour {

void expect(const std::string& what, const std::function<bool()>& done) {
    const auto end = std::chrono::steady_clock::now() + patience;
    const guint wake = g_timeout_add(
        10, [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr);
    bool held = false;
    while (!(held = done()) && std::chrono::steady_clock::now() < end)
        g_main_context_iteration(nullptr, TRUE);
    g_source_remove(wake);
    if (!held) throw failed_step(what);
}

void run(const std::vector<std::string>& command) {
    std::vector<char*> words;
    for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    struct {
        bool ended = false;
        int status = 0;
    } child;
    GPid pid = 0;
    const auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_DO_NOT_REAP_CHILD);
    if (!g_spawn_async(nullptr, words.data(), nullptr, flags, nullptr, nullptr, &pid, nullptr))
        throw failed_step("cannot start " + command.front());
    g_child_watch_add(
        pid,
        [](GPid ended, gint status, gpointer data) {
            auto* seen = static_cast<decltype(child)*>(data);
            seen->ended = true;
            seen->status = status;
            g_spawn_close_pid(ended);
        },
        &child);
    expect(command.front() + " does not end", [&] { return child.ended; });
    if (child.status != 0) throw failed_step("failed: " + command.front());
}

GtkWidget* window_named(const std::string& id) {
    return required(find_toplevel(of_name(id)), "window " + id);
}

GtkWidget* window_of_class(const std::string& style_class) {
    return required(find_toplevel(of_class(style_class)), "window of class " + style_class);
}

bool is_open(const std::string& id) { return find_toplevel(of_name(id)) != nullptr; }

bool has_window_of_class(const std::string& style_class) {
    return find_toplevel(of_class(style_class)) != nullptr;
}

GtkWidget* widget_of_class(GtkWidget* root, const std::string& style_class) {
    return required(find(root, of_class(style_class)), "class " + style_class);
}

GtkWidget* widget_named(GtkWidget* root, const std::string& name) {
    return required(find(root, of_name(name)), name);
}

GtkWidget* button_labelled(GtkWidget* root, const std::string& label) {
    return required(find(root, of_label(label)), "button " + label);
}

GtkWidget* descendant_named(GtkWidget* root, const std::string& name) { return find(root, of_name(name)); }

bool is_on_screen(GtkWidget* widget) {
    GdkWindow* window = gtk_widget_get_mapped(widget) ? gtk_widget_get_window(widget) : nullptr;
    if (!window || !gdk_window_is_viewable(window)) return false;
    return gdk_frame_clock_get_frame_counter(gtk_widget_get_frame_clock(widget)) >=
           0;  // the first is frame 0
}

place place_of(GtkWidget* toplevel) {
    place at{};
    gdk_window_get_origin(gtk_widget_get_window(toplevel), &at.x, &at.y);
    const int scale = gtk_widget_get_scale_factor(toplevel);
    return {at.x * scale, at.y * scale};
}

void point_to(int x, int y) { run(move_to({x, y})); }

void point_at(GtkWidget* widget) { run(move_to(middle_of(widget))); }

void click(GtkWidget* widget) {
    scroll_to(widget);
    std::vector<std::string> command = move_to(middle_of(widget));
    command.insert(command.end(), {"click", "1"});
    run(command);
}

// In short ways, as a hand does: window managers drop a drag that jumps.
void drag(GtkWidget* widget, int dx, int dy) {
    const place from = middle_of(widget);
    run(move_to(from));
    run({"xdotool", "mousedown", "1"});
    constexpr int ways = 12;
    for (int way = 1; way <= ways; ++way) run(move_to({from.x + dx * way / ways, from.y + dy * way / ways}));
    run({"xdotool", "mouseup", "1"});
}

void type(const std::string& text) {
    run({"xdotool", "key", "ctrl+a"});
    run({"xdotool", "type", text});
}

void photograph(const std::string& file) { run({"import", "-window", "root", file}); }

}  // namespace demo::tour
