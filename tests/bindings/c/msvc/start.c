// The host in C without any library of a compiler: its beginning and end, and what compilers call by
// themselves.
#include "host.h"

#include <windows.h>

// Large structures are set and copied by these two.
void* memset(void* to, int value, size_t size)
{
    volatile unsigned char* byte = to;
    while (size--)
        *byte++ = (unsigned char)value;
    return to;
}

void* memcpy(void* to, const void* from, size_t size)
{
    volatile unsigned char* byte = to;
    const unsigned char* source = from;
    while (size--)
        *byte++ = *source++;
    return to;
}

void say(const char* line)
{
    const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD length = 0;
    while (line[length])
        ++length;
    WriteFile(out, line, length, NULL, NULL);
    WriteFile(out, "\r\n", 2, NULL, NULL);
}

void start(void)
{
    static char directory[260];
    const DWORD length = GetEnvironmentVariableA("ZEB17_HOST_DATA", directory, sizeof directory);
    ExitProcess(length ? run_host(directory) != 0 : 2);
}
