// Conversion between 8-bit text and the 16-bit text that some calls of the system take.
#pragma once

#include "CString.h"

using WideText = std::basic_string<WCHAR>;
using WideTextView = std::basic_string_view<WCHAR>;

// nCodePage is that of the 8-bit text. A character that the other form cannot express becomes a substitute
// character, such as a question mark.
WideText ToWide(const CString& strText, UINT nCodePage = CP_ACP);
// Gives nothing for bytes that are no text in the active code page.
WideText ToWideIfValid(const CString& strText);
CString FromWide(WideTextView strWide, UINT nCodePage = CP_ACP);
