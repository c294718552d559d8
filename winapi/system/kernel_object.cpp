// Waiting for a handle's object, and closing it.
#include "kernel_object.h"

#include "errors.h"

#include <memory>

namespace winapi {

DWORD KernelObject::wait(DWORD)
{
    return fail(ERROR_INVALID_HANDLE, WAIT_FAILED);
}

}

using namespace winapi;

BOOL CloseHandle(HANDLE handle)
{
    const std::unique_ptr<KernelObject> object(objectFromHandle<KernelObject>(handle));
    if (!object)
        return FALSE;
    const DWORD error = object->close();
    return error == ERROR_SUCCESS ? TRUE : fail(error);
}

DWORD WaitForSingleObject(HANDLE handle, DWORD milliseconds)
{
    auto* object = objectFromHandle<KernelObject>(handle);
    return object ? object->wait(milliseconds) : WAIT_FAILED;
}
