#include "EntryEditor.h"

#include <LocaleUtils.h>
#include <NumberTextConv.h>

#include <algorithm>
#include <cstdlib>

namespace {

enum ControlId : UINT
{
    FirstComboId = 300,
    LastComboId = 308,
    DescId,
    YearId,
    WorkingDayId,
    ColorId,
    ShowId,
    LabelId,
};

constexpr int kMargin = 14;
constexpr int kGap = 8;
constexpr int kLabelWidth = 84;
constexpr int kFieldWidth = 150;
constexpr int kRowHeight = 32;
constexpr int kControlHeight = 24;
constexpr int kListHeight = 220; // of a combo box with its list
constexpr int kWordsHeight = 40;
constexpr int kButtonWidth = 84;
constexpr int kClientWidth = 2 * kMargin + kLabelWidth + 2 * kFieldWidth + kGap;
constexpr int kClientHeight = 2 * kMargin + 8 * kRowHeight + kWordsHeight + kGap + kControlHeight;
constexpr int kMaxDesc = 100;
constexpr int kMaxYear = 9999;
const CRect kAnywhere(0, 0, 10, kListHeight); // Arrange gives each control its place

constexpr CalendarSettings::Group kUserGroups[] = {CalendarSettings::GroupCustom,
                                                   CalendarSettings::GroupToDo};

CString TextOf(const CWnd& control)
{
    CString text;
    control.GetWindowText(text);
    return text.Trim();
}

// The place of a value in a table of choices; the first one's if it isn't there.
int IndexOf(std::span<const DeskChoice> choices, int value)
{
    const auto found = std::ranges::find(choices, value, &DeskChoice::value);
    return found == choices.end() ? 0 : static_cast<int>(found - choices.begin());
}

}

BEGIN_MESSAGE_MAP(EntryEditor, ModalWindow)
    ON_EN_CHANGE(DescId, &EntryEditor::OnChanged)
    ON_EN_CHANGE(YearId, &EntryEditor::OnChanged)
    ON_BN_CLICKED(WorkingDayId, &EntryEditor::OnChanged)
    ON_BN_CLICKED(ShowId, &EntryEditor::OnChanged)
    ON_BN_CLICKED(ColorId, &EntryEditor::OnColor)
    ON_BN_CLICKED(IDOK, &EntryEditor::OnOK)
    ON_BN_CLICKED(IDCANCEL, &EntryEditor::OnCancel)
    ON_CONTROL_RANGE(CBN_SELCHANGE, FirstComboId, LastComboId, &EntryEditor::OnComboChanged)
END_MESSAGE_MAP()

EntryEditor::EntryEditor(const CalendarDateEntry& entry, CalendarSettings::Group group, bool isNew)
    : m_entry(entry), m_group(group), m_isNew(isNew)
{
}

bool EntryEditor::Edit(CWnd& owner, CFont& font)
{
    if (!CreateModal(m_isNew ? "New entry" : "Edit entry", CSize(kClientWidth, kClientHeight), owner) ||
        !CreateControls(font))
        return false;
    FillChoices();
    ShowEntry();
    m_isReady = true;
    ReadControls();
    return RunModal() == IDOK;
}

std::array<EntryEditor::Row, EntryEditor::kRows> EntryEditor::Rows()
{
    using enum RulePart;
    const RuleForm& form = Form();
    return {{
        {"&Description", &m_desc},
        {"&List", &m_list},
        {"&Falls on", &m_rule},
        {"&Weekday", &m_nearDay, form.Has(SignedDayOfWeek), &m_nearSide},
        {"W&hich", &m_occurrence, form.Has(Occurrence), &m_dayOfWeek},
        {"&Month", &m_month, true, &m_day, form.Has(Day)},
        {"", &m_workingDay, form.rule == DateEntry::RULE_DAY},
        {"&Years", &m_years, true, &m_year, NeedsYear()},
        {"&Colour", &m_color, true, &m_show},
    }};
}

// The controls are created in the order in which Tab goes through them, each label before what it names.
bool EntryEditor::CreateControls(CFont& font)
{
    size_t label = 0;
    for (const Row& row : Rows()) {
        CStatic& text = m_labels[label++];
        if (!text.Create(row.label, WS_CHILD | WS_VISIBLE, kAnywhere, this, LabelId) ||
            !CreateControl(*row.first) || (row.second != nullptr && !CreateControl(*row.second)))
            return false;
        text.SetFont(&font);
        row.first->SetFont(&font);
        if (row.second != nullptr)
            row.second->SetFont(&font);
    }
    constexpr DWORD button = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    if (!m_words.Create("", WS_CHILD | WS_VISIBLE | SS_NOPREFIX, kAnywhere, this, LabelId) ||
        !m_ok.Create("OK", button | BS_DEFPUSHBUTTON, kAnywhere, this, IDOK) ||
        !m_cancel.Create("Cancel", button, kAnywhere, this, IDCANCEL))
        return false;
    for (CWnd* control : std::initializer_list<CWnd*>{&m_words, &m_ok, &m_cancel})
        control->SetFont(&font);
    return true;
}

bool EntryEditor::CreateControl(CWnd& control)
{
    constexpr DWORD style = WS_CHILD | WS_TABSTOP;
    constexpr DWORD edit = style | WS_BORDER | ES_AUTOHSCROLL;
    if (&control == &m_desc)
        return m_desc.Create(edit, kAnywhere, this, DescId) != FALSE;
    if (&control == &m_year)
        return m_year.Create(edit | ES_NUMBER, kAnywhere, this, YearId) != FALSE;
    if (&control == &m_workingDay)
        return m_workingDay.Create("On the &nearest working day", style | BS_AUTOCHECKBOX, kAnywhere, this,
                                   WorkingDayId) != FALSE;
    if (&control == &m_color)
        return m_color.Create("", style | BS_OWNERDRAW, kAnywhere, this, ColorId) != FALSE;
    if (&control == &m_show)
        return m_show.Create("&Shown in the calendar", style | BS_AUTOCHECKBOX, kAnywhere, this, ShowId) !=
               FALSE;
    CComboBox* const combos[] = {&m_list,      &m_rule,  &m_nearDay, &m_nearSide, &m_occurrence,
                                 &m_dayOfWeek, &m_month, &m_day,     &m_years};
    const auto place = static_cast<UINT>(std::ranges::find(combos, &control) - combos);
    return combos[place]->Create(style | WS_VSCROLL | CBS_DROPDOWNLIST, kAnywhere, this,
                                 FirstComboId + place) != FALSE;
}

void EntryEditor::FillChoices()
{
    for (const CalendarSettings::Group group : kUserGroups)
        m_list.AddString(CalendarSettings::GetName(group));
    for (const DeskChoice& kind : deskRuleKinds)
        m_rule.AddString(kind.name);
    for (int day = 1; day <= 7; ++day) {
        m_nearDay.AddString(LocaleUtils::GetDayName(day, false));
        m_dayOfWeek.AddString(LocaleUtils::GetDayName(day, false));
    }
    m_nearSide.AddString("before");
    m_nearSide.AddString("after");
    for (const DeskChoice& occurrence : deskOccurrences)
        m_occurrence.AddString(occurrence.name);
    for (int month = 1; month <= 12; ++month)
        m_month.AddString(LocaleUtils::GetMonthName(month, false));
    for (int day = 1; day <= 31; ++day)
        m_day.AddString(NumberTextConv::NumberToString(day, false, 0, ""));
    for (const DeskChoice& limit : deskYears)
        m_years.AddString(limit.name);
}

void EntryEditor::ShowEntry()
{
    m_desc.SetLimitText(kMaxDesc);
    m_desc.SetWindowText(m_entry.m_strDesc);
    m_list.SetCurSel(m_group == CalendarSettings::GroupToDo ? 1 : 0);
    m_list.EnableWindow(m_isNew);

    const auto forms = RuleForms();
    const auto form =
        std::ranges::find_if(forms, [&](const RuleForm& one) { return one.rule == m_entry.m_nRuleWord; });
    m_rule.SetCurSel(form == forms.end() ? 0 : static_cast<int>(form - forms.begin()));
    for (CComboBox* combo : {&m_nearDay, &m_nearSide, &m_occurrence, &m_dayOfWeek, &m_month, &m_day})
        combo->SetCurSel(0);
    for (size_t i = 0; i < Form().parts.size(); ++i)
        ShowPart(Form().parts[i], m_entry.m_anRule[i]);

    m_workingDay.SetCheck(m_entry.m_bRuleFlag);
    m_years.SetCurSel(IndexOf(deskYears, m_entry.m_nKind));
    m_year.SetLimitText(4);
    if (NeedsYear())
        m_year.SetWindowText(NumberTextConv::NumberToString(m_entry.m_nStartYear, false, 0, ""));
    m_color.SetColor(m_entry.GetColor());
    m_show.SetCheck(m_entry.GetShow());
}

void EntryEditor::ShowPart(RulePart part, int value)
{
    switch (part) {
    case RulePart::Day:
        m_day.SetCurSel(value - 1);
        break;
    case RulePart::Month:
        m_month.SetCurSel(value - 1);
        break;
    case RulePart::Occurrence:
        m_occurrence.SetCurSel(IndexOf(deskOccurrences, value));
        break;
    case RulePart::DayOfWeek:
        m_dayOfWeek.SetCurSel(value - 1);
        break;
    case RulePart::SignedDayOfWeek:
        m_nearDay.SetCurSel(std::abs(value) - 1);
        m_nearSide.SetCurSel(value < 0 ? 0 : 1);
        break;
    }
}

// What the controls say becomes the entry, and the words below them say what that means.
void EntryEditor::ReadControls()
{
    if (!m_isReady)
        return;
    ReadRule(TextOf(m_desc));
    m_group = kUserGroups[m_list.GetCurSel()];
    m_entry.m_bRuleFlag = Form().rule == DateEntry::RULE_DAY && m_workingDay.GetCheck() != 0;
    m_entry.m_nKind = deskYears[static_cast<size_t>(m_years.GetCurSel())].value;
    m_entry.m_nStartYear = NeedsYear() ? NumberTextConv::GetNumberFromString(TextOf(m_year)) : 0;
    m_entry.SetColor(m_color.GetColor());
    m_entry.SetShow(m_show.GetCheck() != 0);

    const bool hasYear = !NeedsYear() || (m_entry.m_nStartYear >= 1 && m_entry.m_nStartYear <= kMaxYear);
    m_ok.EnableWindow(m_entry.IsValid() && hasYear);
    m_words.SetWindowText(DescribeRule(m_entry) + ".\n" + DescribeNext(m_entry));
    Arrange();
}

void EntryEditor::ReadRule(const CString& desc)
{
    const int day = m_day.GetCurSel() + 1;
    const int month = m_month.GetCurSel() + 1;
    const int dayOfWeek = m_dayOfWeek.GetCurSel() + 1;
    const int nearDay = (m_nearDay.GetCurSel() + 1) * (m_nearSide.GetCurSel() == 0 ? -1 : 1);
    const auto occurrence = static_cast<DateEntry::OCCURRENCE>(
        deskOccurrences[static_cast<size_t>(m_occurrence.GetCurSel())].value);
    switch (Form().rule) {
    case DateEntry::RULE_DAY_OF_WEEK:
        m_entry.SetDayOfWeek(desc, occurrence, dayOfWeek, month);
        break;
    case DateEntry::RULE_NEAR_DAY:
        m_entry.SetBeforeAfterDay(desc, day, month, nearDay);
        break;
    case DateEntry::RULE_NEAR_DAY_OF_WEEK:
        m_entry.SetBeforeAfterDayOfWeek(desc, occurrence, dayOfWeek, month, nearDay);
        break;
    default:
        m_entry.SetDay(desc, day, month);
    }
}

void EntryEditor::Arrange()
{
    constexpr int left = kMargin + kLabelWidth;
    constexpr int full = 2 * kFieldWidth + kGap;
    const auto height = [](CWnd* control) {
        return dynamic_cast<CComboBox*>(control) != nullptr ? kListHeight : kControlHeight;
    };
    int top = kMargin;
    size_t label = 0;
    for (const Row& row : Rows()) {
        CStatic& text = m_labels[label++];
        const bool hasSecond = row.second != nullptr && row.isUsed && row.isSecondUsed;
        text.ShowWindow(row.isUsed ? SW_SHOW : SW_HIDE);
        row.first->ShowWindow(row.isUsed ? SW_SHOW : SW_HIDE);
        if (row.second != nullptr)
            row.second->ShowWindow(hasSecond ? SW_SHOW : SW_HIDE);
        if (!row.isUsed)
            continue;
        text.MoveWindow(kMargin, top + 4, kLabelWidth, kControlHeight - 4);
        row.first->MoveWindow(left, top, row.second != nullptr ? kFieldWidth : full, height(row.first));
        if (hasSecond)
            row.second->MoveWindow(left + kFieldWidth + kGap, top, kFieldWidth, height(row.second));
        top += kRowHeight;
    }
    const int buttonTop = kClientHeight - kMargin - kControlHeight;
    const int right = kClientWidth - kMargin;
    m_words.MoveWindow(kMargin, buttonTop - kGap - kWordsHeight, kClientWidth - 2 * kMargin, kWordsHeight);
    m_ok.MoveWindow(right - 2 * kButtonWidth - kGap, buttonTop, kButtonWidth, kControlHeight);
    m_cancel.MoveWindow(right - kButtonWidth, buttonTop, kButtonWidth, kControlHeight);
}

void EntryEditor::OnColor()
{
    if (m_color.Choose())
        ReadControls();
}

// Enter comes here also while the entry is not complete.
void EntryEditor::OnOK()
{
    if (m_ok.IsWindowEnabled())
        End(IDOK);
}

const RuleForm& EntryEditor::Form() const
{
    const int index = m_rule.GetSafeHwnd() != nullptr ? m_rule.GetCurSel() : 0;
    return RuleForms()[static_cast<size_t>(std::max(index, 0))];
}

bool EntryEditor::NeedsYear() const
{
    const int index = m_years.GetSafeHwnd() != nullptr ? m_years.GetCurSel() : 0;
    const int kind = deskYears[static_cast<size_t>(std::max(index, 0))].value;
    return kind == DateEntry::KIND_FROM_YEAR || kind == DateEntry::KIND_UNTIL_YEAR ||
           kind == DateEntry::KIND_IN_YEAR;
}
