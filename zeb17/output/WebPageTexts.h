// The stored texts of the web page: its head with the style sheet, its body, and the parts of a cell.
#pragma once

#include <StoredText.h>

#include <vector>

namespace WebPageTexts {

// The head. The style sheet adapts to a dark screen, a narrow one, and paper.
inline const std::vector<int> kDoctype = StoredText<109>(
    "<!DOCTYPE html><!-- One month: the names of the weekdays and six weeks of days, as cells of "
    "a common grid -->");
inline const std::vector<int> kHtml =
    StoredText<67>(R"(<html dir="auto" translate="no" style="color-scheme: light dark; ">)");
inline const std::vector<int> kHead = StoredText<6>("<head>");
inline const std::vector<int> kMeta =
    StoredText<68>(R"(<meta charset=utf-8><meta name="viewport" content="initial-scale=1">)");
inline const std::vector<int> kTitleBegin = StoredText<16>("         <title>");
inline const std::vector<int> kTitleEnd = StoredText<8>("</title>");
inline const std::vector<int> kStyle = StoredText<23>(R"(<style type="text/css">)");
inline const std::vector<int> kSheetBegin = StoredText<4>("<!--");
inline const std::vector<int> kSheetEnd = StoredText<3>("-->");
inline const std::vector<int> kBodyRule = StoredText<38>("body { margin: 0 auto; padding: 1em; }");
inline const std::vector<int> kHeadingRule = StoredText<34>("h1 { margin: 0; font-size: 1.5em }");
inline const std::vector<int> kLightColors = StoredText<130>(
    ":root { --ink: #1c2430; --soft: #666f7d; --line: #c4c9d1; --head: #f9f49b; --name: #3d3a1c; "
    "--cell: #ffffff; --page: whitesmoke; }");
inline const std::vector<int> kDarkColors =
    StoredText<155>("@media (prefers-color-scheme: dark) { :root { --ink: #e9edf3; --soft: #8791a1; --line: "
                    "#444; --head: #4b481c; --name: #ffb; --cell: #222; --page: #111; } }");
inline const std::vector<int> kPageRule =
    StoredText<148>("body { max-width: 60rem; background: var(--page); color: var(--ink); font-family: "
                    R"(system-ui, "Segoe UI", "Liberation Sans", Helvetica, sans-serif; })");
inline const std::vector<int> kGridRule =
    StoredText<194>(".grid { display: grid; grid-template-columns: repeat(7, minmax(0, 1fr)); margin-top: "
                    "0.8125em; border: 1px solid var(--line); border-radius: 0.375em; overflow: hidden; "
                    "background: var(--cell); }");
inline const std::vector<int> kCellRule = StoredText<178>(
    ".grid > div { box-sizing: border-box; min-height: 4.5em; padding: 0.5em 0.625em; border: "
    "solid var(--line); border-width: 0 0 1px; border-inline-end-width: 1px; overflow: clip; }");
inline const std::vector<int> kNameRule = StoredText<167>(
    ".grid > .wd { min-height: unset; padding: 0.5em 0.0625em; background: var(--head); color: "
    "var(--name); font-weight: 600; text-align: center; overflow-wrap: anywhere; }");
inline const std::vector<int> kNumberRule =
    StoredText<151>(".grid > .day, .grid > .next, .grid > .prior { font-size: 1.12em; font-variant-numeric: "
                    "lining-nums tabular-nums; line-height: 1.2; text-align: start; }");
inline const std::vector<int> kOtherMonthRule = StoredText<150>(
    ".grid > .next, .grid > .prior { background: var(--page); color: var(--soft); } /* the days "
    "of the month before and of the month after it stand back */");
inline const std::vector<int> kLastRowRule = StoredText<134>(
    ".grid > .b, .grid > .br { border-bottom-width: 0; } /* below the last row comes the edge of "
    "the grid itself, and one line is enough */");
inline const std::vector<int> kLastColumnRule = StoredText<165>(
    ".grid > .r, .grid > .br { border-inline-end-width: 0; } /* beside the last column comes the "
    "edge of the grid itself, and one more line beside it would be too much */");
inline const std::vector<int> kNarrowRule =
    StoredText<149>("@media (max-width: 30rem) { body { padding: 0.5em; } .grid > div { min-height: 3.25em; "
                    "padding: 0.25em 0.375em; } .grid > .wd { font-size: 2.7vw; } }");
inline const std::vector<int> kPrintColors = StoredText<148>(
    "@media print { :root { --ink: #000; --soft: #888; --line: #000; --head: #fff; --name: #000; "
    "--cell: #fff; --page: #fff} .grid div {min-height: 5em}}");
inline const std::vector<int> kPaperRule =
    StoredText<132>("@media print { @page { margin: .5in } body { max-width: none; padding: 0 } .grid { "
                    "break-inside: avoid; print-color-adjust: exact }}");
inline const std::vector<int> kStyleEnd = StoredText<8>("</style>");
inline const std::vector<int> kHeadEnd = StoredText<7>("</head>");

// The body. HTML lets a page leave out its tags; what the user reads stands in the main part.
inline const std::vector<int> kBody = StoredText<6>("<main>");
inline const std::vector<int> kHeadingBegin = StoredText<8>("    <h1>");
inline const std::vector<int> kHeadingEnd = StoredText<5>("</h1>");
inline const std::vector<int> kGrid = StoredText<22>(R"(    <div class="grid">)");
inline const std::vector<int> kGridEnd = StoredText<10>("    </div>");
inline const std::vector<int> kBodyEnd = StoredText<7>("</main>");
inline const std::vector<int> kHtmlEnd = StoredText<7>("</html>");

// The beginnings of the cells. The marks for the last row and column and the end of the tag follow each but
// the last.
inline const std::vector<int> kNameCell = StoredText<15>(R"(<div class="wd )");
inline const std::vector<int> kDayCell = StoredText<16>(R"(<div class="day )");
inline const std::vector<int> kNextCell = StoredText<17>(R"(<div class="next )");
inline const std::vector<int> kPriorCell = StoredText<19>(R"(<div class="prior">)");

inline const std::vector<int> kCellEnd = StoredText<6>("</div>");

}
