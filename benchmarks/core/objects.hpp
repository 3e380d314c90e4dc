// SPDX-License-Identifier: MIT
// The work of the row of objects: make one with its whole property table, and let it go.
#pragma once

#include <support/allocations.hpp>
#include <support/measure.hpp>

namespace bench {

template <typename MakeAndDrop>
int objects_main(MakeAndDrop make_and_drop) {
    const int objects = repetitions(10'000);
    for (int one = 0; one < 100; ++one) make_and_drop();
    const unsigned long allocated = allocations();
    const double begun = cpu_us();
    {
        const section counted;
        for (int one = 0; one < objects; ++one) make_and_drop();
    }
    const double cpu = cpu_us() - begun;
    const unsigned long asked = allocations() - allocated;  // before printing asks for a buffer
    print("cpu_us", cpu / objects);
    print("allocations", static_cast<double>(asked) / objects);
    print("operations", objects);
    return 0;
}

}  // namespace bench
