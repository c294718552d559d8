// Text fields, lists and combo boxes, and the message box.
//
// All texts are plain, without markup. A position in a text counts its bytes.
#pragma once

#include "windef.h"

// ---- "EDIT" ----

#define ES_CENTER 0x0001
#define ES_RIGHT 0x0002
#define ES_MULTILINE 0x0004
#define ES_PASSWORD 0x0020
#define ES_AUTOVSCROLL 0x0040
#define ES_AUTOHSCROLL 0x0080
#define ES_READONLY 0x0800
#define ES_WANTRETURN 0x1000
#define ES_NUMBER 0x2000

#define EM_GETSEL 0x00B0
#define EM_SETSEL 0x00B1
#define EM_REPLACESEL 0x00C2
#define EM_LIMITTEXT 0x00C5
#define EM_SETREADONLY 0x00CF

#define EN_SETFOCUS 0x0100
#define EN_KILLFOCUS 0x0200
#define EN_CHANGE 0x0300
#define EN_MAXTEXT 0x0501

// ---- "LISTBOX" ----
//
// At most one row is selected. The scroll bar stands at the right edge of the client area.

#define LBS_NOTIFY 0x0001
#define LBS_OWNERDRAWFIXED 0x0010
#define LBS_HASSTRINGS 0x0040
#define LBS_NOINTEGRALHEIGHT 0x0100

#define LB_OKAY 0
#define LB_ERR (-1)
#define LB_ADDSTRING 0x0180
#define LB_INSERTSTRING 0x0181
#define LB_DELETESTRING 0x0182
#define LB_RESETCONTENT 0x0184
#define LB_SETCURSEL 0x0186
#define LB_GETCURSEL 0x0188
#define LB_GETTEXT 0x0189
#define LB_GETTEXTLEN 0x018A
#define LB_GETCOUNT 0x018B
#define LB_GETTOPINDEX 0x018E
#define LB_SETTOPINDEX 0x0197
#define LB_GETITEMRECT 0x0198
#define LB_GETITEMDATA 0x0199
#define LB_SETITEMDATA 0x019A
#define LB_GETITEMHEIGHT 0x01A1
#define LB_ITEMFROMPOINT 0x01A9

#define LBN_SELCHANGE 1
#define LBN_DBLCLK 2

// ---- "COMBOBOX" ----

#define CBS_DROPDOWNLIST 0x0003

#define CB_OKAY 0
#define CB_ERR (-1)
#define CB_ADDSTRING 0x0143
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_GETLBTEXT 0x0148
#define CB_GETLBTEXTLEN 0x0149
#define CB_RESETCONTENT 0x014B
#define CB_SETCURSEL 0x014E

#define CBN_SELCHANGE 1

// ---- The message box ----

#define MB_OK 0x00000000
#define MB_ICONEXCLAMATION 0x00000030
#define MB_ICONMASK 0x000000F0

// Shows a text, and no more than MB_OK and MB_ICONEXCLAMATION of `type`. The owner is disabled meanwhile.
// Without a caption the box says "Error". Gives IDOK; 0 when `type` asks for other buttons.
WINUSERAPI int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) ZEB17_NAME(MessageBoxA);
#define MessageBox MessageBoxA
