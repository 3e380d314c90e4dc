// SPDX-License-Identifier: MIT
// The library's own access to property lists: one scope that holds the lock, and checked operations inside
// it.
#pragma once

#include <zo_core/zo_diagnostics.hpp>
#include <zo_core/zo_object.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zo {

// How a stored type is spelled in a report. Every type that the library stores has a specialisation.
template <typename T>
struct type_text;
template <>
struct type_text<bool> {
    static constexpr const char* value = "bool";
};
template <>
struct type_text<int> {
    static constexpr const char* value = "int";
};
template <>
struct type_text<std::string> {
    static constexpr const char* value = "std::string";
};

// How an access is spelled in a report: which list, which variable, and whether the name was a literal.
struct spelling {
    const char* value;
    const char* list = "property_list";
    bool literal_name = true;
};

// The name of a flag that objects remember. One for each name; it is best kept in static storage.
class flag_name {
  public:
    ZO_EXPORT explicit flag_name(const char* text);
    const char* text() const { return text_; }
    std::uint16_t number() const { return number_; }

  private:
    const char* text_;
    std::uint16_t number_;  // 0: not remembered
};

// "operation<type>(list,"name",value)", as a report quotes it.
ZO_EXPORT std::string access_text(const char* operation, const char* type, std::string_view name,
                                  const spelling& how);

// Holds the property lock of an object for one scope. A check that fails is reported at the line after the
// previous one's, counted from the line of the lock. Values that an operation replaces are destroyed by the
// caller or after the lock is given back, since their destructors may run code of the application.
class property_guard {
  public:
    property_guard(_zo_object& object, const char* file, int line)
        : object_(object), file_(file), line_(line) {
        object_.property_lock(file, line);
    }
    ~property_guard() { object_.property_unlock(); }
    property_guard(const property_guard&) = delete;
    property_guard& operator=(const property_guard&) = delete;

    // Reads one flag, without the lock where the object remembers it.
    static bool flag(_zo_object& object, const flag_name& name, const char* file, int line,
                     const spelling& how) {
        bool value = false;
        if (object.property_mutex_.recall(name.number(), value)) return value;
        property_guard guard(object, file, line);
        if (guard.read(name.text(), value, how)) object.property_mutex_.remember(name.number(), value);
        return value;
    }

    template <typename T>
    void init(const char* name, T value, const char* value_text) {
        const bool done = property_init<T>(object_.property_list, name, value);
        check(done, "zo_property_init", type_text<T>::value, name, {value_text});
    }

    // False when the property is missing; `value` then stays.
    template <typename T, typename Name>
    bool read(const Name& name, T& value, const spelling& how) {
        const bool done = property_get_extract<T>(object_.property_list, name, &value);
        check(done, "zo_property_get_extract", type_text<T>::value, name, how);
        return done;
    }

    // As read(), but a value of another type is reported as a missing one is.
    template <typename T>
    bool read_checked(const char* name, T& value, const spelling& how) {
        const T* const stored = this->stored<T>(name);
        if (stored) value = *stored;
        check(stored != nullptr, "zo_property_get_extract", type_text<T>::value, name, how);
        return stored != nullptr;
    }

    // Afterwards `value` holds what it replaced; the caller lets it outlive the guard.
    template <typename T, typename Name>
    void write(const Name& name, T& value, const spelling& how) {
        boost::any other;
        const bool done = property_set<T>(object_.property_list, name, value, other);
        if (!other.empty()) replaced_.push_back(std::move(other));
        check(done, "zo_property_set", type_text<T>::value, name, how);
    }

    // Reads into `old` and writes `value`, without a copy where both succeed. `value` is then moved from.
    template <typename T>
    void exchange(const char* name, T& value, T& old, const spelling& how_read, const spelling& how_written) {
        if (T* stored = this->stored<T>(name)) {
            old = std::exchange(*stored, std::move(value));
            line_ += 2;
        } else {
            read(name, old, how_read);
            write(name, value, how_written);
        }
    }

  private:
    // The value of that name and type, or null.
    template <typename T>
    T* stored(const char* name) const {
        const auto place = object_.property_list.find(property_key(name));
        return place == object_.property_list.end() ? nullptr : value_in<T>(place->second);
    }

    // Builds no text unless there is something to report.
    void check(bool done, const char* operation, const char* type, std::string_view name,
               const spelling& how) {
        ++line_;
        if (!done)
            zo_assertion_faild(false, access_text(operation, type, name, how), std::string(name), file_,
                               line_);
    }

    _zo_object& object_;
    const char* file_;
    int line_;
    // Of another type than what came in their place; destroyed after the lock is given back.
    std::vector<boost::any> replaced_;
};

}  // namespace zo
