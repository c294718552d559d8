// The folder of the data file and of the lock, for one fuzzer alone.
#pragma once

#include <CalendarSettings.h>
#include <ZebrikUtils.h>
#include <mutexes.h>

#include <filesystem>
#include <string>

// In memory where there is such a place, since a save waits for the disk. Removed when the process ends.
class FuzzDirectory
{
public:
    FuzzDirectory()
    {
        const std::filesystem::path memory("/dev/shm");
        m_path = (std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path()) /
                 ("zeb17-fuzz-" + std::to_string(GetCurrentProcessId()));
        std::filesystem::create_directories(m_path);
        ZebrikUtils::SetDataDirectory(m_path.string().c_str());
        winapi::setMutexHome(m_path.string());
        CalendarSettings::EnableToDoList();
    }
    ~FuzzDirectory() { std::filesystem::remove_all(m_path); }

private:
    std::filesystem::path m_path;
};
