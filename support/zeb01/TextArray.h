// An ordered list of texts.
#pragma once

#include <afx.h>

#include <cstddef>
#include <vector>

class ZEB17_EXPORT TextArray
{
public:
    // Appends a line.
    void Add(const CString& strText) { m_vTexts.push_back(strText); }

    // Replaces all lines by the texts of the list, in their order.
    void CopyFromList(const CStringList& list);

    // The index of the first line that equals the text, or the size of the array if there is none; bFound
    // becomes true or false. Without bMatchCase the letters A to Z equal a to z.
    std::size_t Find(const CString& strText, bool bMatchCase, bool& bFound) const;

    // The lines. nIndex must be below the size.
    std::size_t GetSize() const { return m_vTexts.size(); }
    const CString& GetAt(std::size_t nIndex) const { return m_vTexts[nIndex]; }

private:
    std::vector<CString> m_vTexts;
};
