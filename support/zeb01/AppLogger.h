// The log of the process, which the host may provide.
#pragma once

#include <afx.h>

class ZEB17_EXPORT AppLogger
{
public:
    virtual ~AppLogger() = default;

    // Adds one line to the log.
    virtual void AddLine(const CString& strLine) = 0;

    // The logger of the process; null, as it is at first, logs nothing. The host owns the logger, sets it
    // here before it creates windows, and sets null again before the logger ends.
    static AppLogger* m_pInstance;
};
