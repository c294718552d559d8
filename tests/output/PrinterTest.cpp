// The pixels of the printed month.
#include "Canvas.h"
#include "RecordingLogger.h"

#include <afxext.h>

#include <CalendarWnd.h>
#include <CalendarWndPrinter.h>
#include <LocaleUtils.h>

#include <gmock/gmock.h>

#include <string>

namespace {

constexpr COLORREF kText = RGB(0, 0, 255);
constexpr COLORREF kOtherMonth = RGB(0xC4, 0xC4, 0xC4);
constexpr COLORREF kLine = RGB(0, 0, 0);
constexpr COLORREF kPaper = RGB(255, 255, 255);

// A sheet of paper in memory.
struct Sheet : Canvas
{
    Sheet() : Canvas(730, 730) {}
    void Clean() { FillSolidRect(GetRect(), kPaper); }
};

// Draws the page's content on a sheet, in a given rectangle.
class SheetPrinter : public CCalendarWndPrinter
{
public:
    SheetPrinter(Sheet& sheet, const CRect& rcPage, const DateTime& date)
        : CCalendarWndPrinter(date), m_sheet(sheet), m_rcPage(rcPage)
    {
        PrintInfo info;
        Print(&info);
        EXPECT_STREQ(info.GetErrorMsg(), "");
    }

protected:
    void InitPrintProcess() override { SetPrintDC(m_sheet.Detach()); }
    void StartPrint() override { GetPrintInfo()->m_rectDraw = m_rcPage; }
    void PrintPages() override { PrintPageContent(kText); }
    void EndPrint() override {}
    void EndPrintProcess() override { m_sheet.Attach(GetPrintDC()->Detach()); }

private:
    Sheet& m_sheet;
    CRect m_rcPage;
};

class PrinterTest : public testing::Test
{
protected:
    PrinterTest() { EXPECT_TRUE(LocaleUtils::SetLocale("en-US")); }
    ~PrinterTest() override { LocaleUtils::SetLocale(""); }

    void ExpectLine(CPoint ptMiddle, bool bHorizontal)
    {
        for (const int nAcross : {-1, 0, 1}) {
            const int x = ptMiddle.x + (bHorizontal ? 0 : nAcross);
            const int y = ptMiddle.y + (bHorizontal ? nAcross : 0);
            EXPECT_EQ(::GetPixel(sheet, x, y), nAcross == 0 ? kLine : kPaper) << x << ',' << y;
        }
    }

    // Whether the pixels inside a cell are those of this text.
    bool HasText(const CRect& rcCell, const CString& strText, COLORREF crText, UINT nFormat)
    {
        Sheet expected;
        CRect rcText = rcCell;
        expected.SetTextColor(crText);
        expected.DrawText(strText, &rcText, nFormat);
        for (int y = rcCell.top; y < rcCell.bottom; ++y)
            for (int x = rcCell.left; x < rcCell.right; ++x)
                if (sheet.GetPixel(x, y) != expected.GetPixel(x, y))
                    return false;
        return true;
    }

    void CheckCells(int nYear, int nMonth, int nFirstColumn)
    {
        SCOPED_TRACE(std::to_string(nYear) + '-' + std::to_string(nMonth));
        DateTime day(nYear, nMonth, 1, 0, 0, 0);
        day.AddDays(1 - nFirstColumn);
        for (int i = 0; i < 49; ++i) {
            const int nColumn = i % 7;
            const int x = 1 + nColumn * 100;
            const int y = 1 + i / 7 * 100;
            const CRect rcCell(x + (nColumn == 0 ? 3 : 4), y + 2, x + 99, y + 99);
            if (i < 7) {
                const int nWeekday = (LocaleUtils::GetFirstDayOfWeek() - 1 + nColumn) % 7 + 1;
                EXPECT_TRUE(HasText(rcCell, LocaleUtils::GetDayName(nWeekday, true), 0,
                                    DT_CENTER | DT_VCENTER | DT_SINGLELINE));
                continue;
            }
            const COLORREF cr = day.GetMonth() == nMonth ? kText : kOtherMonth;
            EXPECT_TRUE(HasText(rcCell, std::to_string(day.GetDay()).c_str(), cr, DT_VCENTER | DT_SINGLELINE))
                << i;
            day.AddDays(1);
        }
    }

    Sheet sheet;
};

TEST_F(PrinterTest, LinesDivideThePage)
{
    const struct
    {
        int nLength; // between the outer edges, after the frame
        int nStep;
    } cases[] = {{704, 100}, {705, 101}, {700, 100}, {706, 101}};
    for (const auto& [nLength, nStep] : cases) {
        SCOPED_TRACE(nLength);
        const CRect rcPage(10, 12, 10 + nLength + 2, 12 + nLength + 2);
        const SheetPrinter printer(sheet, rcPage, DateTime());
        EXPECT_EQ(sheet.GetPixel(10, 12), kLine);
        EXPECT_EQ(sheet.GetPixel(10 + nLength + 1, 12 + nLength + 1), kLine);
        EXPECT_EQ(sheet.GetPixel(9, 60), kPaper);
        EXPECT_EQ(sheet.GetPixel(10 + nLength + 2, 60), kPaper);
        for (int i = 1; i <= 6; ++i) {
            ExpectLine({11 + nStep / 2, 13 + i * nStep}, true);
            ExpectLine({11 + i * nStep, 13 + nStep / 2}, false);
        }
        for (int y = 20; y < 100; y += 3) // no text without a date
            for (int x = 20; x < 100; x += 3)
                ASSERT_EQ(sheet.GetPixel(x, y), kPaper);
        sheet.Clean();
    }
}

// Shapes: 28 days from column 1, 31 days from column 7, January, and a Sunday under each first day.
TEST_F(PrinterTest, CellsShowTheirDays)
{
    const struct
    {
        const char* pszLocale;
        int nYear, nMonth, nFirstColumn;
    } cases[] = {{"en-US", 2015, 2, 1}, {"en-US", 2026, 8, 7}, {"en-US", 2026, 1, 5},
                 {"nl-NL", 2026, 3, 7}, {"en-US", 2026, 3, 1}, {"ar-EG", 2026, 9, 4}};
    for (const auto& [pszLocale, nYear, nMonth, nFirstColumn] : cases) {
        ASSERT_TRUE(LocaleUtils::SetLocale(pszLocale));
        sheet.Clean();
        const SheetPrinter printer(sheet, CRect(0, 0, 702, 702), DateTime(nYear, nMonth, 20, 0, 0, 0));
        CheckCells(nYear, nMonth, nFirstColumn);
    }
}

// A name wider than its column is written smaller, and touches no line.
TEST_F(PrinterTest, LongNamesAreMadeToFit)
{
    constexpr int kStep = 20;
    const SheetPrinter printer(sheet, CRect(0, 0, 7 * kStep + 2, 702), DateTime(2026, 9, 1, 0, 0, 0));
    bool bText = false;
    for (int y = 3; y < 99; ++y)
        for (int i = 0; i < 7; ++i) {
            for (const int x : {2, kStep - 1})
                EXPECT_EQ(sheet.GetPixel(1 + i * kStep + x, y), kPaper) << x << ',' << y;
            bText = bText || sheet.GetPixel(1 + i * kStep + kStep / 2, y) != kPaper;
        }
    EXPECT_TRUE(bText);
}

class PrintedCalendar : public CCalendarWnd
{
public:
    using CCalendarWnd::OnOptionsPrint;
};

TEST_F(PrinterTest, FailureIsLoggedWithItsText)
{
    PrintedCalendar calendar;
    for (const char* pszFile : {"/no/such/folder/page.pdf", "/dev/full"}) {
        const UIPrinter::ToFile toFile(pszFile);
        calendar.OnOptionsPrint(); // without a log
        const RecordingLogger logger;
        calendar.OnOptionsPrint();
        EXPECT_THAT(logger.m_lines, testing::ElementsAre(testing::MatchesRegex(
                                        "\\{78FAA3F2-6C47-4BBA-853B-740B92F8688A\\}The.+")));
    }
}

}
