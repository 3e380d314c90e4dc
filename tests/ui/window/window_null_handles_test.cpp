// SPDX-License-Identifier: MIT
// Every exported function of the window and of its event with an empty handle: one line, which names the
// function, and the neutral result.
#include "support/desktop.hpp"
#include "ui/window/window_tables.hpp"

#include <cstdlib>
#include <set>

namespace {

struct empty_call {
    std::string name;
    std::function<bool()> is_neutral;  // makes the call
};

const zo_window_ptr none;

template <typename... Arguments>
empty_call refused(const char* name, bool (*function)(zo_window_ptr, Arguments...),
                   std::decay_t<Arguments>... arguments) {
    return {name, [=]() mutable { return !function(none, arguments...); }};
}

bool leaves_text_alone(bool (*get)(zo_window_ptr, std::string&)) {
    std::string text = "before";
    return !get(none, text) && text == "before";
}

bool leaves_flag_alone(bool (*get)(zo_window_ptr, bool*)) {
    bool flags[] = {false, true};
    const bool refused = !get(none, &flags[0]) && !get(none, &flags[1]);
    return refused && !flags[0] && flags[1];
}

std::vector<empty_call> tables() {
    std::vector<empty_call> calls;
    for (const test::window_flag& flag : test::window_flags) {
        calls.push_back({std::string("zo_window_get_") + flag.name, [&] { return !flag.get(none); }});
        calls.push_back({std::string("zo_window_set_") + flag.name, [&] { return !flag.set(none, true); }});
    }
    for (const test::window_text_row& row : test::window_texts) {
        calls.push_back(
            {std::string("zo_window_get_") + row.name, [&] { return leaves_text_alone(row.get); }});
        calls.push_back({std::string("zo_window_set_") + row.name, [&] { return !row.set(none, "text"); }});
    }
    for (const test::window_callback& callback : test::window_callbacks)
        calls.push_back({callback.setter, [&] { return !callback.store(none, [] {}); }});
    for (const test::window_operation& operation : test::window_operations)
        calls.push_back({operation.name, [&] { return !operation.post(none); }});
    return calls;
}

std::vector<empty_call> others() {
    static GtkWidget* const child = GTK_WIDGET(g_object_ref_sink(gtk_label_new("child")));
    return {
        refused("zo_window_get_bool_property", zo_window_get_bool_property, std::string("keep-above")),
        refused("zo_window_set_bool_property", zo_window_set_bool_property, std::string("keep-above"), true),
        refused("zo_window_save", zo_window_save),
        refused("zo_window_move", zo_window_move, 1, 2),
        refused<std::string, int>("zo_window_destroy", zo_window_destroy, "reason", 3),
        refused("zo_window_set_window_manager", zo_window_set_window_manager, zo_window_manager_ptr()),
        {"zo_window_get_window_manager", [] { return !zo_window_get_window_manager(none); }},
        {"zo_window_add_content_child",
         [] {
             return !zo_window_add_content_child(none, child, true, true, 0, false) &&
                    !gtk_widget_get_parent(child);
         }},
        {"zo_window_instance_id", [] { return zo_window_instance_id(none) == 0; }},
        {"zo_window_to_object", [] { return !zo_window_to_object(none); }},
        {"zo_window_from_object", [] { return !zo_window_from_object({}); }},
        {"zo_window_event_to_object", [] { return !zo_window_event_to_object({}); }},
        {"zo_window_event_from_object", [] { return !zo_window_event_from_object({}); }},
        {"zo_window_event_get_code", [] { return zo_window_event_get_code({}) == 0; }},
        refused("zo_window_push_event", zo_window_push_event, zo_window_event_new(1)),
        refused("zo_window_push_event", zo_window_push_event, zo_window_event_ptr()),
    };
}

std::vector<empty_call> all_calls() {
    std::vector<empty_call> calls = tables();
    for (empty_call& call : others()) calls.push_back(std::move(call));
    return calls;
}

TEST(WindowNullHandles, GiveOneLineWithTheNameAndTheNeutralResult) {
    for (const empty_call& call : all_calls()) {
        test::captured_output output;
        EXPECT_TRUE(call.is_neutral()) << call.name;
        EXPECT_EQ(output.text(), test::null_handle_line(call.name));
    }
}

TEST(WindowNullHandles, PostNothing) {
    const std::vector<empty_call> calls = all_calls();
    test::captured_output output;
    test::run_tasks();
    for (const empty_call& call : calls) call.is_neutral();
    EXPECT_FALSE(g_main_context_pending(nullptr));
}

TEST(WindowNullHandles, OfTheStateQueriesLeaveTheFlagAlone) {
    for (const auto& [name, query] : {std::pair{"zo_window_is_opened", &zo_window_is_opened},
                                      std::pair{"zo_window_is_visible", &zo_window_is_visible},
                                      std::pair{"zo_window_is_destroyed", &zo_window_is_destroyed}}) {
        test::captured_output output;
        EXPECT_TRUE(leaves_flag_alone(query)) << name;
        EXPECT_EQ(output.text(), test::null_handle_line(name) + test::null_handle_line(name));
    }
}

TEST(WindowNullHandles, WithANullOutPointerAreNotEvenWarnedOf) {
    test::scoped_window window("");
    test::captured_output output;
    for (const auto query : {zo_window_is_opened, zo_window_is_visible, zo_window_is_destroyed}) {
        EXPECT_FALSE(query(none, nullptr));
        EXPECT_FALSE(query(window, nullptr));
    }
    EXPECT_EQ(output.text(), "");
}

TEST(WindowNullHandles, AnEmptyEventIsRefusedLikeAnEmptyWindow) {
    test::scoped_window window("");
    int delivered = 0;
    zo_window_set_window_event_callback(window, [&](zo_window_ptr, zo_window_event_ptr) { ++delivered; });
    test::captured_output output;
    EXPECT_FALSE(zo_window_push_event(window, {}));
    EXPECT_EQ(output.text(), test::null_handle_line("zo_window_push_event"));
    test::run_tasks();
    EXPECT_EQ(delivered, 0);
}

TEST(WindowNullHandles, AskingForTheClassNeverWarns) {
    test::captured_output output;
    EXPECT_FALSE(zo_is_window({}));
    EXPECT_FALSE(zo_is_window_event({}));
    EXPECT_EQ(output.text(), "");
}

// No exported function is left out: the names come from the built library.
TEST(WindowNullHandles, AreTriedWithEveryExportedFunction) {
    const char* folder = std::getenv("ZO_BINARY_DIR");
    ASSERT_TRUE(folder);
    std::set<std::string> tried{"zo_window_new", "zo_window_event_new", "zo_window_is_opened",
                                "zo_window_is_visible", "zo_window_is_destroyed"};
    for (const empty_call& call : all_calls()) tried.insert(call.name);
    std::istringstream symbols(
        test::run_command({"nm", "-DC", "--defined-only", std::string(folder) + "/lib/libzo_ui.so"}));
    int found = 0;
    for (std::string address, kind, name;
         symbols >> address >> kind && std::getline(symbols >> std::ws, name);) {
        name.resize(std::min(name.size(), name.find_first_of("([")));
        if (kind != "T" || name.rfind("zo_window_", 0) != 0 || name.rfind("zo_window_manager_", 0) == 0)
            continue;
        EXPECT_TRUE(tried.count(name)) << name;
        ++found;
    }
    EXPECT_GE(found, 88);
}

}  // namespace
