// SPDX-License-Identifier: MIT
#include "support/ui.hpp"

namespace {

// Tickers run until the process ends: those of one test go on in the next.
struct drawn_window {
    drawn_window() {
        gtk_container_add(GTK_CONTAINER(window), area);
        zo_ui_connect_on_draw_signal(area, [this](GtkWidget*, cairo_t*) {
            ++frames;
            return false;
        });
        gtk_widget_show_all(window);
        EXPECT_TRUE(test::turn_until([this] { return test::is_on_screen(window); }));
        test::run_tasks();
    }
    ~drawn_window() { gtk_widget_destroy(window); }
    drawn_window(const drawn_window&) = delete;
    drawn_window& operator=(const drawn_window&) = delete;

    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget* area = gtk_drawing_area_new();
    int frames = 0;
};

guint sources_after(const std::function<void()>& step) {
    const auto newest = [] {
        const guint id = g_idle_add([](gpointer) -> gboolean { return G_SOURCE_REMOVE; }, nullptr);
        g_source_remove(id);
        return id;
    };
    const guint before = newest();
    step();
    return newest() - before - 1;
}

TEST(RedrawTicker, IgnoresRatesOfZeroAndBelow) {
    EXPECT_EQ(sources_after([] { zo_ui_set_fps(0); }), 0u);
    EXPECT_EQ(sources_after([] { zo_ui_set_fps(-5); }), 0u);
}

TEST(RedrawTicker, RedrawsTheRegisteredWidgets) {
    drawn_window first;
    drawn_window second;
    zo_ui_add_fps_widget(first.area);
    zo_ui_add_fps_widget(first.area);
    EXPECT_EQ(sources_after([] { zo_ui_set_fps(200); }), 1u);
    EXPECT_EQ(sources_after([] { zo_ui_set_fps(100000); }), 1u) << "each call starts one more";
    const int begin = first.frames;
    const int unregistered = second.frames;
    EXPECT_TRUE(test::turn_until([&] { return first.frames >= begin + 3; }));
    EXPECT_EQ(second.frames, unregistered);
}

// The tickers of the test before still run: a widget that is gone must not be reached.
TEST(RedrawTicker, ForgetsAWidgetThatIsDestroyed) {
    {
        drawn_window gone;
        zo_ui_add_fps_widget(gone.area);
        zo_ui_set_fps(500);
        const int begin = gone.frames;
        ASSERT_TRUE(test::turn_until([&] { return gone.frames > begin; }));
    }
    drawn_window stays;
    zo_ui_add_fps_widget(stays.area);
    const int begin = stays.frames;
    EXPECT_TRUE(test::turn_until([&] { return stays.frames >= begin + 3; }));
}

std::vector<GtkWidget*> queued;
void (*queue_of_gtk)(GtkWidget*, const cairo_region_t*) = nullptr;

// In the order in which they were added, whatever order they have on the screen.
TEST(RedrawTicker, GoesRoundInTheOrderOfAdding) {
    drawn_window windows[3];
    auto* kind = GTK_WIDGET_GET_CLASS(windows[0].area);
    queue_of_gtk = kind->queue_draw_region;
    kind->queue_draw_region = [](GtkWidget* widget, const cairo_region_t* region) {
        queued.push_back(widget);
        queue_of_gtk(widget, region);
    };
    const std::vector<GtkWidget*> order{windows[1].area, windows[2].area, windows[0].area};
    for (GtkWidget* area : order) zo_ui_add_fps_widget(area);
    zo_ui_set_fps(200);
    queued.clear();
    EXPECT_TRUE(test::turn_until([&] { return queued.size() >= 6; }));
    kind->queue_draw_region = queue_of_gtk;
    for (std::size_t i = 0; i < 6 && i < queued.size(); ++i) EXPECT_EQ(queued[i], order[i % 3]) << i;
}

}  // namespace
