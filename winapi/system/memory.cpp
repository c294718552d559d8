// Memory that is handed over by handle. The handle is the address of the block, and the block's size stands
// before it.
#include "memory.h"

#include "errors.h"

#include <cstddef>
#include <cstdlib>

using namespace winapi;

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

SIZE_T winapi::sizeOfMemory(HGLOBAL memory)
{
    return headerOf(memory)->size;
}

HGLOBAL GlobalAlloc(UINT, SIZE_T bytes)
{
    const bool fits = bytes <= SIZE_MAX - sizeof(Header);
    auto* const header = fits ? static_cast<Header*>(std::malloc(sizeof(Header) + bytes)) : nullptr;
    if (!header)
        return fail(ERROR_NOT_ENOUGH_MEMORY, nullptr);
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
