// Texts that the user reads.
#pragma once

#include <afx.h>

#include <vector>

class ZEB17_EXPORT StringUtils
{
public:
    // Turns a stored text (see StoredText.h) into its characters.
    static CString DecryptText(const std::vector<int>& vText);

    // Doubles every ampersand: a tool tip shows a doubled one as a single one, and takes a single one for the
    // mark of an underlined letter.
    static void EscapeAmpersand(CString& strText);
};
