// A disk on which one operation fails.
#pragma once

#include <FileFault.h>

class FullDisk
{
public:
    // Lets the operation of that number fail, from 1 on, for the life of the object; 0 lets none fail yet.
    explicit FullDisk(int operation)
    {
        s_operationsLeft = operation;
        g_fileFault = &FailAtLast;
    }
    ~FullDisk() { g_fileFault = nullptr; }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    static inline FileOperation s_failed{};
    static inline int s_operationsLeft = 0;

private:
    static DWORD FailAtLast(FileOperation operation)
    {
        if (--s_operationsLeft != 0)
            return ERROR_SUCCESS;
        s_failed = operation;
        return ERROR_DISK_FULL;
    }
};
