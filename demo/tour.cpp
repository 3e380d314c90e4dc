// SPDX-License-Identifier: MIT
#include "tour.hpp"

#include "backdrop.hpp"
#include "texts.hpp"
#include "tour_gallery.hpp"
#include "tour_messages.hpp"
#include "tour_panel.hpp"
#include "tour_tools.hpp"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>

namespace {

using namespace demo::tour;

void title_button(const std::string& id, const std::string& style_class) {
    click(widget_of_class(window_named(id), style_class));
}

void three_windows(visit& v) {
    open_page("life-cycle");
    for (const char* id : {"notes", "studio"}) {
        click(on_page(std::string("subject-") + id));
        click(on_page("summon"));
        expect(std::string(id) + " is on screen",
               [&] { return is_open(id) && is_on_screen(window_named(id)); });
    }
    v.expect_logged("studio", "activate");
    v.picture("three-windows");
}

void drag_by_the_title(visit& v) {
    GtkWidget* notes = window_named("notes");
    const place before = place_of(notes);
    drag(widget_of_class(notes, "title-text"), 40, 60);
    const place wanted{before.x + 40, before.y + 60};
    expect("the notes were dragged by 40, 60", [&] { return place_of(notes) == wanted; });
    v.picture("dragged-by-the-title");
    drag(widget_of_class(notes, "title-text"), -40, -60);
    expect("the notes were dragged back", [&] { return place_of(notes) == before; });
}

void hint_and_back(visit& v) {
    title_button("studio", "title-hint");
    v.expect_logged("studio", "hint");
    title_button("studio", "title-back");
    v.expect_logged("studio", "back");
}

void tool_menu(visit& v) {
    title_button("studio", "title-menu");
    expect("the tool menu is on screen",
           [] { return has_window_of_class("tool-menu") && is_on_screen(window_of_class("tool-menu")); });
    GtkWidget* menu = window_of_class("tool-menu");
    GtkWidget* entry = widget_named(menu, "more-petals");
    point_at(entry);
    expect("the entry under the pointer lights up",
           [&] { return gtk_widget_get_state_flags(entry) & GTK_STATE_FLAG_PRELIGHT; });
    v.picture("tool-menu");
    click(entry);
    v.expect_logged("studio", "menu: more-petals");
}

void photo(visit& v) {
    title_button("studio", "title-shoot");
    v.expect_logged("studio", "photo: saved");
    const std::string file = v.shop.photo_folder + "/zo-demo-photo.png";
    GdkPixbuf* saved = gdk_pixbuf_new_from_file(file.c_str(), nullptr);
    if (!saved) throw failed_step("the photo is a picture");
    const int scale = gtk_widget_get_scale_factor(window_named("studio"));
    const bool whole = gdk_pixbuf_get_width(saved) >= 360 * scale;
    g_object_unref(saved);
    if (!whole) throw failed_step("the photo has the window's size");
    v.picture("photo-saved");
}

void flags_and_reopening(visit& v) {
    open_page("flags");
    click(on_page("subject-notes"));
    for (const char* flag : {"enable_title_back", "enable_title_hint", "enable_content_ads"}) {
        const int opening = zo_window_instance_id(v.shop.notes);
        click(on_page(flag));
        v.expect_logged("flags", std::string(flag) + ": on");
        expect("the notes are open again", [&] {
            return zo_window_instance_id(v.shop.notes) > opening && is_open("notes") &&
                   is_on_screen(window_named("notes"));
        });
    }
    widget_of_class(window_named("notes"), "title-back");
    widget_of_class(window_named("notes"), "window-ads-container");
    v.picture("flags-flipped-and-opened-again");
    open_page("contents");
    click(on_page("title-entry"));
    type("Ideas");
    v.expect_logged("notes", "title: Ideas");
    click(on_page("add-child"));
    v.expect_logged("content", "packed");
    v.picture("texts-and-a-child");
}

void closing_and_refusing(visit& v) {
    open_page("title-bar");
    GtkWidget* refuse = on_page("refuse-to-close");
    click(refuse);
    expect("closing is refused", [&] { return v.shop.ask_before_closing; });
    title_button("notes", "title-close");
    v.expect_logged("notes", "close request: refused");
    if (!is_open("notes")) throw failed_step("the refused window is still open");
    click(refuse);
    expect("closing is granted", [&] { return !v.shop.ask_before_closing; });
    title_button("notes", "title-close");
    expect("the notes are closed", [&] { return !is_open("notes"); });
    v.picture("notes-closed");
}

void hiding_and_restoring(visit& v) {
    zo_window_save(v.shop.studio);
    title_button("studio", "title-minimize");
    expect("the studio is hidden", [&] { return !gtk_widget_get_visible(window_named("studio")); });
    zo_window_restore(v.shop.studio);
    v.expect_logged("studio", "restore");
    expect("the studio is back", [&] { return is_on_screen(window_named("studio")); });
}

void leave(visit& v) {
    demo::reopen(v.shop, v.shop.notes);
    expect("the notes are back", [&] { return is_open("notes") && is_on_screen(window_named("notes")); });
    v.picture("everything-back");
    title_button("studio", "title-exit");
    v.expect_logged("notes", "destroy");
}

int warnings = 0;

// Every line is written as ever; a warning is a failure of the tour, but for the one that GTK gives for the
// notification whose text is not markup.
GLogWriterOutput count_warnings(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer data) {
    constexpr auto severe = G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING;
    for (gsize i = 0; i < count && (level & severe); ++i)
        if (g_strcmp0(fields[i].key, "MESSAGE") == 0 &&
            !std::strstr(static_cast<const char*>(fields[i].value),
                         "from markup due to error parsing markup"))
            ++warnings;
    return g_log_writer_default(level, fields, count, data);
}

void take(visit& v) {
    for (const auto step : {gallery_pages,
                            three_windows,
                            drag_by_the_title,
                            hint_and_back,
                            tool_menu,
                            photo,
                            flags_and_reopening,
                            closing_and_refusing,
                            hiding_and_restoring,
                            panel_by_the_pointer,
                            panel_lock,
                            task_buttons,
                            panel_toolbar,
                            panel_closed_and_opened,
                            panel_closed_for_a_while,
                            closing_by_the_task,
                            active_title,
                            message_stack,
                            link_action_and_timeout,
                            messages_of_the_panel,
                            tray_menu,
                            sheet_that_stays,
                            leave})
        step(v);
}

}  // namespace

void demo::tour::visit::picture(const std::string& name) {
    char number[12];
    std::snprintf(number, sizeof number, "%02d", ++pictures);
    const std::string file = folder + "/" + number + "-" + name + ".png";
    photograph(file);
    std::cout << file << std::endl;
}

void demo::tour::visit::expect_logged(const std::string& window, const std::string& what) {
    expect("the log says \"" + window + " " + what + "\"", [&] { return shop.log.contains(window, what); });
}

void demo::schedule_tour(workshop& shop, const std::string& folder, int& result) {
    std::filesystem::create_directories(folder);
    shop.photo_folder = folder;
    g_object_set(gtk_settings_get_default(), "gtk-enable-animations", FALSE,
                 nullptr);  // no picture of a half-way state
    g_log_set_writer_func(count_warnings, nullptr, nullptr);
    const auto tour = [&shop, folder, &result] {
        GtkWidget* backdrop = show_backdrop();
        visit v{shop, folder};
        try {
            take(v);
            if (warnings > 0) throw failed_step("no warning of the toolkit");
        } catch (const failed_step& step) {
            std::cerr << "zo-demo: the tour failed at: " << step.what() << std::endl;
            result = 1;
            v.picture("failed");
            quit(shop);
        }
        gtk_widget_destroy(backdrop);
    };
    zo_system_service_exec(tour, "demo", __LINE__);
}
