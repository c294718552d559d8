// Holds a mutex for as long as the object lives.
#pragma once

#include "MTMutex.h"

class ZEB17_EXPORT MTAutoLock
{
public:
    // Waits for the mutex as MTMutex::Lock does; null locks nothing.
    explicit MTAutoLock(MTMutex* pMutex)
        : m_pMutex(pMutex), m_dwError(pMutex ? pMutex->Lock() : DWORD(ERROR_SUCCESS))
    {
    }
    ~MTAutoLock()
    {
        if (m_pMutex && m_dwError == ERROR_SUCCESS)
            m_pMutex->Unlock();
    }
    MTAutoLock(const MTAutoLock&) = delete;
    MTAutoLock& operator=(const MTAutoLock&) = delete;

    // Why the mutex is not held, as MTMutex::Lock tells it; ERROR_SUCCESS if it is.
    DWORD GetError() const { return m_dwError; }

private:
    MTMutex* m_pMutex;
    DWORD m_dwError;
};
