// An ordered list of texts.
#pragma once

#include "CArchive.h"

#include <vector>

// The place of a text in a list; null stands for no place.
struct PositionTag;
using POSITION = PositionTag*;

class ZEB17_EXPORT CStringList : public CObject
{
    DECLARE_DYNAMIC(CStringList)
public:
    CStringList() = default;

    POSITION AddTail(const CString& strText);
    void RemoveAll() { m_vTexts.clear(); }
    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_vTexts.size()); }
    bool IsEmpty() const { return m_vTexts.empty(); }

    // GetHeadPosition gives the place of the first text, null in an empty list. GetNext gives the text at a
    // place and moves the place on, to null after the last text:
    //
    //     for (POSITION pos = list.GetHeadPosition(); pos;)
    //         Use(list.GetNext(pos));
    POSITION GetHeadPosition() const;
    const CString& GetNext(POSITION& position) const;

    // Stores the number of texts and then the texts, or loads as many and appends them to the list.
    void Serialize(CArchive& ar) override;

private:
    std::vector<CString> m_vTexts;
};
