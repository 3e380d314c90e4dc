// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

#include <chrono>

using demo::_;

namespace {

// What the page shows of the work; touched only on the loop.
struct board {
    GtkWidget* bar = nullptr;  // null once the page is gone
    int done = 0;
    bool in_order = true;
    std::vector<int> last;  // of each worker
    std::chrono::steady_clock::time_point begin;
    double milliseconds = 0;
};

constexpr int workers = 4;
constexpr int posts = 2500;  // of each worker

void show(demo::workshop& shop, board& b) {
    const int all = workers * posts;
    if (b.bar)
        gtk_progress_bar_set_fraction(GTK_PROGRESS_BAR(b.bar),
                                      static_cast<double>(b.done) / all);
    if (b.done < all) return;
    const auto spent = std::chrono::steady_clock::now() - b.begin;
    b.milliseconds =
        std::chrono::duration<double, std::milli>(spent).count();
    shop.log.add("threads",
                 b.in_order ? "all came, in order" : "out of order");
}

// begin: threads
// Tasks are posted from any thread. They run on the loop one after the
// other, those of one thread in the order of posting: they touch widgets
// without any lock.
void post_from(demo::workshop& shop, const std::shared_ptr<board>& b,
               int worker) {
    for (int i = 0; i < posts; ++i)
        zo_system_service_exec(
            [&shop, b, worker, i] {
                const auto w = static_cast<std::size_t>(worker);
                b->in_order = b->in_order && b->last[w] == i - 1;
                b->last[w] = i;
                ++b->done;
                show(shop, *b);
            },
            "demo", __LINE__);
}

void start(demo::workshop& shop, const std::shared_ptr<board>& b) {
    shop.workers.clear();  // joins the last run's
    b->last.assign(workers, -1);
    b->done = 0;
    b->begin = std::chrono::steady_clock::now();
    for (int worker = 0; worker < workers; ++worker)
        shop.workers.emplace_back(
            [&shop, b, worker] { post_from(shop, b, worker); });
}

// Most functions may be called from any thread: they post by themselves.
void retitle(demo::workshop& shop) {
    shop.workers.emplace_back([window = shop.studio] {
        zo_window_set_title(window, _("Titled by a thread"));
    });
}
// end: threads

std::string spent(const board& b) {
    if (b.milliseconds == 0) return {};
    char text[32];
    g_snprintf(text, sizeof text, "%.1f ms", b.milliseconds);
    return text;
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    const auto b = std::make_shared<board>();
    demo::append(controls,
                 demo::buttons_new({{"post", _("Post from four threads"),
                                     [&shop, b] {
                                         const bool running =
                                             b->done > 0 &&
                                             b->done < workers * posts;
                                         if (!running) start(shop, b);
                                     }},
                                    {"retitle", _("Title the studio"),
                                     [&shop] {
                                         demo::summon(shop, shop.studio);
                                         retitle(shop);
                                     }}},
                                   2));
    b->bar = gtk_progress_bar_new();
    gtk_widget_set_name(b->bar, "progress");
    zo_ui_connect_widget_destroy(b->bar, [b] { b->bar = nullptr; });
    demo::append(controls, b->bar);
    demo::append(
        controls,
        demo::facts_new({
            {_("Tasks posted"),
             [] { return std::to_string(workers * posts); }},
            {_("Tasks that ran"),
             [b] { return std::to_string(b->done); }},
            {_("Each thread's in order"),
             [b] {
                 if (!b->done) return std::string();
                 return std::string(b->in_order ? _("yes") : _("no"));
             }},
            {_("From the first to the last"), [b] { return spent(*b); }},
        }));
    demo::append(controls,
                 demo::note_new(_("The window stays alive meanwhile: "
                                  "after each batch of tasks the "
                                  "loop draws and takes input.")));
}

}  // namespace

const demo::page demo::threads_page{
    "threads",     N_("Inside"),
    N_("Threads"), N_("From any thread to the screen, without a lock."),
    code::threads, fill,
};
