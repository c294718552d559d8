// The file that a print job makes.
#pragma once

#include "winbase.h"

#include <QByteArray>
#include <QString>

#include <string>

namespace winapi {

// A new file that stands beside the one that it will replace, until it is whole: whatever fails before that,
// the older file stays as it was. The new file gets the owner and the permissions of the older one. A
// directory, a device, a pipe, a read-only file or a link that leads nowhere is not replaced.
//
// Operations give ERROR_SUCCESS, or the error that they failed with.
class JobFile
{
public:
    JobFile() = default;
    ~JobFile() { discard(); }
    JobFile(const JobFile&) = delete;
    JobFile& operator=(const JobFile&) = delete;

    bool isOpen() const { return m_file != INVALID_HANDLE_VALUE; }

    // Makes the new file, which will have this path.
    DWORD open(const QString& path);
    // Writes the whole content and moves the file into its place. A file that fails is deleted.
    DWORD finish(const QByteArray& content);
    void discard();

private:
    DWORD openBeside(HANDLE older);
    bool write(const QByteArray& content);

    HANDLE m_file = INVALID_HANDLE_VALUE;
    std::string m_place;     // the path of the older file, behind a link if there is one
    std::string m_temporary; // the path at which the new file is written
};

}
