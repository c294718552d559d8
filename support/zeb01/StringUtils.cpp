// Stored texts and tool-tip texts.
#include "StringUtils.h"

#include "StoredText.h"

CString StringUtils::DecryptText(const std::vector<int>& vText)
{
    const auto nLength = static_cast<int>(vText.size());
    CString strText;
    char* const szText = strText.GetBuffer(nLength);
    for (std::size_t i = 0; i < vText.size(); ++i)
        szText[i] = TextCipher::Decipher(vText[i], i);
    strText.ReleaseBuffer(nLength);
    return strText;
}

void StringUtils::EscapeAmpersand(CString& strText)
{
    strText.Replace("&", "&&");
}
