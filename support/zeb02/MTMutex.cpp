#include "MTMutex.h"

MTMutex::MTMutex(bool bInitiallyOwned, const char* szName, SECURITY_ATTRIBUTES* pSecurity)
    : m_hMutex(CreateMutexA(pSecurity, bInitiallyOwned, szName))
{
}

MTMutex::~MTMutex()
{
    if (m_hMutex)
        CloseHandle(m_hMutex);
}

bool MTMutex::Lock()
{
    if (!m_hMutex)
        return false;
    // An abandoned mutex is held all the same; what it guards is written in one step, so it is whole.
    const DWORD nResult = WaitForSingleObject(m_hMutex, INFINITE);
    return nResult == WAIT_OBJECT_0 || nResult == WAIT_ABANDONED;
}

void MTMutex::Unlock()
{
    if (m_hMutex)
        ReleaseMutex(m_hMutex);
}
