// Menus, for those who show or load them.
#pragma once

#include "winmenu.h"

#include <memory>
#include <string>
#include <vector>

namespace winapi {

struct MenuItem
{
    UINT type = MF_STRING;
    UINT state = MF_ENABLED;
    UINT id = 0;
    HMENU subMenu = nullptr;
    std::string text;

    bool isSeparator() const { return (type & MF_SEPARATOR) != 0; }
    // What messages tell of the item, and GetMenuState unless the item opens a menu.
    UINT flags() const { return type | state | (subMenu ? MF_POPUP : 0); }
};

struct Menu
{
    std::vector<MenuItem> items;
};

// Null, and the last error set, if there is no such menu.
std::shared_ptr<Menu> findMenu(HMENU handle);

}
