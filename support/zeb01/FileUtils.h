// Whole files.
#pragma once

#include <afx.h>

class TextArray;

class ZEB17_EXPORT FileUtils
{
public:
    // True for a file; a directory is none.
    static bool DoesFileExist(const CString& strPath);

    // Takes the read-only mark off a file that has one. False if there is no file, or if the mark stays.
    static bool EnsureFileIsWritable(const CString& strPath);

    // Writes the lines as a text file in UTF-8: before each line nIndent blanks, behind it "\r\n"; with
    // bByteOrderMark the mark of UTF-8 before all of them. False on failure; a file that stood at the path is
    // then as it was.
    static bool WriteFileContent(const CString& strPath, const TextArray& lines, bool bByteOrderMark,
                                 int nIndent);
};
