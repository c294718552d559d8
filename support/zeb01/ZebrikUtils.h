// Where the library keeps its files.
#pragma once

#include <afx.h>

class ZEB17_EXPORT ZebrikUtils
{
public:
    // The full path of the data file of a format version from 1 to 4, in the user's directory for application
    // data. Empty for another version, or if the system names no such directory.
    static CString GetCalendarSettingsPath(unsigned short nVersion);

    // Keeps the files in that directory from now on, so that a host has a data file of its own. To be called
    // before the first control is made; a save makes the directory if it is not there. The empty name stands
    // for the user's own directory, whose file all hosts of the user share.
    static void SetDataDirectory(const CString& strDirectory);
};
