#pragma once

// Counts what a piece of code asks of operator new. The program that uses it must be linked with count_allocations.cpp.

#include <cstdint>

// Requests to operator new since the program began.
std::int64_t allocations_so_far();

template<class Work>
std::int64_t allocations_during(Work&& work) {
    const std::int64_t before = allocations_so_far();
    work();
    return allocations_so_far() - before;
}
