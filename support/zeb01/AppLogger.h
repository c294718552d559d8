// The log of the process, which the host may provide.
#pragma once

#include <afx.h>

class ZEB17_EXPORT AppLogger
{
public:
    virtual ~AppLogger() = default;

    // Adds one line to the log.
    virtual void AddLine(const CString& strLine) = 0;

    // The process's logger, or null: then nothing is logged. It is the host's, who sets it before it creates
    // windows and keeps it alive as long as it is set.
    static AppLogger* m_pInstance;
};
