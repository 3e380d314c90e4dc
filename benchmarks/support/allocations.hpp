// SPDX-License-Identifier: MIT
// How often memory was asked for. A program that links bench_allocations counts every call of malloc and its
// relatives, whoever makes them: its own code, the library's, GTK's.
#pragma once

namespace bench {

// By the calling thread since it began.
unsigned long allocations();

}  // namespace bench
