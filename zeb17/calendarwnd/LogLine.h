// One line for the log of the process, if it keeps one.
#pragma once

#include <AppLogger.h>

inline void LogLine(const CString& strLine)
{
    if (AppLogger::m_pInstance != nullptr)
        AppLogger::m_pInstance->AddLine(strLine);
}
