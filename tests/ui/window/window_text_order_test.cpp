// SPDX-License-Identifier: MIT
// Of texts that are set at once, the one that is stored last is the one that the widgets follow last.
#include "ui/window/window_tables.hpp"

#include <atomic>
#include <set>
#include <thread>

namespace {

// Runs once, when the property lock has been given back.
std::function<void()> meanwhile;
std::atomic<bool> armed{false};

void after_unlock(std::function<void()> call) {
    meanwhile = std::move(call);
    armed = true;
}

}  // namespace

// Stands in for the core's: another thread takes the lock as soon as it is free.
void _zo_object::property_unlock() {
    property_mutex_.unlock();
    if (armed.exchange(false)) meanwhile();
}

namespace {

std::set<std::string> classes_of(GtkWidget* widget) {
    std::set<std::string> result;
    GList* list = gtk_style_context_list_classes(gtk_widget_get_style_context(widget));
    for (GList* item = list; item; item = item->next) result.insert(static_cast<char*>(item->data));
    g_list_free(list);
    return result;
}

TEST(WindowTextOrder, IsThatOfTheStoring) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    std::set<std::string> expected = classes_of(toplevel);
    std::vector<std::string> told;
    const auto note = [&](zo_window_ptr, const std::string& text) { told.push_back(text); };
    zo_window_set_window_class_change_callback(window, note);
    zo_window_set_window_id_change_callback(window, note);
    after_unlock([&] { zo_window_set_class(window, "second"); });
    zo_window_set_class(window, "first");
    after_unlock([&] { zo_window_set_id(window, "two"); });
    zo_window_set_id(window, "one");
    test::run_tasks();
    EXPECT_EQ(told, (std::vector<std::string>{"first", "second", "one", "two"}));
    expected.erase("global-window");
    expected.insert("second");
    EXPECT_EQ(classes_of(toplevel), expected);
    EXPECT_STREQ(gtk_widget_get_name(toplevel), "two");
}

// A thread that holds the lock may set texts while another one does.
TEST(WindowTextOrder, OfAThreadThatHoldsTheLock) {
    test::scoped_window window("w");
    window.open();
    const zo_object_ptr object = zo_window_to_object(window);
    object->property_lock(__FILE__, __LINE__);
    std::atomic<bool> begun{false};
    std::thread other([&] {
        begun = true;
        for (int i = 0; i < 50; ++i) zo_window_set_title(window, "theirs");
    });
    while (!begun) std::this_thread::yield();
    for (int i = 0; i < 50; ++i) zo_window_set_title(window, "ours");
    object->property_unlock();
    other.join();
    test::run_tasks();
    std::string text;
    EXPECT_TRUE(zo_window_get_title(window, text));
    EXPECT_EQ(text, "theirs");
}

TEST(WindowTextOrder, OfEightThreadsIsKeptToTheEnd) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    std::set<std::string> fixed = classes_of(toplevel);
    fixed.erase("global-window");
    std::atomic<int> left{8};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.emplace_back([&, thread] {
            for (int turn = 0; turn < 300; ++turn) {
                const std::string text = "t" + std::to_string(thread) + "-" + std::to_string(turn % 5);
                zo_window_set_class(window, text);
                zo_window_set_id(window, text);
            }
            --left;
        });
    EXPECT_TRUE(test::turn_until([&] { return left == 0; }, std::chrono::seconds(120)));
    for (std::thread& thread : threads) thread.join();
    test::run_tasks();
    std::string style_class;
    std::string id;
    EXPECT_TRUE(zo_window_get_class(window, style_class));
    EXPECT_TRUE(zo_window_get_id(window, id));
    fixed.insert(style_class);
    EXPECT_EQ(classes_of(toplevel), fixed);
    EXPECT_EQ(gtk_widget_get_name(toplevel), id);
}

}  // namespace
