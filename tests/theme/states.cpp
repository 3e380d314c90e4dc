// SPDX-License-Identifier: MIT
#include "theme/states.hpp"

#include "theme/walk.hpp"

namespace {

struct look {
    int flags;
    bool disabled;
    const char* name;
};

constexpr look at_rest[] = {{0, false, "normal"}, {0, true, "disabled"}};
constexpr look pressable[] = {
    {0, false, "normal"},
    {GTK_STATE_FLAG_PRELIGHT, false, "hover"},
    {GTK_STATE_FLAG_PRELIGHT | GTK_STATE_FLAG_ACTIVE, false, "hover+active"},
    {GTK_STATE_FLAG_ACTIVE, false, "active"},
    {0, true, "disabled"},
};
constexpr look switchable[] = {
    {GTK_STATE_FLAG_CHECKED, false, "checked"},
    {GTK_STATE_FLAG_CHECKED | GTK_STATE_FLAG_PRELIGHT, false, "checked+hover"},
    {GTK_STATE_FLAG_CHECKED, true, "checked+disabled"},
};
constexpr look selectable[] = {
    {GTK_STATE_FLAG_SELECTED, false, "selected"},
    {GTK_STATE_FLAG_SELECTED | GTK_STATE_FLAG_PRELIGHT, false, "selected+hover"},
};

// What answers the pointer as a whole; what stands in it follows.
bool is_pressable(GtkWidget* widget) {
    return GTK_IS_BUTTON(widget) || GTK_IS_ENTRY(widget) || GTK_IS_LIST_BOX_ROW(widget) ||
           GTK_IS_MENU_ITEM(widget) || GTK_IS_SWITCH(widget) || GTK_IS_SCALE(widget);
}

template <std::size_t n>
void add(std::vector<theme::situation>& to, GtkWidget* toplevel, GtkWidget* widget, const look (&looks)[n]) {
    for (const bool backdrop : {false, true})
        for (const look& seen : looks)
            to.push_back({toplevel, widget, static_cast<GtkStateFlags>(seen.flags), seen.disabled, backdrop,
                          std::string(seen.name) + (backdrop ? "+backdrop" : "")});
}

void collect(std::vector<theme::situation>& to, GtkWidget* toplevel, GtkWidget* widget) {
    if (!gtk_widget_get_mapped(widget)) return;
    if (is_pressable(widget)) {
        add(to, toplevel, widget, pressable);
        if (GTK_IS_TOGGLE_BUTTON(widget)) add(to, toplevel, widget, switchable);
        if (GTK_IS_LIST_BOX_ROW(widget)) add(to, toplevel, widget, selectable);
        return;
    }
    const std::vector<GtkWidget*> below = theme::children(widget);
    if (below.empty() || GTK_IS_TREE_VIEW(widget) || GTK_IS_EXPANDER(widget))
        add(to, toplevel, widget, at_rest);
    for (GtkWidget* child : below) collect(to, toplevel, child);
}

void put_behind(GtkWidget* toplevel, bool behind) {
    if (behind)
        gtk_widget_set_state_flags(toplevel, GTK_STATE_FLAG_BACKDROP, FALSE);
    else
        gtk_widget_unset_state_flags(toplevel, GTK_STATE_FLAG_BACKDROP);
}

// Of all chosen texts of a screen the last one stays, so each is chosen for its own picture.
void choose_text(GtkWidget* widget) {
    const int length = GPOINTER_TO_INT(g_object_get_data(G_OBJECT(widget), theme::chosen_length));
    if (length == 0) return;
    if (GTK_IS_LABEL(widget)) gtk_label_select_region(GTK_LABEL(widget), 0, length);
    if (GTK_IS_EDITABLE(widget)) gtk_editable_select_region(GTK_EDITABLE(widget), 0, length);
}

// A widget that is disabled already, or a child of one, answers no pointer.
bool is_possible(const theme::situation& seen) {
    return gtk_widget_is_sensitive(seen.widget) || seen.flags == 0;
}

}  // namespace

std::vector<theme::situation> theme::situations(const std::vector<GtkWidget*>& toplevels) {
    std::vector<situation> all;
    for (GtkWidget* toplevel : toplevels) collect(all, toplevel, toplevel);
    std::erase_if(all, [](const situation& seen) { return !is_possible(seen); });
    return all;
}

void theme::lay_out(GtkWidget* toplevel) {
    for (GtkWidget* widget : mapped_widgets(toplevel)) {
        gtk_style_context_get_scale(gtk_widget_get_style_context(widget));
        // It draws its marks with what measuring has left.
        if (GTK_IS_SCALE(widget)) gtk_widget_queue_resize(widget);
    }
    gtk_container_check_resize(GTK_CONTAINER(toplevel));
}

std::vector<theme::picture> theme::drawn(const std::vector<situation>& situations) {
    std::vector<picture> result;
    for (const situation& seen : situations) {
        const int own = gtk_widget_get_state_flags(seen.widget);
        const bool was_behind = gtk_widget_get_state_flags(seen.toplevel) & GTK_STATE_FLAG_BACKDROP;
        put_behind(seen.toplevel, seen.backdrop);
        const bool sensitive = gtk_widget_get_sensitive(seen.widget);
        if (seen.disabled) gtk_widget_set_sensitive(seen.widget, FALSE);
        gtk_widget_set_state_flags(seen.widget, seen.flags, FALSE);
        if (!seen.disabled) choose_text(seen.widget);
        lay_out(seen.toplevel);
        result.push_back(draw(seen.toplevel, seen.widget));
        gtk_widget_set_sensitive(seen.widget, sensitive);
        gtk_widget_unset_state_flags(seen.widget, static_cast<GtkStateFlags>(seen.flags & ~own));
        put_behind(seen.toplevel, was_behind);
    }
    return result;
}
