// Holds a mutex for a scope.
#pragma once

#include "MTMutex.h"

class ZEB17_EXPORT MTAutoLock
{
public:
    // Waits for the mutex; null locks nothing.
    explicit MTAutoLock(MTMutex* pMutex) : m_pMutex(pMutex && pMutex->Lock() ? pMutex : nullptr) {}
    ~MTAutoLock()
    {
        if (m_pMutex)
            m_pMutex->Unlock();
    }
    MTAutoLock(const MTAutoLock&) = delete;
    MTAutoLock& operator=(const MTAutoLock&) = delete;

private:
    MTMutex* m_pMutex; // null when nothing is held
};
