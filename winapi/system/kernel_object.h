// What a HANDLE leads to: a file or a mutex.
#pragma once

#include "winbase.h"

namespace winapi {

class KernelObject
{
public:
    virtual ~KernelObject() = default;

    // Gives back what the object holds. ERROR_SUCCESS, or why that failed.
    virtual DWORD close() { return ERROR_SUCCESS; }

    // What WaitForSingleObject does. An object that cannot be waited for gives WAIT_FAILED.
    virtual DWORD wait(DWORD milliseconds);
};

// The object of a handle. Null, and the last error set, if the handle is bad or its object is of another
// kind.
template <class Object>
Object* objectFromHandle(HANDLE handle)
{
    auto* object =
        handle == INVALID_HANDLE_VALUE ? nullptr : dynamic_cast<Object*>(static_cast<KernelObject*>(handle));
    if (!object)
        SetLastError(ERROR_INVALID_HANDLE);
    return object;
}

}
