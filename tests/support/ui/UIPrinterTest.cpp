// Print jobs that fail, and the division of a page.
#include <afxext.h>

#include <UIPrinter.h>

#include <TemporaryDirectory.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

// Prints on a context that the test gives it, and notes what was asked of it.
class TestPrinter : public UIPrinter
{
public:
    explicit TestPrinter(HDC hDC) : m_hDC(hDC) {}

    int m_nContents = 0;
    int m_nEnds = 0;

protected:
    void InitPrintProcess() override { SetPrintDC(m_hDC); }
    void PrintPageContent(COLORREF) override { ++m_nContents; }
    void EndPrintProcess() override
    {
        ++m_nEnds;
        UIPrinter::EndPrintProcess();
        EXPECT_EQ(GetPrintDC(), nullptr);
    }

private:
    HDC m_hDC;
};

TEST(UIPrinterTest, WithoutAPrinterOrItsConsentTheJobFails)
{
    const HDC hNoPrinter = ::CreateCompatibleDC(nullptr); // takes no job
    const std::pair<HDC, const char*> cases[] = {{nullptr, "The printer could not be opened. "},
                                                 {hNoPrinter, "The print job could not be started. "}};
    for (const auto& [hDC, pszError] : cases) {
        PrintInfo info;
        TestPrinter printer(hDC);
        printer.Print(&info);
        EXPECT_EQ(info.GetErrorMsg().Find(pszError), 0) << info.GetErrorMsg();
        printer.Print(nullptr);
        EXPECT_EQ(printer.m_nContents, 0);
        EXPECT_EQ(printer.m_nEnds, 1);
    }
}

// Prints a page to a file on the default printer and notes its measures.
class PagePrinter : public UIPrinter
{
public:
    CRect m_rcContent;
    CSize m_sizePaper; // in thousandths of an inch
    CSize m_sizeLine;  // of content text, in logical units
    COLORREF m_crText = CLR_INVALID;

protected:
    void PrintPageContent(COLORREF crText) override
    {
        const CDC& dc = *GetPrintDC();
        m_crText = crText;
        m_rcContent = GetPrintInfo()->m_rectDraw;
        CRect rect;
        ::DrawTextA(dc, "30", 2, &rect, DT_CALCRECT | DT_SINGLELINE);
        m_sizeLine = rect.Size();
        m_sizePaper.cx = dc.GetDeviceCaps(PHYSICALWIDTH) * 1000 / dc.GetDeviceCaps(LOGPIXELSX);
        m_sizePaper.cy = dc.GetDeviceCaps(PHYSICALHEIGHT) * 1000 / dc.GetDeviceCaps(LOGPIXELSY);
    }
};

TEST(UIPrinterTest, PageHasItsMarginsAndTextThatSuitsIt)
{
    if (!CPrintDialog().GetDefaults())
        GTEST_SKIP() << "no printer on this machine";

    const std::filesystem::path path = std::filesystem::temp_directory_path() / "zeb17_page_test.prn";
    const UIPrinter::ToFile toFile(path.string().c_str());
    PrintInfo info;
    info.SetPageTitleText("September 2026");
    info.m_rcPageMargins.SetRect(1000, 2000, 3000, 1500);
    PagePrinter printer;
    printer.Print(&info);

    EXPECT_STREQ(info.GetErrorMsg(), "");
    EXPECT_TRUE(std::filesystem::exists(path));
    std::filesystem::remove(path);
    EXPECT_EQ(printer.m_crText, RGB(0, 0, 0));
    const int nWidth = (printer.m_sizePaper.cx - 4000) * 96 / 1000;
    EXPECT_NEAR(printer.m_rcContent.Width(), nWidth, 2);
    const int nPage = (printer.m_sizePaper.cy - 3500) * 96 / 1000;
    EXPECT_LT(printer.m_rcContent.Height(), nPage - 20); // the heading takes its part
    EXPECT_GT(printer.m_rcContent.Height(), nPage - 60);
    EXPECT_LT(printer.m_sizeLine.cx, printer.m_rcContent.Width() / 7);
    EXPECT_GT(printer.m_sizeLine.cy, 7);
}

// Asks for several pages and notes where each stands; throws at the last.
class ThrowingPrinter : public UIPrinter
{
public:
    std::vector<std::pair<int, int>> m_places;

protected:
    unsigned int DoCalculatePagesAcross() override { return 2; }
    unsigned int DoCalculatePagesDown() override { return 3; }
    void PrintPageContent(COLORREF) override
    {
        m_places.emplace_back(GetPagePlace().x, GetPagePlace().y);
        if (m_places.size() == 6)
            throw std::runtime_error("of the host");
    }
};

TEST(UIPrinterTest, WhatAnOperationThrowsEndsTheJob)
{
    if (!CPrintDialog().GetDefaults())
        GTEST_SKIP() << "no printer on this machine";
    const TemporaryDirectory folder;
    const UIPrinter::ToFile toFile(folder.PathOf("page.prn").c_str());
    PrintInfo info;
    ThrowingPrinter printer;
    EXPECT_THROW(printer.Print(&info), std::runtime_error);
    const std::vector<std::pair<int, int>> places = {{0, 0}, {1, 0}, {0, 1}, {1, 1}, {0, 2}, {1, 2}};
    EXPECT_EQ(printer.m_places, places);
    EXPECT_TRUE(folder.Names().empty());
    PagePrinter next;
    next.Print(&info);
    EXPECT_STREQ(info.GetErrorMsg(), "");
    EXPECT_GT(next.m_sizePaper.cx, next.m_sizePaper.cy) << "the paper lies across";
}

}
