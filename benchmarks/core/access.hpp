// SPDX-License-Identifier: MIT
// The work of the property rows: many reads, or writes, of one property of one object by some threads.
#pragma once

#include <support/allocations.hpp>
#include <support/measure.hpp>

#include <atomic>
#include <cstdlib>
#include <string_view>
#include <thread>
#include <vector>

namespace bench {

// Keeps the compiler from dropping a value that nobody looks at.
template <typename T>
void use(T& value) {
    asm volatile("" : : "g"(&value) : "memory");
}

inline constexpr int operations = 400'000;

template <typename Operation>
void access_alone(Operation operation) {
    for (int turn = 0; turn < 1000; ++turn) operation(turn);  // what is made once is made now
    const unsigned long allocated = allocations();
    const double begun = wall_us();
    const double begun_cpu = cpu_us();
    {
        const section counted;
        for (int turn = 0; turn < operations; ++turn) operation(turn);
    }
    const double cpu = cpu_us() - begun_cpu;
    const double wall = wall_us() - begun;
    const unsigned long asked = allocations() - allocated;  // before printing asks for a buffer
    print("ns", wall * 1e3 / operations);
    print("cpu_ns", cpu * 1e3 / operations);
    print("allocations", static_cast<double>(asked) / operations);
    print("operations", operations);
}

template <typename Operation>
void access_together(int threads, Operation operation) {
    std::atomic<bool> go{false};
    std::vector<std::thread> running;
    for (int thread = 0; thread < threads; ++thread)
        running.emplace_back([&] {
            while (!go) std::this_thread::yield();
            for (int turn = 0; turn < operations / threads; ++turn) operation(turn);
        });
    const double begun = wall_us();
    const double begun_cpu = cpu_us();
    go = true;
    for (std::thread& thread : running) thread.join();
    print("ns", (wall_us() - begun) * 1e3 / operations);
    print("cpu_ns", (cpu_us() - begun_cpu) * 1e3 / operations);
}

// Arguments: read or write, and the number of threads.
template <typename Read, typename Write>
int access_main(int count, char** arguments, Read read, Write write) {
    if (count != 3) return 64;
    const auto run = [&](auto operation) {
        const int threads = std::atoi(arguments[2]);
        threads == 1 ? access_alone(operation) : access_together(threads, operation);
    };
    std::string_view(arguments[1]) == "read" ? run(read) : run(write);
    return 0;
}

}  // namespace bench
