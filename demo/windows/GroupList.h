// The five groups of dates, each with a check box (shown) and a swatch (its colour).
#pragma once

#include "Controls.h"

#include <CalendarSettings.h>

#include <functional>

class GroupList : public CListBox
{
public:
    // `changed` is called after the user has changed the settings.
    GroupList(CalendarSettings& settings, std::function<void()> changed);

    bool CreateList(const CRect& rect, CWnd* parent, UINT id);

    void MeasureItem(LPMEASUREITEMSTRUCT item) override;
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    void ToggleShow(CalendarSettings::Group group);
    void PickColor(CalendarSettings::Group group);
    void TellChanged();

    CalendarSettings& m_settings;
    std::function<void()> m_changed;
};
