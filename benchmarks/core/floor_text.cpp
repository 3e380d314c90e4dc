// SPDX-License-Identifier: MIT
#include <core/access.hpp>
#include <core/floor_values.hpp>

int main(int count, char** arguments) {
    bench::floor_values object;
    object.set<std::string>("window-title-text", bench::texts[1]);
    return bench::access_main(
        count, arguments,
        [&](int) {
            thread_local std::string text;
            object.get_into("window-title-text", text);
            bench::use(text);
        },
        [&](int turn) { object.set<std::string>("window-title-text", bench::texts[turn % 2]); });
}
