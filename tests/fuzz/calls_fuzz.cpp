// SPDX-License-Identifier: MIT
// Sequences of calls on windows, panels and notifications, with callbacks that call back, against a model of
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
const std::vector<verb>& weighted_verbs() {
    static const std::vector<verb> all = [] {
        std::vector<verb> verbs;
        for (int v = 0; v < static_cast<int>(verb::count); ++v) {
            const auto what = static_cast<verb>(v);
            const bool ends = what == verb::destroy || what == verb::destroy_for ||
                              what == verb::manager_destroy || what == verb::manager_destroy_for ||
                              what == verb::notification_destroy || what == verb::drop_and_new;
            verbs.insert(verbs.end(), ends ? 1 : what == verb::run ? 12 : 4, what);
        }
        return verbs;
    }();
    return all;
}

// Presses and what packs widgets belong to the loop's thread.
bool is_for_any_thread(verb what) {
    return what <= verb::leave || (what >= verb::set_callback && what <= verb::set_flag) ||
           (what >= verb::manager_open && what <= verb::manager_clear_callback) ||
           (what >= verb::notification_show && what <= verb::notification_manager) ||
           (what >= verb::notification_set && what <= verb::indicator_destroy);
}

// Those whose row of a table is `with`.
bool is_of_a_table(verb what) {
    return (what >= verb::set_callback && what <= verb::set_flag) || what == verb::manager_set_callback ||
           what == verb::manager_clear_callback || what == verb::null_handle;
}

call next_call(FuzzedDataProvider& bytes) {
    call made;
    made.what = weighted_verbs()[bytes.ConsumeIntegralInRange<std::size_t>(0, weighted_verbs().size() - 1)];
    if (made.what == verb::run) return made;
    made.elsewhere = is_for_any_thread(made.what) && bytes.ConsumeIntegralInRange<int>(0, 3) == 0;
    if (is_of_a_table(made.what)) made.with = bytes.ConsumeIntegralInRange<int>(0, 255);
    const int count = made.what < verb::manager_open        ? windows_count
                      : made.what < verb::notification_show ? managers_count
                      : made.what < verb::null_handle       ? notifications_count
                                                            : 1;
    made.who = bytes.ConsumeIntegralInRange<int>(0, count) % count;  // the first one twice as often
    if (!is_of_a_table(made.what)) made.with = bytes.ConsumeIntegralInRange<int>(0, 5);
    return made;
}

reactions next_reactions(FuzzedDataProvider& bytes) {
    constexpr std::pair<kind, int> kinds[] = {{kind::window, windows_count},
                                              {kind::manager, managers_count},
                                              {kind::notification, notifications_count}};
    reactions all;
    for (const auto& [of, count] : kinds)
        for (int who = 0; who < count; ++who)
            for (int what = 0; what < static_cast<int>(event::count); ++what) {
                const int choice = bytes.ConsumeIntegralInRange<int>(0, 7);
                reaction program;
                program.present = choice > 0;
                program.veto = choice == 7;
                for (int i = 4; i < choice; ++i) program.calls.push_back(next_call(bytes));
                program.left = program.calls.empty() ? 0 : 2;
                all[{of, who, static_cast<event>(what)}] = program;
            }
    return all;
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
    const reactions programs = next_reactions(bytes);
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
    for (const call& one : next_beginning(bytes)) both(one);
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
