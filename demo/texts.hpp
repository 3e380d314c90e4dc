// SPDX-License-Identifier: MIT
// The demo's own translations, gettext domain "zo-demo". The words of the log are names of the interface and
// stay as they are.
#pragma once

namespace demo {

// Names the catalogues; before any text is asked for.
void bind_texts();

// The text in the user's language.
const char* _(const char* text);

// Marks a text that a table holds and that _() translates when it is shown.
constexpr const char* N_(const char* text) { return text; }

}  // namespace demo
