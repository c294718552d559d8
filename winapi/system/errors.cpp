// The last error of each thread, the texts of errors, and the Windows error for each errno value.
#include "errors.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>

namespace {

thread_local DWORD lastError = ERROR_SUCCESS;

struct ErrnoError
{
    int number;
    DWORD error;
};

constexpr ErrnoError kErrnoErrors[] = {
    {EACCES, ERROR_ACCESS_DENIED},
    {EPERM, ERROR_ACCESS_DENIED},
    {EISDIR, ERROR_ACCESS_DENIED},
    {ENXIO, ERROR_ACCESS_DENIED}, // a pipe or a socket
    {ETXTBSY, ERROR_SHARING_VIOLATION},
    {EBUSY, ERROR_SHARING_VIOLATION},
    {EEXIST, ERROR_ALREADY_EXISTS},
    {ENOENT, ERROR_FILE_NOT_FOUND},
    {ENOTDIR, ERROR_PATH_NOT_FOUND},
    {ELOOP, ERROR_PATH_NOT_FOUND},
    {ENAMETOOLONG, ERROR_FILENAME_EXCED_RANGE},
    {ENOTEMPTY, ERROR_DIR_NOT_EMPTY},
    {EMFILE, ERROR_TOO_MANY_OPEN_FILES},
    {ENFILE, ERROR_TOO_MANY_OPEN_FILES},
    {ENOMEM, ERROR_NOT_ENOUGH_MEMORY},
    {ENOSPC, ERROR_DISK_FULL},
    {EDQUOT, ERROR_DISK_FULL},
    {EFBIG, ERROR_DISK_FULL},
    {EROFS, ERROR_WRITE_PROTECT},
    {EXDEV, ERROR_NOT_SAME_DEVICE},
    {EBADF, ERROR_INVALID_HANDLE},
    {EINVAL, ERROR_INVALID_PARAMETER},
    {ENOTSUP, ERROR_NOT_SUPPORTED},
    {EIO, ERROR_IO_DEVICE},
};

struct ErrorText
{
    DWORD error;
    const char* text;
};

constexpr ErrorText kErrorTexts[] = {
    {ERROR_SUCCESS, "The operation succeeded."},
    {ERROR_INVALID_FUNCTION, "The function does not exist."},
    {ERROR_FILE_NOT_FOUND, "The file was not found."},
    {ERROR_PATH_NOT_FOUND, "The directory was not found."},
    {ERROR_TOO_MANY_OPEN_FILES, "Too many files are open."},
    {ERROR_ACCESS_DENIED, "Access was denied."},
    {ERROR_INVALID_HANDLE, "The handle does not belong to an object."},
    {ERROR_NOT_ENOUGH_MEMORY, "There is not enough memory."},
    {ERROR_INVALID_DATA, "The data are not valid."},
    {ERROR_NOT_SAME_DEVICE, "The file cannot be moved to another disk."},
    {ERROR_WRITE_PROTECT, "The disk is write-protected."},
    {ERROR_WRITE_FAULT, "The device could not be written to."},
    {ERROR_READ_FAULT, "The device could not be read."},
    {ERROR_GEN_FAILURE, "A device does not work."},
    {ERROR_SHARING_VIOLATION, "Another program is using the file."},
    {ERROR_HANDLE_EOF, "The end of the file was reached."},
    {ERROR_NOT_SUPPORTED, "The request is not supported."},
    {ERROR_FILE_EXISTS, "The file exists already."},
    {ERROR_CANNOT_MAKE, "The file could not be made."},
    {ERROR_INVALID_PARAMETER, "A parameter is not valid."},
    {ERROR_DISK_FULL, "The disk is full."},
    {ERROR_INSUFFICIENT_BUFFER, "The buffer is too small."},
    {ERROR_INVALID_NAME, "The name is not valid."},
    {ERROR_MOD_NOT_FOUND, "The module was not found."},
    {ERROR_NEGATIVE_SEEK, "A place before the start of the file was asked for."},
    {ERROR_DIR_NOT_EMPTY, "The directory is not empty."},
    {ERROR_ALREADY_EXISTS, "The object exists already."},
    {ERROR_FILENAME_EXCED_RANGE, "The name is too long."},
    {ERROR_NOT_OWNER, "The mutex is held by another thread."},
    {ERROR_NO_UNICODE_TRANSLATION, "The text has characters that cannot be converted."},
    {ERROR_FILE_INVALID, "Something else stands in the place of the file."},
    {ERROR_IO_DEVICE, "The device failed."},
    {ERROR_INVALID_WINDOW_HANDLE, "The handle does not belong to a window."},
    {ERROR_CLIPBOARD_NOT_OPEN, "The clipboard is not open."},
    {ERROR_INVALID_PRINTER_NAME, "There is no printer of that name."},
    {ERROR_RESOURCE_NAME_NOT_FOUND, "The resource was not found."},
};

}

namespace winapi {

DWORD errorFromErrno(int error)
{
    const auto* found = std::find_if(std::begin(kErrnoErrors), std::end(kErrnoErrors),
                                     [error](const ErrnoError& entry) { return entry.number == error; });
    return found == std::end(kErrnoErrors) ? ERROR_GEN_FAILURE : found->error;
}

BOOL fail(DWORD error)
{
    SetLastError(error);
    return FALSE;
}

BOOL failWithErrno()
{
    return fail(errorFromErrno(errno));
}

}

using namespace winapi;

DWORD GetLastError()
{
    return lastError;
}

void SetLastError(DWORD error)
{
    lastError = error;
}

DWORD FormatMessageA(DWORD flags, LPCVOID, DWORD messageId, DWORD, LPSTR buffer, DWORD size, va_list*)
{
    if (!(flags & FORMAT_MESSAGE_FROM_SYSTEM))
        return fail(ERROR_INVALID_PARAMETER, 0u);
    const auto* found =
        std::find_if(std::begin(kErrorTexts), std::end(kErrorTexts),
                     [messageId](const ErrorText& entry) { return entry.error == messageId; });
    if (found == std::end(kErrorTexts))
        return fail(ERROR_MR_MID_NOT_FOUND, 0u);

    // The text is a line of its own, unless the caller wants no line breaks.
    std::string text = found->text;
    text += flags & FORMAT_MESSAGE_MAX_WIDTH_MASK ? " " : "\r\n";
    if (text.size() >= size)
        return fail(ERROR_INSUFFICIENT_BUFFER, 0u);
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return static_cast<DWORD>(text.size());
}
