// SPDX-License-Identifier: MIT
// The photo button: a picture of the window as it is on the screen, in device pixels. Also run at
// GDK_SCALE=2.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

#include <cstdlib>

namespace {

gboolean paint(GtkWidget* area, cairo_t* cairo, gpointer) {
    const int width = gtk_widget_get_allocated_width(area);
    const int height = gtk_widget_get_allocated_height(area);
    cairo_set_source_rgb(cairo, 1, 0, 0);
    cairo_paint(cairo);
    cairo_set_source_rgb(cairo, 0, 0, 1);
    cairo_rectangle(cairo, width / 2, 0, width / 2, height);
    cairo_fill(cairo);
    return TRUE;
}

class WindowPhoto : public testing::Test {
  protected:
    void SetUp() override {
        zo_window_set_enable_title_save_to_photo(window_, true);
        zo_window_set_save_to_photo_handler(window_, [this](zo_window_ptr called, GdkPixbuf* photo) {
            ++calls_;
            EXPECT_EQ(called, window_.get());
            ASSERT_TRUE(GDK_IS_PIXBUF(photo));
            photo_ = photo;
            g_object_add_weak_pointer(G_OBJECT(photo), reinterpret_cast<gpointer*>(&photo_));
            if (keeps_) g_object_ref(photo);
        });
        toplevel_ = window_.open();
        area_ = gtk_drawing_area_new();
        gtk_widget_set_size_request(area_, 200, 120);
        gtk_widget_set_halign(area_, GTK_ALIGN_START);
        g_signal_connect(area_, "draw", G_CALLBACK(paint), nullptr);
        zo_window_add_content_child(window_, area_, false, false, 0, false);
    }

    void TearDown() override { g_clear_object(&photo_); }

    void show() {
        zo_window_show(window_);
        ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
        test::settle_desktop();
    }

    GtkWidget* button() { return test::find_class(toplevel_, "title-shoot"); }

    int scale() { return gtk_widget_get_scale_factor(toplevel_); }

    // The colour at a place of the painted area, in its logical pixels.
    std::vector<int> colour_at(int x, int y) {
        int left = 0;
        int top = 0;
        gtk_widget_translate_coordinates(area_, toplevel_, x, y, &left, &top);
        const guint8* pixel = gdk_pixbuf_read_pixels(photo_) +
                              top * scale() * gdk_pixbuf_get_rowstride(photo_) +
                              left * scale() * gdk_pixbuf_get_n_channels(photo_);
        return {pixel[0], pixel[1], pixel[2]};
    }

    test::scoped_window window_{"w"};
    GtkWidget* toplevel_ = nullptr;
    GtkWidget* area_ = nullptr;
    GdkPixbuf* photo_ = nullptr;  // null when it is gone
    int calls_ = 0;
    bool keeps_ = false;
};

TEST_F(WindowPhoto, IsTakenAtTheScaleThatWasAsked) {
    const char* asked = std::getenv("GDK_SCALE");
    EXPECT_EQ(scale(), asked ? std::atoi(asked) : 1);
}

TEST_F(WindowPhoto, ShowsTheWholeWindowInDevicePixels) {
    keeps_ = true;
    show();
    test::click(button());
    ASSERT_TRUE(test::turn_until([&] { return calls_ == 1; }));
    ASSERT_NE(photo_, nullptr);
    int width = 0;
    int height = 0;
    gtk_window_get_size(GTK_WINDOW(toplevel_), &width, &height);
    EXPECT_EQ(gdk_pixbuf_get_width(photo_), width * scale());
    EXPECT_EQ(gdk_pixbuf_get_height(photo_), height * scale());
    const std::vector<int> red{255, 0, 0};
    const std::vector<int> blue{0, 0, 255};
    EXPECT_EQ(colour_at(1, 1), red);
    EXPECT_EQ(colour_at(98, 118), red);
    EXPECT_EQ(colour_at(101, 1), blue);
    EXPECT_EQ(colour_at(198, 118), blue);
}

TEST_F(WindowPhoto, IsTheApplicationsOnlyWhenItTakesAReference) {
    show();
    gtk_button_clicked(GTK_BUTTON(button()));
    EXPECT_EQ(calls_, 1);
    EXPECT_EQ(photo_, nullptr);
    keeps_ = true;
    gtk_button_clicked(GTK_BUTTON(button()));
    EXPECT_EQ(calls_, 2);
    ASSERT_NE(photo_, nullptr);
    EXPECT_EQ(G_OBJECT(photo_)->ref_count, 1u);
}

TEST_F(WindowPhoto, OfAWindowThatWasNeverShownIsNotTaken) {
    gtk_button_clicked(GTK_BUTTON(button()));
    EXPECT_EQ(calls_, 0);
}

TEST_F(WindowPhoto, OfAHiddenWindowIsNotTaken) {
    show();
    zo_window_hide(window_);
    test::run_tasks();
    gtk_button_clicked(GTK_BUTTON(button()));
    EXPECT_EQ(calls_, 0);
    show();
    gtk_button_clicked(GTK_BUTTON(button()));
    EXPECT_EQ(calls_, 1);
}

// What the desktop took off the screen has no picture either; whatever is given is no error.
TEST_F(WindowPhoto, OfAnIconIsNoError) {
    if (test::session_wm() == "none") return;
    show();
    gtk_window_iconify(GTK_WINDOW(toplevel_));
    test::settle_desktop();
    gtk_button_clicked(GTK_BUTTON(button()));
    gtk_window_deiconify(GTK_WINDOW(toplevel_));
    test::settle_desktop();
    const int before = calls_;
    gtk_button_clicked(GTK_BUTTON(button()));
    EXPECT_EQ(calls_, before + 1);
}

TEST_F(WindowPhoto, OfAWindowPartlyOffTheScreenHasTheWholeSize) {
    keeps_ = true;
    show();
    zo_window_move(window_, -150, -10);
    test::settle_desktop();
    gtk_button_clicked(GTK_BUTTON(button()));
    ASSERT_EQ(calls_, 1);
    EXPECT_EQ(gdk_pixbuf_get_width(photo_), gdk_window_get_width(gtk_widget_get_window(toplevel_)) * scale());
    EXPECT_EQ(gdk_pixbuf_get_height(photo_),
              gdk_window_get_height(gtk_widget_get_window(toplevel_)) * scale());
}

}  // namespace
