// How the rows of this host's lists look.
#pragma once

#include <afxwin.h>

constexpr int kListRowHeight = 22;

// A list box whose rows are drawn by its object.
constexpr DWORD kListStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_VSCROLL |
                             LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

class ListRow
{
public:
    // Draws the background of the row, selected or not.
    explicit ListRow(const DRAWITEMSTRUCT& item);
    // Ends the row with the frame of the focus.
    ~ListRow();
    ListRow(const ListRow&) = delete;
    ListRow& operator=(const ListRow&) = delete;

    // `left` counts from the row's left edge.
    void DrawCheckBox(int left, bool checked);
    void DrawSwatch(int left, COLORREF color);
    void DrawText(int left, const CString& text, COLORREF color);

private:
    CRect FrameSquare(int left, COLORREF color);

    CDC& m_dc;
    const CRect m_rect;
    const bool m_hasFocus;
};
