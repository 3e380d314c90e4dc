// SPDX-License-Identifier: MIT
#include <zo_core/zo_describe_p.hpp>

namespace {

template <typename T>
const T* find(_zo_object& object, const char* property) {
    const auto place = object.property_list.find(property);
    return place == object.property_list.end() ? nullptr : zo::value_in<T>(place->second);
}

}  // namespace

std::string zo::quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        // Other bytes below the space are as unreadable as a line's end; those above it may be of UTF-8.
        quoted += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
    return quoted + "\"";
}

zo::description::description(_zo_object& object) : object_(object), line_(object.get_type()) {}

void zo::description::word(const std::string& word) {
    line_ += separator_ + word;
    separator_ = ", ";
}

void zo::description::part(const char* label, const std::string& value) { word(label + (" " + value)); }

void zo::description::text(const char* label, const char* property) {
    if (const auto* value = find<std::string>(object_, property)) part(label, quoted(*value));
}

void zo::description::state(std::initializer_list<std::pair<const char*, const char*>> words_and_flags,
                            const char* otherwise) {
    const char* found = otherwise;
    for (const auto& [state_word, flag] : words_and_flags) {
        const bool* set = find<bool>(object_, flag);
        if (!set || !*set) continue;
        found = state_word;
        break;
    }
    word(found);
}

std::string zo::description::line() const {
    return object_.is_reffed() ? line_ + separator_ + "referenced" : line_;
}
