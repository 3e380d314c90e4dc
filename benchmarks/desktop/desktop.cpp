// SPDX-License-Identifier: MIT
#include <desktop/desktop.hpp>

#include <desktop/manager.hpp>

#include <support/allocations.hpp>
#include <support/x_requests.hpp>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <set>

namespace {

constexpr double limit_us = 240e6;

void use_theme() {
    GtkCssProvider* sheet = gtk_css_provider_new();
    gtk_css_provider_load_from_path(sheet, ZO_BENCH_THEME, nullptr);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(sheet),
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(sheet);
}

}  // namespace

void bench::begin() {
    wait_for_empty_desktop();
    gtk_init(nullptr, nullptr);
    use_theme();
    // How many frames a transition has depends on the machine.
    g_object_set(gtk_settings_get_default(), "gtk-enable-animations", FALSE, nullptr);
}

void bench::turn() {
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
}

void bench::turn_until(const std::function<bool()>& done) {
    const double start = wall_us();
    const guint alarm = g_timeout_add_seconds(
        1, [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr);
    while (!done()) {
        g_main_context_iteration(nullptr, TRUE);
        if (wall_us() - start < limit_us) continue;
        std::fprintf(stderr, "nothing came of a step within four minutes\n");
        std::exit(1);
    }
    g_source_remove(alarm);
}

void bench::turn_until_drawn(GtkWidget* toplevel) {
    bool drawn = false;
    const auto on_draw = +[](GtkWidget*, cairo_t*, bool* seen) -> gboolean {
        *seen = true;
        return FALSE;
    };
    const gulong handler = g_signal_connect_after(toplevel, "draw", G_CALLBACK(on_draw), &drawn);
    turn_until([&] { return drawn; });
    g_signal_handler_disconnect(toplevel, handler);
}

void bench::turn_until_all_drawn(int count) {
    std::set<GtkWidget*> drawn;
    const auto on_draw = +[](GtkWidget* toplevel, cairo_t*, std::set<GtkWidget*>* seen) -> gboolean {
        seen->insert(toplevel);
        return FALSE;
    };
    std::set<GtkWidget*> watched;
    turn_until([&] {
        const std::unique_ptr<GList, decltype(&g_list_free)> all(gtk_window_list_toplevels(), g_list_free);
        for (GList* item = all.get(); item; item = item->next)
            if (watched.insert(GTK_WIDGET(item->data)).second)
                g_signal_connect_after(item->data, "draw", G_CALLBACK(on_draw), &drawn);
        return static_cast<int>(drawn.size()) >= count;
    });
    for (GtkWidget* toplevel : watched) g_signal_handlers_disconnect_by_data(toplevel, &drawn);
}

void bench::frame(GtkWidget* toplevel) {
    GdkFrameClock* clock = gtk_widget_get_frame_clock(toplevel);
    for (const char* phase : {"update", "layout", "paint"}) g_signal_emit_by_name(clock, phase);
}

GtkWidget* bench::toplevel(const std::string& style_class) {
    const std::unique_ptr<GList, decltype(&g_list_free)> all(gtk_window_list_toplevels(), g_list_free);
    for (GList* item = all.get(); item; item = item->next) {
        GtkWidget* const widget = GTK_WIDGET(item->data);
        if (gtk_style_context_has_class(gtk_widget_get_style_context(widget), style_class.c_str()))
            return widget;
    }
    return nullptr;
}

void bench::leave() {
    std::fflush(stdout);
    std::_Exit(0);
}

bench::step::step(std::string name, int count)
    : name_(std::move(name)),
      count_(count),
      heap_(heap_bytes()),
      requests_(x_requests()),
      allocations_(allocations()),
      cpu_(cpu_us()) {
    const char* const profiled = g_getenv("ZO_BENCH_STEP");
    if (profiled && name_ == profiled) section_.emplace();
}

bench::step::~step() {
    const double cpu = cpu_us() - cpu_;
    section_.reset();
    const auto tell = [this](const char* metric, double value) {
        print((name_ + "_" + metric).c_str(), value / count_);
    };
    tell("cpu_us", cpu);
    tell("allocations", static_cast<double>(allocations() - allocations_));
    tell("x_requests", static_cast<double>(x_requests() - requests_));
    tell("heap", heap_bytes() - heap_);
    print((name_ + "_operations").c_str(), count_);
}
