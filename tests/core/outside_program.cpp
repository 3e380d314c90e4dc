// SPDX-License-Identifier: MIT
// A program at a fixed address that takes the address of a function of the library in its code. It says one
// text in the language of its environment.
#include <zo_core/zo_core.hpp>

#include <clocale>
#include <cstdio>

int main() {
    setlocale(LC_ALL, "");
    std::string (*volatile translate)(std::string) = zo_lang_get_string;
    std::puts(translate("tooltip_back").c_str());
}
