// SPDX-License-Identifier: MIT
// The context in which an icon hears: when the loop turns it.
#include "support/loop.hpp"

#include <zo_ui/zo_appindicator/appindicator_hearing_p.hpp>

#include <dlfcn.h>
#include <glib-object.h>
#include <gtest/gtest.h>
#include <vector>

namespace {

// The library's clock stands there while it is not 0.
gint64 stopped_at = 0;

GObject* new_icon() { return G_OBJECT(g_object_new(G_TYPE_OBJECT, nullptr)); }

GMainContext* hear_for(GObject* icon) {
    zo::hearing hears;
    hears.belongs_to(icon);
    return g_main_context_get_thread_default();
}

class AppindicatorHearing : public testing::Test {
  protected:
    ~AppindicatorHearing() override { g_clear_object(&icon); }

    static gboolean count(gpointer data) {
        ++*static_cast<int*>(data);
        return G_SOURCE_REMOVE;
    }
    static gboolean count_to_thousand(gpointer data) { return ++*static_cast<int*>(data) < 1000; }

    void add(GSource* source, GSourceFunc callback, int& counter) {
        g_source_set_callback(source, callback, &counter, nullptr);
        g_source_attach(source, context);
        g_source_unref(source);
    }

    void answer(int times) {
        for (; times > 0; --times) add(g_idle_source_new(), count, heard);
    }

    void expect_heard(int times) {
        EXPECT_TRUE(test::turn_until([&] { return heard >= times; }));
        EXPECT_EQ(heard, times);
    }

    // Behind all that the loop has to do now.
    static void turn_once() {
        int turned = 0;
        g_idle_add_full(G_PRIORITY_LOW, count, &turned, nullptr);
        EXPECT_TRUE(test::turn_until([&] { return turned == 1; }));
    }

    GObject* icon = new_icon();
    GMainContext* context = hear_for(icon);
    int heard = 0;
    int later = 0;
};

TEST_F(AppindicatorHearing, WaitsForTheLastAnswer) {
    ASSERT_TRUE(context);
    answer(2);
    turn_once();
    EXPECT_EQ(heard, 0);
    answer(1);
    expect_heard(3);
    answer(1);
    expect_heard(4);
}

TEST_F(AppindicatorHearing, DoesNotWaitForEver) {
    answer(2);
    expect_heard(2);
}

// What nobody answers ends by the clock.
TEST_F(AppindicatorHearing, HearsOfTimeouts) {
    answer(3);
    expect_heard(3);
    turn_once();
    add(g_timeout_source_new(30), count, later);
    EXPECT_TRUE(test::turn_until([&] { return later == 1; }));
}

TEST_F(AppindicatorHearing, HearsOfTimeoutsThatCameWithTheAnswers) {
    answer(2);
    add(g_timeout_source_new(30), count, later);
    expect_heard(2);
    EXPECT_TRUE(test::turn_until([&] { return later == 1; }));
}

TEST_F(AppindicatorHearing, LeavesTheLoopToOthers) {
    answer(2);
    add(g_idle_source_new(), count_to_thousand, later);
    EXPECT_TRUE(test::turn_until([&] { return later > 0; }));
    EXPECT_LT(later, 1000);
    EXPECT_TRUE(test::turn_until([&] { return later == 1000; }));
}

// What was asked for the one that has gone may be answered still.
TEST_F(AppindicatorHearing, LetsTheContextOfAnIconThatHasGoneRest) {
    stopped_at = g_get_monotonic_time();
    g_clear_object(&icon);
    GObject* const next = new_icon();
    EXPECT_NE(hear_for(next), context);
    stopped_at = 0;
    g_object_unref(next);
}

TEST_F(AppindicatorHearing, WaitsAnewInTheContextOfAnIconThatHasGone) {
    answer(3);
    expect_heard(3);
    g_clear_object(&icon);
    std::vector<GObject*> others;
    GMainContext* taken = nullptr;
    do {
        others.push_back(new_icon());
        taken = hear_for(others.back());
    } while (taken && taken != context);
    EXPECT_EQ(taken, context);
    answer(2);
    turn_once();
    EXPECT_EQ(heard, 3);
    answer(1);
    expect_heard(6);
    for (GObject* other : others) g_object_unref(other);
}

}  // namespace

extern "C" __attribute__((visibility("default"))) gint64 g_get_monotonic_time() {
    static const auto glib_tells = reinterpret_cast<gint64 (*)()>(dlsym(RTLD_NEXT, "g_get_monotonic_time"));
    return stopped_at ? stopped_at : glib_tells();
}
