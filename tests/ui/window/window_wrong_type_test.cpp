// SPDX-License-Identifier: MIT
// A property that holds another type is a programming error: the exception leaves the call, and the lock is
// free again.
#include "support/lock_probe.hpp"
#include "ui/window/property_steps.hpp"
#include "ui/window/window_tables.hpp"

namespace {

struct wrong_type {};

// Puts a value of the wrong type in, and the right one back at the end.
class spoiled_property {
  public:
    spoiled_property(const zo_window_ptr& window, const std::string& name)
        : object_(zo_window_to_object(window)), name_(name), right_(wrong_type()) {
        swap();
    }
    ~spoiled_property() { swap(); }
    spoiled_property(const spoiled_property&) = delete;
    spoiled_property& operator=(const spoiled_property&) = delete;

  private:
    void swap() {
        object_->property_lock(__FILE__, __LINE__);
        object_->property_list.at(name_).swap(right_);
        object_->property_unlock();
    }
    zo_object_ptr object_;
    std::string name_;
    boost::any right_;
};

class WindowWrongType : public testing::Test {
  protected:
    ~WindowWrongType() override { EXPECT_EQ(output.text(), ""); }

    template <typename Call>
    void expect_throw(const char* property, const Call& call) {
        const spoiled_property spoiled(window, property);
        EXPECT_THROW(call(), boost::bad_any_cast) << property;
        EXPECT_TRUE(test::lock_is_free(window)) << property;
    }

    test::captured_output output;
    test::scoped_window window{""};
};

TEST_F(WindowWrongType, Getters) {
    for (const test::window_flag& flag : test::window_flags) {
        expect_throw(flag.property, [&] { flag.get(window); });
        expect_throw(flag.property, [&] { zo_window_get_bool_property(window, flag.property); });
        EXPECT_EQ(flag.get(window), flag.initial);
    }
    bool value = true;
    expect_throw("window-opened", [&] { zo_window_is_opened(window, &value); });
    expect_throw("window-visible", [&] { zo_window_is_visible(window, &value); });
    expect_throw("window-destroyed", [&] { zo_window_is_destroyed(window, &value); });
    EXPECT_TRUE(value);
    expect_throw("instanceId", [&] { zo_window_instance_id(window); });
}

TEST_F(WindowWrongType, Texts) {
    for (const test::window_text_row& row : test::window_texts) {
        std::string text = "before";
        int changes = 0;
        row.set_callback(window, [&](zo_window_ptr, std::string) { ++changes; });
        expect_throw(row.property, [&] { row.get(window, text); });
        EXPECT_EQ(text, "before");
        expect_throw(row.property, [&] { row.set(window, "after"); });
        test::run_tasks();
        EXPECT_EQ(changes, 0);
        row.get(window, text);
        EXPECT_EQ(text, row.initial);
    }
}

TEST_F(WindowWrongType, Steps) {
    for (const test::property_step& step : test::property_steps()) {
        SCOPED_TRACE(step.what);
        const test::scoped_window used("");
        for (const auto operation : step.before) operation(used);
        test::run_tasks();
        const test::state before = test::state_of(used);
        {
            const spoiled_property spoiled(used, step.property);
            EXPECT_THROW(step.run(*used.get()), boost::bad_any_cast) << step.property;
            EXPECT_TRUE(test::lock_is_free(used)) << step.property;
        }
        EXPECT_EQ(test::state_of(used), before) << step.property;
    }
}

// Everything that an opening reads.
TEST_F(WindowWrongType, Opening) {
    std::vector<const char*> names{"window-open", "window-title-text", "window-class", "window-id"};
    for (const test::window_flag& flag : test::window_flags) names.push_back(flag.property);
    EXPECT_EQ(names.size(), 23U);
    for (const char* name : names) expect_throw(name, [&] { window.get()->_open(); });
    EXPECT_EQ(test::state_of(window), test::state());
    EXPECT_TRUE(test::toplevels("zo-window").empty());
}

// Setters replace whatever stood there.
TEST_F(WindowWrongType, SettersPutItRight) {
    zo_property_set<int>(zo_window_to_object(window)->property_list, "keep-above", 3);
    EXPECT_TRUE(zo_window_set_keep_above(window, false));
    EXPECT_FALSE(zo_window_get_keep_above(window));
    for (const test::window_callback& callback : test::window_callbacks) {
        int called = 0;
        zo_property_set<int>(zo_window_to_object(window)->property_list, callback.property, 3);
        EXPECT_TRUE(callback.store(window, [&] { ++called; }));
        EXPECT_TRUE(callback.call(window, callback.property));
        EXPECT_EQ(called, 1);
        callback.clear(window);
    }
}

}  // namespace
