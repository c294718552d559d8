#include "SettingsPanel.h"

#include "ErrorText.h"

#include <memory>

namespace {

enum ControlId : UINT
{
    GroupsId = 200,
    EntriesId,
    TextId,
    AddDateId,
    AddToDoId,
    DeleteId,
    SaveId
};

constexpr int kGap = 8;
constexpr int kRowHeight = 26;
constexpr int kGroupsHeight = 5 * 22 + 4;
const CRect kAnywhere(0, 0, 10, 10); // OnSize gives each control its place

}

BEGIN_MESSAGE_MAP(SettingsPanel, CWnd)
    ON_WM_SIZE()
    ON_BN_CLICKED(AddDateId, &SettingsPanel::OnAddDate)
    ON_BN_CLICKED(AddToDoId, &SettingsPanel::OnAddToDo)
    ON_BN_CLICKED(DeleteId, &SettingsPanel::OnDelete)
    ON_BN_CLICKED(SaveId, &SettingsPanel::OnSave)
END_MESSAGE_MAP()

SettingsPanel::SettingsPanel(DemoCalendar& calendar)
    : m_calendar(calendar), m_groups(calendar.Settings(), [this] { m_calendar.RefreshSpecialDates(); }),
      m_entries(calendar.Settings())
{
}

bool SettingsPanel::CreatePanel(const CRect& rect, CWnd* parent, UINT id, CFont& font)
{
    const LPCTSTR windowClass =
        AfxRegisterWndClass(0, LoadCursor(nullptr, IDC_ARROW),
                            reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_BTNFACE + 1)), nullptr);
    if (!CreateEx(WS_EX_CONTROLPARENT, windowClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, rect, parent,
                  id))
        return false;
    constexpr DWORD button = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON;
    const bool created = m_groups.CreateList(kAnywhere, this, GroupsId) &&
                         m_entries.CreateList(kAnywhere, this, EntriesId) &&
                         m_text.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL,
                                       kAnywhere, this, TextId) &&
                         m_addDate.Create("Add &date", button, kAnywhere, this, AddDateId) &&
                         m_addToDo.Create("Add &to-do", button, kAnywhere, this, AddToDoId) &&
                         m_delete.Create("De&lete", button, kAnywhere, this, DeleteId) &&
                         m_save.Create("&Save", button, kAnywhere, this, SaveId);
    if (!created)
        return false;
    for (CWnd* control :
         {static_cast<CWnd*>(&m_groups), static_cast<CWnd*>(&m_entries), static_cast<CWnd*>(&m_text),
          static_cast<CWnd*>(&m_addDate), static_cast<CWnd*>(&m_addToDo), static_cast<CWnd*>(&m_delete),
          static_cast<CWnd*>(&m_save)})
        control->SetFont(&font);
    OnSize(0, rect.Width(), rect.Height());
    return true;
}

void SettingsPanel::Refresh()
{
    m_groups.Invalidate();
    m_entries.Refill();
}

void SettingsPanel::OnSize(UINT, int cx, int cy)
{
    if (m_save.GetSafeHwnd() == nullptr)
        return;
    const int half = (cx - kGap) / 2;
    const int saveTop = cy - kRowHeight;
    const int addTop = saveTop - kGap - kRowHeight;
    const int textTop = addTop - kGap - kRowHeight;
    const int entriesTop = kGroupsHeight + kGap;
    m_groups.MoveWindow(0, 0, cx, kGroupsHeight);
    m_entries.MoveWindow(0, entriesTop, cx, textTop - kGap - entriesTop);
    m_text.MoveWindow(0, textTop, cx, kRowHeight);
    m_addDate.MoveWindow(0, addTop, half, kRowHeight);
    m_addToDo.MoveWindow(cx - half, addTop, half, kRowHeight);
    m_delete.MoveWindow(0, saveTop, half, kRowHeight);
    m_save.MoveWindow(cx - half, saveTop, half, kRowHeight);
}

// An entry on the calendar's day of every year, with the text typed; null, with a word to the user, if there
// is none.
CalendarDateEntry* SettingsPanel::MakeEntry()
{
    CString text;
    m_text.GetWindowText(text);
    text.Trim();
    if (text.IsEmpty()) {
        AfxMessageBox("Type what the date is, then add it.");
        m_text.SetFocus();
        return nullptr;
    }
    const DateTime& date = m_calendar.GetDate();
    auto entry = std::make_unique<CalendarDateEntry>();
    entry->SetDay(text, date.GetDay(), date.GetMonth());
    m_text.SetWindowText("");
    return entry.release();
}

void SettingsPanel::OnAddDate()
{
    CalendarDateEntry* const entry = MakeEntry();
    if (entry == nullptr)
        return;
    entry->SetColor(RGB(0x2e, 0x9b, 0x4f));
    m_calendar.Settings().AddCustomEntry(entry);
    ApplyChange();
}

void SettingsPanel::OnAddToDo()
{
    CalendarDateEntry* const entry = MakeEntry();
    if (entry == nullptr)
        return;
    entry->SetColor(RGB(0x8a, 0x4f, 0xbf));
    m_calendar.Settings().AddToDoEntry(entry);
    ApplyChange();
}

void SettingsPanel::OnDelete()
{
    if (m_entries.DeleteSelected())
        ApplyChange();
}

void SettingsPanel::OnSave()
{
    CString error;
    if (!RunTellingErrors([this] { m_calendar.Settings().Save(); }, error))
        AfxMessageBox("Your dates could not be saved.\n\n" + error, MB_OK | MB_ICONEXCLAMATION);
}

void SettingsPanel::ApplyChange()
{
    Refresh();
    m_calendar.RefreshSpecialDates();
}

BOOL SettingsPanel::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg) || ::IsDialogMessage(m_hWnd, pMsg);
}
