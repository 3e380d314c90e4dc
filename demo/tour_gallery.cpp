// SPDX-License-Identifier: MIT
#include "tour_gallery.hpp"

#include "pages/page.hpp"
#include "places.hpp"
#include "texts.hpp"
#include "tour_tools.hpp"

namespace {

using namespace demo::tour;

GtkWidget* gallery() { return window_named("gallery"); }

std::string value_beside(GtkWidget* grid, int row) {
    return gtk_label_get_text(GTK_LABEL(gtk_grid_get_child_at(GTK_GRID(grid), 1, row)));
}

// Saved as it was, as an editor does it that changes nothing.
void saved_sheet(visit& v, const std::string& sheet) {
    char* text = nullptr;
    gsize length = 0;
    if (!g_file_get_contents(sheet.c_str(), &text, &length, nullptr)) throw failed_step("there is " + sheet);
    const std::size_t before = v.shop.log.size();
    const bool saved = g_file_set_contents(sheet.c_str(), text, static_cast<gssize>(length), nullptr);
    g_free(text);
    if (!saved) return;  // an installation that belongs to somebody else
    expect("the saved sheet is loaded again", [&] {
        return v.shop.log.contains_since(before, "theme", "loaded: " + zo_theme_get_theme_name());
    });
}

void themes(visit& v) {
    const std::string first = zo_theme_get_theme_name();
    const auto choose = [&v](const std::string& name) {
        const std::size_t before = v.shop.log.size();
        click(on_page("theme-" + name));
        expect("the theme " + name + " is loaded",
               [&] { return v.shop.log.contains_since(before, "theme", "loaded: " + name); });
    };
    for (const demo::theme_place& theme : demo::installed_themes()) {
        if (theme.name == first) continue;
        choose(theme.name);
        v.picture("gallery-in-" + theme.name);
        choose(first);
    }
    saved_sheet(v, zo_theme_get_theme_path() + first + "/style.css");
    const GtkTextDirection reading = gtk_widget_get_default_direction();
    click(on_page("right-to-left"));
    expect("every widget turns round", [&] {
        return gtk_widget_get_default_direction() != reading && place_of(gallery()).x >= 0 &&
               is_on_screen(on_page("right-to-left"));
    });
    v.picture("gallery-turned-round");
    click(on_page("right-to-left"));
    expect("and back again", [&] { return gtk_widget_get_default_direction() == reading; });
}

void sized_buttons(visit& v) {
    click(widget_of_class(on_page("controls"), "icon-search"));
    v.expect_logged("widgets", "icon-search");
    click(on_page("copy-code"));
    click(on_page("read-clipboard"));
    const std::string code = [] {
        for (const demo::page* page : demo::pages())
            if (std::string_view(page->id) == "widgets") return page->code.text;
        return "";
    }();
    v.expect_logged("clipboard", code);
}

void active_facts(visit&) {
    GtkWidget* facts = widget_of_class(on_page("controls"), "gallery-facts");
    expect("the active window is the gallery", [&] { return value_beside(facts, 0) == demo::_("Gallery"); });
}

void ticking(visit& v) {
    GtkWidget* facts = widget_of_class(on_page("controls"), "gallery-facts");
    click(on_page("fps-30"));
    v.expect_logged("redraws", "a ticker of 30");
    const std::string before = value_beside(facts, 0);
    expect("frames are drawn", [&] { return std::stoi(value_beside(facts, 0)) > std::stoi(before) + 10; });
}

void own_notification(visit& v) {
    click(on_page("own-title"));
    type("Hello");
    click(on_page("raise-own"));
    v.expect_logged("messages", "raised: own");
    v.picture("notification-of-ones-own");
    click(on_page("close-all"));
    v.expect_logged("messages", "closed: own");
}

void posting(visit& v) {
    click(on_page("post"));
    v.expect_logged("threads", "all came, in order");
    GtkWidget* facts = widget_of_class(on_page("controls"), "gallery-facts");
    expect("all tasks are counted", [&] { return value_beside(facts, 0) == value_beside(facts, 1); });
}

void counting(visit& v) {
    click(on_page("make-and-drop"));
    v.expect_logged("inside", "events: 1000");
    v.expect_logged("inside", "events: 0");
}

void slots(visit& v) {
    for (const std::string side : {"add-left", "add-right"}) {
        click(on_page(side));
        v.expect_logged("panel", side + ": added");
    }
    GtkWidget* panel = window_of_class("zo-manager");
    expect("both are on the panel", [&] {
        GtkWidget* added = descendant_named(panel, "remove-add-right");
        return added && is_on_screen(added) && place_of(panel).y == 0;
    });
    v.picture("widgets-added-to-the-panel");
    for (const std::string side : {"add-left", "add-right"}) {
        const std::string name = "remove-" + side;
        click(widget_named(panel, name));
        v.expect_logged("panel", side + ": removed");
        if (descendant_named(panel, name)) throw failed_step("it is gone: " + name);
    }
    zo_window_manager_retract(v.shop.panel);
}

struct deed {
    const char* page;
    void (*act)(visit&);
};
constexpr deed deeds[] = {
    {"theme", themes},         {"widgets", sized_buttons},
    {"desktop", active_facts}, {"threads", posting},
    {"inside", counting},      {"slots", slots},
    {"redraws", ticking},      {"notifications", own_notification},
};

}  // namespace

void demo::tour::open_page(const std::string& id) {
    const auto frame = [] {
        return gdk_frame_clock_get_frame_counter(gtk_widget_get_frame_clock(gallery()));
    };
    click(widget_named(widget_named(gallery(), "pages"), id));
    expect("the page " + id + " is chosen",
           [&] { return descendant_named(gallery(), "page-" + id) != nullptr; });
    // Its widgets have their places when a frame has been drawn with them.
    const gint64 before = frame();
    gtk_widget_queue_draw(gallery());
    expect("the page " + id + " is shown",
           [&] { return frame() > before && is_on_screen(on_page("controls")); });
}

GtkWidget* demo::tour::on_page(const std::string& name) { return widget_named(gallery(), name); }

void demo::tour::gallery_pages(visit& v) {
    expect("the gallery is on screen", [] { return is_open("gallery") && is_on_screen(gallery()); });
    v.expect_logged("gallery", "activate");
    for (const page* each : pages()) {
        open_page(each->id);
        for (const deed& d : deeds)
            if (std::string_view(d.page) == each->id) d.act(v);
        v.picture(std::string("gallery-") + each->id);
    }
}

void demo::tour::sheet_that_stays(visit& v) {
    open_page("theme");
    click(on_page("add-sheet"));
    v.expect_logged("theme", "added: titles.css");
    v.picture("sheet-that-stays");
}
