#include "CountedNew.h"

#include <cstdlib>
#include <new>

std::atomic<std::size_t> g_nAllocated;

void* operator new(std::size_t nSize)
{
    g_nAllocated += nSize;
    if (void* p = std::malloc(nSize))
        return p;
    throw std::bad_alloc();
}

void operator delete(void* p) noexcept
{
    std::free(p);
}

void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}
