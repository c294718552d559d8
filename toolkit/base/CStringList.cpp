#include "CStringList.h"

IMPLEMENT_DYNAMIC(CStringList, CObject)

namespace {

// A position is the index of a text, counted from 1.
POSITION ToPosition(std::size_t number)
{
    return reinterpret_cast<POSITION>(number);
}

}

POSITION CStringList::AddTail(const CString& text)
{
    m_texts.push_back(text);
    return ToPosition(m_texts.size());
}

POSITION CStringList::GetHeadPosition() const
{
    return ToPosition(m_texts.empty() ? 0 : 1);
}

const CString& CStringList::GetNext(POSITION& position) const
{
    const auto number = reinterpret_cast<std::size_t>(position);
    position = ToPosition(number < m_texts.size() ? number + 1 : 0);
    return m_texts[number - 1];
}

void CStringList::Serialize(CArchive& ar)
{
    if (ar.IsStoring()) {
        ar.WriteCount(m_texts.size());
        for (const CString& text : m_texts)
            ar << text;
        return;
    }

    for (ULONGLONG left = ar.ReadCount(); left > 0; --left) {
        CString text;
        ar >> text;
        m_texts.push_back(std::move(text));
    }
}
