// Texts on their way between the library and a host: UTF-8 there, the code page of the process here.
#pragma once

#include "zeb17.h"

#include <afx.h>

#include <string>

namespace Zeb17 {

// Gives the text in the code page. False if it is null or no UTF-8, or if the page lacks one of its
// characters.
bool FromUtf8(const char* lpszText, CString& strText);

std::string ToUtf8(const CString& strText);

// Writes a text to the caller's buffer and gives the code of that; see the head of zeb17.h.
int GiveText(const std::string& strText, char* buffer, uint32_t size, uint32_t* length) noexcept;

}
