// Files and directories, by the calls of POSIX.
#include "descriptor.h"
#include "errors.h"
#include "kernel_object.h"

#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

using namespace winapi;

namespace {

constexpr mode_t kAllWrite = S_IWUSR | S_IWGRP | S_IWOTH;

class FileObject final : public KernelObject
{
public:
    void take(Descriptor file) { m_file = std::move(file); }

    int descriptor() const { return m_file.get(); }

    DWORD close() override { return ::close(m_file.release()) == 0 ? ERROR_SUCCESS : errorFromErrno(errno); }

private:
    Descriptor m_file;
};

std::string parentOf(const std::string& path)
{
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    return path.substr(0, std::max<std::size_t>(slash, 1));
}

bool isDirectory(const struct stat& status)
{
    return S_ISDIR(status.st_mode);
}

bool isDirectory(const char* path)
{
    struct stat status;
    return ::stat(path, &status) == 0 && isDirectory(status);
}

// The permission bits decide, as the read-only mark does on Windows, though the superuser may write to any
// file.
bool isReadOnly(const char* path)
{
    struct stat status;
    return ::stat(path, &status) == 0 && !isDirectory(status) && !(status.st_mode & kAllWrite);
}

// Whether a file stands there that must not be written over.
bool isProtected(const char* path)
{
    return isDirectory(path) || isReadOnly(path);
}

// POSIX has one error for a missing file and a missing directory, Windows has two.
BOOL failOnPath(const char* path)
{
    if (errno == ENOENT && !isDirectory(parentOf(path).c_str()))
        return fail(ERROR_PATH_NOT_FOUND);
    return failWithErrno();
}

// The descriptor is open, so EBADF means that it was opened only for reading, or only for writing.
BOOL failOnTransfer()
{
    return errno == EBADF ? fail(ERROR_ACCESS_DENIED) : failWithErrno();
}

int openFlags(DWORD access, DWORD disposition)
{
    constexpr int kDisposition[] = {0, O_CREAT | O_EXCL, O_CREAT | O_TRUNC, 0};
    const bool write = access & GENERIC_WRITE;
    const bool read = access & GENERIC_READ;
    const int mode = !write ? O_RDONLY : read ? O_RDWR : O_WRONLY;
    return mode | kDisposition[disposition] | O_CLOEXEC;
}

// `mode`: the permissions of a file that is made, without what the umask takes off.
Descriptor openDescriptor(LPCSTR path, int flags, mode_t mode)
{
    int file;
    do {
        file = ::open(path, flags, mode);
    } while (file < 0 && errno == EINTR);
    return Descriptor(file);
}

Descriptor openDirectory(const std::string& path)
{
    return openDescriptor(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
}

// Opens a file or a device without waiting for anything. A pipe is none, and the last error says so.
Descriptor openFile(LPCSTR path, int flags, mode_t mode)
{
    Descriptor file = openDescriptor(path, flags | O_NONBLOCK | O_NOCTTY, mode);
    if (!file.isOpen()) {
        failOnPath(path);
        return {};
    }
    struct stat status;
    if (::fstat(file.get(), &status) != 0 || S_ISFIFO(status.st_mode))
        return fail(ERROR_ACCESS_DENIED, Descriptor());
    ::fcntl(file.get(), F_SETFL, ::fcntl(file.get(), F_GETFL) & ~O_NONBLOCK);
    return file;
}

constexpr const char* kAccessList = "system.posix_acl_access";

// The list of further users and groups with access, or none where the other file has none.
bool copyAccessList(int from, int to)
{
    char list[4096];
    const ssize_t size = ::fgetxattr(from, kAccessList, list, sizeof(list));
    if (size >= 0)
        return ::fsetxattr(to, kAccessList, list, static_cast<std::size_t>(size), 0) == 0;
    const auto isNone = [] { return errno == ENODATA || errno == ENOTSUP; };
    return isNone() && (::fremovexattr(to, kAccessList) == 0 || isNone());
}

// Gives a file the owner, the group and the permissions of another.
bool copyAccess(int from, int to)
{
    struct stat wanted;
    struct stat present;
    if (::fstat(from, &wanted) != 0 || ::fstat(to, &present) != 0)
        return false;
    const bool sameOwner = wanted.st_uid == present.st_uid && wanted.st_gid == present.st_gid;
    return (sameOwner || ::fchown(to, wanted.st_uid, wanted.st_gid) == 0) && copyAccessList(from, to) &&
           ::fchmod(to, wanted.st_mode & 0777) == 0;
}

// What is made with security attributes is the user's alone, as the default of the user's token has it.
mode_t newMode(const SECURITY_ATTRIBUTES* security, mode_t mode)
{
    return security ? mode & S_IRWXU : mode;
}

// A search for names in one directory.
class SearchObject final : public KernelObject
{
public:
    // `pattern`: a path whose last part may hold * and ?.
    explicit SearchObject(const std::string& pattern)
        : m_parent(parentOf(pattern)), m_names(pattern.substr(pattern.find_last_of('/') + 1)),
          m_directory(::opendir(m_parent.c_str()))
    {
    }
    ~SearchObject() override
    {
        if (m_directory)
            ::closedir(m_directory);
    }

    BOOL next(WIN32_FIND_DATAA& data)
    {
        if (!m_directory)
            return failWithErrno();
        while (const dirent* entry = ::readdir(m_directory)) {
            if (::fnmatch(m_names.c_str(), entry->d_name, FNM_NOESCAPE) != 0)
                continue;
            data = {};
            data.dwFileAttributes = GetFileAttributesA((m_parent + '/' + entry->d_name).c_str());
            std::strncpy(data.cFileName, entry->d_name, sizeof(data.cFileName) - 1);
            return TRUE;
        }
        return fail(ERROR_NO_MORE_FILES);
    }

private:
    std::string m_parent;
    std::string m_names;
    DIR* m_directory;
};

}

HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD, LPSECURITY_ATTRIBUTES security, DWORD disposition, DWORD,
                   HANDLE templateFile)
{
    if (!path || !*path)
        return fail(ERROR_PATH_NOT_FOUND, INVALID_HANDLE_VALUE);
    if (disposition < CREATE_NEW || disposition > OPEN_EXISTING)
        return fail(ERROR_INVALID_PARAMETER, INVALID_HANDLE_VALUE);
    if (disposition != CREATE_NEW && (isDirectory(path) || (access & GENERIC_WRITE && isReadOnly(path))))
        return fail(ERROR_ACCESS_DENIED, INVALID_HANDLE_VALUE);
    const auto* source = templateFile ? objectFromHandle<FileObject>(templateFile) : nullptr;
    if (templateFile && !source)
        return INVALID_HANDLE_VALUE;

    auto object = std::make_unique<FileObject>(); // before the file, which would stay if memory ended
    Descriptor file =
        openFile(path, openFlags(access, disposition), source ? S_IRUSR | S_IWUSR : newMode(security, 0666));
    if (!file.isOpen()) {
        if (disposition == CREATE_NEW && GetLastError() == ERROR_ALREADY_EXISTS)
            SetLastError(ERROR_FILE_EXISTS);
        return INVALID_HANDLE_VALUE;
    }
    if (source && disposition == CREATE_NEW && !copyAccess(source->descriptor(), file.get())) {
        failWithErrno();
        ::unlink(path);
        return INVALID_HANDLE_VALUE;
    }
    object->take(std::move(file));
    return static_cast<KernelObject*>(object.release());
}

DWORD GetFileType(HANDLE file)
{
    const auto* object = objectFromHandle<FileObject>(file);
    struct stat status;
    if (!object || ::fstat(object->descriptor(), &status) != 0)
        return FILE_TYPE_UNKNOWN;
    return S_ISREG(status.st_mode) ? FILE_TYPE_DISK : FILE_TYPE_CHAR;
}

BOOL ReadFile(HANDLE file, LPVOID buffer, DWORD count, LPDWORD read, LPOVERLAPPED)
{
    *read = 0;
    const auto* object = objectFromHandle<FileObject>(file);
    if (!object)
        return FALSE;
    while (*read < count) {
        const ssize_t part = ::read(object->descriptor(), static_cast<char*>(buffer) + *read, count - *read);
        if (part == 0)
            break;
        if (part > 0)
            *read += static_cast<DWORD>(part);
        else if (errno != EINTR)
            return failOnTransfer();
    }
    return TRUE;
}

BOOL WriteFile(HANDLE file, LPCVOID buffer, DWORD count, LPDWORD written, LPOVERLAPPED)
{
    *written = 0;
    const auto* object = objectFromHandle<FileObject>(file);
    if (!object)
        return FALSE;
    while (*written < count) {
        const ssize_t part =
            ::write(object->descriptor(), static_cast<const char*>(buffer) + *written, count - *written);
        if (part >= 0)
            *written += static_cast<DWORD>(part);
        else if (errno != EINTR)
            return failOnTransfer();
    }
    return TRUE;
}

BOOL SetFilePointerEx(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER position, DWORD from)
{
    constexpr int kFrom[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    const auto* object = objectFromHandle<FileObject>(file);
    if (!object)
        return FALSE;
    if (from >= std::size(kFrom))
        return fail(ERROR_INVALID_PARAMETER);
    const off_t result = ::lseek(object->descriptor(), distance.QuadPart, kFrom[from]);
    if (result < 0)
        return errno == EINVAL ? fail(ERROR_NEGATIVE_SEEK) : failWithErrno();
    if (position)
        position->QuadPart = result;
    return TRUE;
}

BOOL GetFileSizeEx(HANDLE file, PLARGE_INTEGER size)
{
    const auto* object = objectFromHandle<FileObject>(file);
    if (!object)
        return FALSE;
    struct stat status;
    if (::fstat(object->descriptor(), &status) != 0)
        return failWithErrno();
    size->QuadPart = status.st_size;
    return TRUE;
}

BOOL FlushFileBuffers(HANDLE file)
{
    const auto* object = objectFromHandle<FileObject>(file);
    if (!object)
        return FALSE;
    return ::fsync(object->descriptor()) == 0 ? TRUE : failWithErrno();
}

DWORD GetFinalPathNameByHandleA(HANDLE file, LPSTR path, DWORD size, DWORD)
{
    const auto* object = objectFromHandle<FileObject>(file);
    if (!object)
        return 0;
    char target[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(object->descriptor());
    const ssize_t length = ::readlink(link.c_str(), target, sizeof(target));
    if (length < 0)
        return failWithErrno(0u);
    if (static_cast<DWORD>(length) >= size)
        return static_cast<DWORD>(length) + 1;
    std::memcpy(path, target, static_cast<std::size_t>(length));
    path[length] = '\0';
    return static_cast<DWORD>(length);
}

BOOL DeleteFileA(LPCSTR path)
{
    if (GetFileAttributesA(path) == FILE_ATTRIBUTE_READONLY)
        return fail(ERROR_ACCESS_DENIED);
    return ::unlink(path) == 0 ? TRUE : failOnPath(path);
}

BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags)
{
    const bool replace = flags & MOVEFILE_REPLACE_EXISTING;
    if (replace && isProtected(to))
        return fail(ERROR_ACCESS_DENIED);
    // What can fail does so before the move; afterwards the file is in its place, whatever the disk says.
    Descriptor directory;
    if (flags & MOVEFILE_WRITE_THROUGH) {
        directory = openDirectory(parentOf(to));
        if (!directory.isOpen())
            return failOnPath(to);
    }
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, replace ? 0 : RENAME_NOREPLACE) != 0) {
        struct stat status;
        return failOnPath(::lstat(from, &status) == 0 ? to : from);
    }
    if (directory.isOpen())
        ::fsync(directory.get());
    return TRUE;
}

HANDLE FindFirstFileA(LPCSTR pattern, LPWIN32_FIND_DATAA data)
{
    auto search = std::make_unique<SearchObject>(pattern);
    if (search->next(*data))
        return static_cast<KernelObject*>(search.release());
    if (GetLastError() == ERROR_NO_MORE_FILES)
        SetLastError(ERROR_FILE_NOT_FOUND);
    return INVALID_HANDLE_VALUE;
}

BOOL FindNextFileA(HANDLE search, LPWIN32_FIND_DATAA data)
{
    auto* object = objectFromHandle<SearchObject>(search);
    return object ? object->next(*data) : FALSE;
}

BOOL FindClose(HANDLE search)
{
    const std::unique_ptr<SearchObject> object(objectFromHandle<SearchObject>(search));
    return object ? TRUE : FALSE;
}

// A link is not followed, except that one that leads to a directory counts as a directory too.
DWORD GetFileAttributesA(LPCSTR path)
{
    if (!path || !*path)
        return fail(ERROR_PATH_NOT_FOUND, INVALID_FILE_ATTRIBUTES);
    struct stat status;
    if (::lstat(path, &status) != 0) {
        failOnPath(path);
        return INVALID_FILE_ATTRIBUTES;
    }
    if (S_ISLNK(status.st_mode))
        return FILE_ATTRIBUTE_REPARSE_POINT | (isDirectory(path) ? FILE_ATTRIBUTE_DIRECTORY : 0);
    if (isDirectory(status))
        return FILE_ATTRIBUTE_DIRECTORY;
    if (!S_ISREG(status.st_mode))
        return FILE_ATTRIBUTE_DEVICE;
    return status.st_mode & kAllWrite ? FILE_ATTRIBUTE_NORMAL : FILE_ATTRIBUTE_READONLY;
}

BOOL SetFileAttributesA(LPCSTR path, DWORD attributes)
{
    struct stat status;
    if (::stat(path, &status) != 0)
        return failOnPath(path);
    if (isDirectory(status))
        return TRUE;
    const mode_t mode =
        attributes & FILE_ATTRIBUTE_READONLY ? status.st_mode & ~kAllWrite : status.st_mode | S_IWUSR;
    return ::chmod(path, mode & 07777) == 0 ? TRUE : failWithErrno();
}

BOOL CreateDirectoryA(LPCSTR path, LPSECURITY_ATTRIBUTES security)
{
    if (!path || !*path)
        return fail(ERROR_PATH_NOT_FOUND);
    if (::mkdir(path, newMode(security, 0777)) == 0)
        return TRUE;
    return errno == ENOENT ? fail(ERROR_PATH_NOT_FOUND) : failWithErrno();
}
