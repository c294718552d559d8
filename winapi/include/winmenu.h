// Menus, how they are shown, and the resources that they come from.
#pragma once

#include "windef.h"

#define MAKEINTRESOURCEA(id) (ZEB17_AS(LPSTR, ZEB17_CAST(ULONG_PTR, ZEB17_CAST(WORD, id))))
#define MAKEINTRESOURCE MAKEINTRESOURCEA
#define RT_MENU MAKEINTRESOURCEA(4)

// Flags and states of items.
#define MF_BYCOMMAND 0x00000000
#define MF_BYPOSITION 0x00000400
#define MF_ENABLED 0x00000000
#define MF_GRAYED 0x00000001
#define MF_DISABLED 0x00000002
#define MF_POPUP 0x00000010
#define MF_STRING 0x00000000
#define MF_HILITE 0x00000080
#define MF_SEPARATOR 0x00000800

// DestroyMenu releases a menu and its submenus.
WINUSERAPI HMENU CreatePopupMenu(void) ZEB17_NAME(CreatePopupMenu);
WINUSERAPI HMENU LoadMenuA(HINSTANCE module, LPCSTR name) ZEB17_NAME(LoadMenuA);
WINUSERAPI BOOL DestroyMenu(HMENU menu) ZEB17_NAME(DestroyMenu);

// Items. `item` is the item's id, looked for in submenus too, or with MF_BYPOSITION its position, from 0. The
// `id` of a new MF_POPUP item is the handle of its submenu.
WINUSERAPI BOOL AppendMenuA(HMENU menu, UINT flags, UINT_PTR id, LPCSTR text) ZEB17_NAME(AppendMenuA);
WINUSERAPI BOOL RemoveMenu(HMENU menu, UINT item, UINT flags)
    ZEB17_NAME(RemoveMenu); // leaves a submenu alive
WINUSERAPI int GetMenuItemCount(HMENU menu) ZEB17_NAME(GetMenuItemCount);
WINUSERAPI UINT GetMenuItemID(HMENU menu, int position) ZEB17_NAME(GetMenuItemID);
WINUSERAPI UINT GetMenuState(HMENU menu, UINT item, UINT flags) ZEB17_NAME(GetMenuState);
WINUSERAPI HMENU GetSubMenu(HMENU menu, int position) ZEB17_NAME(GetSubMenu);
WINUSERAPI int GetMenuStringA(HMENU menu, UINT item, LPSTR text, int size, UINT flags)
    ZEB17_NAME(GetMenuStringA);
// Gives the state before, -1 if there is no such item.
WINUSERAPI BOOL EnableMenuItem(HMENU menu, UINT item, UINT flags) ZEB17_NAME(EnableMenuItem);

// Shows `menu` with its upper left corner at a place of the screen, and returns when the menu is closed:
// whether it could be shown. A chosen item reaches `owner` by a posted WM_COMMAND. `flags` has to be 0.
WINUSERAPI BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner,
                               const RECT* rect) ZEB17_NAME(TrackPopupMenu);

WINBASEAPI HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type) ZEB17_NAME(FindResourceA);

#define LoadMenu LoadMenuA
#define AppendMenu AppendMenuA
#define GetMenuString GetMenuStringA
#define FindResource FindResourceA
