// Where the library keeps its files.
#pragma once

#include <afx.h>

class ZEB17_EXPORT ZebrikUtils
{
public:
    // The full path of the data file of a format version from 1 to 4, in the user's directory for application
    // data. Empty for another version, or if the system names no such directory.
    static CString GetCalendarSettingsPath(unsigned short nVersion);

    // Keeps the files in that directory from now on, for tests. The empty name stands for the user's own
    // directory.
    static void SetDataDirectory(const CString& strDirectory);
};
