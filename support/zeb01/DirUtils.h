// Paths and directories. A path is read by characters, which may have two bytes.
#pragma once

#include <afx.h>

class ZEB17_EXPORT DirUtils
{
public:
    // The directory of a file's path, without a separator at its end unless it is the root; empty for a bare
    // name.
    static CString ParsePathFromFile(const CString& strPath);

    // Creates the directory and all that are missing above it, for the user alone unless the system has new
    // directories take after those above them. True if it is there afterwards.
    static bool CreateDirectoryA(const CString& strPath);

    // The path of the file of that name in the directory; the bare name if strDirectory is empty.
    static CString JoinPath(const CString& strDirectory, const CString& strName);
};
