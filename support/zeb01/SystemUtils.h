// What the operating system tells.
#pragma once

#include <afx.h>

class ZEB17_EXPORT SystemUtils
{
public:
    // The system's text for an error code, without a line end. The code 0 stands for the last error of the
    // calling thread.
    static CString GetLastError(unsigned long nError);
};
