// SPDX-License-Identifier: MIT
#include <support/measure.hpp>

#include <malloc.h>
#include <valgrind/callgrind.h>
#include <cstdio>
#include <ctime>

namespace {

double microseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

}  // namespace

double bench::cpu_us() { return microseconds(CLOCK_PROCESS_CPUTIME_ID); }

double bench::wall_us() { return microseconds(CLOCK_MONOTONIC); }

void bench::print(const char* metric, double value) { std::printf("%s %.17g\n", metric, value); }

int bench::repetitions(int usual) { return RUNNING_ON_VALGRIND ? usual / 40 : usual; }

double bench::heap_bytes() {
    malloc_trim(0);
    const struct mallinfo2 now = mallinfo2();
    return static_cast<double>(now.uordblks + now.hblkhd);
}

bench::section::section() { CALLGRIND_START_INSTRUMENTATION; }

bench::section::~section() { CALLGRIND_STOP_INSTRUMENTATION; }
