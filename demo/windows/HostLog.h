// The log of the control in this host: a line for each thing that failed.
#pragma once

#include <AppLogger.h>

#include <functional>

class HostLog : public AppLogger
{
public:
    // `tell` gets the words that a line has for the user; lines that only mark a place in the code have none.
    explicit HostLog(std::function<void(const CString&)> tell);
    ~HostLog() override;
    HostLog(const HostLog&) = delete;
    HostLog& operator=(const HostLog&) = delete;

    void AddLine(const CString& line) override;

private:
    std::function<void(const CString&)> m_tell;
};
