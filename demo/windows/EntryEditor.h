// The window in which a date or a to-do entry is made or changed.
#pragma once

#include "ColorButton.h"
#include "Controls.h"
#include "ModalWindow.h"
#include "Rules.h"

#include <CalendarSettings.h>

#include <array>

class EntryEditor : public ModalWindow
{
public:
    // Starts from the entry. `isNew`: the user may choose the list it goes to.
    EntryEditor(const CalendarDateEntry& entry, CalendarSettings::Group group, bool isNew);

    // True if the user has ended it with OK: then the entry is complete.
    bool Edit(CWnd& owner, CFont& font);

    const CalendarDateEntry& Entry() const { return m_entry; }
    CalendarSettings::Group Group() const { return m_group; }

protected:
    afx_msg void OnChanged() { ReadControls(); }
    afx_msg void OnComboChanged(UINT) { ReadControls(); }
    afx_msg void OnColor();
    afx_msg void OnOK();
    afx_msg void OnCancel() { End(IDCANCEL); }
    DECLARE_MESSAGE_MAP()

private:
    // A line of the window: a label and one or two controls, each shown while it is used.
    struct Row
    {
        const char* label;
        CWnd* first;
        bool isUsed = true;
        CWnd* second = nullptr;
        bool isSecondUsed = true;
    };
    static constexpr size_t kRows = 9;
    std::array<Row, kRows> Rows();

    bool CreateControls(CFont& font);
    bool CreateControl(CWnd& control);
    void FillChoices();
    void ShowEntry();
    void ShowPart(RulePart part, int value);
    void ReadControls();
    void ReadRule(const CString& desc);
    void Arrange();

    const RuleForm& Form() const;
    bool NeedsYear() const;

    CalendarDateEntry m_entry;
    CalendarSettings::Group m_group;
    const bool m_isNew;
    bool m_isReady = false; // all controls stand, and show the entry

    std::array<CStatic, kRows> m_labels;
    CEdit m_desc;
    CComboBox m_list;
    CComboBox m_rule;
    CComboBox m_nearDay;
    CComboBox m_nearSide;
    CComboBox m_occurrence;
    CComboBox m_dayOfWeek;
    CComboBox m_month;
    CComboBox m_day;
    CComboBox m_years;
    CEdit m_year;
    CheckBox m_workingDay;
    ColorButton m_color;
    CheckBox m_show;
    CStatic m_words;
    CButton m_ok;
    CButton m_cancel;
};
