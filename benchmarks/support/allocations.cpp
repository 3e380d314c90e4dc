// SPDX-License-Identifier: MIT
// A program's own malloc takes the place of the C library's for all that it links.
#include <support/allocations.hpp>

#include <cerrno>
#include <cstddef>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}

namespace {

thread_local unsigned long count = 0;

}  // namespace

unsigned long bench::allocations() { return count; }

#define ZO_BENCH_EXPORT __attribute__((visibility("default")))

extern "C" {

ZO_BENCH_EXPORT void* malloc(std::size_t size) {
    ++count;
    return __libc_malloc(size);
}

ZO_BENCH_EXPORT void* calloc(std::size_t number, std::size_t size) {
    ++count;
    return __libc_calloc(number, size);
}

ZO_BENCH_EXPORT void* realloc(void* block, std::size_t size) {
    ++count;
    return __libc_realloc(block, size);
}

ZO_BENCH_EXPORT void* aligned_alloc(std::size_t alignment, std::size_t size) {
    ++count;
    return __libc_memalign(alignment, size);
}

ZO_BENCH_EXPORT int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
    ++count;
    *block = __libc_memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}
}
