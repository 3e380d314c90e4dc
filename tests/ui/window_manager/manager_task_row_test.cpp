// SPDX-License-Identifier: MIT
// The row of tasks beside a plain box with the same children: it looks the same, and does less.
#include "ui/window_manager/shown_row.hpp"

#include <zo_ui/zo_window_manager/task_row_p.hpp>

#include <cstring>
#include <string>
#include <vector>

namespace {

using test::button_in;
using test::pack;
using test::plain_row;
using test::retitle;
using test::shown_row;

class ManagerTaskRow : public testing::TestWithParam<GtkTextDirection> {
  protected:
    ManagerTaskRow() {
        sheet_ = gtk_css_provider_new();
        gtk_css_provider_load_from_data(sheet_,
                                        ".edged { padding: 1px 4px 2px 7px; margin: 2px 3px; "
                                        "border: 1px solid red; background: blue; } .edged button { "
                                        "transition: none; }",
                                        -1, nullptr);
        gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(sheet_), 900);
    }
    ~ManagerTaskRow() override {
        gtk_style_context_remove_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(sheet_));
        g_object_unref(sheet_);
    }

    static void expect_same(const shown_row& a, const shown_row& b) {
        EXPECT_EQ(a.places(), b.places());
        EXPECT_TRUE(a.picture() == b.picture());
    }

  private:
    GtkCssProvider* sheet_;
};

INSTANTIATE_TEST_SUITE_P(, ManagerTaskRow, testing::Values(GTK_TEXT_DIR_LTR, GTK_TEXT_DIR_RTL));

// With room for all, with room for some of what they want, and without.
TEST_P(ManagerTaskRow, LooksLikeABox) {
    for (const int count : {0, 3, 11, 12, 13, 60}) {
        shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
        shown_row box(plain_row, pack, GetParam());
        for (shown_row* each : {&row, &box}) each->fill(count);
        expect_same(row, box);
    }
}

TEST_P(ManagerTaskRow, FollowsChangesLikeABox) {
    shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
    shown_row box(plain_row, pack, GetParam());
    const auto both = [&](const std::function<void(const shown_row&)>& change) {
        for (shown_row* each : {&row, &box}) {
            change(*each);
            each->draw();
        }
        expect_same(row, box);
    };
    for (shown_row* each : {&row, &box}) each->fill(12);
    both([](const shown_row& r) { retitle(r.paddings()[4], "mmmmmmmmmmmm"); });
    both([](const shown_row& r) { gtk_widget_set_size_request(button_in(r.paddings()[11]), 90, 50); });
    both([](const shown_row& r) { gtk_container_remove(GTK_CONTAINER(r.row()), r.paddings()[2]); });
    both([](const shown_row& r) { gtk_widget_destroy(button_in(r.paddings()[3])); });
    for (shown_row* each : {&row, &box}) each->fill(40);
    both([](const shown_row& r) { gtk_widget_set_size_request(button_in(r.paddings()[45]), 200, 20); });
    both([](const shown_row& r) { r.scroll_to(700); });
    both([](const shown_row& r) { r.scroll_to(1e6); });
}

TEST_P(ManagerTaskRow, FollowsWhatIsHiddenAndShown) {
    shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
    shown_row box(plain_row, pack, GetParam());
    for (shown_row* each : {&row, &box}) each->fill(5);
    const auto both = [&](const std::function<void(GtkWidget*)>& change) {
        for (shown_row* each : {&row, &box}) {
            change(each->paddings()[2]);
            each->draw();
        }
        EXPECT_EQ(row.places(), box.places());
    };
    both([](GtkWidget* padding) { gtk_widget_hide(padding); });
    both([](GtkWidget* padding) { retitle(padding, "a title that came while it was hidden"); });
    both([](GtkWidget* padding) { gtk_widget_show(padding); });
}

// An application may pack and order children by itself, as in any box.
TEST_P(ManagerTaskRow, IsABoxForWhatOthersPack) {
    shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
    shown_row box(plain_row, pack, GetParam());
    for (shown_row* each : {&row, &box}) {
        each->fill(3);
        GtkWidget* label = gtk_label_new("a label");
        gtk_box_pack_start(GTK_BOX(each->row()), label, FALSE, FALSE, 0);
        gtk_widget_show(label);
        each->draw();
        each->fill(2);
    }
    expect_same(row, box);
    for (shown_row* each : {&row, &box}) {
        retitle(each->paddings().back(), "another title");
        gtk_container_remove(GTK_CONTAINER(each->row()), each->paddings().front());
        gtk_container_remove(GTK_CONTAINER(each->row()), each->paddings().front());
        each->draw();
    }
    expect_same(row, box);
}

TEST_P(ManagerTaskRow, FollowsANewOrder) {
    shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
    shown_row box(plain_row, pack, GetParam());
    for (shown_row* each : {&row, &box}) {
        each->fill(4);
        gtk_box_reorder_child(GTK_BOX(each->row()), each->paddings().front(), 0);
        gtk_widget_queue_resize(each->row());
        each->draw();
    }
    expect_same(row, box);
}

// The scroller grows while the row keeps its size: what comes into sight by that is up to date.
TEST_P(ManagerTaskRow, SeesMoreWhenTheScrollerGrows) {
    shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
    row.fill(60);
    row.scroll_to(0);
    const std::vector<GtkWidget*> paddings = row.paddings();
    GtkWidget* unseen = GetParam() == GTK_TEXT_DIR_LTR ? paddings.back() : paddings.front();
    GtkButton* button = GTK_BUTTON(button_in(unseen));
    std::string turned = gtk_button_get_label(button);
    retitle(unseen, turned);  // another label, as wide as the one before
    row.draw();
    row.widen(20);
    row.draw();
    row.scroll_to(1e6);
    GtkAllocation place{};
    gtk_widget_get_allocation(gtk_bin_get_child(GTK_BIN(button)), &place);
    EXPECT_GT(place.width, 1);
}

// What was out of sight is up to date when it comes into sight.
TEST_P(ManagerTaskRow, ScrollsToWhatHasChanged) {
    shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
    shown_row box(plain_row, pack, GetParam());
    for (shown_row* each : {&row, &box}) {
        each->fill(60);
        each->scroll_to(0);
        for (const std::size_t index : {std::size_t{1}, std::size_t{58}})
            retitle(each->paddings()[index], "xyz");
        each->draw();
    }
    for (const double x : {0.0, 1e6}) {
        row.scroll_to(x);
        box.scroll_to(x);
        expect_same(row, box);
    }
}

// A change of one is nothing to those that stay where they are, out of sight; one that has changed there
// learns of it when it comes into sight.
TEST_P(ManagerTaskRow, LeavesTheOthersAlone) {
    shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
    row.fill(60);
    row.scroll_to(0);
    const std::vector<GtkWidget*> paddings = row.paddings();
    const bool left_to_right = GetParam() == GTK_TEXT_DIR_LTR;
    GtkWidget* const seen = left_to_right ? paddings.front() : paddings.back();
    GtkWidget* const unseen = left_to_right ? paddings.back() : paddings.front();
    int calls = 0;
    const auto count = +[](int* number) { ++*number; };
    g_signal_connect_swapped(button_in(unseen), "size-allocate", G_CALLBACK(count), &calls);
    g_signal_connect_swapped(button_in(unseen), "draw", G_CALLBACK(count), &calls);
    retitle(unseen, "unseen");
    row.draw();
    retitle(seen, "seen");
    row.draw();
    EXPECT_EQ(calls, 0);
    row.scroll_to(left_to_right ? 1e6 : 0);
    row.scroll_to(left_to_right ? 0 : 1e6);
    EXPECT_GT(calls, 0);
}

// It holds what tells of scrolling no longer than it lives.
TEST_P(ManagerTaskRow, LetsGoOfTheAdjustment) {
    gpointer adjustment = nullptr;
    {
        shown_row row(zo::task_row_new, zo::task_row_add, GetParam());
        row.fill(3);
        GtkWidget* const scroller = gtk_widget_get_ancestor(row.row(), GTK_TYPE_SCROLLED_WINDOW);
        adjustment = gtk_scrolled_window_get_hadjustment(GTK_SCROLLED_WINDOW(scroller));
        g_object_add_weak_pointer(G_OBJECT(adjustment), &adjustment);
    }
    EXPECT_TRUE(test::turn_until([&] { return !adjustment; }));
}

}  // namespace
