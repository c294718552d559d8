// For tests: lets one operation on a file fail, or lets the process end there.
#pragma once

#include <windows.h>

enum class FileOperation
{
    Open,
    Create,
    Write,
    Flush,
    Close,
    Rename
};

// What a test sets is called before each operation on a file. If it returns an error of the system, the
// operation fails with that error and is not carried out; only a close is carried out all the same. Null
// outside of tests.
using FileFault = DWORD (*)(FileOperation operation);
extern FileFault g_fileFault;

// The error with which the operation is to fail, or 0.
inline DWORD GetFileFault(FileOperation operation)
{
    return g_fileFault ? g_fileFault(operation) : ERROR_SUCCESS;
}
