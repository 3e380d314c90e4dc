// SPDX-License-Identifier: MIT
// Every exported function of the panel with an empty handle: one line, which names the function, and the
// neutral result.
#include "ui/window_manager/panel.hpp"

#include <cstdlib>
#include <set>

namespace {

struct empty_call {
    std::string name;
    std::function<bool()> is_neutral;  // makes the call
};

const zo_window_manager_ptr none;
using callback = std::function<void(zo_window_manager_ptr)>;

template <typename... Arguments>
empty_call refused(const char* name, bool (*function)(zo_window_manager_ptr, Arguments...),
                   std::decay_t<Arguments>... arguments) {
    return {name, [=] { return !function(none, arguments...); }};
}

bool leaves_flag_alone(bool (*query)(zo_window_manager_ptr, bool*), bool value) {
    bool flag = value;
    return !query(none, &flag) && flag == value;
}

bool leaves_container_alone() {
    std::map<unsigned long, GtkWidget*> own;
    std::map<unsigned long, GtkWidget*>* container = &own;
    return !zo_window_manager_get_local_notification_container(none, &container) && container == &own;
}

bool leaves_parentless(bool (*add)(zo_window_manager_ptr, GtkWidget*)) {
    static GtkWidget* const child = GTK_WIDGET(g_object_ref_sink(gtk_label_new("child")));
    return !add(none, child) && !gtk_widget_get_parent(child);
}

std::vector<empty_call> queries() {
    std::vector<empty_call> calls;
    for (const auto& [name, query] : {std::pair{"zo_window_manager_is_opened", &zo_window_manager_is_opened},
                                      {"zo_window_manager_is_visible", &zo_window_manager_is_visible},
                                      {"zo_window_manager_is_destroyed", &zo_window_manager_is_destroyed}}) {
        calls.push_back({name, [query = query] { return leaves_flag_alone(query, false); }});
        calls.push_back({name, [query = query] { return leaves_flag_alone(query, true); }});
        calls.push_back({name, [query = query] { return !query(none, nullptr); }});
    }
    return calls;
}

std::vector<empty_call> all_calls() {
    std::vector<empty_call> calls = queries();
    const std::vector<empty_call> others{
        refused("zo_window_manager_open", zo_window_manager_open),
        refused("zo_window_manager_show", zo_window_manager_show),
        refused("zo_window_manager_hide", zo_window_manager_hide),
        refused("zo_window_manager_close", zo_window_manager_close),
        refused<>("zo_window_manager_destroy", zo_window_manager_destroy),
        refused<std::string, int>("zo_window_manager_destroy", zo_window_manager_destroy, "reason", 3),
        refused("zo_window_manager_extend", zo_window_manager_extend),
        refused("zo_window_manager_retract", zo_window_manager_retract),
        refused("zo_window_manager_get_keep_extended", zo_window_manager_get_keep_extended),
        refused("zo_window_manager_set_keep_extended", zo_window_manager_set_keep_extended, true),
        {"zo_window_manager_add_widget_left",
         [] { return leaves_parentless(zo_window_manager_add_widget_left); }},
        {"zo_window_manager_add_widget_right",
         [] { return leaves_parentless(zo_window_manager_add_widget_right); }},
        refused("zo_window_manager_remove_widget_left", zo_window_manager_remove_widget_left, nullptr),
        refused("zo_window_manager_remove_widget_right", zo_window_manager_remove_widget_right, nullptr),
        refused("zo_window_manager_add_toolbar", zo_window_manager_add_toolbar, nullptr),
        refused("zo_window_manager_remove_toolbar", zo_window_manager_remove_toolbar, nullptr),
        {"zo_window_manager_get_local_notification_container", leaves_container_alone},
        {"zo_window_manager_get_local_notification_container",
         [] { return !zo_window_manager_get_local_notification_container(none, nullptr); }},
        refused("zo_window_manager_on_open", zo_window_manager_on_open, callback()),
        refused("zo_window_manager_on_show", zo_window_manager_on_show, callback()),
        refused("zo_window_manager_on_hide", zo_window_manager_on_hide, callback()),
        refused("zo_window_manager_on_close", zo_window_manager_on_close, callback()),
        refused("zo_window_manager_on_destroy", zo_window_manager_on_destroy, callback()),
        {"zo_window_manager_to_object", [] { return !zo_window_manager_to_object(none); }},
        {"zo_window_manager_from_object", [] { return !zo_window_manager_from_object({}); }},
    };
    calls.insert(calls.end(), others.begin(), others.end());
    return calls;
}

TEST(ManagerNullHandles, GiveOneLineWithTheNameAndTheNeutralResult) {
    for (const empty_call& call : all_calls()) {
        test::captured_output output;
        EXPECT_TRUE(call.is_neutral()) << call.name;
        EXPECT_EQ(output.text(), test::null_handle_line(call.name));
    }
}

TEST(ManagerNullHandles, PostNothing) {
    const std::vector<empty_call> calls = all_calls();
    test::captured_output output;
    test::run_tasks();
    for (const empty_call& call : calls) call.is_neutral();
    EXPECT_FALSE(g_main_context_pending(nullptr));
}

TEST(ManagerNullHandles, ANullOutPointerIsRefusedWithoutAWarning) {
    const test::scoped_panel panel;
    test::captured_output output;
    EXPECT_FALSE(zo_window_manager_is_opened(panel, nullptr));
    EXPECT_FALSE(zo_window_manager_is_visible(panel, nullptr));
    EXPECT_FALSE(zo_window_manager_is_destroyed(panel, nullptr));
    EXPECT_FALSE(zo_window_manager_get_local_notification_container(panel, nullptr));
    EXPECT_EQ(output.text(), "");
}

TEST(ManagerNullHandles, AskingForTheClassNeverWarns) {
    test::captured_output output;
    EXPECT_FALSE(zo_is_window_manager({}));
    EXPECT_EQ(output.text(), "");
}

// No exported function is left out: the names come from the built library.
TEST(ManagerNullHandles, AreTriedWithEveryExportedFunction) {
    const char* folder = std::getenv("ZO_BINARY_DIR");
    ASSERT_TRUE(folder);
    std::set<std::string> tried{"zo_window_manager_new"};
    for (const empty_call& call : all_calls()) tried.insert(call.name);
    std::istringstream symbols(
        test::run_command({"nm", "-DC", "--defined-only", std::string(folder) + "/lib/libzo_ui.so"}));
    int found = 0;
    for (std::string address, kind, name;
         symbols >> address >> kind && std::getline(symbols >> std::ws, name);) {
        name.resize(std::min(name.size(), name.find_first_of("([")));
        if (kind != "T" || name.rfind("zo_window_manager_", 0) != 0) continue;
        EXPECT_TRUE(tried.count(name)) << name;
        ++found;
    }
    EXPECT_EQ(found, 28);  // one of them twice, by its overload
}

}  // namespace
