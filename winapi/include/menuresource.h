// Menus that a module brings along. On Windows they are part of the module's file. Here the build turns their
// source into a table, which registers itself while the module loads.
#pragma once

#include "windef.h"

struct MenuResourceItem
{
    int depth;  // 0: of the menu itself; an item one deeper belongs to the popup before it
    UINT flags; // MF_...
    UINT id;
    LPCSTR text;
};

// `items` must live as long as the module that holds it. LoadMenu finds the menu in that module.
WINBASEAPI void RegisterMenuResource(UINT id, const MenuResourceItem* items, int count)
    ZEB17_NAME(RegisterMenuResource);

// Registers one menu while the module loads.
struct MenuResource
{
    template <int count>
    MenuResource(UINT id, const MenuResourceItem (&items)[count])
    {
        RegisterMenuResource(id, items, count);
    }
};
