// SPDX-License-Identifier: MIT
// Work in a thread of its own. The worker never touches a widget: it posts tasks to the loop, which do.
#include <zo_ui/zo_ui.hpp>

#include <atomic>
#include <thread>

namespace {

struct work {
    std::atomic<bool> stop = false;
    GtkWidget* bar = nullptr;  // touched on the loop only; null without a window
};

void fill(work& job, const zo_window_ptr& window) {
    job.bar = gtk_progress_bar_new();
    gtk_widget_set_size_request(job.bar, 320, -1);
    zo_ui_connect_widget_destroy(job.bar, [&job] { job.bar = nullptr; });
    zo_window_add_content_child(window, job.bar, true, true, 16, false);
}

void count(work& job, const zo_window_ptr& window) {
    constexpr int all = 40;
    for (int done = 1; done <= all && !job.stop; ++done) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));  // stands for real work
        const auto show = [&job, done] {
            if (job.bar) gtk_progress_bar_set_fraction(GTK_PROGRESS_BAR(job.bar), 1.0 * done / all);
        };
        zo_system_service_exec(show, "worker", __LINE__);
    }
    if (!job.stop) zo_window_set_title(window, "Done");  // functions of objects post by themselves
}

}  // namespace

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    zo_ui_init();
    GError* error = nullptr;
    zo_theme_set_theme_path(zo_theme_get_system_path());
    zo_theme_use_theme("brevant", error);
    if (error) g_printerr("no theme: %s\n", error->message);
    g_clear_error(&error);

    work job;
    zo_window_ptr window = zo_window_new("worker");
    zo_window_set_title(window, "Working");
    zo_window_set_window_open_callback(window, [&job](zo_window_ptr opened) { fill(job, opened); });
    zo_window_set_window_close_callback(window, [](zo_window_ptr) { gtk_main_quit(); });
    zo_window_open(window);
    zo_window_show(window);
    std::thread worker([&job, window] { count(job, window); });
    gtk_main();

    job.stop = true;
    worker.join();
    zo_window_destroy(window);
    zo_system_service_end();  // runs what the worker has posted, while `job` still lives
    zo_theme_uninit();
}
