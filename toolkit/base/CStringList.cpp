// A list of texts on std::vector.
#include "CStringList.h"

IMPLEMENT_DYNAMIC(CStringList, CObject)

namespace {

// A position is the index of a text, counted from 1.
POSITION ToPosition(std::size_t nNumber)
{
    return reinterpret_cast<POSITION>(nNumber);
}

}

POSITION CStringList::AddTail(const CString& strText)
{
    m_vTexts.push_back(strText);
    return ToPosition(m_vTexts.size());
}

POSITION CStringList::GetHeadPosition() const
{
    return ToPosition(m_vTexts.empty() ? 0 : 1);
}

const CString& CStringList::GetNext(POSITION& position) const
{
    const auto nNumber = reinterpret_cast<std::size_t>(position);
    position = ToPosition(nNumber < m_vTexts.size() ? nNumber + 1 : 0);
    return m_vTexts[nNumber - 1];
}

void CStringList::Serialize(CArchive& ar)
{
    if (ar.IsStoring()) {
        ar.WriteCount(m_vTexts.size());
        for (const CString& strText : m_vTexts)
            ar << strText;
        return;
    }

    for (ULONGLONG nLeft = ar.ReadCount(); nLeft > 0; --nLeft) {
        CString strText;
        ar >> strText;
        m_vTexts.push_back(std::move(strText));
    }
}
