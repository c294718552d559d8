// Print jobs to a file, on the printer that every Linux has.
#include "SystemCalls.h"
#include "TemporaryDirectory.h"
#include "printing.h"

#include <winerror.h>

#include <QPageSize>
#include <QPrinter>

#include <gtest/gtest.h>

#include <sys/stat.h>

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

// What a dialog tells of the paper makes the same paper again, also where it has no number.
TEST(PrintingTest, AnyPaperSurvivesItsMode)
{
    for (const QPageSize& paper :
         {QPageSize(QPageSize::A0), QPageSize(QPageSize::A4), QPageSize(QPageSize::B5),
          QPageSize(QPageSize::JisB5), QPageSize(QSizeF(123, 321), QPageSize::Millimeter)}) {
        QPrinter chosen;
        chosen.setPageSize(paper);
        chosen.setPageOrientation(QPageLayout::Landscape);
        QPrinter printer;
        winapi::applyMode(printer, winapi::modeOf(chosen, kPrinter));
        const QSizeF size = printer.pageLayout().pageSize().size(QPageSize::Millimeter);
        EXPECT_NEAR(size.width(), paper.size(QPageSize::Millimeter).width(), 0.5);
        EXPECT_NEAR(size.height(), paper.size(QPageSize::Millimeter).height(), 0.5);
        EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
    }
}

TEST(PrintingTest, AJobBecomesAFileOfItsPagesUnlessItIsAborted)
{
    const TemporaryDirectory folder;
    const HDC dc = openPrinter(kA4, DMORIENT_PORTRAIT, 600);
    std::string content; // of the file that the job finds, none at first
    for (const auto end : {AbortDoc, EndDoc, AbortDoc}) {
        ASSERT_GT(start(dc, folder.PathOf("job.pdf")), 0);
        for (int page = 0; page < 2; ++page) {
            EXPECT_GT(StartPage(dc), 0);
            EXPECT_TRUE(Rectangle(dc, 100, 100, 2000, 2000));
            EXPECT_GT(EndPage(dc), 0);
        }
        EXPECT_GT(end(dc), 0);
        if (end == EndDoc) {
            content = folder.Read("job.pdf");
            EXPECT_TRUE(content.starts_with("%PDF"));
            EXPECT_NE(content.find("/Count 2"), std::string::npos);
        }
        EXPECT_EQ(content, folder.Read("job.pdf"));
        EXPECT_EQ(folder.Names().size(), content.empty() ? 0u : 1u);
    }
    DeleteDC(dc);
}

// Whether a job of one page was printed.
bool printPage(HDC dc, const std::string& path)
{
    if (start(dc, path) <= 0)
        return false;
    StartPage(dc);
    Rectangle(dc, 100, 100, 2000, 2000);
    EndPage(dc);
    return EndDoc(dc) > 0;
}

TEST(PrintingTest, WhatGoesWrongIsToldInWords)
{
    const TemporaryDirectory folder;
    std::filesystem::create_directory(folder.PathOf("folder"));
    std::filesystem::create_symlink("/no/such/folder/job.pdf", folder.PathOf("link"));
    ASSERT_EQ(0, mkfifo(folder.PathOf("pipe").c_str(), 0600));
    folder.Write("protected", "old");
    std::filesystem::permissions(folder.PathOf("protected"), std::filesystem::perms::owner_read);
    const std::vector<std::string> names = folder.Names();
    const HDC dc = openPrinter(kA4, DMORIENT_PORTRAIT, 600);
    EXPECT_LE(StartPage(dc), 0);
    EXPECT_LE(EndDoc(dc), 0);
    const struct
    {
        std::string path;
        DWORD error;
    } cases[] = {{"/no/such/folder/job.pdf", ERROR_PATH_NOT_FOUND},
                 {folder.PathOf("link"), ERROR_FILE_NOT_FOUND},
                 {folder.PathOf("folder"), ERROR_ACCESS_DENIED},
                 {folder.PathOf("pipe"), ERROR_ACCESS_DENIED},
                 {folder.PathOf("protected"), ERROR_ACCESS_DENIED},
                 {"/dev/full", ERROR_ACCESS_DENIED},
                 {"", ERROR_CANNOT_MAKE}};
    for (const auto& [path, error] : cases) {
        EXPECT_LE(start(dc, path), 0) << path;
        EXPECT_EQ(error, GetLastError()) << path;
        char text[200];
        EXPECT_GT(FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM, nullptr, error, 0, text, sizeof text, nullptr),
                  0u);
    }
    DeleteDC(dc);
    EXPECT_EQ(names, folder.Names());
    EXPECT_EQ(nullptr, winapi::createPrinterContext("no such printer", nullptr, nullptr));
}

// Each step of making the file fails in turn: the older file or the new one is there whole, and nothing
// beside it.
TEST(PrintingTest, AJobThatFailsLeavesTheOlderFile)
{
    const TemporaryDirectory folder;
    const std::string path = folder.PathOf("job.pdf");
    const HDC dc = openPrinter(kA4, DMORIENT_PORTRAIT, 600);
    folder.Write("job.pdf", "old");
    std::filesystem::permissions(path, std::filesystem::perms(0640));
    int step = 0;
    for (bool failed = true; failed;) {
        g_nCallsLeft = ++step;
        const bool printed = printPage(dc, path);
        failed = g_nCallsLeft <= 0;
        g_nCallsLeft = -1;
        const std::string content = folder.Read("job.pdf");
        EXPECT_EQ(content, printed ? content : "old") << step;
        EXPECT_EQ(printed, content.starts_with("%PDF") && content.ends_with("%%EOF\n")) << step;
        EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640)) << step;
        EXPECT_EQ(folder.Names(), std::vector<std::string>{"job.pdf"}) << step;
        folder.Write("job.pdf", "old");
    }
    EXPECT_GE(step, 8);
    DeleteDC(dc);
}
