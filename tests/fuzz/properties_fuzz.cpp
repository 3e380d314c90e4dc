// SPDX-License-Identifier: MIT
// Property names, types and values against a plain map: what is written is read back, and nothing else is.
#include "fuzz/target.hpp"

#include <fuzzer/FuzzedDataProvider.h>
#include <zo_core/zo_core.hpp>

#include <map>
#include <variant>

namespace {

using value = std::variant<bool, int, std::string, long>;
using plain_map = std::map<std::string, value>;

value next_value(FuzzedDataProvider& bytes) {
    switch (bytes.ConsumeIntegralInRange<int>(0, 3)) {
        case 0:
            return bytes.ConsumeBool();
        case 1:
            return bytes.ConsumeIntegral<int>();
        case 2:
            return bytes.ConsumeRandomLengthString(200);
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
        if (there && !(std::holds_alternative<T>(wanted->second) && std::get<T>(wanted->second) == found))
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider bytes(data, size);
    property_list list;
    plain_map plain;
    while (bytes.remaining_bytes() > 0) step(bytes, list, plain);
    fuzz::check(list.size() == plain.size(), [] { return std::string("another number of properties"); });
    return 0;
}
