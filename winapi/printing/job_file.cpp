// Writes the file of a print job beside the older one, and moves it there in one step.
#include "job_file.h"

#include "winerror.h"

#include <QFile>

#include <algorithm>
#include <utility>

namespace winapi {

namespace {

// Gives each name once in a process; the process's id keeps it apart from the names of other processes.
std::string makeTemporaryName()
{
    static unsigned count = 0;
    return "zeb17-print-" + std::to_string(GetCurrentProcessId()) + '-' + std::to_string(++count) + ".tmp";
}

HANDLE openOlder(const std::string& path)
{
    return CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

// The path of an open file, without links; empty if it can't be told.
std::string pathOf(HANDLE file)
{
    std::string path(MAX_PATH, '\0');
    DWORD length = GetFinalPathNameByHandleA(file, path.data(), MAX_PATH, 0);
    if (length >= path.size()) {
        path.resize(length);
        length = GetFinalPathNameByHandleA(file, path.data(), length, 0);
    }
    path.resize(std::min<std::size_t>(length, path.size()));
    return path;
}

}

DWORD JobFile::open(const QString& path)
{
    discard();
    m_place = QFile::encodeName(path).toStdString();
    if (GetFileAttributesA(m_place.c_str()) == INVALID_FILE_ATTRIBUTES)
        return GetLastError() == ERROR_FILE_NOT_FOUND ? openBeside(nullptr) : GetLastError();
    const HANDLE older = openOlder(m_place);
    if (older == INVALID_HANDLE_VALUE)
        return GetLastError();
    DWORD error = ERROR_ACCESS_DENIED;
    if (GetFileType(older) == FILE_TYPE_DISK) {
        m_place = pathOf(older);
        error = openBeside(older);
    }
    CloseHandle(older);
    return error;
}

DWORD JobFile::openBeside(HANDLE older)
{
    const std::string folder = m_place.substr(0, m_place.find_last_of('/') + 1);
    do {
        // A file of that name was left behind by a process that was killed and had the same id.
        m_temporary = folder + makeTemporaryName();
        m_file = CreateFileA(m_temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                             FILE_ATTRIBUTE_NORMAL, older);
    } while (!isOpen() && GetLastError() == ERROR_FILE_EXISTS);
    return isOpen() ? ERROR_SUCCESS : GetLastError();
}

bool JobFile::write(const QByteArray& content)
{
    constexpr qsizetype kBlock = 1 << 20;
    for (qsizetype done = 0; done < content.size();) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(kBlock, content.size() - done));
        if (!WriteFile(m_file, content.constData() + done, count, &written, nullptr))
            return false;
        done += written;
    }
    return FlushFileBuffers(m_file);
}

DWORD JobFile::finish(const QByteArray& content)
{
    DWORD error = write(content) ? ERROR_SUCCESS : GetLastError();
    if (!CloseHandle(std::exchange(m_file, INVALID_HANDLE_VALUE)) && error == ERROR_SUCCESS)
        error = GetLastError();
    if (error == ERROR_SUCCESS && !MoveFileExA(m_temporary.c_str(), m_place.c_str(),
                                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        error = GetLastError();
    if (error != ERROR_SUCCESS)
        DeleteFileA(m_temporary.c_str());
    return error;
}

void JobFile::discard()
{
    if (!isOpen())
        return;
    CloseHandle(std::exchange(m_file, INVALID_HANDLE_VALUE));
    DeleteFileA(m_temporary.c_str());
}

}
