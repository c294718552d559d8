// Print jobs to a file, on the printer that every Linux has.
#include <windows.h>
#include <commdlg.h>
#include <gtest/gtest.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

constexpr char pdfPrinter[] = "Print to File (PDF)";

class PrintingTest : public testing::Test
{
protected:
    PrintingTest() { std::filesystem::create_directory(m_folder); }
    ~PrintingTest() override { std::filesystem::remove_all(m_folder); }

    static HDC openPrinter(short paper, short orientation, short dpi)
    {
        DEVMODEA mode{};
        mode.dmSize = sizeof mode;
        mode.dmFields = DM_PAPERSIZE | DM_ORIENTATION | DM_PRINTQUALITY;
        mode.dmPaperSize = paper;
        mode.dmOrientation = orientation;
        mode.dmPrintQuality = dpi;
        return CreateDCA("WINSPOOL", pdfPrinter, nullptr, &mode);
    }

    static int start(HDC dc, const std::string& path)
    {
        DOCINFOA document{};
        document.cbSize = sizeof document;
        document.lpszDocName = "Test";
        document.lpszOutput = path.c_str();
        return StartDocA(dc, &document);
    }

    std::string file() const { return (m_folder / "job.pdf").string(); }

    std::string content() const
    {
        std::ifstream stream(file(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

private:
    std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() / ("printing_test_" + std::to_string(GetCurrentProcessId()));
};

}

TEST_F(PrintingTest, ThePageIsAsThePaperAndTheResolution)
{
    struct Page
    {
        short paper;
        short orientation;
        short dpi;
        double width; // inches
        double height;
    };
    for (const Page& page : {Page{DMPAPER_A4, DMORIENT_PORTRAIT, 300, 8.27, 11.69},
                             Page{7 /* Executive */, DMORIENT_PORTRAIT, 600, 7.25, 10.5},
                             Page{DMPAPER_A4, DMORIENT_LANDSCAPE, 1200, 11.69, 8.27},
                             Page{DMPAPER_LETTER, DMORIENT_PORTRAIT, 1200, 8.5, 11},
                             Page{DMPAPER_LETTER, DMORIENT_LANDSCAPE, 300, 11, 8.5}}) {
        const HDC dc = openPrinter(page.paper, page.orientation, page.dpi);
        EXPECT_EQ(page.dpi, GetDeviceCaps(dc, LOGPIXELSX));
        EXPECT_NEAR(page.width * page.dpi, GetDeviceCaps(dc, PHYSICALWIDTH), 0.02 * page.dpi);
        EXPECT_NEAR(page.height * page.dpi, GetDeviceCaps(dc, PHYSICALHEIGHT), 0.02 * page.dpi);
        EXPECT_LE(GetDeviceCaps(dc, HORZRES) + GetDeviceCaps(dc, PHYSICALOFFSETX),
                  GetDeviceCaps(dc, PHYSICALWIDTH));
        DeleteDC(dc);
    }
}

TEST_F(PrintingTest, AJobBecomesAFileOfItsPagesUnlessItIsAborted)
{
    const HDC dc = openPrinter(DMPAPER_A4, DMORIENT_PORTRAIT, 600);
    for (const auto end : {EndDoc, AbortDoc}) {
        ASSERT_GT(start(dc, file()), 0);
        for (int page = 0; page < 2; ++page) {
            EXPECT_GT(StartPage(dc), 0);
            EXPECT_TRUE(Rectangle(dc, 100, 100, 2000, 2000));
            EXPECT_GT(EndPage(dc), 0);
        }
        EXPECT_GT(end(dc), 0);
        EXPECT_EQ(end == EndDoc, content().starts_with("%PDF"));
        EXPECT_EQ(end == EndDoc, content().find("/Count 2") != std::string::npos);
    }
    EXPECT_FALSE(std::filesystem::exists(file()));
    DeleteDC(dc);
}

TEST_F(PrintingTest, WhatGoesWrongIsTold)
{
    const HDC dc = openPrinter(DMPAPER_A4, DMORIENT_PORTRAIT, 600);
    EXPECT_LE(StartPage(dc), 0);
    EXPECT_LE(EndDoc(dc), 0);
    EXPECT_LE(start(dc, "/no/such/folder/job.pdf"), 0);
    EXPECT_NE(0u, GetLastError());
    ASSERT_GT(start(dc, "/dev/full"), 0);
    StartPage(dc);
    EndPage(dc);
    EXPECT_LE(EndDoc(dc), 0);
    DeleteDC(dc);
    EXPECT_EQ(nullptr, CreateDCA("WINSPOOL", "no such printer", nullptr, nullptr));
}

TEST_F(PrintingTest, TheDefaultPrinterIsToldWithoutADialog)
{
    PRINTDLGA dialog{};
    EXPECT_FALSE(PrintDlgA(&dialog));
    EXPECT_EQ(static_cast<DWORD>(CDERR_STRUCTSIZE), CommDlgExtendedError());
    dialog.lStructSize = sizeof dialog;
    dialog.Flags = PD_RETURNDEFAULT | PD_RETURNDC;
    ASSERT_TRUE(PrintDlgA(&dialog));
    EXPECT_EQ(0u, CommDlgExtendedError());
    EXPECT_GT(GetDeviceCaps(dialog.hDC, HORZRES), 0);
    DeleteDC(dialog.hDC);
    EXPECT_FALSE(PrintDlgA(&dialog));
    EXPECT_EQ(static_cast<DWORD>(PDERR_RETDEFFAILURE), CommDlgExtendedError());
    GlobalFree(dialog.hDevMode);
    GlobalFree(dialog.hDevNames);
}
