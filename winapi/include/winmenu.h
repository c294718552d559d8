// Menus and the resources that they come from.
#pragma once

#include "windef.h"

#define IS_INTRESOURCE(name) ((reinterpret_cast<ULONG_PTR>(name) >> 16) == 0)
#define MAKEINTRESOURCEA(id) (reinterpret_cast<LPSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id))))
#define MAKEINTRESOURCE MAKEINTRESOURCEA
#define RT_MENU MAKEINTRESOURCEA(4)

// Flags and states of items.
#define MF_BYCOMMAND 0x00000000
#define MF_BYPOSITION 0x00000400
#define MF_ENABLED 0x00000000
#define MF_GRAYED 0x00000001
#define MF_DISABLED 0x00000002
#define MF_UNCHECKED 0x00000000
#define MF_BITMAP 0x00000004
#define MF_CHECKED 0x00000008
#define MF_POPUP 0x00000010
#define MF_MENUBARBREAK 0x00000020
#define MF_MENUBREAK 0x00000040
#define MF_STRING 0x00000000
#define MF_UNHILITE 0x00000000
#define MF_HILITE 0x00000080
#define MF_OWNERDRAW 0x00000100
#define MF_SEPARATOR 0x00000800
#define MF_SYSMENU 0x00002000
#define MF_MOUSESELECT 0x00008000

// TrackPopupMenu.
#define TPM_LEFTBUTTON 0x0000
#define TPM_RIGHTBUTTON 0x0002
#define TPM_LEFTALIGN 0x0000
#define TPM_CENTERALIGN 0x0004
#define TPM_RIGHTALIGN 0x0008
#define TPM_TOPALIGN 0x0000
#define TPM_VCENTERALIGN 0x0010
#define TPM_BOTTOMALIGN 0x0020
#define TPM_NONOTIFY 0x0080
#define TPM_RETURNCMD 0x0100

// Menus are released by DestroyMenu, which releases their submenus as well.
WINUSERAPI HMENU CreateMenu();
WINUSERAPI HMENU CreatePopupMenu();
WINUSERAPI HMENU LoadMenuA(HINSTANCE module, LPCSTR name);
WINUSERAPI BOOL DestroyMenu(HMENU menu);
WINUSERAPI BOOL IsMenu(HMENU menu);

// Items. `flags` holds MF_BYPOSITION where an item is meant by its position, from 0, and not by its id; an id
// is looked for in submenus as well. `id` of a new MF_POPUP item is the submenu's handle.
WINUSERAPI BOOL AppendMenuA(HMENU menu, UINT flags, UINT_PTR id, LPCSTR text);
WINUSERAPI BOOL ModifyMenuA(HMENU menu, UINT item, UINT flags, UINT_PTR id, LPCSTR text);
WINUSERAPI BOOL RemoveMenu(HMENU menu, UINT item, UINT flags); // leaves a submenu alive
WINUSERAPI int GetMenuItemCount(HMENU menu);
WINUSERAPI UINT GetMenuItemID(HMENU menu, int position);
WINUSERAPI UINT GetMenuState(HMENU menu, UINT item, UINT flags);
WINUSERAPI HMENU GetSubMenu(HMENU menu, int position);
WINUSERAPI int GetMenuStringA(HMENU menu, UINT item, LPSTR text, int size, UINT flags);
WINUSERAPI BOOL EnableMenuItem(HMENU menu, UINT item, UINT flags);
WINUSERAPI DWORD CheckMenuItem(HMENU menu, UINT item, UINT flags);

// Shows `menu` at a place of the screen and returns when it is closed: the chosen id with TPM_RETURNCMD, else
// whether the menu could be shown; the choice then reaches `owner` by a posted WM_COMMAND.
WINUSERAPI BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner,
                               const RECT* rect);
WINUSERAPI BOOL EndMenu();

WINBASEAPI HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);

#define LoadMenu LoadMenuA
#define AppendMenu AppendMenuA
#define ModifyMenu ModifyMenuA
#define GetMenuString GetMenuStringA
#define FindResource FindResourceA
