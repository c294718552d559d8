// How calls fail: the last error, and the errors of this system as those of Windows.
#pragma once

#include "winbase.h"

namespace winapi {

// The Windows error for an errno value.
DWORD errorFromErrno(int error);

// Sets the last error and gives FALSE, with which most calls tell of a failure.
BOOL fail(DWORD error);
// The same, with the error that errno stands for.
BOOL failWithErrno();

// The same for calls that tell of a failure with another value.
template <class Result>
Result fail(DWORD error, Result result)
{
    fail(error);
    return result;
}
template <class Result>
Result failWithErrno(Result result)
{
    failWithErrno();
    return result;
}

}
