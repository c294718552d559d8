// Where a test program and the processes that it starts keep the locks of named mutexes on Linux, so that
// they keep out of the user's way. On Windows they are the system's.
#pragma once

#include <string>

#ifndef _WIN32
#include <mutexes.h>
#endif

class LockHome
{
public:
    static void Set(const std::string& directory)
    {
        s_directory = directory;
#ifndef _WIN32
        winapi::setMutexHome(directory);
#endif
    }

    // To be handed on to processes.
    static const std::string& Get()
    {
        return s_directory;
    }

private:
    static inline std::string s_directory;
};
