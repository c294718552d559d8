// The tool tips of the test's thread.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>

// A tip; null if there is none.
inline HWND FindToolTip()
{
    const auto take = [](HWND hWnd, LPARAM found) -> BOOL {
        char szName[32] = "";
        ::GetClassNameA(hWnd, szName, sizeof szName);
        HWND& hTip = *reinterpret_cast<HWND*>(found);
        // One that is shown, if there is one.
        if (std::string(szName) == TOOLTIPS_CLASSA && !(hTip && ::IsWindowVisible(hTip)))
            hTip = hWnd;
        return TRUE;
    };
    HWND hTip = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), take, reinterpret_cast<LPARAM>(&hTip));
    return hTip;
}

// The text of the tip that is shown; empty if none is.
inline std::string GetShownToolTip()
{
    const HWND hTip = FindToolTip();
    char szText[100] = "";
    if (hTip && ::IsWindowVisible(hTip))
        ::GetWindowTextA(hTip, szText, sizeof szText);
    return szText;
}
