// The log of the library, kept line by line for as long as the object lives.
#pragma once

#include <AppLogger.h>

#include <string>
#include <vector>

class RecordingLogger : public AppLogger
{
public:
    RecordingLogger() { m_pInstance = this; }
    ~RecordingLogger() override { m_pInstance = nullptr; }
    void AddLine(const CString& strLine) override { m_lines.emplace_back(strLine); }

    std::vector<std::string> m_lines;
};
