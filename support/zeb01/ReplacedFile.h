// Writes a file anew without putting its old content at risk.
#pragma once

#include <afx.h>

// A new file that is written beside the old one. Commit puts the new file in the place of the old one in one
// step; whatever fails before that, or if the process ends, the old file is whole. An object that ends
// without Commit deletes the new file.
//
// Failures are CFileExceptions that tell the path of the old file. The constructor fails for a directory, a
// device or a read-only file at that path. If the path is a link, the file that it leads to is replaced. The
// new file gets the permissions of the old one.
class ZEB17_EXPORT ReplacedFile : public CFile
{
public:
    // Opens the file beside the one that it will replace, for writing.
    explicit ReplacedFile(const CString& strPath);
    ~ReplacedFile() override;

    // Flushes the new file to the disk, closes it and moves it into its place. Nothing can be written
    // afterwards.
    void Commit();

private:
    CString m_strPlace;     // the path of the old file, behind a link if there is one
    CString m_strTemporary; // the path at which the new file is written; empty after Commit
};
