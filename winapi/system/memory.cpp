// Memory handed over by handle. The size stands before the block, whose address is the handle.
#include "errors.h"

#include <cstdlib>

namespace {

struct alignas(std::max_align_t) Header
{
    SIZE_T size;
};

Header* headerOf(HGLOBAL memory)
{
    return static_cast<Header*>(memory) - 1;
}

}

HGLOBAL GlobalAlloc(UINT flags, SIZE_T bytes)
{
    if (bytes > SIZE_MAX - sizeof(Header))
        return winapi::fail(ERROR_NOT_ENOUGH_MEMORY), nullptr;
    const SIZE_T size = sizeof(Header) + bytes;
    auto* header = static_cast<Header*>(flags & GMEM_ZEROINIT ? std::calloc(1, size) : std::malloc(size));
    if (!header)
        return winapi::fail(ERROR_NOT_ENOUGH_MEMORY), nullptr;
    header->size = bytes;
    return header + 1;
}

HGLOBAL GlobalFree(HGLOBAL memory)
{
    if (memory)
        std::free(headerOf(memory));
    return nullptr;
}

LPVOID GlobalLock(HGLOBAL memory)
{
    return memory;
}

BOOL GlobalUnlock(HGLOBAL)
{
    SetLastError(ERROR_SUCCESS);
    return FALSE; // no lock is left
}

SIZE_T GlobalSize(HGLOBAL memory)
{
    return memory ? headerOf(memory)->size : 0;
}

HLOCAL LocalFree(HLOCAL memory)
{
    return GlobalFree(memory);
}
