// Errors, files, mutexes, modules, memory, text and time.
#pragma once

#include "windef.h"
#include "winerror.h"

// ---- Errors. Each thread has a last error of its own. A call that succeeds may leave it as it was.

WINBASEAPI DWORD WINAPI GetLastError();
WINBASEAPI void WINAPI SetLastError(DWORD error);

#define FORMAT_MESSAGE_IGNORE_INSERTS 0x00000200u
#define FORMAT_MESSAGE_FROM_SYSTEM 0x00001000u
#define FORMAT_MESSAGE_MAX_WIDTH_MASK 0x000000FFu

// Writes the text of a system error to `buffer`, which holds `size` bytes, and gives its length; 0 if that
// fails. The flags must hold FORMAT_MESSAGE_FROM_SYSTEM.
WINBASEAPI DWORD WINAPI FormatMessageA(DWORD flags, LPCVOID source, DWORD messageId, DWORD languageId,
                                       LPSTR buffer, DWORD size, va_list* arguments);
#define FormatMessage FormatMessageA

// ---- Handles.

struct SECURITY_ATTRIBUTES
{
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;

WINBASEAPI BOOL WINAPI CloseHandle(HANDLE handle);

// ---- Files. Paths are UTF-8 with the slash as separator.

union LARGE_INTEGER {
    struct
    {
        DWORD LowPart;
        LONG HighPart;
    } u;
    LONGLONG QuadPart;
};
using PLARGE_INTEGER = LARGE_INTEGER*;

struct OVERLAPPED;
using LPOVERLAPPED = OVERLAPPED*;

#define GENERIC_READ 0x80000000u
#define GENERIC_WRITE 0x40000000u
#define FILE_SHARE_READ 0x00000001u
#define FILE_SHARE_WRITE 0x00000002u
#define FILE_SHARE_DELETE 0x00000004u
#define CREATE_NEW 1u
#define CREATE_ALWAYS 2u
#define OPEN_EXISTING 3u
#define FILE_ATTRIBUTE_READONLY 0x00000001u
#define FILE_ATTRIBUTE_DIRECTORY 0x00000010u
#define FILE_ATTRIBUTE_DEVICE 0x00000040u
#define FILE_ATTRIBUTE_NORMAL 0x00000080u
#define FILE_ATTRIBUTE_REPARSE_POINT 0x00000400u
#define INVALID_FILE_ATTRIBUTES (static_cast<DWORD>(-1))
#define FILE_TYPE_UNKNOWN 0u
#define FILE_TYPE_DISK 1u
#define FILE_TYPE_CHAR 2u
#define FILE_CURRENT 1u
#define MOVEFILE_REPLACE_EXISTING 0x00000001u
#define MOVEFILE_WRITE_THROUGH 0x00000008u
#define FILE_NAME_NORMALIZED 0x0u
#define VOLUME_NAME_DOS 0x0u

// A file without any write permission bit counts as read-only, whoever asks. CREATE_NEW gives the new file
// the owner, the group and the permissions of `templateFile`, where one is given, or fails; what is made with
// security attributes, which hold no descriptor, is the user's alone. Pipes are refused. Sharing modes are
// not enforced.
WINBASEAPI HANDLE WINAPI CreateFileA(LPCSTR path, DWORD access, DWORD shareMode,
                                     LPSECURITY_ATTRIBUTES security, DWORD disposition,
                                     DWORD flagsAndAttributes, HANDLE templateFile);
WINBASEAPI DWORD WINAPI GetFileType(HANDLE file); // one of FILE_TYPE_XXX
WINBASEAPI BOOL WINAPI ReadFile(HANDLE file, LPVOID buffer, DWORD count, LPDWORD read, LPOVERLAPPED);
WINBASEAPI BOOL WINAPI WriteFile(HANDLE file, LPCVOID buffer, DWORD count, LPDWORD written, LPOVERLAPPED);
WINBASEAPI BOOL WINAPI SetFilePointerEx(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER position,
                                        DWORD from);
WINBASEAPI BOOL WINAPI GetFileSizeEx(HANDLE file, PLARGE_INTEGER size);
WINBASEAPI BOOL WINAPI FlushFileBuffers(HANDLE file);
WINBASEAPI DWORD WINAPI GetFinalPathNameByHandleA(HANDLE file, LPSTR path, DWORD size, DWORD flags);
WINBASEAPI BOOL WINAPI DeleteFileA(LPCSTR path);
// With MOVEFILE_WRITE_THROUGH the directory is brought to the disk too; a failure of that is none of the
// move.
WINBASEAPI BOOL WINAPI MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags);
WINBASEAPI DWORD WINAPI GetFileAttributesA(LPCSTR path);
WINBASEAPI BOOL WINAPI SetFileAttributesA(LPCSTR path, DWORD attributes);
WINBASEAPI BOOL WINAPI CreateDirectoryA(LPCSTR path, LPSECURITY_ATTRIBUTES security);

struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};

struct WIN32_FIND_DATAA
{
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwReserved0;
    DWORD dwReserved1;
    char cFileName[MAX_PATH];
    char cAlternateFileName[14];
};
using LPWIN32_FIND_DATAA = WIN32_FIND_DATAA*;

// The search tells attributes and names only.
WINBASEAPI HANDLE WINAPI FindFirstFileA(LPCSTR pattern, LPWIN32_FIND_DATAA data);
WINBASEAPI BOOL WINAPI FindNextFileA(HANDLE search, LPWIN32_FIND_DATAA data);
WINBASEAPI BOOL WINAPI FindClose(HANDLE search);

#define CreateFile CreateFileA
#define FindFirstFile FindFirstFileA
#define FindNextFile FindNextFileA
#define WIN32_FIND_DATA WIN32_FIND_DATAA
#define GetFinalPathNameByHandle GetFinalPathNameByHandleA
#define DeleteFile DeleteFileA
#define MoveFileEx MoveFileExA
#define GetFileAttributes GetFileAttributesA
#define SetFileAttributes SetFileAttributesA
#define CreateDirectory CreateDirectoryA

// ---- Mutexes. A named one holds between the processes of one user and is freed when its holder dies.
// Between processes it is a lock on a file below the user's home, which a wait makes: where that cannot be,
// the wait fails, with ERROR_FILE_INVALID if something else stands in the place of the file.

#define INFINITE 0xFFFFFFFFu
#define WAIT_OBJECT_0 0u
#define WAIT_ABANDONED 0x80u
#define WAIT_TIMEOUT 258u
#define WAIT_FAILED 0xFFFFFFFFu

WINBASEAPI HANDLE WINAPI CreateMutexA(LPSECURITY_ATTRIBUTES security, BOOL initialOwner, LPCSTR name);
WINBASEAPI BOOL WINAPI ReleaseMutex(HANDLE mutex);
WINBASEAPI DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);
#define CreateMutex CreateMutexA

// ---- Modules: the program and its libraries. A DllMain that is linked in is called as the module comes and
// goes.

#define DLL_PROCESS_DETACH 0u
#define DLL_PROCESS_ATTACH 1u

#define GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT 2u

WINBASEAPI HMODULE WINAPI GetModuleHandleA(LPCSTR name);
WINBASEAPI BOOL WINAPI GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE* module);
#define GetModuleHandle GetModuleHandleA
#define GetModuleHandleEx GetModuleHandleExA

// ---- Memory. A handle of movable memory is the address itself.

#define GMEM_MOVEABLE 0x0002u

WINBASEAPI HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T bytes);
WINBASEAPI HGLOBAL WINAPI GlobalFree(HGLOBAL memory);
WINBASEAPI LPVOID WINAPI GlobalLock(HGLOBAL memory);
WINBASEAPI BOOL WINAPI GlobalUnlock(HGLOBAL memory);

// ---- Text.

WINBASEAPI LPSTR WINAPI lstrcpynA(LPSTR destination, LPCSTR source, int size);
#define lstrcpyn lstrcpynA

// ---- Time, and the ids of the process and the thread.

struct SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek; // 0 Sunday
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};
using LPSYSTEMTIME = SYSTEMTIME*;

WINBASEAPI void WINAPI GetLocalTime(LPSYSTEMTIME time);
WINBASEAPI void WINAPI Sleep(DWORD milliseconds);
WINBASEAPI DWORD WINAPI GetCurrentProcessId();
WINBASEAPI DWORD WINAPI GetCurrentThreadId();
