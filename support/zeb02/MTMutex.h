// A mutex that can be shared by name between processes, and its scoped lock.
#pragma once

#include <windows.h>
#include <zeb17_export.h>

// The thread that holds the mutex may take it again, and gives it back as often as it took it. A holder that
// dies gives it back.
class ZEB17_EXPORT MTMutex
{
public:
    // Creates the mutex of that name or opens the one that exists; a null name makes an unnamed one. With
    // bInitiallyOwned a newly made one is held by the caller at once.
    //
    // If the system refuses (the name belongs to another kind of object, say), the object stands for no
    // mutex: Lock gives false at once, and its users go on without mutual exclusion.
    MTMutex(bool bInitiallyOwned, const char* szName, SECURITY_ATTRIBUTES* pSecurity);
    ~MTMutex();
    MTMutex(const MTMutex&) = delete;
    MTMutex& operator=(const MTMutex&) = delete;

    // Whether there is a mutex.
    bool IsValid() const { return m_hMutex != nullptr; }

    // Waits until the mutex is the calling thread's. False if there is no mutex or the wait failed.
    bool Lock();
    void Unlock();

private:
    HANDLE m_hMutex;
};
