// Whole files.
#pragma once

#include <afx.h>

class TextArray;

class ZEB17_EXPORT FileUtils
{
public:
    // True for a file; a directory is none.
    static bool DoesFileExist(const CString& strPath);

    // The path of the file that a link leads to; any other path as it is, also that of a link to nowhere.
    static CString FollowLink(const CString& strPath);

    // Takes the read-only mark off a file that has it. False if the file then is not writable.
    static bool EnsureFileIsWritable(const CString& strPath);

    // Writes the lines as a text file: UTF-8, each line ended by "\r\n", after nIndent blanks. With
    // bByteOrderMark the file begins with the mark of UTF-8. On failure the result is false and a file
    // that stood at the path is as it was.
    static bool WriteFileContent(const CString& strPath, const TextArray& lines, bool bByteOrderMark,
                                 int nIndent);
};
