// SPDX-License-Identifier: MIT
#include "tour_messages.hpp"

#include "notifications.hpp"
#include "texts.hpp"
#include "tour_gallery.hpp"
#include "tour_tools.hpp"

namespace {

using namespace demo::tour;

constexpr int top = 75;
constexpr int gap = 2;
constexpr int room = 540;

std::vector<GtkWidget*> popups() {
    std::vector<GtkWidget*> found;
    GList* all = gtk_window_list_toplevels();
    for (GList* item = all; item; item = item->next)
        if (auto* widget = GTK_WIDGET(item->data);
            gtk_style_context_has_class(gtk_widget_get_style_context(widget), "zo-notification"))
            found.push_back(widget);
    g_list_free(all);
    return found;
}

GtkWidget* popup(const std::string& title) {
    for (GtkWidget* widget : popups())
        if (const char* its = gtk_window_get_title(GTK_WINDOW(widget)); its && title == its) return widget;
    return nullptr;
}

bool is_up(const std::string& title) {
    GtkWidget* found = popup(title);
    return found && is_on_screen(found);
}

void press(const char* name) { click(on_page(name)); }

bool turned() { return gtk_widget_get_default_direction() == GTK_TEXT_DIR_RTL; }

// The gallery is dragged aside while notifications stand over its controls, which are at the left or, right
// to left, at the right; and back again. To a place, not by a distance: a window manager may bring a window
// back on the screen that was shown again beyond its edge.
void drag_gallery_to(const place& wanted) {
    GtkWidget* gallery = window_named("gallery");
    const place now = place_of(gallery);
    if (now == wanted) return;
    drag(widget_of_class(gallery, "title-text"), wanted.x - now.x, wanted.y - now.y);
    expect("the gallery was dragged", [&] { return place_of(gallery) == wanted; });
}

place beside(const place& home, int room) {
    return {home.x + room * gtk_widget_get_scale_factor(window_named("gallery")), home.y};
}

// Each stands below the one before, the first of them at the top.
bool are_stacked(const std::vector<std::string>& titles, int x) {
    int y = top;
    for (const std::string& title : titles) {
        GtkWidget* found = popup(title);
        if (!found || !is_on_screen(found)) return false;
        const int scale = gtk_widget_get_scale_factor(found);
        if (place_of(found) != place{x * scale, y * scale}) return false;
        int height = 0;
        gtk_window_get_size(GTK_WINDOW(found), nullptr, &height);
        y += height + gap;
    }
    return true;
}

void expect_stack(const std::string& what, const std::vector<std::string>& titles, int x) {
    expect(what, [&] { return are_stacked(titles, x); });
}

// The link of the invitation: in the middle of its last words.
void click_link(GtkWidget* popup_window) {
    GtkWidget* label = widget_of_class(popup_window, "content-text");
    PangoLayout* layout = gtk_label_get_layout(GTK_LABEL(label));
    const std::string text = gtk_label_get_text(GTK_LABEL(label));
    const std::string markup = gtk_label_get_label(GTK_LABEL(label));
    const std::size_t begin = markup.find('>', markup.find("<a ")) + 1;
    const std::string linked = markup.substr(begin, markup.find("</a>") - begin);
    PangoRectangle at;
    pango_layout_index_to_pos(layout, static_cast<int>(text.find(linked) + linked.size() / 2), &at);
    int x = 0;
    int y = 0;
    gtk_label_get_layout_offsets(GTK_LABEL(label), &x, &y);
    const place corner = place_of(popup_window);
    const int scale = gtk_widget_get_scale_factor(popup_window);
    // A label without a window of its own: its offsets are those in the popup.
    point_to(corner.x + (x + at.x / PANGO_SCALE) * scale,
             corner.y + (y + (at.y + at.height / 2) / PANGO_SCALE) * scale);
    run({"xdotool", "click", "1"});
}

}  // namespace

namespace demo::tour {

void message_stack(visit& v) {
    for (const zo_window_ptr& window : {v.shop.notes, v.shop.studio}) zo_window_hide(window);
    summon(v.shop, v.shop.gallery);
    expect("the gallery is on screen", [] { return is_on_screen(window_named("gallery")); });
    open_page("notifications");
    const place home = v.gallery_home = place_of(window_named("gallery"));
    if (!turned()) drag_gallery_to(beside(home, room));
    for (const char* name : {"backup", "broken", "invitation", "arabic"}) press(name);
    expect_stack("the notifications stand below one another",
                 {_("Backup finished"), _("Not markup"), _("Message from Ana"), "رسالة جديدة"}, 50);
    v.picture("notifications");
    click(widget_of_class(popup(_("Not markup")), "title-close"));
    v.expect_logged("messages", "closed: broken");
    expect_stack("the gap is closed", {_("Backup finished"), _("Message from Ana"), "رسالة جديدة"}, 50);
    v.picture("notification-in-the-middle-closed");
}

void link_action_and_timeout(visit& v) {
    click_link(popup(_("Message from Ana")));
    v.expect_logged("messages", "link: https://example.org/plan");
    if (!is_up(_("Message from Ana"))) throw failed_step("the notification stays after its link");
    click(button_labelled(popup(_("Backup finished")), _("Later")));
    v.expect_logged("messages", "action: later");
    expect("its action closed it", [] { return !popup(_("Backup finished")); });
    press("leaving");
    expect("they leave by themselves", [&] { return v.shop.messages_leave; });
    press("plain");
    expect("it is up for a while", [] { return is_up(_("Battery at 80 %")); });
    v.picture("link-and-action-used");
    expect("and closes by itself", [] { return !popup(_("Battery at 80 %")); });
    press("leaving");
    expect("they stay again", [&] { return !v.shop.messages_leave; });
    press("close-all");
    expect("all are closed", [] { return popups().empty(); });
    drag_gallery_to(v.gallery_home);
}

void messages_of_the_panel(visit& v) {
    if (turned()) drag_gallery_to(beside(v.gallery_home, -room));
    press("on-panel");
    expect("they go to the panel", [&] { return v.shop.messages_on_panel; });
    const int x = zo_ui_screen_width() - 570;
    press("invitation");
    press("long");
    expect_stack("they are stacked at the right", {_("Message from Ana"), _("One word may be very long")}, x);
    v.picture("notifications-of-the-panel");
    zo_window_manager_hide(v.shop.panel);
    expect("they are hidden with the panel", [] { return !is_up(_("Message from Ana")); });
    if (popups().size() != 2) throw failed_step("the hidden ones are kept");
    zo_window_manager_show(v.shop.panel);
    expect_stack("they come back with it", {_("Message from Ana"), _("One word may be very long")}, x);
    summon(v.shop, v.shop.gallery);
    expect("the gallery is back", [] { return is_on_screen(window_named("gallery")); });
    press("close-all");
    expect("all of the panel's are closed", [] { return popups().empty(); });
    press("on-panel");
    expect("they leave the panel", [&] { return !v.shop.messages_on_panel; });
    drag_gallery_to(v.gallery_home);
}

}  // namespace demo::tour
