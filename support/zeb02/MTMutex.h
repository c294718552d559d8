// A mutex that processes share by its name.
#pragma once

#include <windows.h>
#include <zeb17_export.h>

// The thread that holds the mutex may take it again; it must then give it back as often. When a process ends,
// the mutexes that it holds are given back.
class ZEB17_EXPORT MTMutex
{
public:
    // How long Lock waits at most, in milliseconds: a save takes far less, and a window that waits for a
    // holder that was stopped must not hang for good.
    static constexpr DWORD kWaitLimit = 5000;

    // Creates the mutex of that name or opens the one that exists; a null name makes an unnamed one. With
    // bInitiallyOwned a newly made one is held by the caller at once. If the system refuses (the name belongs
    // to another kind of object, say), every Lock gives the reason.
    MTMutex(bool bInitiallyOwned, const char* szName, SECURITY_ATTRIBUTES* pSecurity);
    ~MTMutex();
    MTMutex(const MTMutex&) = delete;
    MTMutex& operator=(const MTMutex&) = delete;

    // Whether there is a mutex.
    bool IsValid() const { return m_hMutex != nullptr; }

    // Waits until the mutex is the calling thread's, and gives ERROR_SUCCESS. Gives ERROR_SHARING_VIOLATION
    // if somebody else still holds it after kWaitLimit, and another error of the system if there is no mutex
    // or it cannot be taken.
    DWORD Lock();
    void Unlock();

private:
    HANDLE m_hMutex;
    DWORD m_dwCreationError; // why there is no mutex
};
