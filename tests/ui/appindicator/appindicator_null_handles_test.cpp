// SPDX-License-Identifier: MIT
// Empty handles, and the way between this handle and that of the base.
#include "ui/appindicator/indicator.hpp"

namespace {

TEST(AppindicatorNullHandles, GiveOneLineWithTheNameAndTheNeutralResult) {
    const zo_appindicator_ptr none;
    const std::pair<const char*, std::function<bool()>> calls[] = {
        {"zo_appindicator_add_action", [&] { return zo_appindicator_add_action(none, "a", "A", nullptr); }},
        {"zo_appindicator_show", [&] { return zo_appindicator_show(none); }},
        {"zo_appindicator_to_object", [&] { return zo_appindicator_to_object(none) != nullptr; }},
        {"zo_appindicator_from_object", [&] { return zo_appindicator_from_object({}) != nullptr; }},
    };
    for (const auto& [name, call] : calls) {
        test::captured_output output;
        test::run_tasks();
        EXPECT_FALSE(call()) << name;
        EXPECT_EQ(output.text(), test::null_handle_line(name));
        EXPECT_FALSE(g_main_context_pending(nullptr)) << name;
    }
}

TEST(AppindicatorNullHandles, AskingForTheClassNeverWarns) {
    test::captured_output output;
    EXPECT_FALSE(zo_is_appindicator({}));
    EXPECT_EQ(output.text(), "");
}

TEST(AppindicatorCasting, ThereAndBack) {
    const test::scoped_indicator indicator("cast");
    const zo_object_ptr object = zo_appindicator_to_object(indicator);
    EXPECT_TRUE(zo_is_appindicator(object));
    EXPECT_FALSE(zo_is_window(object));
    EXPECT_EQ(zo_appindicator_from_object(object), indicator.get());
    EXPECT_EQ(object->to_object(), object);
    EXPECT_EQ(object->get_type(), "[zo_appindicator]");
    EXPECT_NE(object->describe().find("[zo_appindicator]"), std::string::npos);
}

TEST(AppindicatorCasting, AnotherClassIsNoIndicator) {
    const test::scoped_window window("w");
    test::captured_output output;
    EXPECT_FALSE(zo_is_appindicator(zo_window_to_object(window)));
    EXPECT_FALSE(zo_appindicator_from_object(zo_window_to_object(window)));
    EXPECT_EQ(output.text(), "");
}

TEST(AppindicatorCasting, ANewOneIsCountedAndHeldOnce) {
    zo_appindicator_ptr indicator = zo_appindicator_new("new", "New", "");
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 1);
    const zo_object_ptr object = zo_appindicator_to_object(indicator);
    EXPECT_TRUE(object->is_reffed());
    zo_object_unref(object);
    EXPECT_FALSE(object->is_reffed());
    EXPECT_EQ(object.use_count(), 2);
}

}  // namespace
