// The clipboard.
#pragma once

#include <afx.h>

class ZEB17_EXPORT ClipboardUtils
{
public:
    // Puts the text on the clipboard in place of what is there. False if another program holds the clipboard.
    static bool CopyTextToClipboard(const CString& strText);
};
