// What a HANDLE leads to: a file or a mutex.
#pragma once

#include "winbase.h"

namespace winapi {

class KernelObject
{
public:
    virtual ~KernelObject() = default;

    // Lets go of what the object holds and says whether that worked; ERROR_SUCCESS if so.
    virtual DWORD close() { return ERROR_SUCCESS; }

    // WaitForSingleObject.
    virtual DWORD wait(DWORD milliseconds);
};

// The object of a handle, or null, with the last error, if the handle is none or leads to another kind.
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
