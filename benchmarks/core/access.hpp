// SPDX-License-Identifier: MIT
// The work of the property rows: many reads, or writes, of one property of one object by some threads.
#pragma once

#include <support/allocations.hpp>
#include <support/measure.hpp>

#include <atomic>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace bench {

// Keeps the compiler from dropping a value that nobody looks at.
template <typename T>
void use(T& value) {
    asm volatile("" : : "g"(&value) : "memory");
}

// Longer than what a string holds without asking for memory.
inline const std::string texts[] = {"a title as documents have it: notes.txt",
                                    "another title: shopping list.txt"};

inline const int operations = repetitions(400'000);
inline constexpr int batch = 1000;

// `between` runs after each batch, untimed and uncounted: what an operation has left for later.
template <typename Operation, typename Between>
void access_alone(Operation operation, Between between) {
    double wall = 0;
    double cpu = 0;
    unsigned long allocated = 0;
    // The first batch is not told: what is made once is made in it.
    for (int done = -batch; done < operations; done += batch) {
        const double begun = wall_us();
        const double begun_cpu = cpu_us();
        const unsigned long allocated_before = allocations();
        if (done >= 0) {
            const section counted;
            for (int turn = 0; turn < batch; ++turn) operation(turn);
            allocated += allocations() - allocated_before;
            wall += wall_us() - begun;
            cpu += cpu_us() - begun_cpu;
        } else {
            for (int turn = 0; turn < batch; ++turn) operation(turn);
        }
        between();
    }
    print("ns", wall * 1e3 / operations);
    print("cpu_ns", cpu * 1e3 / operations);
    print("allocations", static_cast<double>(allocated) / operations);
    print("operations", operations);
}

template <typename Operation>
void access_together(int threads, Operation operation) {
    std::atomic<bool> go{false};
    std::atomic<unsigned long> allocated{0};
    std::vector<std::thread> running;
    for (int thread = 0; thread < threads; ++thread)
        running.emplace_back([&] {
            operation(0);  // what is made once is made here
            while (!go) std::this_thread::yield();
            const unsigned long allocated_before = allocations();
            for (int turn = 0; turn < operations; ++turn) operation(turn);
            allocated += allocations() - allocated_before;
        });
    const double begun = wall_us();
    const double begun_cpu = cpu_us();
    go = true;
    for (std::thread& thread : running) thread.join();
    print("ns", (wall_us() - begun) * 1e3 / operations / threads);
    print("cpu_ns", (cpu_us() - begun_cpu) * 1e3 / operations / threads);
    print("allocations", static_cast<double>(allocated) / operations / threads);
}

// Arguments: read or write, and the number of threads.
template <typename Read, typename Write, typename Between = void (*)()>
int access_main(
    int count, char** arguments, Read read, Write write, Between between = [] {}) {
    if (count != 3) return 64;
    const auto run = [&](auto operation) {
        const int threads = std::atoi(arguments[2]);
        threads == 1 ? access_alone(operation, between) : access_together(threads, operation);
    };
    std::string_view(arguments[1]) == "read" ? run(read) : run(write);
    return 0;
}

}  // namespace bench
