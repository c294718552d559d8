// Stands between the code under test and the system.
#include "SystemCalls.h"

#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <cstdarg>
#include <cstddef>

long g_nCallsLeft = -1;

namespace {

bool IsToFail()
{
    if (g_nCallsLeft < 0 || --g_nCallsLeft != 0)
        return false;
    errno = EIO;
    return true;
}

}

// The names are the linker's.
extern "C" {

int __real_open(const char* path, int flags, mode_t mode);
int __real_openat(int folder, const char* path, int flags, mode_t mode);
ssize_t __real_write(int file, const void* data, std::size_t size);
int __real_fsync(int file);
int __real_renameat2(int folder, const char* from, int toFolder, const char* to, unsigned flags);
int __real_fchmod(int file, mode_t mode);
int __real_fchown(int file, uid_t owner, gid_t group);
int __real_flock(int file, int operation);
int __real_mkdir(const char* path, mode_t mode);
int __real_close(int file);

int __wrap_open(const char* path, int flags, mode_t mode)
{
    return IsToFail() ? -1 : __real_open(path, flags, mode);
}

int __wrap_openat(int folder, const char* path, int flags, mode_t mode)
{
    return IsToFail() ? -1 : __real_openat(folder, path, flags, mode);
}

ssize_t __wrap_write(int file, const void* data, std::size_t size)
{
    return IsToFail() ? -1 : __real_write(file, data, size);
}

int __wrap_fsync(int file)
{
    return IsToFail() ? -1 : __real_fsync(file);
}

int __wrap_renameat2(int folder, const char* from, int toFolder, const char* to, unsigned flags)
{
    return IsToFail() ? -1 : __real_renameat2(folder, from, toFolder, to, flags);
}

int __wrap_fchmod(int file, mode_t mode)
{
    return IsToFail() ? -1 : __real_fchmod(file, mode);
}

int __wrap_fchown(int file, uid_t owner, gid_t group)
{
    return IsToFail() ? -1 : __real_fchown(file, owner, group);
}

int __wrap_flock(int file, int operation)
{
    return IsToFail() ? -1 : __real_flock(file, operation);
}

int __wrap_mkdir(const char* path, mode_t mode)
{
    return IsToFail() ? -1 : __real_mkdir(path, mode);
}

// Closes the file all the same, as the system does.
int __wrap_close(int file)
{
    const int nResult = __real_close(file);
    return IsToFail() ? -1 : nResult;
}
}
