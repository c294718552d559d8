#include "SaveQuestion.h"

namespace {

constexpr int kMargin = 16;
constexpr int kGap = 8;
constexpr int kTextHeight = 20;
constexpr int kButtonWidth = 96;
constexpr int kButtonHeight = 26;
constexpr int kClientWidth = 2 * kMargin + 3 * kButtonWidth + 2 * kGap;
constexpr int kButtonTop = kMargin + kTextHeight + 2 * kGap;

CRect ButtonRect(int place)
{
    return CRect(CPoint(kMargin + place * (kButtonWidth + kGap), kButtonTop),
                 CSize(kButtonWidth, kButtonHeight));
}

}

BEGIN_MESSAGE_MAP(SaveQuestion, ModalWindow)
    ON_CONTROL_RANGE(BN_CLICKED, IDOK, IDNO, &SaveQuestion::OnButton)
END_MESSAGE_MAP()

SaveQuestion::Answer SaveQuestion::Ask(CWnd& owner, CFont& font)
{
    constexpr DWORD button = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    const CRect textRect(CPoint(kMargin, kMargin), CSize(kClientWidth - 2 * kMargin, kTextHeight));
    const bool created =
        CreateModal("Unsaved changes", CSize(kClientWidth, kButtonTop + kButtonHeight + kMargin), owner) &&
        m_text.Create("Save the changes to your dates?", WS_CHILD | WS_VISIBLE, textRect, this) &&
        m_save.Create("&Save", button | BS_DEFPUSHBUTTON, ButtonRect(0), this, IDOK) &&
        m_dontSave.Create("&Don't save", button, ButtonRect(1), this, IDNO) &&
        m_cancel.Create("Cancel", button, ButtonRect(2), this, IDCANCEL);
    if (!created)
        return Answer::Cancel;
    for (CWnd* control : std::initializer_list<CWnd*>{&m_text, &m_save, &m_dontSave, &m_cancel})
        control->SetFont(&font);
    switch (RunModal()) {
    case IDOK:
        return Answer::Save;
    case IDNO:
        return Answer::DontSave;
    default:
        return Answer::Cancel;
    }
}
