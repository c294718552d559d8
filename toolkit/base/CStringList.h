// An ordered list of texts.
#pragma once

#include "CArchive.h"

#include <vector>

// A place in a list; null behind the end.
struct PositionTag;
using POSITION = PositionTag*;

class ZEB17_EXPORT CStringList : public CObject
{
    DECLARE_DYNAMIC(CStringList)
public:
    CStringList() = default;

    POSITION AddTail(const CString& text);
    void RemoveAll() { m_texts.clear(); }
    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_texts.size()); }
    bool IsEmpty() const { return m_texts.empty(); }

    // for (POSITION pos = list.GetHeadPosition(); pos;) use(list.GetNext(pos));
    POSITION GetHeadPosition() const;
    const CString& GetNext(POSITION& position) const;

    // A count, then so many texts. Loading appends to the list.
    void Serialize(CArchive& ar) override;

private:
    std::vector<CString> m_texts;
};
