// Counts what a test program asks of the heap, and refuses it.
#pragma once

#include <atomic>
#include <cstddef>

// Bytes asked for since the count was last set to 0.
extern std::atomic<std::size_t> g_nAllocated;

// The allocation that makes this 0 fails; it goes down by one with each. Below 0 all succeed.
extern std::atomic<long> g_nAllocationsLeft;
