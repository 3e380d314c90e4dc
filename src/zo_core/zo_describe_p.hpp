// SPDX-License-Identifier: MIT
// How a class describes its objects: one readable line with what tells them apart, and their state.
#pragma once

#include <zo_core/zo_export.hpp>
#include <zo_core/zo_object.hpp>

#include <initializer_list>
#include <string>
#include <utility>

namespace zo {

// The parts in order, as in: [zo_window] id "notes", title "My notes", visible, referenced
//
// Made before the property lock is taken, since a subclass may need locks of its own to tell its tag; all
// else is called with it. A property that is missing or of another type is left out: whoever looks at a
// broken object must not be stopped by it.
class description {
  public:
    ZO_EXPORT explicit description(_zo_object& object);

    ZO_EXPORT void part(const char* label, const std::string& value);
    ZO_EXPORT void text(const char* label, const char* property);
    ZO_EXPORT void word(const std::string& word);

    // The word of the first flag that is set, or `otherwise`.
    ZO_EXPORT void state(std::initializer_list<std::pair<const char*, const char*>> words_and_flags,
                         const char* otherwise);

    ZO_EXPORT std::string line() const;

  private:
    _zo_object& object_;
    std::string line_;
    const char* separator_ = " ";
};

// In quotation marks, on one line.
ZO_EXPORT std::string quoted(const std::string& text);

}  // namespace zo
