// The texts of the errors of the system.
#include "SystemUtils.h"

CString SystemUtils::GetLastError(unsigned long nError)
{
    const DWORD nCode = nError ? static_cast<DWORD>(nError) : ::GetLastError();
    char szText[1024];
    const DWORD nLength = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS |
                                             FORMAT_MESSAGE_MAX_WIDTH_MASK,
                                         nullptr, nCode, 0, szText, sizeof(szText), nullptr);
    CString strText(szText, static_cast<int>(nLength));
    if (strText.IsEmpty())
        strText.Format("Error %lu", static_cast<unsigned long>(nCode));
    return strText.TrimRight();
}
