// SPDX-License-Identifier: MIT
// What a callable may do while it runs, what it gives back, and when it goes.
#include "support/ui.hpp"

#include <unistd.h>
#include <memory>

namespace {

class ConnectorLifetime : public testing::Test {
  protected:
    void SetUp() override { button_ = GTK_WIDGET(g_object_ref_sink(gtk_button_new())); }
    void TearDown() override {
        gtk_widget_destroy(button_);
        g_object_unref(button_);
    }
    GtkWidget* button_ = nullptr;
};

std::size_t listed_buttons() {
    test::captured_output output;
    zo_ui_output_listeners_stats();
    return std::stoul(output.lines().at(0).substr(std::string("button_click_list\t- ").size()));
}

TEST_F(ConnectorLifetime, ACallableMayDestroyItsOwnWidget) {
    const auto token = std::make_shared<int>(0);
    bool alive_after = false;
    std::size_t listed_inside = 99;
    const std::size_t before = listed_buttons();
    zo_ui_connect_button_click_signal(button_, [&, token](GtkWidget* button) {
        gtk_widget_destroy(button);
        listed_inside = listed_buttons();
        alive_after = token.use_count() > 1;
    });
    EXPECT_EQ(listed_buttons(), before + 1);
    gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_TRUE(alive_after) << "the callable lives until its call has returned";
    EXPECT_EQ(listed_inside, before) << "the list has let go of it at once";
    EXPECT_EQ(token.use_count(), 1) << "and then it goes";
}

TEST_F(ConnectorLifetime, ACallableMayConnectOthersAndRunALoop) {
    GtkWidget* other = GTK_WIDGET(g_object_ref_sink(gtk_button_new()));
    int inner = 0;
    zo_ui_connect_button_click_signal(button_, [&](GtkWidget*) {
        zo_ui_connect_button_click_signal(other, [&](GtkWidget*) { ++inner; });
        gtk_widget_destroy(button_);
        test::run_tasks();
        gtk_button_clicked(GTK_BUTTON(other));
    });
    gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_EQ(inner, 1);
    gtk_widget_destroy(other);
    g_object_unref(other);
}

TEST_F(ConnectorLifetime, ACallableKeepsItsState) {
    int last = 0;
    zo_ui_connect_button_click_signal(button_, [&last, count = 0](GtkWidget*) mutable { last = ++count; });
    for (int i = 0; i < 3; ++i) gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_EQ(last, 3);
}

TEST_F(ConnectorLifetime, AnEmptyCallableIsAProgrammingError) {
    zo_ui_connect_button_click_signal(button_, nullptr);
    // In a process of its own: GLib's signals are of no use after an exception went through them.
    const auto click = [this] {
        try {
            gtk_button_clicked(GTK_BUTTON(button_));
        } catch (const std::bad_function_call&) {
            _exit(7);
        }
        _exit(0);
    };
    EXPECT_EXIT(click(), testing::ExitedWithCode(7), "");
}

TEST_F(ConnectorLifetime, ClickAndPressShareOneListAndReleaseHasItsOwn) {
    const auto stop = [](GtkWidget*, GdkEventButton*) { return 1; };
    EXPECT_TRUE(zo_ui_connect_event_click_signal(button_, stop));
    EXPECT_FALSE(zo_ui_connect_event_button_press_signal(button_, stop));
    EXPECT_TRUE(zo_ui_connect_event_button_release_signal(button_, stop));
}

TEST_F(ConnectorLifetime, AComboWithAnEntryMayBeInBothChangedLists) {
    GtkWidget* combo = GTK_WIDGET(g_object_ref_sink(gtk_combo_box_text_new_with_entry()));
    GtkWidget* entry = gtk_bin_get_child(GTK_BIN(combo));
    int selections = 0;
    int texts = 0;
    EXPECT_TRUE(zo_ui_connect_combobox_selection_change_signal(combo, [&](GtkComboBox*) { ++selections; }));
    EXPECT_TRUE(zo_ui_connect_editable_text_change_signal(entry, [&](GtkEditable*) { ++texts; }));
    gtk_entry_set_text(GTK_ENTRY(entry), "x");
    EXPECT_GT(selections, 0);
    EXPECT_GT(texts, 0);
    gtk_widget_destroy(combo);
    g_object_unref(combo);
}

TEST_F(ConnectorLifetime, ResultsAreTheSignals) {
    GdkEventButton event{};
    event.type = GDK_BUTTON_PRESS;
    for (const int answer : {0, 1}) {
        GtkWidget* box = GTK_WIDGET(g_object_ref_sink(gtk_event_box_new()));
        zo_ui_connect_event_click_signal(box, [&](GtkWidget*, GdkEventButton*) { return answer; });
        gboolean stopped = !answer;
        g_signal_emit_by_name(box, "button-press-event", &event, &stopped);
        EXPECT_EQ(stopped, answer);
        gtk_widget_destroy(box);
        g_object_unref(box);
    }
}

TEST_F(ConnectorLifetime, ALinkCallableGetsTheUriAndDecides) {
    for (const bool answer : {false, true}) {
        GtkWidget* label = GTK_WIDGET(g_object_ref_sink(gtk_label_new("x")));
        std::string got;
        zo_ui_connect_label_link_activate(label, [&](GtkLabel*, std::string& uri) {
            got = uri;
            return answer;
        });
        // The default handler would open the link: a later handler takes it away.
        g_signal_connect(label, "activate-link", G_CALLBACK(+[]() -> gboolean { return TRUE; }), nullptr);
        gboolean stopped = FALSE;
        g_signal_emit_by_name(label, "activate-link", "zo:there", &stopped);
        EXPECT_EQ(got, "zo:there");
        g_signal_emit_by_name(label, "activate-link", nullptr, &stopped);
        EXPECT_EQ(got, "");
        gtk_widget_destroy(label);
        g_object_unref(label);
    }
}

TEST_F(ConnectorLifetime, AFalseLinkAnswerLetsTheNextHandlerHaveIt) {
    for (const bool answer : {false, true}) {
        GtkWidget* label = GTK_WIDGET(g_object_ref_sink(gtk_label_new("x")));
        zo_ui_connect_label_link_activate(label, [&](GtkLabel*, std::string&) { return answer; });
        bool reached = false;
        g_signal_connect(label, "activate-link", G_CALLBACK(+[](GtkLabel*, char*, bool* seen) -> gboolean {
                             *seen = true;
                             return TRUE;
                         }),
                         &reached);
        gboolean stopped = FALSE;
        g_signal_emit_by_name(label, "activate-link", "zo:there", &stopped);
        EXPECT_EQ(reached, !answer);
        gtk_widget_destroy(label);
        g_object_unref(label);
    }
}

TEST_F(ConnectorLifetime, StatisticsFollowTheLists) {
    const std::size_t before = listed_buttons();
    zo_ui_connect_button_click_signal(button_, [](GtkWidget*) {});
    {
        test::captured_output output;
        zo_ui_output_listeners_stats();
        EXPECT_EQ(output.text(), "button_click_list\t- " + std::to_string(before + 1) +
                                     "\ntoogle_change_list\t- 0\ncombobox_change_list\t- 0\n"
                                     "switch_change_list\t- 0\neditable_text_change\t- 0\n");
    }
    gtk_widget_destroy(button_);
    EXPECT_EQ(listed_buttons(), before);
}

}  // namespace
