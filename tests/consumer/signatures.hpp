// SPDX-License-Identifier: MIT
#pragma once

// Compiles only for a function of exactly this signature; overloads are told apart by it.
template <typename Signature>
void check(Signature* function) {
    const volatile auto kept = function;
    (void)kept;
}

void check_core_signatures();
void check_ui_signatures();
void check_linux_signatures();
