// Writing the month shown as a web page, and the command that asks the parent for its path.
#include "CalendarWnd.h"

#include "WebPageTexts.h"

#include <FileUtils.h>
#include <LocaleUtils.h>
#include <MonthBlock.h>
#include <NumberTextConv.h>
#include <StringUtils.h>
#include <TextArray.h>
#include <ZEBButton.h>

namespace {

constexpr char kRowIndent[] = "        ";
constexpr char kTagEnd[] = "\">";

using Text = std::vector<int>;

const Text* const kLinesBeforeTitle[] = {&WebPageTexts::kDoctype, &WebPageTexts::kHtml, &WebPageTexts::kHead,
                                         &WebPageTexts::kMeta};

const Text* const kLinesBeforeHeading[] = {&WebPageTexts::kStyle,       &WebPageTexts::kSheetBegin,
                                           &WebPageTexts::kBodyRule,    &WebPageTexts::kHeadingRule,
                                           &WebPageTexts::kSheetEnd,    &WebPageTexts::kSheetBegin,
                                           &WebPageTexts::kLightColors, &WebPageTexts::kDarkColors,
                                           &WebPageTexts::kPageRule,    &WebPageTexts::kGridRule,
                                           &WebPageTexts::kCellRule,    &WebPageTexts::kNameRule,
                                           &WebPageTexts::kNumberRule,  &WebPageTexts::kOtherMonthRule,
                                           &WebPageTexts::kLastRowRule, &WebPageTexts::kLastColumnRule,
                                           &WebPageTexts::kNarrowRule,  &WebPageTexts::kPrintColors,
                                           &WebPageTexts::kPaperRule,   &WebPageTexts::kSheetEnd,
                                           &WebPageTexts::kStyleEnd,    &WebPageTexts::kHeadEnd,
                                           &WebPageTexts::kBody};

const Text* const kLinesAfterGrid[] = {&WebPageTexts::kGridEnd, &WebPageTexts::kBodyEnd,
                                       &WebPageTexts::kHtmlEnd};

void AddLines(TextArray& lines, std::span<const Text* const> texts)
{
    for (const Text* pText : texts)
        lines.Add(StringUtils::DecryptText(*pText));
}

// Makes HTML show a text as it is.
CString EscapeHtml(CString strText)
{
    strText.Replace("&", "&amp;"); // first, since the texts below have ampersands of their own
    strText.Replace("<", "&lt;");
    strText.Replace(">", "&gt;");
    strText.Replace("\"", "&quot;");
    return strText;
}

CString MakeTitleLine(const Text& begin, const CString& strTitle, const Text& end)
{
    return StringUtils::DecryptText(begin) + strTitle + StringUtils::DecryptText(end);
}

CString CloseCell(const CString& strOpening, const CString& strContent)
{
    return strOpening + strContent + StringUtils::DecryptText(WebPageTexts::kCellEnd);
}

// A cell with a mark if it is in the last row, and one if it is in the last column.
CString MakeMarkedCell(const Text& opening, MonthBlock::Place place, const CString& strContent)
{
    CString strOpening = StringUtils::DecryptText(opening);
    if (place.nRow == MonthBlock::kRows)
        strOpening += 'b';
    if (place.nColumn == MonthBlock::kColumns)
        strOpening += 'r';
    return CloseCell(strOpening + kTagEnd, strContent);
}

CString MakeDayCell(MonthBlock::Cell cell, MonthBlock::Place place)
{
    const CString strDay = NumberTextConv::NumberToString(cell.nDay, false, 0, "");
    if (cell.month == MonthBlock::Month::Previous)
        return CloseCell(StringUtils::DecryptText(WebPageTexts::kPriorCell), strDay);
    const bool bNext = cell.month == MonthBlock::Month::Next;
    return MakeMarkedCell(bNext ? WebPageTexts::kNextCell : WebPageTexts::kDayCell, place, strDay);
}

CString MakeNamesRow()
{
    CString strRow = kRowIndent;
    int nWeekday = LocaleUtils::GetFirstDayOfWeek();
    for (int nColumn = 1; nColumn <= MonthBlock::kColumns; ++nColumn) {
        strRow += MakeMarkedCell(WebPageTexts::kNameCell, {1, nColumn},
                                 EscapeHtml(LocaleUtils::GetDayName(nWeekday, true)));
        nWeekday = MonthBlock::NextWeekday(nWeekday);
    }
    return strRow;
}

void AddDayRows(TextArray& lines, const MonthBlock::Shape& shape)
{
    CString strRow;
    for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell) {
        const MonthBlock::Place place = MonthBlock::PlaceOfCell(nCell);
        if (place.nColumn == 1)
            strRow = kRowIndent;
        strRow += MakeDayCell(MonthBlock::CellAt(shape, nCell), place);
        if (place.nColumn == MonthBlock::kColumns)
            lines.Add(strRow);
    }
}

}

void CCalendarWnd::OnUpdateOptionsGeneratewebpage(CCmdUI* pCmdUI)
{
    if (pCmdUI)
        pCmdUI->Enable(m_bAllowWebPage);
}

void CCalendarWnd::OnOptionsGeneratewebpage()
{
    NotifyParentWnd(CALWND_PROMPT_SAVEWEBPAGE, false);
}

bool CCalendarWnd::SaveCalendarWebPage(const CString& strPath) const
{
    const auto shape = MonthBlock::ShapeOf(m_date);
    if (!shape)
        return false;

    CString strTitle;
    if (m_pMonthYearButton)
        m_pMonthYearButton->GetWindowText(strTitle);
    strTitle = EscapeHtml(strTitle);

    TextArray lines;
    AddLines(lines, kLinesBeforeTitle);
    lines.Add(MakeTitleLine(WebPageTexts::kTitleBegin, strTitle, WebPageTexts::kTitleEnd));
    AddLines(lines, kLinesBeforeHeading);
    lines.Add(MakeTitleLine(WebPageTexts::kHeadingBegin, strTitle, WebPageTexts::kHeadingEnd));
    lines.Add(StringUtils::DecryptText(WebPageTexts::kGrid));
    lines.Add(MakeNamesRow());
    AddDayRows(lines, *shape);
    AddLines(lines, kLinesAfterGrid);
    return FileUtils::WriteFileContent(strPath, lines, false, 0);
}
