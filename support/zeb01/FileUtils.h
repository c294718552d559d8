// Whole files.
#pragma once

#include <afx.h>

class TextArray;

class ZEB17_EXPORT FileUtils
{
public:
    // Whether something stands at the path that can be opened or replaced as a file, or stands in the way of
    // one: a directory or a device too, but not a link that leads nowhere.
    static bool DoesFileExist(const CString& strPath);

    // Takes the read-only mark off a file that has one. False if there is no file, or if the mark stays.
    static bool EnsureFileIsWritable(const CString& strPath);

    // Writes the lines as a text file in UTF-8: before each line nIndent blanks, none if it is negative, and
    // behind it "\r\n"; with bByteOrderMark the mark of UTF-8 before all of them. False if the file cannot be
    // written; what stood at the path is then as it was. See ReplacedFile for what can be replaced.
    static bool WriteFileContent(const CString& strPath, const TextArray& lines, bool bByteOrderMark,
                                 int nIndent);
};
