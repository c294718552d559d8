// Runs the process of DataFileWorker.cpp.
#pragma once

#include <LockHome.h>

#include <cstdlib>
#include <filesystem>
#include <string>

// With the locks of this process, and on the data directory. Gives the code with which the process ends.
inline int RunWorker(const std::filesystem::path& directory, const std::string& strArguments)
{
    const auto worker = std::filesystem::path(DATA_FILE_WORKER).make_preferred();
    std::string strCommand = '"' + worker.string() + "\" \"" + LockHome::Get() + ".\" \"" +
                             directory.string() + "\" " + strArguments;
#ifdef _WIN32
    strCommand = '"' + strCommand + '"'; // the shell takes the outer pair off
#endif
    const int nStatus = std::system(strCommand.c_str());
    return nStatus > 0xFF ? nStatus >> 8 : nStatus;
}
