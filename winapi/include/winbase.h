// Files, modules, memory, text, time and synchronisation.
#pragma once

#include "windef.h"
#include "winerror.h"

// ---- Errors. The last error is the calling thread's; a call that succeeds may leave it as it was.

WINBASEAPI DWORD WINAPI GetLastError();
WINBASEAPI void WINAPI SetLastError(DWORD error);

#define FORMAT_MESSAGE_ALLOCATE_BUFFER 0x00000100u
#define FORMAT_MESSAGE_IGNORE_INSERTS 0x00000200u
#define FORMAT_MESSAGE_FROM_SYSTEM 0x00001000u
#define FORMAT_MESSAGE_MAX_WIDTH_MASK 0x000000FFu

// Gives the text of a system error; only FORMAT_MESSAGE_FROM_SYSTEM is served, without inserts.
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
#define OPEN_ALWAYS 4u
#define TRUNCATE_EXISTING 5u
#define FILE_ATTRIBUTE_READONLY 0x00000001u
#define FILE_ATTRIBUTE_DIRECTORY 0x00000010u
#define FILE_ATTRIBUTE_DEVICE 0x00000040u
#define FILE_ATTRIBUTE_NORMAL 0x00000080u
#define FILE_ATTRIBUTE_REPARSE_POINT 0x00000400u
#define INVALID_FILE_ATTRIBUTES (static_cast<DWORD>(-1))
#define FILE_BEGIN 0u
#define FILE_CURRENT 1u
#define FILE_END 2u
#define MOVEFILE_REPLACE_EXISTING 0x00000001u
#define MOVEFILE_WRITE_THROUGH 0x00000008u
#define FILE_NAME_NORMALIZED 0x0u
#define VOLUME_NAME_DOS 0x0u

// A file without any write permission bit counts as read-only, whoever asks. A new file takes its permissions
// from `templateFile`, where one is given. Sharing modes are not enforced.
WINBASEAPI HANDLE WINAPI CreateFileA(LPCSTR path, DWORD access, DWORD shareMode,
                                     LPSECURITY_ATTRIBUTES security, DWORD disposition,
                                     DWORD flagsAndAttributes, HANDLE templateFile);
WINBASEAPI BOOL WINAPI ReadFile(HANDLE file, LPVOID buffer, DWORD count, LPDWORD read, LPOVERLAPPED);
WINBASEAPI BOOL WINAPI WriteFile(HANDLE file, LPCVOID buffer, DWORD count, LPDWORD written, LPOVERLAPPED);
WINBASEAPI BOOL WINAPI SetFilePointerEx(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER position,
                                        DWORD from);
WINBASEAPI BOOL WINAPI GetFileSizeEx(HANDLE file, PLARGE_INTEGER size);
WINBASEAPI BOOL WINAPI FlushFileBuffers(HANDLE file);
WINBASEAPI DWORD WINAPI GetFinalPathNameByHandleA(HANDLE file, LPSTR path, DWORD size, DWORD flags);
WINBASEAPI BOOL WINAPI DeleteFileA(LPCSTR path);
WINBASEAPI BOOL WINAPI MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags);
WINBASEAPI DWORD WINAPI GetFileAttributesA(LPCSTR path);
WINBASEAPI BOOL WINAPI SetFileAttributesA(LPCSTR path, DWORD attributes);
WINBASEAPI BOOL WINAPI CreateDirectoryA(LPCSTR path, LPSECURITY_ATTRIBUTES security);
WINBASEAPI BOOL WINAPI RemoveDirectoryA(LPCSTR path);
WINBASEAPI DWORD WINAPI GetTempPathA(DWORD size, LPSTR buffer);
#define CreateFile CreateFileA
#define GetFinalPathNameByHandle GetFinalPathNameByHandleA
#define DeleteFile DeleteFileA
#define MoveFileEx MoveFileExA
#define GetFileAttributes GetFileAttributesA
#define SetFileAttributes SetFileAttributesA
#define CreateDirectory CreateDirectoryA
#define RemoveDirectory RemoveDirectoryA
#define GetTempPath GetTempPathA

// ---- Mutexes. A named one holds between the processes of one user and is freed when its holder dies.

#define INFINITE 0xFFFFFFFFu
#define WAIT_OBJECT_0 0u
#define WAIT_ABANDONED 0x80u
#define WAIT_TIMEOUT 258u
#define WAIT_FAILED 0xFFFFFFFFu

WINBASEAPI HANDLE WINAPI CreateMutexA(LPSECURITY_ATTRIBUTES security, BOOL initialOwner, LPCSTR name);
WINBASEAPI BOOL WINAPI ReleaseMutex(HANDLE mutex);
WINBASEAPI DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);
#define CreateMutex CreateMutexA

// ---- Modules. The loader calls a DllMain that is linked in, as Windows does.

#define DLL_PROCESS_DETACH 0u
#define DLL_PROCESS_ATTACH 1u
#define DLL_THREAD_ATTACH 2u
#define DLL_THREAD_DETACH 3u

#define GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT 2u

WINBASEAPI HMODULE WINAPI GetModuleHandleA(LPCSTR name);
WINBASEAPI BOOL WINAPI GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE* module);
#define GetModuleHandle GetModuleHandleA
#define GetModuleHandleEx GetModuleHandleExA

// ---- Memory. A handle of movable memory is the address itself.

#define GMEM_FIXED 0x0000u
#define GMEM_MOVEABLE 0x0002u
#define GMEM_ZEROINIT 0x0040u
#define GHND (GMEM_MOVEABLE | GMEM_ZEROINIT)
#define GPTR (GMEM_FIXED | GMEM_ZEROINIT)

WINBASEAPI HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T bytes);
WINBASEAPI HGLOBAL WINAPI GlobalFree(HGLOBAL memory);
WINBASEAPI LPVOID WINAPI GlobalLock(HGLOBAL memory);
WINBASEAPI BOOL WINAPI GlobalUnlock(HGLOBAL memory);
WINBASEAPI SIZE_T WINAPI GlobalSize(HGLOBAL memory);
WINBASEAPI HLOCAL WINAPI LocalFree(HLOCAL memory);

// ---- Text.

WINBASEAPI LPSTR WINAPI lstrcpynA(LPSTR destination, LPCSTR source, int size);
WINBASEAPI int WINAPI lstrlenA(LPCSTR text);
#define lstrcpyn lstrcpynA
#define lstrlen lstrlenA

// ---- Time, processes and threads.

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
WINBASEAPI DWORD WINAPI GetTickCount();
WINBASEAPI ULONGLONG WINAPI GetTickCount64();
WINBASEAPI void WINAPI Sleep(DWORD milliseconds);
WINBASEAPI DWORD WINAPI GetCurrentProcessId();
WINBASEAPI DWORD WINAPI GetCurrentThreadId();
