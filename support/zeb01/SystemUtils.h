// The operating system.
#pragma once

#include <afx.h>

class ZEB17_EXPORT SystemUtils
{
public:
    // The system's text for an error code, without a line end; 0 stands for the calling thread's last error.
    static CString GetLastError(unsigned long nError);
};
