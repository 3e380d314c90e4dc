// SPDX-License-Identifier: MIT
// The session bus answers what an icon asks it in whatever order: threads answer, so these tests answer in
// their place. What the indicator library asks to find the tray's host is answered at once, by GLib.
#include "ui/appindicator/indicator.hpp"

#include <zo_ui/zo_appindicator/appindicator_p.hpp>

#include <dlfcn.h>
#include <initializer_list>
#include <memory>

namespace {

using unref = decltype(&g_object_unref);

struct question {
    GMainContext* context;
    GCancellable* cancellable;
    GAsyncReadyCallback callback;
    gpointer data;
};

// What was asked while it is not null, the icon's question before its menu's.
std::vector<question>* questions = nullptr;

class AppindicatorAnswers : public test::with_tray_host {
  protected:
    // The connection is made for an icon that stays.
    AppindicatorAnswers() {
        first.show();
        test::wait_for_tray_item("first");
        questions = &asked;
    }
    ~AppindicatorAnswers() override { questions = nullptr; }

    void show(test::scoped_indicator& indicator) {
        indicator.count("a", "A", called);
        indicator.show();
    }

    // The host was found before.
    void wait_for_host() const {
        ASSERT_EQ(asked.size(), 2U);
        EXPECT_TRUE(test::turn_until([&] { return g_main_context_pending(asked.front().context); }));
    }

    void answer(const question& its) const {
        g_main_context_push_thread_default(its.context);
        const std::unique_ptr<GTask, unref> task(g_task_new(nullptr, its.cancellable, its.callback, its.data),
                                                 g_object_unref);
        g_main_context_pop_thread_default(its.context);
        g_task_return_pointer(task.get(), g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr),
                              g_object_unref);
        test::run_tasks();
    }

    void expect_works(const char* name) {
        const test::tray_item item = test::wait_for_tray_item(name);
        test::choose_and_wait(item, "A", called);
    }

    void expect_works_answered(std::initializer_list<std::size_t> order) {
        test::scoped_indicator indicator("ordered");
        show(indicator);
        ASSERT_NO_FATAL_FAILURE(wait_for_host());
        for (const std::size_t number : order) answer(asked[number]);
        expect_works("ordered");
    }

    static bool has_icon(const test::scoped_indicator& indicator) {
        indicator_data_ptr iw;
        zo_property_get_extract<indicator_data_ptr>(indicator.object()->property_list, "indicator", &iw);
        return iw && iw->indicator;
    }

    test::scoped_indicator first{"first"};
    std::vector<question> asked;
    int called = 0;
};

TEST_F(AppindicatorAnswers, ComeForTheIconFirst) { expect_works_answered({0, 1}); }

TEST_F(AppindicatorAnswers, ComeForTheMenuFirst) { expect_works_answered({1, 0}); }

// The next icon of a name, as the bus knows it, comes when nothing of the former is left; its menu has its
// place.
TEST_F(AppindicatorAnswers, ComeWhenTheIconHasGone) {
    test::scoped_indicator former("a-gain");
    test::scoped_indicator next("a_gain");
    show(former);
    former.destroy();
    show(next);
    ASSERT_NO_FATAL_FAILURE(wait_for_host());
    EXPECT_FALSE(has_icon(next));
    answer(asked[0]);
    EXPECT_FALSE(has_icon(next)) << "the former's menu has not gone";
    answer(asked[1]);
    ASSERT_TRUE(test::turn_until([&] { return has_icon(next); }));
    ASSERT_EQ(asked.size(), 4U);
    answer(asked[3]);
    answer(asked[2]);
    expect_works("a_gain");
}

}  // namespace

extern "C" __attribute__((visibility("default"))) void g_bus_get(GBusType type, GCancellable* cancellable,
                                                                 GAsyncReadyCallback callback,
                                                                 gpointer data) {
    static const auto glib_asks = reinterpret_cast<decltype(&g_bus_get)>(dlsym(RTLD_NEXT, "g_bus_get"));
    if (questions)
        questions->push_back({g_main_context_get_thread_default(), cancellable, callback, data});
    else
        glib_asks(type, cancellable, callback, data);
}
