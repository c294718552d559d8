// Writes a file anew without putting its old content at risk.
#pragma once

#include <afx.h>

// A new file that is written beside the old one. Commit puts the new file in the place of the old one in one
// step; whatever fails before that, or if the process ends, the old file is whole. An object that ends
// without Commit deletes the new file.
//
// Failures are CFileExceptions that tell the path of the old file. The constructor fails where the old file
// could not be written to either: for a directory, a device, a read-only file, one that belongs to somebody
// else, a link that leads nowhere. If the path is a link, the file that it leads to is replaced. The new file
// gets the owner, the group and the permissions of the old one; where the system does not let it have them,
// the constructor fails too.
//
// While a scanner or a backup holds the old file open, both operations try again for about a second.
class ZEB17_EXPORT ReplacedFile : public CFile
{
public:
    // What the file is for, which decides who may read it where there is no old file.
    enum Purpose
    {
        Document, // whoever may read other new files of the user
        UserData  // the user alone
    };

    // Opens the file beside the one that it will replace, for writing.
    explicit ReplacedFile(const CString& strPath, Purpose purpose = Document);
    ~ReplacedFile() override;

    // Flushes the new file to the disk, closes it and moves it into its place. Nothing can be written
    // afterwards.
    void Commit();

    // Deletes the new files of user data that killed processes have left beside the file at that path. The
    // caller must hold the lock that every writer of the file takes, since a file that is just being written
    // would be deleted too.
    static void DeleteLeftovers(const CString& strPath);

private:
    CString m_strPlace;     // the path of the old file, behind a link if there is one
    CString m_strTemporary; // the path at which the new file is written; empty after Commit
};
