// The user's home as the system knows it.
#pragma once

#include <string>

namespace winapi {

// The home of the user that the process acts for, from the system's list of users and not from the
// environment. Empty if the user is not in the list.
std::string homeOfUser();

}
