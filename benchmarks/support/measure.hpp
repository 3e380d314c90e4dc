// SPDX-License-Identifier: MIT
// Times, counts and the lines that the runner reads.
#pragma once

namespace bench {

// Processor time of the whole process and time by the clock, in microseconds from an arbitrary start.
double cpu_us();
double wall_us();

// Prints "metric value".
void print(const char* metric, double value);

// How often to repeat what `usual` times would be repeated: less often where only counts are taken.
int repetitions(int usual);

// The memory that the heap holds now, in bytes, after freed ends were taken off.
double heap_bytes();

// While one lives, callgrind counts instructions, if it runs the program.
class section {
  public:
    section();
    ~section();
    section(const section&) = delete;
    section& operator=(const section&) = delete;
};

}  // namespace bench
