// SPDX-License-Identifier: MIT
// A row of tasks, or a plain box beside it, in a scroller on screen.
#pragma once

#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <string>
#include <vector>

namespace test {

inline constexpr int row_width = 600;

inline GtkWidget* button_in(GtkWidget* padding) { return children(padding).front(); }

inline void retitle(GtkWidget* padding, const std::string& title) {
    GtkWidget* button = button_in(padding);
    gtk_button_set_label(GTK_BUTTON(button), title.c_str());
    gtk_label_set_ellipsize(GTK_LABEL(gtk_bin_get_child(GTK_BIN(button))), PANGO_ELLIPSIZE_END);
}

inline GtkWidget* padded_button(int number) {
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
        gtk_widget_set_size_request(scroller, row_width, 60);
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
    void draw() const { draw_again(window_); }
    void scroll_to(double x) const {
        gtk_adjustment_set_value(scrolled_, x);
        draw();
    }
    void widen(int by) const {
        gtk_widget_set_size_request(gtk_bin_get_child(GTK_BIN(window_)), row_width + by, 60);
    }
    std::vector<GtkWidget*> paddings() const { return children(row_); }
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
        cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, row_width, 60);
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

inline GtkWidget* plain_row(GtkScrolledWindow* scroller) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_container_add(GTK_CONTAINER(scroller), box);
    return box;
}

inline void pack(GtkWidget* box, GtkWidget* child) { gtk_box_pack_end(GTK_BOX(box), child, FALSE, FALSE, 0); }

}  // namespace test
