// Drawing objects and contexts: who owns which handle.
#include "TestWnd.h"

#include <gtest/gtest.h>

namespace {

// A handle that is released cannot be selected.
bool IsAlive(HGDIOBJ hObject)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ hOld = ::SelectObject(dc.m_hDC, hObject);
    ::SelectObject(dc.m_hDC, hOld);
    return hOld != nullptr;
}

// A process is given so many drawing objects and no more.
template <class Object, class... Arguments>
bool ThrowsWhenNoneAreLeft(Arguments... arguments)
{
    constexpr std::size_t kMoreThanThereAre = 100000;
    std::vector<std::unique_ptr<Object>> all;
    try {
        while (all.size() < kMoreThanThereAre)
            all.push_back(std::make_unique<Object>(arguments...));
    } catch (CResourceException* pException) {
        pException->Delete();
        return !all.empty();
    }
    return false;
}

}

TEST(Contexts, SelectObjectGivesTheObjectThatWasSelected)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CPen first(PS_SOLID, 1, 1);
    CPen second(PS_SOLID, 1, 2);
    CPen* original = dc.SelectObject(&first);
    ASSERT_NE(original, nullptr);
    EXPECT_EQ(dc.SelectObject(&second), &first);
    EXPECT_EQ(dc.SelectObject(original), &second);
    EXPECT_EQ(dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);
    EXPECT_EQ(dc.SelectObject(&first)->m_hObject, original->m_hObject);
    dc.SelectObject(original);
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
        EXPECT_EQ(CFont::FromHandle(font), &font);
    }
    EXPECT_FALSE(IsAlive(handle)) << "deleted with its object";

    CPen pen(PS_SOLID, 1, 1);
    handle = pen.Detach();
    EXPECT_TRUE(IsAlive(handle)) << "given away and still there";
    EXPECT_NE(CPen::FromHandle(static_cast<HPEN>(handle)), &pen);
    CPen owner;
    EXPECT_TRUE(owner.Attach(handle));
    EXPECT_TRUE(owner.DeleteObject());
    EXPECT_FALSE(owner.DeleteObject());
    EXPECT_FALSE(IsAlive(handle));
}

TEST(DrawingObjects, ThrowWhenTheyCannotBeMade)
{
    EXPECT_TRUE((ThrowsWhenNoneAreLeft<CPen>(PS_SOLID, 1, 1)));
    EXPECT_TRUE((ThrowsWhenNoneAreLeft<CBrush>(1)));
    EXPECT_NO_THROW(CBrush brush(1)) << "once the others are released";
}

TEST(Contexts, AreReleasedWithTheirObject)
{
    TestFrame frame(WS_POPUP | WS_VISIBLE);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
    {
        CClientDC dc(&frame);
        EXPECT_EQ(CDC::FromHandle(dc), &dc);
    }
    for (const char* turn : {"first", "second"}) { // the system may give the same handle again
        CDC* dc = frame.GetDC();
        ASSERT_NE(dc, nullptr) << turn;
        EXPECT_NE(dc->m_hDC, nullptr) << turn;
        EXPECT_EQ(frame.ReleaseDC(dc), 1) << turn;
    }

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
