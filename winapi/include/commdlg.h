// The dialogs of the system that ask for a printer or a file.
#pragma once

#include "windef.h"
#include "wingdi.h"

#define PD_ALLPAGES 0x00000000
#define PD_SELECTION 0x00000001
#define PD_PAGENUMS 0x00000002
#define PD_NOSELECTION 0x00000004
#define PD_NOPAGENUMS 0x00000008
#define PD_NOWARNING 0x00000080 // that there is no default printer
#define PD_RETURNDC 0x00000100
#define PD_RETURNDEFAULT 0x00000400
#define PD_USEDEVMODECOPIES 0x00040000
#define PD_HIDEPRINTTOFILE 0x00100000

#define CDERR_STRUCTSIZE 0x0001
#define CDERR_INITIALIZATION 0x0002
#define PDERR_RETDEFFAILURE 0x1003
#define PDERR_INITFAILURE 0x1006
#define PDERR_NODEVICES 0x1007
#define PDERR_NODEFAULTPRN 0x1008
#define PDERR_PRINTERNOTFOUND 0x100B

typedef UINT_PTR (*LPPRINTHOOKPROC)(HWND, UINT, WPARAM, LPARAM);
typedef UINT_PTR (*LPSETUPHOOKPROC)(HWND, UINT, WPARAM, LPARAM);

typedef struct PRINTDLGA
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
} PRINTDLGA;

typedef struct DEVNAMES
{
    WORD wDriverOffset; // offsets of texts from the beginning of the structure
    WORD wDeviceOffset;
    WORD wOutputOffset;
    WORD wDefault;
} DEVNAMES;

// Asks for a printer. FALSE when cancelled or failed; CommDlgExtendedError tells which: 0 when cancelled.
WINUSERAPI BOOL PrintDlgA(PRINTDLGA* dialog) ZEB17_NAME(PrintDlgA);
WINUSERAPI DWORD CommDlgExtendedError(void) ZEB17_NAME(CommDlgExtendedError);

#define PrintDlg PrintDlgA

// ---- File ----

#define OFN_OVERWRITEPROMPT 0x00000002
#define OFN_HIDEREADONLY 0x00000004
#define OFN_EXPLORER 0x00080000

#define FNERR_BUFFERTOOSMALL 0x3003

typedef UINT_PTR (*LPOFNHOOKPROC)(HWND, UINT, WPARAM, LPARAM);

typedef struct OPENFILENAMEA
{
    DWORD lStructSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    LPCSTR lpstrFilter; // pairs of a description and patterns parted by semicolons, each ended by a zero
                        // byte; one more ends the list
    LPSTR lpstrCustomFilter;
    DWORD nMaxCustFilter;
    DWORD nFilterIndex; // in and out, counted from 1
    LPSTR lpstrFile;    // in: the first file or an empty text; out: the whole path
    DWORD nMaxFile;     // bytes that fit there
    LPSTR lpstrFileTitle;
    DWORD nMaxFileTitle;
    LPCSTR lpstrInitialDir;
    LPCSTR lpstrTitle;
    DWORD Flags;
    WORD nFileOffset;    // out: where the name begins in the path
    WORD nFileExtension; // out: where the extension begins, 0 if there is none
    LPCSTR lpstrDefExt;  // for a name without an extension, without the dot
    LPARAM lCustData;
    LPOFNHOOKPROC lpfnHook;
    LPCSTR lpTemplateName;
    void* pvReserved;
    DWORD dwReserved;
    DWORD FlagsEx;
} OPENFILENAMEA;

// Ask for a file to open or to save to. FALSE when cancelled or failed.
WINUSERAPI BOOL GetOpenFileNameA(OPENFILENAMEA* dialog) ZEB17_NAME(GetOpenFileNameA);
WINUSERAPI BOOL GetSaveFileNameA(OPENFILENAMEA* dialog) ZEB17_NAME(GetSaveFileNameA);

#define GetOpenFileName GetOpenFileNameA
#define GetSaveFileName GetSaveFileNameA
