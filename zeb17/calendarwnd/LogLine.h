// Adds one line to the log of the process, if the host has set a logger.
#pragma once

#include <AppLogger.h>

inline void LogLine(const CString& strLine)
{
    if (AppLogger::m_pInstance)
        AppLogger::m_pInstance->AddLine(strLine);
}
