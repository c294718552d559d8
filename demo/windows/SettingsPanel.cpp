#include "SettingsPanel.h"

#include "EntryEditor.h"
#include "ErrorText.h"
#include "ListRow.h"
#include "Rules.h"

#include <algorithm>
#include <memory>

namespace {

enum ControlId : UINT
{
    GroupsId = 200,
    EntriesId,
    AddId,
    EditId,
    DeleteId,
    SaveId,
    LabelId
};

constexpr int kGap = 8;
constexpr int kLabelHeight = 20;
constexpr int kButtonHeight = 26;
constexpr int kWordsHeight = 38;
constexpr int kGroupsHeight = 5 * kListRowHeight + 2;
constexpr int kMinEntriesHeight = 2 * kListRowHeight;
constexpr COLORREF kNewEntryColor = RGB(0x2e, 0x9b, 0x4f);
const CRect kAnywhere(0, 0, 10, 10); // OnSize gives each control its place

}

BEGIN_MESSAGE_MAP(SettingsPanel, CWnd)
    ON_WM_SIZE()
    ON_BN_CLICKED(AddId, &SettingsPanel::OnAdd)
    ON_BN_CLICKED(EditId, &SettingsPanel::OnEdit)
    ON_BN_CLICKED(DeleteId, &SettingsPanel::OnDelete)
    ON_BN_CLICKED(SaveId, &SettingsPanel::OnSave)
    ON_LBN_SELCHANGE(EntriesId, &SettingsPanel::OnSelected)
    ON_LBN_DBLCLK(EntriesId, &SettingsPanel::OnEdit)
END_MESSAGE_MAP()

SettingsPanel::SettingsPanel(DemoCalendar& calendar)
    : m_calendar(calendar), m_groups(calendar.Settings(), [this] { ApplyChange(m_entries.Selected()); }),
      m_entries(calendar.Settings())
{
}

bool SettingsPanel::CreatePanel(const CRect& rect, CWnd* parent, UINT id, CFont& font, bool readable)
{
    m_font = &font;
    const LPCTSTR windowClass =
        AfxRegisterWndClass(0, LoadCursor(nullptr, IDC_ARROW),
                            reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_BTNFACE + 1)), nullptr);
    if (!CreateEx(WS_EX_CONTROLPARENT, windowClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, rect, parent,
                  id) ||
        !CreateControls())
        return false;
    m_entries.Refill(nullptr);
    ShowSelected();
    SetChanged(false);
    EnableWindow(readable);
    return true;
}

bool SettingsPanel::CreateControls()
{
    constexpr DWORD label = WS_CHILD | WS_VISIBLE;
    constexpr DWORD button = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON;
    const bool created = m_groupsLabel.Create("Special dates", label, kAnywhere, this, LabelId) &&
                         m_groups.CreateList(kAnywhere, this, GroupsId) &&
                         m_entriesLabel.Create("My dates and to-dos", label, kAnywhere, this, LabelId) &&
                         m_entries.CreateList(kAnywhere, this, EntriesId) &&
                         m_words.Create("", label | SS_NOPREFIX, kAnywhere, this, LabelId) &&
                         m_add.Create("&Add...", button, kAnywhere, this, AddId) &&
                         m_edit.Create("&Edit...", button, kAnywhere, this, EditId) &&
                         m_delete.Create("De&lete", button, kAnywhere, this, DeleteId) &&
                         m_save.Create("&Save", button, kAnywhere, this, SaveId);
    if (!created)
        return false;
    for (CWnd* control : std::initializer_list<CWnd*>{&m_groupsLabel, &m_groups, &m_entriesLabel, &m_entries,
                                                      &m_words, &m_add, &m_edit, &m_delete, &m_save})
        control->SetFont(m_font);
    return true;
}

void SettingsPanel::OnSize(UINT, int cx, int cy)
{
    if (m_save.GetSafeHwnd() == nullptr)
        return;
    const int fixedHeight = 2 * kLabelHeight + kGroupsHeight + kWordsHeight + 2 * kButtonHeight + 4 * kGap;
    const int entriesHeight = std::max(cy - fixedHeight, kMinEntriesHeight);
    int top = 0;
    const auto place = [&](CWnd& control, int height, int gap) {
        control.MoveWindow(0, top, cx, height);
        top += height + gap;
    };
    place(m_groupsLabel, kLabelHeight, 0);
    place(m_groups, kGroupsHeight, kGap);
    place(m_entriesLabel, kLabelHeight, 0);
    place(m_entries, entriesHeight, kGap);
    place(m_words, kWordsHeight, kGap);
    const int third = (cx - 2 * kGap) / 3;
    m_add.MoveWindow(0, top, third, kButtonHeight);
    m_edit.MoveWindow(third + kGap, top, third, kButtonHeight);
    m_delete.MoveWindow(cx - third, top, third, kButtonHeight);
    top += kButtonHeight + kGap;
    place(m_save, kButtonHeight, 0);
}

// What a new entry starts from: the calendar's day of every year.
CalendarDateEntry SettingsPanel::EntryOfShownDate() const
{
    const DateTime& date = m_calendar.GetDate();
    CalendarDateEntry entry;
    entry.SetDay("", date.GetDay(), date.GetMonth());
    entry.SetColor(kNewEntryColor);
    return entry;
}

void SettingsPanel::OnAdd()
{
    EntryEditor editor(EntryOfShownDate(), CalendarSettings::GroupCustom, true);
    if (editor.Edit(*GetTopLevelParent(), *m_font))
        AddEntry(editor.Entry(), editor.Group());
}

void SettingsPanel::AddEntry(const CalendarDateEntry& entry, CalendarSettings::Group group)
{
    auto added = std::make_unique<CalendarDateEntry>(entry);
    const CalendarDateEntry* const selected = added.get();
    if (group == CalendarSettings::GroupToDo)
        m_calendar.Settings().AddToDoEntry(added.release());
    else
        m_calendar.Settings().AddCustomEntry(added.release());
    ApplyChange(selected);
}

void SettingsPanel::OnEdit()
{
    CalendarDateEntry* const entry = m_entries.Selected();
    if (entry == nullptr)
        return;
    EntryEditor editor(*entry, m_entries.SelectedGroup(), false);
    if (!editor.Edit(*GetTopLevelParent(), *m_font))
        return;
    *entry = editor.Entry();
    ApplyChange(entry);
}

void SettingsPanel::OnDelete()
{
    CalendarDateEntry* const entry = m_entries.Selected();
    if (entry == nullptr)
        return;
    if (m_entries.SelectedGroup() == CalendarSettings::GroupToDo)
        m_calendar.Settings().DeleteToDoEntry(entry);
    else
        m_calendar.Settings().DeleteCustomEntry(entry);
    ApplyChange(nullptr);
}

bool SettingsPanel::Save()
{
    CString error;
    if (RunTellingErrors([this] { m_calendar.Settings().Save(); }, error)) {
        SetChanged(false);
        return true;
    }
    TellUser("Your dates could not be saved.\n\n" + error);
    return false;
}

void SettingsPanel::ApplyChange(const CalendarDateEntry* selected)
{
    m_groups.Invalidate();
    m_entries.Refill(selected);
    m_calendar.RefreshSpecialDates();
    ShowSelected();
    SetChanged(true);
}

void SettingsPanel::SetChanged(bool changed)
{
    m_isChanged = changed;
    if (!changed && GetFocus() == &m_save)
        m_entries.SetFocus(); // a disabled button cannot keep it
    m_save.EnableWindow(changed);
}

void SettingsPanel::ShowSelected()
{
    const CalendarDateEntry* const entry = m_entries.Selected();
    CString words("Choose an entry to see when it falls.");
    if (m_entries.GetCount() == 0)
        words = "Add a date to see it in the calendar.";
    else if (entry != nullptr)
        words = DescribeRule(*entry) + ".\n" + DescribeNext(*entry);
    m_words.SetWindowText(words);
    for (CButton* button : {&m_edit, &m_delete}) {
        if (entry == nullptr && GetFocus() == button)
            m_entries.SetFocus();
        button->EnableWindow(entry != nullptr);
    }
}

BOOL SettingsPanel::PreTranslateMessage(MSG* pMsg)
{
    const bool isKeyOfEntries = pMsg->message == WM_KEYDOWN && pMsg->hwnd == m_entries.m_hWnd;
    if (!isKeyOfEntries || (pMsg->wParam != VK_RETURN && pMsg->wParam != VK_DELETE))
        return CWnd::PreTranslateMessage(pMsg);
    if (pMsg->wParam == VK_RETURN)
        OnEdit();
    else
        OnDelete();
    return TRUE;
}
