// Where the lock files of named mutexes lie.
#pragma once

#include <string>

namespace winapi {

// For tests: takes that directory for the user's home, so that the locks of a test keep out of the user's
// way. The empty name stands for the home that the system's list of users tells. To be called while no named
// mutex is held.
void setMutexHome(const std::string& directory);

}
