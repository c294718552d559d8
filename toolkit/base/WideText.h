// Between 8-bit text and the 16-bit text of some calls.
#pragma once

#include "CString.h"

using WideText = std::basic_string<WCHAR>;
using WideTextView = std::basic_string_view<WCHAR>;

// The 8-bit text is in the code page; what the other form cannot express becomes a substitute character.
WideText ToWide(const CString& text, UINT codePage = CP_ACP);
CString FromWide(WideTextView wide, UINT codePage = CP_ACP);
