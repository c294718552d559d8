#include "HostLog.h"

#include <cstdio>

HostLog::HostLog(std::function<void(const CString&)> tell) : m_tell(std::move(tell))
{
    m_pInstance = this;
}

HostLog::~HostLog()
{
    m_pInstance = nullptr;
}

void HostLog::AddLine(const CString& line)
{
    std::fprintf(stderr, "zeb17_demo: %s\n", line.GetString());
    const CString words = line.Mid(line.Find('}') + 1);
    if (!words.IsEmpty())
        m_tell(words);
}
