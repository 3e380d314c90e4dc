// SPDX-License-Identifier: MIT
// Property names, types and values against a plain map, in a bare list and as flags of a window: what is
// written is read back, and nothing else is.
#include "fuzz/target.hpp"

#include <fuzzer/FuzzedDataProvider.h>
#include <zo_ui/zo_ui.hpp>

#include <cmath>
#include <map>
#include <optional>
#include <variant>

namespace {

using function = std::function<int()>;
using value = std::variant<bool, int, std::string, long, double, unsigned long, function, zo_object_ptr>;
using plain_map = std::map<std::string, value>;

template <typename T>
bool same(const T& a, const T& b) {
    return a == b;
}
bool same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }
bool same(const function& a, const function& b) { return a ? b && a() == b() : !b; }

value next_value(FuzzedDataProvider& bytes) {
    static const zo_object_ptr objects[] = {{},
                                            zo_window_event_to_object(zo_window_event_new(1)),
                                            zo_window_event_to_object(zo_window_event_new(2))};
    switch (bytes.ConsumeIntegralInRange<int>(0, 8)) {
        case 0:
            return bytes.ConsumeBool();
        case 1:
            return bytes.ConsumeIntegral<int>();
        case 2:
            return bytes.ConsumeRandomLengthString(200);
        case 3:
            return bytes.ConsumeFloatingPoint<double>();
        case 4:
            return bytes.ConsumeIntegral<unsigned long>();
        case 5:
            return function([answer = bytes.ConsumeIntegral<int>()] { return answer; });
        case 6:
            return function();
        case 7:
            return bytes.PickValueInArray(objects);
        default:
            return bytes.ConsumeIntegral<long>();
    }
}

// The value, nothing when there is none, and an exception when it is of another type.
template <typename T>
std::string read(property_list& list, const std::string& name, const plain_map& plain) {
    const auto wanted = plain.find(name);
    T found{};
    try {
        const bool there = zo_property_get_extract<T>(list, name, &found);
        if (there != (wanted != plain.end())) return "found, or not, and should";
        if (there && !(std::holds_alternative<T>(wanted->second) && same(std::get<T>(wanted->second), found)))
            return "another value";
    } catch (const boost::bad_any_cast&) {
        if (wanted == plain.end() || std::holds_alternative<T>(wanted->second)) return "an exception";
    }
    return {};
}

void step(FuzzedDataProvider& bytes, property_list& list, plain_map& plain) {
    const std::string name = bytes.ConsumeRandomLengthString(12);
    const value next = next_value(bytes);
    std::string wrong;
    switch (bytes.ConsumeIntegralInRange<int>(0, 2)) {
        case 0:
            std::visit(
                [&](const auto& v) {
                    const bool is_new = zo_property_init<std::decay_t<decltype(v)>>(list, name, v);
                    if (is_new != plain.emplace(name, v).second) wrong = "created twice";
                },
                next);
            break;
        case 1:
            std::visit([&](const auto& v) { zo_property_set<std::decay_t<decltype(v)>>(list, name, v); },
                       next);
            plain[name] = next;
            break;
        default:
            std::visit([&](const auto& v) { wrong = read<std::decay_t<decltype(v)>>(list, name, plain); },
                       next);
            break;
    }
    boost::any any;
    if (zo_property_get(list, name, any) != (plain.count(name) > 0)) wrong = "there, or not, and should";
    fuzz::check(wrong.empty(), [&] { return name + ": " + wrong; });
}

const zo_window_ptr& the_window() {
    static const zo_window_ptr window = zo_window_new("fuzz");
    return window;
}

// What reading a flag gives: nothing when the property is of another type, which leaves as an exception.
template <typename Read>
std::optional<bool> flag_or_none(const Read& read) {
    try {
        return read();
    } catch (const boost::bad_any_cast&) {
        return {};
    }
}

void flag_step(FuzzedDataProvider& bytes, property_list& before, std::map<std::string, bool>& plain) {
    constexpr const char* known[] = {"keep-above", "window-title-text", "object-destroyed", "window-open",
                                     ""};
    const std::string name =
        bytes.ConsumeBool() ? bytes.PickValueInArray(known) : bytes.ConsumeRandomLengthString(12);
    if (bytes.ConsumeBool()) {
        const bool wanted = bytes.ConsumeBool();
        fuzz::check(zo_window_set_bool_property(the_window(), name, wanted),
                    [&] { return name + ": not set"; });
        plain[name] = wanted;
    }
    const auto written = plain.find(name);
    const auto wanted = flag_or_none([&] {
        bool flag = false;
        if (written == plain.end()) zo_property_get_extract<bool>(before, name, &flag);
        return written == plain.end() ? flag : written->second;
    });
    fuzz::check(flag_or_none([&] { return zo_window_get_bool_property(the_window(), name); }) == wanted,
                [&] { return name + ": another flag than was set"; });
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::prepare(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider bytes(data, size);
    property_list list;
    plain_map plain;
    property_list& window_list = zo_window_to_object(the_window())->property_list;
    property_list before = window_list;
    std::map<std::string, bool> flags;
    while (bytes.remaining_bytes() > 0) {
        if (bytes.ConsumeIntegralInRange<int>(0, 3) == 0)
            flag_step(bytes, before, flags);
        else
            step(bytes, list, plain);
    }
    fuzz::check(list.size() == plain.size(), [] { return std::string("another number of properties"); });
    window_list = before;
    return 0;
}
