// Searching and filling a list of texts.
#include "TextArray.h"

#include <algorithm>

void TextArray::CopyFromList(const CStringList& list)
{
    m_vTexts.clear();
    for (POSITION pos = list.GetHeadPosition(); pos;)
        m_vTexts.push_back(list.GetNext(pos));
}

std::size_t TextArray::Find(const CString& strText, bool bMatchCase, bool& bFound) const
{
    const auto equals = [&](const CString& strLine) {
        return (bMatchCase ? strLine.Compare(strText) : strLine.CompareNoCase(strText)) == 0;
    };
    const auto found = std::find_if(m_vTexts.begin(), m_vTexts.end(), equals);
    bFound = found != m_vTexts.end();
    return static_cast<std::size_t>(found - m_vTexts.begin());
}
