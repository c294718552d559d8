// For tests only: lets the operations of the file layer fail, or the process die, at a chosen point.
#pragma once

#include <windows.h>

enum class FileOperation
{
    Create,
    Write,
    Flush,
    Close,
    Rename
};

// Asked before each operation on a file; a result other than 0 is the system error with which the operation
// then fails without being carried out (a close is carried out all the same). Null, as it always is outside
// tests: no fault.
using FileFault = DWORD (*)(FileOperation operation);
extern FileFault g_fileFault;

// The error that is wanted from this operation, or 0.
inline DWORD GetFileFault(FileOperation operation)
{
    return g_fileFault ? g_fileFault(operation) : ERROR_SUCCESS;
}
