// Counts what a test program asks of the heap.
#pragma once

#include <atomic>
#include <cstddef>

// Bytes asked for since the count was last set to 0.
extern std::atomic<std::size_t> g_nAllocated;
