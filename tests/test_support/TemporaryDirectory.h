// A directory of one test's own, which goes with it.
#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

class TemporaryDirectory
{
public:
    TemporaryDirectory()
    {
        static int count = 0;
        do // the id of a process that was killed, and left a directory behind, comes again
            m_path = std::filesystem::temp_directory_path() /
                     ("zeb17-test-" + std::to_string(GetCurrentProcessId()) + "-d" + std::to_string(++count));
        while (!std::filesystem::create_directory(m_path));
    }
    ~TemporaryDirectory()
    {
        namespace fs = std::filesystem;
        std::error_code ignored;
        // Read-only files would stay.
        for (const auto& entry : fs::recursive_directory_iterator(m_path, ignored))
            fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add, ignored);
        fs::remove_all(m_path, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    std::string PathOf(const std::string& name) const { return (m_path / name).make_preferred().string(); }

    void Write(const std::string& name, const std::string& content) const
    {
        std::ofstream(m_path / name, std::ios::binary) << content;
    }

    std::string Read(const std::string& name) const
    {
        std::ifstream file(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        return names;
    }

private:
    std::filesystem::path m_path;
};
