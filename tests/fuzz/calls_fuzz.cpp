// SPDX-License-Identifier: MIT
// Calls on windows, panels, notifications and an indicator, with callbacks that call back, against a model of
// what was promised: the same callbacks in the same order, and the same state when nothing is left to do.
#include "fuzz/calls_model.hpp"
#include "fuzz/calls_world.hpp"
#include "fuzz/target.hpp"

#include <fuzzer/FuzzedDataProvider.h>

namespace {

using namespace fuzz;

constexpr int main_calls = 60;
constexpr const char* tags[] = {"[zo_window]", "[zo_window_manager]", "[zo_notification]",
                                "[zo_window_event]", "[zo_appindicator]"};

// What leads nowhere further, such as an end, is called less often than what leads on.
std::size_t weight_of(verb what) {
    const bool ends = what == verb::destroy || what == verb::destroy_for || what == verb::manager_destroy ||
                      what == verb::manager_destroy_for || what == verb::notification_destroy ||
                      what == verb::drop_and_new;
    if (what == verb::run) return 12;
    if (what > verb::run) return what == verb::click_menu ? 6 : 3;
    return ends ? 1 : 4;
}

// A call takes one byte of the input as long as there are no more than 256.
const std::vector<verb>& weighted_verbs() {
    static const std::vector<verb> all = [] {
        std::vector<verb> verbs;
        for (int v = 0; v < static_cast<int>(verb::count); ++v)
            verbs.insert(verbs.end(), weight_of(static_cast<verb>(v)), static_cast<verb>(v));
        fuzz::check(verbs.size() <= 256, [] { return "older inputs mean something else now"; });
        return verbs;
    }();
    return all;
}

// Presses and what packs widgets belong to the loop's thread.
bool is_for_any_thread(verb what) {
    return what <= verb::leave || (what >= verb::set_callback && what <= verb::set_flag) ||
           (what >= verb::manager_open && what <= verb::manager_clear_callback) ||
           (what >= verb::notification_show && what <= verb::notification_manager) ||
           (what >= verb::notification_set && what <= verb::indicator_destroy) ||
           what == verb::set_title_flags || what == verb::set_built_in_title;
}

// Those whose row of a table is `with`.
bool is_of_a_table(verb what) {
    return (what >= verb::set_callback && what <= verb::set_flag) || what == verb::manager_set_callback ||
           what == verb::manager_clear_callback || what == verb::null_handle || what == verb::set_title_flags;
}

int count_of(subject of) {
    switch (of) {
        case subject::window:
            return windows_count;
        case subject::manager:
            return managers_count;
        case subject::notification:
            return notifications_count;
        default:
            return 1;
    }
}

call next_call(FuzzedDataProvider& bytes) {
    call made;
    made.what = weighted_verbs()[bytes.ConsumeIntegralInRange<std::size_t>(0, weighted_verbs().size() - 1)];
    if (made.what == verb::run) return made;
    made.elsewhere = is_for_any_thread(made.what) && bytes.ConsumeIntegralInRange<int>(0, 3) == 0;
    if (is_of_a_table(made.what)) made.with = bytes.ConsumeIntegralInRange<int>(0, 255);
    const int count = count_of(subject_of(made.what));
    made.who = bytes.ConsumeIntegralInRange<int>(0, count) % count;  // the first one twice as often
    if (!is_of_a_table(made.what)) made.with = bytes.ConsumeIntegralInRange<int>(0, indicator_actions - 1);
    return made;
}

reaction next_reaction(FuzzedDataProvider& bytes) {
    const int choice = bytes.ConsumeIntegralInRange<int>(0, 7);
    reaction program;
    program.present = choice > 0;
    program.veto = choice == 7;
    for (int i = 4; i < choice; ++i) program.calls.push_back(next_call(bytes));
    program.left = program.calls.empty() ? 0 : 2;
    return program;
}

reactions next_reactions(FuzzedDataProvider& bytes) {
    constexpr std::pair<kind, int> kinds[] = {{kind::window, windows_count},
                                              {kind::manager, managers_count},
                                              {kind::notification, notifications_count}};
    reactions all;
    for (const auto& [of, count] : kinds)
        for (int who = 0; who < count; ++who)
            for (int what = 0; what <= static_cast<int>(event::link); ++what)
                all[{of, who, static_cast<event>(what)}] = next_reaction(bytes);
    return all;
}

// What came later is read from an input's first bytes: the others are read from its end, and mean what they
// always meant.
constexpr std::size_t later_bytes = 96;

void add_later_reactions(FuzzedDataProvider& bytes, reactions& all) {
    for (int who = 0; who < windows_count; ++who)
        for (int what = static_cast<int>(event::exit); what <= static_cast<int>(event::menu_entry); ++what)
            all[{kind::window, who, static_cast<event>(what)}] = next_reaction(bytes);
    for (int who = 0; who < indicator_actions; ++who)
        all[{kind::indicator, who, event::chosen}] = next_reaction(bytes);
}

std::vector<call> next_later_beginning(FuzzedDataProvider& bytes) {
    std::vector<call> wanted;
    for (int w = 0; w < windows_count; ++w)
        wanted.push_back({verb::set_title_flags, w, bytes.ConsumeIntegralInRange<int>(0, 255)});
    for (const verb what : {verb::indicator_action, verb::indicator_show})
        wanted.push_back({what, 0, bytes.ConsumeIntegralInRange<int>(0, indicator_actions - 1)});
    std::vector<call> beginning;
    for (const call& one : wanted)
        if (bytes.ConsumeIntegralInRange<int>(0, 3) > 0) beginning.push_back(one);
    return beginning;
}

// Most programs begin with something on screen, so that they get further.
std::vector<call> next_beginning(FuzzedDataProvider& bytes) {
    std::vector<call> wanted;
    for (int m = 0; m < managers_count; ++m)
        for (const verb what : {verb::manager_open, verb::manager_show}) wanted.push_back({what, m, 0});
    for (int w = 0; w < windows_count; ++w)
        for (const verb what : {verb::join, verb::open, verb::show}) wanted.push_back({what, w, w / 2});
    wanted.push_back({verb::run});
    for (int n = 0; n < notifications_count; ++n)
        for (const verb what : {verb::notification_manager, verb::notification_show})
            wanted.push_back({what, n, n});
    std::vector<call> beginning;
    for (const call& one : wanted)
        if (bytes.ConsumeIntegralInRange<int>(0, 3) > 0) beginning.push_back(one);
    return beginning;
}

void play(FuzzedDataProvider& bytes) {
    const std::vector<std::uint8_t> first = bytes.ConsumeBytes<std::uint8_t>(later_bytes);
    FuzzedDataProvider later(first.data(), first.size());
    reactions programs = next_reactions(bytes);
    std::vector<call> beginning = next_later_beginning(later);
    add_later_reactions(later, programs);
    for (const call& one : next_beginning(bytes)) beginning.push_back(one);
    model promised(programs);
    world real(programs);
    std::string made;
    const auto both = [&](const call& one) {
        made += text_of(one) + "\n";
        const bool wanted = promised.make(one);
        fuzz::check(real.make(one) == wanted, [&] { return made + "pressed something else"; });
    };
    const auto compare = [&] {
        both({verb::run});
        fuzz::check(real.told() == promised.told(), [&] {
            return made + "told    " + text_of(real.told()) + "\npromised " + text_of(promised.told());
        });
        const picture seen = real.look();
        fuzz::check(seen == promised.look(), [&] {
            return made + "seen\n" + text_of(seen) + "promised\n" + text_of(promised.look());
        });
    };
    for (const call& one : beginning) both(one);
    for (int i = 0; i < main_calls && bytes.remaining_bytes() > 0; ++i) {
        const call one = next_call(bytes);
        if (one.what == verb::run)
            compare();
        else
            both(one);
    }
    compare();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::prepare(argc, argv);
    // Where no window comes: the pointer's leaving closes a tool menu.
    GdkScreen* const screen = gdk_screen_get_default();
    GdkWindow* const root = gdk_screen_get_root_window(screen);
    GdkSeat* const seat = gdk_display_get_default_seat(gdk_display_get_default());
    gdk_device_warp(gdk_seat_get_pointer(seat), screen, 0, gdk_window_get_height(root) - 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    {
        FuzzedDataProvider bytes(data, size);
        play(bytes);
    }
    for (const char* tag : tags)
        fuzz::check(zo_object_ref_count(tag) == 0, [&] { return std::string(tag) + " left behind"; });
    return 0;
}
