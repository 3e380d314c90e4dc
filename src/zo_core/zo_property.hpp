// SPDX-License-Identifier: MIT
/// @file
/// The property list: named values of any type, and the typed access to them.
///
/// Every function here works on the `list` alone. Names are compared byte by byte. The overloads that take a
/// `const char*` do the same as those that take a string, and build none.
///
/// @thread any, while it holds the property lock of the object that owns the list
#pragma once

#include <zo_core/zo_export.hpp>

#include <endian.h>
#include <boost/any.hpp>
#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <typeinfo>
#include <utility>

/// Values by name. Ordered by name; looked up by any kind of string without making a copy of it.
using property_list = std::map<std::string, boost::any, std::less<>>;

/// @{
/// Copies the value stored in `list` under `name` into `out`. False when there is none; `out` is then empty.
ZO_EXPORT bool zo_property_get(::property_list& list, std::string name, boost::any& out);
ZO_EXPORT bool zo_property_get(::property_list& list, const char* name, boost::any& out);
/// @}

namespace zo {

// Two libraries may hold different copies of one type's description, so types are compared by name.
inline bool same_type(const std::type_info& a, const std::type_info& b) {
    return a.name() == b.name() || std::strcmp(a.name(), b.name()) == 0;
}

// The value in `stored`, or null when it is of another type.
template <typename T>
T* value_in(boost::any& stored) {
    return same_type(stored.type(), typeid(T)) ? boost::unsafe_any_cast<T>(&stored) : nullptr;
}

// A name to look up, in the order of the lists: byte by byte, and the shorter of two first. Lookups are most
// of what an access costs, so names are told apart by their first eight bytes where those differ, and by
// their last eight where these hold the rest.
class property_key {
  public:
    explicit property_key(std::string_view name) : name_(name), head_(has_head(name) ? word(name, 0) : 0) {}

    friend bool operator<(const std::string& name, const property_key& key) { return key.order(name) > 0; }
    friend bool operator<(const property_key& key, const std::string& name) { return key.order(name) < 0; }
    friend bool operator==(const std::string& name, const property_key& key) { return key.order(name) == 0; }
    friend bool operator!=(const std::string& name, const property_key& key) { return key.order(name) != 0; }

  private:
    static constexpr std::size_t width = sizeof(std::uint64_t);

    static bool has_head(std::string_view name) { return name.size() >= width; }

    static std::uint64_t word(std::string_view name, std::size_t at) {
        std::uint64_t bytes;
        std::memcpy(&bytes, name.data() + at, width);
        return be64toh(bytes);
    }

    static int compared(std::uint64_t a, std::uint64_t b) { return a == b ? 0 : a < b ? -1 : 1; }

    int order(std::string_view name) const {
        if (!has_head(name) || !has_head(name_)) return name_.compare(name);
        const std::uint64_t head = word(name, 0);
        if (head_ != head) return compared(head_, head);
        const std::size_t size = name_.size();
        if (size != name.size() || size > 2 * width) return name_.compare(name);
        return compared(word(name_, size - width), word(name, size - width));
    }

    std::string_view name_;
    std::uint64_t head_;
};

template <typename T, typename Name>
bool property_init(::property_list& list, Name&& name, T& value) {
    const property_key key(name);
    const auto place = list.lower_bound(key);
    if (place != list.end() && place->first == key) return false;
    list.emplace_hint(place, std::forward<Name>(name), boost::any(std::move(value)));
    return true;
}

// A value of the same type changes places with `value`: nothing is allocated, and the caller's `value` takes
// the old one with it. An old one of another type goes to `other`.
template <typename T, typename Name>
bool property_set(::property_list& list, Name&& name, T& value, boost::any& other) {
    const property_key key(name);
    const auto place = list.lower_bound(key);
    if (place == list.end() || place->first != key) {
        list.emplace_hint(place, std::forward<Name>(name), boost::any(std::move(value)));
    } else if (T* stored = value_in<T>(place->second)) {
        std::swap(*stored, value);
    } else {
        other = boost::any(std::move(value));
        place->second.swap(other);
    }
    return true;
}

template <typename T, typename Name>
bool property_get_extract(::property_list& list, const Name& name, T* value) {
    const auto place = list.find(property_key(name));
    if (place == list.end()) return false;
    const T* stored = value_in<T>(place->second);
    if (!stored) throw boost::bad_any_cast();
    *value = *stored;
    return true;
}

}  // namespace zo

/// @{
/// Inserts `name` with `value` into `list`. False, and nothing changes, when the name exists.
template <typename T>
bool zo_property_init(::property_list& list, std::string name, T value) {
    return zo::property_init<T>(list, std::move(name), value);
}
template <typename T>
bool zo_property_init(::property_list& list, const char* name, T value) {
    return zo::property_init<T>(list, name, value);
}
/// @}

/// @{
/// Stores `value` as a `T` in `list` under `name`, whatever stood there before, or nothing. Always true.
template <typename T>
bool zo_property_set(::property_list& list, std::string name, T value) {
    boost::any old;
    return zo::property_set<T>(list, std::move(name), value, old);
}
template <typename T>
bool zo_property_set(::property_list& list, const char* name, T value) {
    boost::any old;
    return zo::property_set<T>(list, name, value, old);
}
/// @}

/// @{
/// Copies the value stored in `list` under `name` to `*value`. False, and `*value` stays, when there is none.
/// A stored type other than `T` is a programming error: `boost::bad_any_cast` leaves the call.
template <typename T>
bool zo_property_get_extract(::property_list& list, std::string name, T* value) {
    return zo::property_get_extract<T>(list, name, value);
}
template <typename T>
bool zo_property_get_extract(::property_list& list, const char* name, T* value) {
    return zo::property_get_extract<T>(list, name, value);
}
/// @}
