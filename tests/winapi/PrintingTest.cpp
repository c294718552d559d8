// Print jobs to a file, on the printer that every Linux has.
#include "TemporaryDirectory.h"
#include "printing.h"

#include <gtest/gtest.h>

namespace {

constexpr short kLetter = 1; // sizes of paper
constexpr short kExecutive = 7;
constexpr short kA4 = 9;
constexpr char kPrinter[] = "Print to File (PDF)";

HDC openPrinter(short paper, short orientation, short dpi)
{
    DEVMODEA mode{};
    mode.dmSize = sizeof mode;
    mode.dmFields = DM_PAPERSIZE | DM_ORIENTATION | DM_PRINTQUALITY;
    mode.dmPaperSize = paper;
    mode.dmOrientation = orientation;
    mode.dmPrintQuality = dpi;
    return winapi::createPrinterContext(kPrinter, nullptr, &mode);
}

int start(HDC dc, const std::string& path)
{
    DOCINFOA document{};
    document.cbSize = sizeof document;
    document.lpszDocName = "Test";
    document.lpszOutput = path.c_str();
    return StartDocA(dc, &document);
}

}

TEST(PrintingTest, ThePageIsAsThePaperAndTheResolution)
{
    struct Page
    {
        short paper;
        short orientation;
        short dpi;
        double width; // inches
        double height;
    };
    for (const Page& page : {Page{kA4, DMORIENT_PORTRAIT, 300, 8.27, 11.69},
                             Page{kExecutive, DMORIENT_PORTRAIT, 600, 7.25, 10.5},
                             Page{kA4, DMORIENT_LANDSCAPE, 1200, 11.69, 8.27},
                             Page{kLetter, DMORIENT_LANDSCAPE, 300, 11, 8.5}}) {
        const HDC dc = openPrinter(page.paper, page.orientation, page.dpi);
        EXPECT_EQ(page.dpi, GetDeviceCaps(dc, LOGPIXELSX));
        EXPECT_NEAR(page.width * page.dpi, GetDeviceCaps(dc, PHYSICALWIDTH), 0.02 * page.dpi);
        EXPECT_NEAR(page.height * page.dpi, GetDeviceCaps(dc, PHYSICALHEIGHT), 0.02 * page.dpi);
        EXPECT_LE(GetDeviceCaps(dc, HORZRES) + GetDeviceCaps(dc, PHYSICALOFFSETX),
                  GetDeviceCaps(dc, PHYSICALWIDTH));
        DeleteDC(dc);
    }
}

TEST(PrintingTest, AJobBecomesAFileOfItsPagesUnlessItIsAborted)
{
    const TemporaryDirectory folder;
    const HDC dc = openPrinter(kA4, DMORIENT_PORTRAIT, 600);
    for (const auto end : {EndDoc, AbortDoc}) {
        ASSERT_GT(start(dc, folder.PathOf("job.pdf")), 0);
        for (int page = 0; page < 2; ++page) {
            EXPECT_GT(StartPage(dc), 0);
            EXPECT_TRUE(Rectangle(dc, 100, 100, 2000, 2000));
            EXPECT_GT(EndPage(dc), 0);
        }
        EXPECT_GT(end(dc), 0);
        const std::string content = folder.Read("job.pdf");
        EXPECT_EQ(end == EndDoc, content.starts_with("%PDF"));
        EXPECT_EQ(end == EndDoc, content.find("/Count 2") != std::string::npos);
    }
    EXPECT_TRUE(folder.Names().empty());
    DeleteDC(dc);
}

TEST(PrintingTest, WhatGoesWrongIsTold)
{
    const HDC dc = openPrinter(kA4, DMORIENT_PORTRAIT, 600);
    EXPECT_LE(StartPage(dc), 0);
    EXPECT_LE(EndDoc(dc), 0);
    EXPECT_LE(start(dc, "/no/such/folder/job.pdf"), 0);
    EXPECT_NE(0u, GetLastError());
    ASSERT_GT(start(dc, "/dev/full"), 0);
    StartPage(dc);
    EndPage(dc);
    EXPECT_LE(EndDoc(dc), 0);
    DeleteDC(dc);
    EXPECT_EQ(nullptr, winapi::createPrinterContext("no such printer", nullptr, nullptr));
}
