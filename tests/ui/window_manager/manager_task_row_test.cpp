// SPDX-License-Identifier: MIT
// The row of tasks beside a plain box with the same children: it looks the same, and does less.
#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <zo_ui/zo_window_manager/task_row_p.hpp>

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr int width = 600;

GtkWidget* button_in(GtkWidget* padding) { return test::children(padding).front(); }

void retitle(GtkWidget* padding, const std::string& title) {
    GtkWidget* button = button_in(padding);
    gtk_button_set_label(GTK_BUTTON(button), title.c_str());
    gtk_label_set_ellipsize(GTK_LABEL(gtk_bin_get_child(GTK_BIN(button))), PANGO_ELLIPSIZE_END);
}

GtkWidget* padded_button(int number) {
    GtkWidget* padding = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_valign(padding, GTK_ALIGN_CENTER);
    gtk_box_pack_start(GTK_BOX(padding), gtk_button_new(), FALSE, FALSE, 0);
    retitle(padding, std::string(static_cast<std::size_t>(number % 7 + 4), 'm'));
    gtk_widget_show_all(padding);
    return padding;
}

// One of the two, in a scroller on screen.
class shown_row {
  public:
    using adder = void (*)(GtkWidget*, GtkWidget*);

    shown_row(GtkWidget* (*make)(GtkScrolledWindow*), adder add, GtkTextDirection direction)
        : window_(gtk_window_new(GTK_WINDOW_POPUP)), add_(add) {
        GtkWidget* scroller = gtk_scrolled_window_new(nullptr, nullptr);
        gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scroller), GTK_POLICY_EXTERNAL, GTK_POLICY_NEVER);
        gtk_widget_set_size_request(scroller, width, 60);
        row_ = make(GTK_SCROLLED_WINDOW(scroller));
        gtk_widget_set_halign(row_, GTK_ALIGN_START);
        gtk_style_context_add_class(gtk_widget_get_style_context(row_), "edged");
        gtk_widget_set_direction(row_, direction);
        gtk_container_add(GTK_CONTAINER(window_), scroller);
        gtk_widget_show_all(window_);
        scrolled_ = gtk_scrolled_window_get_hadjustment(GTK_SCROLLED_WINDOW(scroller));
    }
    ~shown_row() { gtk_widget_destroy(window_); }
    shown_row(const shown_row&) = delete;
    shown_row& operator=(const shown_row&) = delete;

    void fill(int count) {
        for (int i = 0; i < count; ++i) add_(row_, padded_button(i));
        draw();
    }
    void draw() const { test::draw_again(window_); }
    void scroll_to(double x) const {
        gtk_adjustment_set_value(scrolled_, x);
        draw();
    }
    std::vector<GtkWidget*> paddings() const { return test::children(row_); }
    GtkWidget* row() const { return row_; }

    std::string places() const {
        std::string text = std::to_string(gtk_widget_get_allocated_width(row_)) + "x" +
                           std::to_string(gtk_widget_get_allocated_height(row_));
        for (GtkWidget* padding : paddings()) {
            GtkAllocation place{};
            gtk_widget_get_allocation(padding, &place);
            text += " " + std::to_string(place.x) + "," + std::to_string(place.y) + "+" +
                    std::to_string(place.width) + "x" + std::to_string(place.height);
        }
        return text;
    }

    std::vector<unsigned char> picture() const {
        cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, 60);
        cairo_t* cairo = cairo_create(surface);
        gtk_widget_draw(window_, cairo);
        cairo_destroy(cairo);
        cairo_surface_flush(surface);
        const unsigned char* data = cairo_image_surface_get_data(surface);
        std::vector<unsigned char> bytes(data, data + cairo_image_surface_get_stride(surface) * 60);
        cairo_surface_destroy(surface);
        return bytes;
    }

  private:
    GtkWidget* window_;
    GtkWidget* row_ = nullptr;
    GtkAdjustment* scrolled_ = nullptr;
    adder add_;
};

GtkWidget* plain_row(GtkScrolledWindow* scroller) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_container_add(GTK_CONTAINER(scroller), box);
    return box;
}

void pack(GtkWidget* box, GtkWidget* child) { gtk_box_pack_end(GTK_BOX(box), child, FALSE, FALSE, 0); }

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

// A change of one is nothing to those that stay where they are, out of sight.
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
    retitle(unseen, "unseen");
    row.draw();
    g_signal_connect_swapped(button_in(unseen), "size-allocate", G_CALLBACK(count), &calls);
    g_signal_connect_swapped(button_in(unseen), "draw", G_CALLBACK(count), &calls);
    retitle(seen, "seen");
    row.draw();
    EXPECT_EQ(calls, 0);
    row.scroll_to(left_to_right ? 1e6 : 0);
    row.scroll_to(left_to_right ? 0 : 1e6);
    EXPECT_GT(calls, 0);
}

}  // namespace
