#include "TestWnd.h"

#include <gtest/gtest.h>

namespace {
constexpr COLORREF kRed = RGB(200, 10, 20);
constexpr COLORREF kBlue = RGB(1, 2, 250);

/// A drawing surface of 20 by 20 pixels, black at first.
class Drawing : public testing::Test
{
protected:
    Drawing()
    {
        CClientDC screen(nullptr);
        EXPECT_TRUE(m_dc.CreateCompatibleDC(&screen));
        EXPECT_TRUE(m_bitmap.CreateCompatibleBitmap(&screen, 20, 20));
        m_old = m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(0, 0, 20, 20, 0);
    }
    ~Drawing() override { m_dc.SelectObject(m_old); }

    CBitmap m_bitmap;
    CDC m_dc;
    CBitmap* m_old = nullptr;
};
}

TEST_F(Drawing, CallsReachTheContext)
{
    m_dc.SetBkColor(kBlue);
    m_dc.FillSolidRect(CRect(2, 2, 5, 5), kRed);
    EXPECT_EQ(m_dc.GetBkColor(), kRed) << "the fill leaves its colour";
    EXPECT_EQ(m_dc.GetPixel(4, 4), kRed);
    EXPECT_EQ(m_dc.GetPixel(5, 4), 0U);

    CPen pen(PS_SOLID, 1, kRed);
    CBrush brush(kBlue);
    m_dc.SelectObject(&pen);
    m_dc.MoveTo(1, 7);
    EXPECT_EQ(m_dc.MoveTo(2, 7), CPoint(1, 7));
    m_dc.LineTo(6, 7);
    EXPECT_EQ(m_dc.GetPixel(5, 7), kRed);
    m_dc.FrameRect(CRect(8, 8, 12, 12), &brush);
    EXPECT_EQ(m_dc.GetPixel(11, 11), kBlue);
    EXPECT_EQ(m_dc.GetPixel(10, 10), 0U);
}

TEST_F(Drawing, SelectObjectGivesTheObjectThatWasSelected)
{
    CPen first(PS_SOLID, 1, kRed);
    CPen second(PS_SOLID, 1, kBlue);
    CPen* original = m_dc.SelectObject(&first);
    ASSERT_NE(original, nullptr);
    EXPECT_EQ(m_dc.SelectObject(&second), &first);
    EXPECT_EQ(m_dc.GetCurrentPen(), &second);
    EXPECT_EQ(m_dc.SelectObject(original), &second);
    EXPECT_EQ(m_dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);
    EXPECT_EQ(m_dc.GetCurrentPen()->m_hObject, original->m_hObject);
}

TEST(DrawingObjects, OwnTheirHandle)
{
    HGDIOBJ handle = nullptr;
    {
        CFont font;
        LOGFONTA description{};
        description.lfHeight = -17;
        ASSERT_TRUE(font.CreateFontIndirect(&description));
        EXPECT_FALSE(font.CreateFontIndirect(&description)) << "it has a font already";
        handle = font.m_hObject;
        LOGFONTA read{};
        EXPECT_TRUE(font.GetLogFont(&read));
        EXPECT_EQ(read.lfHeight, -17);
        EXPECT_EQ(CFont::FromHandle(font), &font);
    }
    EXPECT_EQ(GetObjectType(handle), 0U) << "deleted with its object";

    CPen pen(PS_SOLID, 1, kRed);
    handle = pen.Detach();
    EXPECT_EQ(pen.m_hObject, nullptr);
    EXPECT_EQ(GetObjectType(handle), DWORD(OBJ_PEN)) << "given away and still there";
    EXPECT_NE(CPen::FromHandle(static_cast<HPEN>(handle)), &pen);
    CPen owner;
    EXPECT_TRUE(owner.Attach(handle));
    EXPECT_TRUE(owner.DeleteObject());
    EXPECT_FALSE(owner.DeleteObject());
    EXPECT_EQ(GetObjectType(handle), 0U);
}

// The system has so many drawing objects to give, and no more.
template <class Object, class... Arguments>
static bool ThrowsWhenNoneAreLeft(Arguments... arguments)
{
    constexpr std::size_t moreThanThereAre = 100000;
    std::vector<std::unique_ptr<Object>> all;
    try {
        while (all.size() < moreThanThereAre)
            all.push_back(std::make_unique<Object>(arguments...));
    } catch (CResourceException* exception) {
        exception->Delete();
        return !all.empty();
    }
    return false;
}

TEST(DrawingObjects, ThrowWhenTheyCannotBeMade)
{
    EXPECT_TRUE((ThrowsWhenNoneAreLeft<CPen>(PS_SOLID, 1, kRed)));
    EXPECT_TRUE((ThrowsWhenNoneAreLeft<CBrush>(kBlue)));
    EXPECT_NO_THROW(CBrush brush(kBlue)) << "once the others are released";
}

TEST(Contexts, AreReleasedWithTheirObject)
{
    TestFrame frame(WS_POPUP | WS_VISIBLE);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
    {
        CClientDC dc(&frame);
        EXPECT_EQ(CDC::FromHandle(dc), &dc);
        EXPECT_EQ(dc.GetWindow(), &frame);
    }
    for (const char* turn : {"first", "second"}) { // the system may give the same handle again
        CDC* dc = frame.GetDC();
        ASSERT_NE(dc, nullptr) << turn;
        EXPECT_NE(dc->m_hDC, nullptr) << turn;
        EXPECT_EQ(frame.ReleaseDC(dc), 1) << turn;
    }
    EXPECT_EQ(frame.ReleaseDC(nullptr), 0);

    frame.UpdateWindow(); // nothing else is left to paint
    frame.InvalidateRect(CRect(1, 2, 30, 40), FALSE);
    {
        CPaintDC paint(&frame);
        EXPECT_EQ(CRect(paint.m_ps.rcPaint), CRect(1, 2, 30, 40));
    }
    EXPECT_FALSE(GetUpdateRect(frame, nullptr, FALSE));

    CWnd none;
    try {
        CPaintDC paint(&none);
        FAIL() << "There is nothing to paint on.";
    } catch (CResourceException* exception) {
        exception->Delete();
    }
}

TEST(Rectangles, MoveGrowAndMeet)
{
    CRect rect(CPoint(10, 20), CSize(30, 40));
    EXPECT_EQ(rect, CRect(10, 20, 40, 60));
    EXPECT_EQ(rect.Size(), CSize(30, 40));
    EXPECT_EQ(rect.CenterPoint(), CPoint(25, 40));
    EXPECT_EQ(CRect(-3, -3, 0, 0).CenterPoint(), CPoint(-1, -1)) << "halved toward zero";
    rect.InflateRect(3, 1, 1, 1);
    EXPECT_EQ(rect, CRect(7, 19, 41, 61));
    rect.DeflateRect(1, 2);
    EXPECT_EQ(rect, CRect(8, 21, 40, 59));
    EXPECT_EQ(rect + CPoint(2, 3), CRect(10, 24, 42, 62));
    EXPECT_EQ(CRect(0, 0, 10, 10) & CRect(5, 5, 20, 20), CRect(5, 5, 10, 10));
    EXPECT_TRUE((CRect(0, 0, 5, 5) & CRect(5, 0, 9, 9)).IsRectEmpty());
    EXPECT_EQ(CRect(0, 0, 5, 5) | CRect(7, 1, 9, 9), CRect(0, 0, 9, 9));
    CRect inverted(9, 8, 1, 2);
    inverted.NormalizeRect();
    EXPECT_EQ(inverted, CRect(1, 2, 9, 8));
    EXPECT_TRUE(inverted.PtInRect(CPoint(1, 2)));
    EXPECT_FALSE(inverted.PtInRect(CPoint(9, 7)));
    EXPECT_EQ(CPoint(MAKELPARAM(0xFFFF, 5)), CPoint(-1, 5));
    EXPECT_EQ(CPoint(4, 6) - CPoint(1, 1), CSize(3, 5));
}
