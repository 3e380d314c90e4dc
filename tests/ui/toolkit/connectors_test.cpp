// SPDX-License-Identifier: MIT
// Each connector calls its callable for its signal, once per widget and list, and loses it with the widget.
#include "support/ui.hpp"

#include <functional>

namespace {

// One row a connector: a widget of its kind, the connecting, the signal given to it, and how often the
// callable came.
struct row {
    const char* name;
    std::function<GtkWidget*()> make;
    std::function<bool(GtkWidget*, int&)> connect;
    std::function<void(GtkWidget*)> give;
};

std::ostream& operator<<(std::ostream& out, const row& r) { return out << r.name; }

GdkEventButton button_event(GdkEventType type) {
    GdkEventButton event{};
    event.type = type;
    event.button = 1;
    return event;
}

void give_event(GtkWidget* widget, const char* signal, GdkEventType type) {
    GdkEventButton event = button_event(type);
    gboolean stopped = FALSE;
    g_signal_emit_by_name(widget, signal, &event, &stopped);
}

void give_draw(GtkWidget* widget) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 4, 4);
    cairo_t* cairo = cairo_create(surface);
    gboolean stopped = FALSE;
    g_signal_emit_by_name(widget, "draw", cairo, &stopped);
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}

GtkWidget* combo_new() {
    GtkWidget* combo = gtk_combo_box_text_new();
    gtk_combo_box_text_append_text(GTK_COMBO_BOX_TEXT(combo), "a");
    return combo;
}

// A callable that counts its calls.
template <typename... Arguments>
std::function<void(Arguments...)> counting(int& calls) {
    return [&calls](Arguments...) { ++calls; };
}

const row rows[] = {
    {"button", gtk_button_new,
     [](GtkWidget* w, int& n) { return zo_ui_connect_button_click_signal(w, counting<GtkWidget*>(n)); },
     [](GtkWidget* w) { gtk_button_clicked(GTK_BUTTON(w)); }},
    {"toggle", gtk_toggle_button_new,
     [](GtkWidget* w, int& n) { return zo_ui_connect_toogle_click_signal(w, counting<GtkToggleButton*>(n)); },
     [](GtkWidget* w) { gtk_button_clicked(GTK_BUTTON(w)); }},
    {"combo", combo_new,
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_combobox_selection_change_signal(w, counting<GtkComboBox*>(n));
     },
     [](GtkWidget* w) { g_signal_emit_by_name(w, "changed"); }},
    {"switch", gtk_switch_new,
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_switch_button_change_signal(w, counting<GtkSwitch*>(n));
     },
     [](GtkWidget* w) { gtk_switch_set_active(GTK_SWITCH(w), !gtk_switch_get_active(GTK_SWITCH(w))); }},
    {"editable", gtk_entry_new,
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_editable_text_change_signal(w, counting<GtkEditable*>(n));
     },
     [](GtkWidget* w) { g_signal_emit_by_name(w, "changed"); }},
    {"scale", gtk_volume_button_new,
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_scale_value_change_signal(w, counting<GtkScaleButton*, double>(n));
     },
     [](GtkWidget* w) {
         auto* scale = GTK_SCALE_BUTTON(w);
         gtk_scale_button_set_value(scale, gtk_scale_button_get_value(scale) > 0.5 ? 0.25 : 0.75);
     }},
    {"menu item", gtk_menu_item_new,
     [](GtkWidget* w, int& n) { return zo_ui_connect_menuitem_click_signal(w, counting<GtkMenuItem*>(n)); },
     [](GtkWidget* w) { gtk_menu_item_activate(GTK_MENU_ITEM(w)); }},
    {"link", [] { return gtk_label_new("x"); },
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_label_link_activate(w, [&n](GtkLabel*, std::string&) { return ++n > 0; });
     },
     [](GtkWidget* w) {
         gboolean stopped = FALSE;
         g_signal_emit_by_name(w, "activate-link", "zo:x", &stopped);
     }},
    {"draw", gtk_drawing_area_new,
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_on_draw_signal(w, [&n](GtkWidget*, cairo_t*) { return ++n > 0; });
     },
     give_draw},
    {"event click", gtk_event_box_new,
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_event_click_signal(w, [&n](GtkWidget*, GdkEventButton*) { return ++n; });
     },
     [](GtkWidget* w) { give_event(w, "button-press-event", GDK_BUTTON_PRESS); }},
    {"event press", gtk_event_box_new,
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_event_button_press_signal(w, [&n](GtkWidget*, GdkEventButton*) { return ++n; });
     },
     [](GtkWidget* w) { give_event(w, "button-press-event", GDK_BUTTON_PRESS); }},
    {"event release", gtk_event_box_new,
     [](GtkWidget* w, int& n) {
         return zo_ui_connect_event_button_release_signal(w,
                                                          [&n](GtkWidget*, GdkEventButton*) { return ++n; });
     },
     [](GtkWidget* w) { give_event(w, "button-release-event", GDK_BUTTON_RELEASE); }},
};

class Connectors : public testing::TestWithParam<row> {
  protected:
    void SetUp() override { widget_ = GTK_WIDGET(g_object_ref_sink(GetParam().make())); }
    void TearDown() override {
        gtk_widget_destroy(widget_);
        g_object_unref(widget_);
    }
    GtkWidget* widget_ = nullptr;
};

TEST_P(Connectors, CallTheCallableForEachSignal) {
    int calls = 0;
    ASSERT_TRUE(GetParam().connect(widget_, calls));
    EXPECT_EQ(calls, 0);
    GetParam().give(widget_);
    GetParam().give(widget_);
    EXPECT_EQ(calls, 2);
}

TEST_P(Connectors, KeepTheFirstCallableOfAWidget) {
    int first = 0;
    int second = 0;
    EXPECT_TRUE(GetParam().connect(widget_, first));
    EXPECT_FALSE(GetParam().connect(widget_, second));
    GetParam().give(widget_);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 0);
}

TEST_P(Connectors, ForgetAWidgetThatIsDestroyed) {
    int calls = 0;
    ASSERT_TRUE(GetParam().connect(widget_, calls));
    gtk_widget_destroy(widget_);
    EXPECT_TRUE(GetParam().connect(widget_, calls))
        << "the entry is gone, so the widget can be connected anew";
    gtk_widget_destroy(widget_);
}

INSTANTIATE_TEST_SUITE_P(All, Connectors, testing::ValuesIn(rows));

}  // namespace
