// The common controls as objects.
#include "TestWnd.h"

#include <gtest/gtest.h>

namespace {

class OwnRows : public CListBox
{
public:
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 33; }
    void DrawItem(LPDRAWITEMSTRUCT item) override { drawn.push_back(std::to_string(item->itemData)); }

    Log drawn;
};

TEST(Control, AListMeasuresAndDrawsItsOwnRows)
{
    TestFrame frame(WS_POPUP | WS_VISIBLE);
    OwnRows list;
    const DWORD ownRows = LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | ownRows, CRect(0, 0, 90, 90), &frame, 3));
    list.SetItemData(list.AddString("first"), 5);
    list.SetItemData(list.AddString("second"), 6);
    CRect second;
    list.GetItemRect(1, &second);
    EXPECT_EQ(second.top, 33);
    BOOL outside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(CPoint(5, 40), outside), 1u);
    EXPECT_FALSE(outside);
    CString text;
    list.GetText(1, text);
    EXPECT_STREQ(text, "second");
    list.GetText(2, text);
    EXPECT_STREQ(text, "");

    list.drawn.clear();
    list.RedrawWindow();
    EXPECT_EQ(list.drawn, (Log{"5", "6"}));
}

TEST(Control, FieldsAndCombosGiveTheirTexts)
{
    TestFrame frame;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | ES_AUTOHSCROLL, CRect(0, 0, 90, 20), &frame, 3));
    edit.SetWindowText("one two");
    edit.SetSel(4, -1);
    edit.ReplaceSel("three");
    edit.SetSel(1, 3);
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(std::pair(start, end), std::pair(1, 3));
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(text, "one three");

    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 30, 90, 100), &frame, 4));
    combo.AddString("a");
    combo.AddString("bc");
    EXPECT_EQ(combo.SetCurSel(1), 1);
    combo.GetLBText(combo.GetCurSel(), text);
    EXPECT_STREQ(text, "bc");
}

}
