// Writing a file anew without putting its old content at risk.
#pragma once

#include <afx.h>

// A file that is written beside the one whose place it will take. Commit puts it there in one step; until
// then, whatever fails or ends before, the old file is whole. Without Commit nothing is left behind.
//
// Failures are CFileExceptions with the path of the file that was to be replaced. A directory, a device or a
// read-only file at that path is such a failure already when opening. A link is followed: the file that it
// leads to is replaced. The new file has the permissions of the old one.
class ZEB17_EXPORT ReplacedFile : public CFile
{
public:
    // Opens the file beside the one that it will replace, for writing.
    explicit ReplacedFile(const CString& strPath);
    ~ReplacedFile() override;

    // Flushes to the disk, closes and moves the file into its place. Nothing can be written afterwards.
    void Commit();

private:
    CString m_strPlace;     // where the file goes: the target, or what it leads to
    CString m_strTemporary; // where it is written
};
