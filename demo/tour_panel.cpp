// SPDX-License-Identifier: MIT
#include "tour_panel.hpp"

#include "texts.hpp"
#include "tour_gallery.hpp"
#include "tour_tools.hpp"

namespace {

using namespace demo::tour;

GtkWidget* panel_window() { return window_of_class("zo-manager"); }

int scale() { return gtk_widget_get_scale_factor(panel_window()); }

int height() {
    int result = 0;
    gtk_window_get_size(GTK_WINDOW(panel_window()), nullptr, &result);
    return result;
}

bool is_extended() { return place_of(panel_window()).y == zo_ui_screen_y() * scale(); }

// One row is left on screen.
bool is_retracted() { return place_of(panel_window()).y == (zo_ui_screen_y() - height() + 1) * scale(); }

int middle_x() { return (zo_ui_screen_x() + zo_ui_screen_width() / 2) * scale(); }

void point_below() { point_to(middle_x(), (zo_ui_screen_y() + 2 * height()) * scale()); }

void point_to_edge() { point_to(middle_x(), zo_ui_screen_y() * scale()); }

void bring_out() {
    point_to_edge();
    expect("the panel slides out under the pointer", is_extended);
}

void let_go() {
    point_below();
    expect("the panel slides away", is_retracted);
}

GtkWidget* task_of(const std::string& title) { return button_labelled(panel_window(), title); }

// The close button stands right after its task.
GtkWidget* close_of(const std::string& id) {
    GtkWidget* wrapper = gtk_widget_get_parent(widget_named(panel_window(), id));
    GList* all = gtk_container_get_children(GTK_CONTAINER(gtk_widget_get_parent(wrapper)));
    GList* next = g_list_next(g_list_find(all, wrapper));
    GtkWidget* found = next ? widget_of_class(GTK_WIDGET(next->data), "title-close") : nullptr;
    g_list_free(all);
    if (!found) throw failed_step("the task of " + id + " has a close button");
    return found;
}

bool is_visible(const zo_window_ptr& window) {
    bool visible = false;
    zo_window_is_visible(window, &visible);
    return visible;
}

}  // namespace

namespace demo::tour {

void panel_by_the_pointer(visit& v) {
    let_go();
    v.picture("panel-away");
    bring_out();
    v.picture("panel-out");
    point_at(widget_of_class(panel_window(), "lock-unlocked"));
    expect("it stays out with the pointer on a button", is_extended);
    point_to((zo_ui_screen_x() + zo_ui_screen_width() - 1) * scale(),
             (zo_ui_screen_y() + height() / 2) * scale());
    expect("it stays out with the pointer at its end", is_extended);
    let_go();
}

void panel_lock(visit& v) {
    bring_out();
    click(widget_of_class(panel_window(), "lock-unlocked"));
    expect("the lock is closed", [&] { return zo_window_manager_get_keep_extended(v.shop.panel); });
    point_below();
    // What the pointer's leaving would have done is done when a later event has come through.
    GtkWidget* studio = widget_of_class(window_named("studio"), "title-text");
    point_at(studio);
    expect("the locked panel stays out", is_extended);
    v.picture("panel-locked");
}

void task_buttons(visit& v) {
    click(task_of(_("Studio")));
    expect("the task button hides its window", [&] { return !is_visible(v.shop.studio); });
    v.picture("hidden-by-its-task");
    const std::size_t before = v.shop.log.size();
    click(task_of(_("Studio")));
    expect("the task button brings its window back",
           [&] { return is_visible(v.shop.studio) && is_on_screen(window_named("studio")); });
    expect("and activates it", [&] { return v.shop.log.contains_since(before, "studio", "activate"); });
}

void panel_toolbar(visit& v) {
    click(widget_of_class(panel_window(), "lock-locked"));
    expect("the lock is open", [&] { return !zo_window_manager_get_keep_extended(v.shop.panel); });
    let_go();
    open_page("slots");
    const int row = height();
    GtkWidget* toggle = on_page("toolbar");
    click(toggle);
    expect("the toolbar makes the panel higher", [&] { return height() > row; });
    expect("and one row of it is left on screen", is_retracted);
    bring_out();
    v.picture("panel-with-toolbar");
    let_go();
    click(toggle);
    expect("without the toolbar it is as before", [&] { return height() == row && is_retracted(); });
}

void panel_closed_and_opened(visit& v) {
    zo_window_manager_close(v.shop.panel);
    v.expect_logged("panel", "close");
    expect("the windows of a closed panel are hidden", [&] { return !is_visible(v.shop.studio); });
    zo_window_manager_open(v.shop.panel);
    zo_window_manager_show(v.shop.panel);
    expect("the panel is back",
           [&] { return has_window_of_class("zo-manager") && is_on_screen(panel_window()); });
    bring_out();
    expect("a window that was saved while visible is back", [&] { return is_visible(v.shop.studio); });
    click(task_of(_("Gallery")));
    expect("the others come back by their tasks", [&] { return is_visible(v.shop.gallery); });
    v.picture("panel-opened-again");
    let_go();
}

// As a person does it who works in the gallery, which goes with the panel.
void panel_closed_for_a_while(visit& v) {
    open_page("panel");
    click(on_page("close-panel"));
    expect("the panel and the gallery are gone",
           [&] { return !has_window_of_class("zo-manager") && !is_visible(v.shop.gallery); });
    expect("both come back", [&] {
        return has_window_of_class("zo-manager") && is_on_screen(panel_window()) &&
               is_visible(v.shop.gallery) && is_on_screen(window_named("gallery"));
    });
}

// The task row closes a window at once: it asks nobody, whether the window would refuse or not.
void closing_by_the_task(visit& v) {
    for (const bool refusing : {true, false}) {
        summon(v.shop, v.shop.notes);
        expect("the notes are there", [] { return is_open("notes") && is_on_screen(window_named("notes")); });
        v.shop.ask_before_closing = refusing;
        bring_out();
        const std::size_t before = v.shop.log.size();
        click(close_of("notes"));
        expect("the close button of its task closes the window", [] { return !is_open("notes"); });
        if (v.shop.log.contains_since(before, "notes", "close request: refused"))
            throw failed_step("the task row does not ask");
        if (refusing) v.picture("closed-by-its-task");
        let_go();
    }
}

void active_title(visit& v) {
    bring_out();
    GtkLabel* label = GTK_LABEL(widget_named(panel_window(), "active-title"));
    for (const auto& [window, title] :
         {std::pair{v.shop.studio, _("Studio")}, {v.shop.gallery, _("Gallery")}}) {
        zo_window_activate(window);
        expect(std::string("the panel tells that the active window is ") + title,
               [&, title = title] { return g_strcmp0(gtk_label_get_text(label), title) == 0; });
    }
    v.picture("active-window-on-the-panel");
    let_go();
}

}  // namespace demo::tour
