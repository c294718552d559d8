// A mutex on the system's calls.
#include "MTMutex.h"

MTMutex::MTMutex(bool bInitiallyOwned, const char* szName, SECURITY_ATTRIBUTES* pSecurity)
    : m_hMutex(CreateMutexA(pSecurity, bInitiallyOwned, szName)), m_dwCreationError(GetLastError())
{
}

MTMutex::~MTMutex()
{
    if (m_hMutex)
        CloseHandle(m_hMutex);
}

DWORD MTMutex::Lock()
{
    if (!m_hMutex)
        return m_dwCreationError;
    switch (WaitForSingleObject(m_hMutex, kWaitLimit)) {
    case WAIT_OBJECT_0:
    case WAIT_ABANDONED: // its holder was killed; what it guards is written in one step, so it is whole
        return ERROR_SUCCESS;
    case WAIT_TIMEOUT:
        return ERROR_SHARING_VIOLATION;
    default:
        return GetLastError();
    }
}

void MTMutex::Unlock()
{
    if (m_hMutex)
        ReleaseMutex(m_hMutex);
}
