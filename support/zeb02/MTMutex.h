// A mutex that processes share by its name.
#pragma once

#include <windows.h>
#include <zeb17_export.h>

// The thread that holds the mutex may take it again; it must then give it back as often. When a process ends,
// the mutexes that it holds are given back.
class ZEB17_EXPORT MTMutex
{
public:
    // How long Lock waits at most, in milliseconds. A save takes far less; but a holder may be stopped for
    // good, and a window that waits for it must not hang for ever.
    static constexpr DWORD kWaitLimit = 5000;

    // Creates the mutex of that name, or opens the one that exists; a null name makes a mutex without a name.
    // With bInitiallyOwned the caller holds the mutex at once if it is new. If the system refuses, for
    // example because the name belongs to another kind of object, every Lock gives the reason.
    MTMutex(bool bInitiallyOwned, const char* szName, SECURITY_ATTRIBUTES* pSecurity);
    ~MTMutex();
    MTMutex(const MTMutex&) = delete;
    MTMutex& operator=(const MTMutex&) = delete;

    // Whether there is a mutex.
    bool IsValid() const { return m_hMutex != nullptr; }

    // Waits until the calling thread holds the mutex, and gives ERROR_SUCCESS. Gives ERROR_SHARING_VIOLATION
    // if somebody else still holds it after kWaitLimit, and another error of the system if there is no mutex
    // or it cannot be taken.
    DWORD Lock();
    void Unlock();

private:
    HANDLE m_hMutex;
    DWORD m_dwCreationError; // why there is no mutex
};
