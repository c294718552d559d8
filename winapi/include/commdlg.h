// The print dialog.
#pragma once

#include "windef.h"
#include "wingdi.h"

#define PD_ALLPAGES 0x00000000
#define PD_SELECTION 0x00000001
#define PD_PAGENUMS 0x00000002
#define PD_NOSELECTION 0x00000004
#define PD_NOPAGENUMS 0x00000008
#define PD_PRINTTOFILE 0x00000020
#define PD_NOWARNING 0x00000080
#define PD_RETURNDC 0x00000100
#define PD_RETURNDEFAULT 0x00000400
#define PD_USEDEVMODECOPIES 0x00040000
#define PD_HIDEPRINTTOFILE 0x00100000

#define CDERR_STRUCTSIZE 0x0001
#define CDERR_INITIALIZATION 0x0002
#define PDERR_RETDEFFAILURE 0x1003
#define PDERR_GETDEVMODEFAIL 0x1005
#define PDERR_INITFAILURE 0x1006
#define PDERR_NODEVICES 0x1007
#define PDERR_NODEFAULTPRN 0x1008
#define PDERR_CREATEICFAILURE 0x100A
#define PDERR_PRINTERNOTFOUND 0x100B

using LPPRINTHOOKPROC = UINT_PTR (*)(HWND, UINT, WPARAM, LPARAM);
using LPSETUPHOOKPROC = UINT_PTR (*)(HWND, UINT, WPARAM, LPARAM);

struct PRINTDLGA
{
    DWORD lStructSize;
    HWND hwndOwner;
    HGLOBAL hDevMode;  // out: a DEVMODEA, released by GlobalFree
    HGLOBAL hDevNames; // out: a DEVNAMES, released by GlobalFree
    HDC hDC;           // out with PD_RETURNDC: the printer's context, released by DeleteDC
    DWORD Flags;
    WORD nFromPage;
    WORD nToPage;
    WORD nMinPage;
    WORD nMaxPage;
    WORD nCopies;
    HINSTANCE hInstance;
    LPARAM lCustData;
    LPPRINTHOOKPROC lpfnPrintHook;
    LPSETUPHOOKPROC lpfnSetupHook;
    LPCSTR lpPrintTemplateName;
    LPCSTR lpSetupTemplateName;
    HGLOBAL hPrintTemplate;
    HGLOBAL hSetupTemplate;
};
using PRINTDLG = PRINTDLGA;
using LPPRINTDLGA = PRINTDLGA*;

struct DEVNAMES
{
    WORD wDriverOffset; // offsets of texts from the beginning of the structure
    WORD wDeviceOffset;
    WORD wOutputOffset;
    WORD wDefault;
};

// Asks for a printer. FALSE when cancelled or failed; CommDlgExtendedError tells which: 0 when cancelled.
WINUSERAPI BOOL PrintDlgA(PRINTDLGA* dialog);
WINUSERAPI DWORD CommDlgExtendedError();

#define PrintDlg PrintDlgA
