// Errors, files, mutexes, modules, memory, text and time.
#pragma once

#include "windef.h"
#include "winerror.h"

// ---- Errors. Each thread has a last error of its own. A call that succeeds may leave it as it was.

WINBASEAPI DWORD WINAPI GetLastError(void) ZEB17_NAME(GetLastError);
WINBASEAPI void WINAPI SetLastError(DWORD error) ZEB17_NAME(SetLastError);

#define FORMAT_MESSAGE_IGNORE_INSERTS 0x00000200u
#define FORMAT_MESSAGE_FROM_SYSTEM 0x00001000u
#define FORMAT_MESSAGE_MAX_WIDTH_MASK 0x000000FFu

// Writes the text of a system error to `buffer`, which holds `size` bytes, and gives its length; 0 if that
// fails. The flags must hold FORMAT_MESSAGE_FROM_SYSTEM.
WINBASEAPI DWORD WINAPI FormatMessageA(DWORD flags, LPCVOID source, DWORD messageId, DWORD languageId,
                                       LPSTR buffer, DWORD size, va_list* arguments)
    ZEB17_NAME(FormatMessageA);
#define FormatMessage FormatMessageA

// ---- Handles.

typedef struct SECURITY_ATTRIBUTES
{
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
} SECURITY_ATTRIBUTES;
typedef SECURITY_ATTRIBUTES* LPSECURITY_ATTRIBUTES;

WINBASEAPI BOOL WINAPI CloseHandle(HANDLE handle) ZEB17_NAME(CloseHandle);

// ---- Files. Paths are UTF-8 with the slash as separator.

typedef union LARGE_INTEGER {
    struct
    {
        DWORD LowPart;
        LONG HighPart;
    } u;
    LONGLONG QuadPart;
} LARGE_INTEGER;
typedef LARGE_INTEGER* PLARGE_INTEGER;

typedef struct OVERLAPPED OVERLAPPED;
typedef OVERLAPPED* LPOVERLAPPED;

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
#define INVALID_FILE_ATTRIBUTES (ZEB17_CAST(DWORD, -1))
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
                                     DWORD flagsAndAttributes, HANDLE templateFile) ZEB17_NAME(CreateFileA);
WINBASEAPI DWORD WINAPI GetFileType(HANDLE file) ZEB17_NAME(GetFileType); // one of FILE_TYPE_XXX
WINBASEAPI BOOL WINAPI ReadFile(HANDLE file, LPVOID buffer, DWORD count, LPDWORD read, LPOVERLAPPED)
    ZEB17_NAME(ReadFile);
WINBASEAPI BOOL WINAPI WriteFile(HANDLE file, LPCVOID buffer, DWORD count, LPDWORD written, LPOVERLAPPED)
    ZEB17_NAME(WriteFile);
WINBASEAPI BOOL WINAPI SetFilePointerEx(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER position,
                                        DWORD from) ZEB17_NAME(SetFilePointerEx);
WINBASEAPI BOOL WINAPI GetFileSizeEx(HANDLE file, PLARGE_INTEGER size) ZEB17_NAME(GetFileSizeEx);
WINBASEAPI BOOL WINAPI FlushFileBuffers(HANDLE file) ZEB17_NAME(FlushFileBuffers);
WINBASEAPI DWORD WINAPI GetFinalPathNameByHandleA(HANDLE file, LPSTR path, DWORD size, DWORD flags)
    ZEB17_NAME(GetFinalPathNameByHandleA);
WINBASEAPI BOOL WINAPI DeleteFileA(LPCSTR path) ZEB17_NAME(DeleteFileA);
// With MOVEFILE_WRITE_THROUGH the directory is brought to the disk too; a failure of that is none of the
// move.
WINBASEAPI BOOL WINAPI MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags) ZEB17_NAME(MoveFileExA);
WINBASEAPI DWORD WINAPI GetFileAttributesA(LPCSTR path) ZEB17_NAME(GetFileAttributesA);
WINBASEAPI BOOL WINAPI SetFileAttributesA(LPCSTR path, DWORD attributes) ZEB17_NAME(SetFileAttributesA);
WINBASEAPI BOOL WINAPI CreateDirectoryA(LPCSTR path, LPSECURITY_ATTRIBUTES security)
    ZEB17_NAME(CreateDirectoryA);

typedef struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
} FILETIME;

typedef struct WIN32_FIND_DATAA
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
} WIN32_FIND_DATAA;
typedef WIN32_FIND_DATAA* LPWIN32_FIND_DATAA;

// The search tells attributes and names only.
WINBASEAPI HANDLE WINAPI FindFirstFileA(LPCSTR pattern, LPWIN32_FIND_DATAA data) ZEB17_NAME(FindFirstFileA);
WINBASEAPI BOOL WINAPI FindNextFileA(HANDLE search, LPWIN32_FIND_DATAA data) ZEB17_NAME(FindNextFileA);
WINBASEAPI BOOL WINAPI FindClose(HANDLE search) ZEB17_NAME(FindClose);

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

WINBASEAPI HANDLE WINAPI CreateMutexA(LPSECURITY_ATTRIBUTES security, BOOL initialOwner, LPCSTR name)
    ZEB17_NAME(CreateMutexA);
WINBASEAPI BOOL WINAPI ReleaseMutex(HANDLE mutex) ZEB17_NAME(ReleaseMutex);
WINBASEAPI DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds)
    ZEB17_NAME(WaitForSingleObject);
#define CreateMutex CreateMutexA

// ---- Modules: the program and its libraries. A DllMain that is linked in is called as the module comes and
// goes.

#define DLL_PROCESS_DETACH 0u
#define DLL_PROCESS_ATTACH 1u

#define GET_MODULE_HANDLE_EX_FLAG_PIN 1u
#define GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT 2u
#define GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS 4u

WINBASEAPI HMODULE WINAPI GetModuleHandleA(LPCSTR name) ZEB17_NAME(GetModuleHandleA);
// With the flags UNCHANGED_REFCOUNT, or with PIN and FROM_ADDRESS: the module that an address lies in then
// stays to the end of the process.
WINBASEAPI BOOL WINAPI GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE* module)
    ZEB17_NAME(GetModuleHandleExA);
#define GetModuleHandle GetModuleHandleA
#define GetModuleHandleEx GetModuleHandleExA

// ---- Memory. A handle of movable memory is the address itself.

#define GMEM_MOVEABLE 0x0002u

WINBASEAPI HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T bytes) ZEB17_NAME(GlobalAlloc);
WINBASEAPI HGLOBAL WINAPI GlobalFree(HGLOBAL memory) ZEB17_NAME(GlobalFree);
WINBASEAPI LPVOID WINAPI GlobalLock(HGLOBAL memory) ZEB17_NAME(GlobalLock);
WINBASEAPI BOOL WINAPI GlobalUnlock(HGLOBAL memory) ZEB17_NAME(GlobalUnlock);

// ---- Text.

WINBASEAPI LPSTR WINAPI lstrcpynA(LPSTR destination, LPCSTR source, int size) ZEB17_NAME(lstrcpynA);
#define lstrcpyn lstrcpynA

// ---- Time, and the ids of the process and the thread.

typedef struct SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek; // 0 Sunday
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
} SYSTEMTIME;
typedef SYSTEMTIME* LPSYSTEMTIME;

WINBASEAPI void WINAPI GetLocalTime(LPSYSTEMTIME time) ZEB17_NAME(GetLocalTime);
WINBASEAPI void WINAPI Sleep(DWORD milliseconds) ZEB17_NAME(Sleep);
WINBASEAPI DWORD WINAPI GetCurrentProcessId(void) ZEB17_NAME(GetCurrentProcessId);
WINBASEAPI DWORD WINAPI GetCurrentThreadId(void) ZEB17_NAME(GetCurrentThreadId);
