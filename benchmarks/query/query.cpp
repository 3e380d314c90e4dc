// SPDX-License-Identifier: MIT
#include "query.hpp"

#include <support/measure.hpp>
#include <support/x_wire.hpp>

#include <clocale>
#include <cstdlib>

int bench::run_query(int argc, char** argv, facts (*ask)()) {
    if (argc != 2) return 2;
    std::setlocale(LC_ALL, "");
    const clients windows(std::atoi(argv[1]));
    windows.check(ask());
    int questions = 0;
    const double cpu = cpu_us();
    const double start = wall_us();
    while (wall_us() - start < 1e5) {
        ask();
        ++questions;
    }
    print("us", (wall_us() - start) / questions);
    print("cpu_us", (cpu_us() - cpu) / questions);
    const test::x_wire wire;
    windows.check(ask());
    print("round_trips", wire.round_trips());
    print("requests", wire.requests());
    return 0;
}
