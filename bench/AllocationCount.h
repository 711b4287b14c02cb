#pragma once

#include <cstdlib>

extern "C" void* __libc_malloc(size_t size); // NOLINT(readability-identifier-naming)

/// Counts what is allocated while it is told to. To be included by one file of a program.
namespace AllocationCount {

inline bool s_counting = false;
inline long s_allocations = 0;

} // namespace AllocationCount

// Takes the place of the library's for the whole program, libraries included.
extern "C" void* malloc(size_t size) {
    AllocationCount::s_allocations += AllocationCount::s_counting;
    return __libc_malloc(size);
}
