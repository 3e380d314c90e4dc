// SPDX-License-Identifier: MIT
#include <core/access.hpp>
#include <core/floor_values.hpp>

int main(int count, char** arguments) {
    bench::floor_values object;
    return bench::access_main(
        count, arguments,
        [&](int) {
            bool value = object.get<bool>("keep-above");
            bench::use(value);
        },
        [&](int turn) { object.set<bool>("keep-above", turn % 2); });
}
