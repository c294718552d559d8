// Numbers for messages that programs agree on by name.
#include "winuser.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <string>

// May be called before main: programs keep these numbers in constants.
UINT RegisterWindowMessageA(LPCSTR name)
{
    static auto& numbers = *new std::map<std::string, UINT>;
    if (!name || !*name) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    std::string key(name);
    std::transform(key.begin(), key.end(), key.begin(), [](unsigned char c) { return std::tolower(c); });
    constexpr UINT kFirst = 0xC000;
    return numbers.emplace(key, kFirst + static_cast<UINT>(numbers.size())).first->second;
}
