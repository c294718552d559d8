// Counts each allocation of the program.
#include "CountedNew.h"

#include <cstdlib>
#include <new>

std::atomic<std::size_t> g_nAllocated;
std::atomic<long> g_nAllocationsLeft = -1;

void* operator new(std::size_t nSize)
{
    g_nAllocated += nSize;
    const bool bRefused = g_nAllocationsLeft >= 0 && --g_nAllocationsLeft == 0;
    if (void* p = bRefused ? nullptr : std::malloc(nSize))
        return p;
    throw std::bad_alloc();
}

// Must be here too: where the sanitizers replace it, memory would come from one place and be given back to
// another.
void* operator new(std::size_t nSize, const std::nothrow_t&) noexcept
{
    try {
        return operator new(nSize);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* p) noexcept
{
    std::free(p);
}

void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}
