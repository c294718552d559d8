// A month calendar as a child window: seven columns and six weeks, special dates as coloured dots.
//
// The control holds one date, and tells its parent of every change by registered messages. It sends them and
// does not post them: the parent's handler runs inside the operation that causes the message, and may call
// GetDate there. `wParam` of each is the control's id.
//
// A control belongs to the thread that creates it. The host starts GDI+ before the control first paints.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <zeb17_export.h>

#include <CalendarSettings.h>
#include <DateTime.h>

#include <array>
#include <memory>
#include <vector>

class CDownArrowButton;
class CWndWatch;
class CZEBButton;

namespace MonthBlock {
struct Cell;
struct Place;
}

// The control. Its members are protected, not private: hosts may derive from it.
class ZEB17_EXPORT CCalendarWnd : public CWnd
{
public:
    // A date is selected: it changed or was confirmed. `lParam` is 0 after a press on a day, else 1.
    static const unsigned int CALWND_ONSELCHANGE;

    // No date is selected any more: at the end of Create, and after Clear.
    static const unsigned int CALWND_ONNODATE;

    // Enter or Esc was pressed while the control itself had the focus.
    static const unsigned int CALWND_ENTERKEY;
    static const unsigned int CALWND_ESCKEY;

    // The user wants a web page: ask for a path and call SaveCalendarWebPage.
    static const unsigned int CALWND_PROMPT_SAVEWEBPAGE;

    // The user chose a range of dates, from GetDate() up to and including the `const DateTime*` in `lParam`,
    // which is good during the call only.
    static const unsigned int CALWND_DATERANGE_CHANGED;

    // Makes a control without a window, standing on today, with no date selected.
    CCalendarWnd();

    // Destroys the window too, if there is one.
    ~CCalendarWnd() override;

    // Creates the control and shows it. Sends CALWND_ONNODATE before it returns.
    //   nID               id of the control
    //   rect              in client coordinates of the parent; any size, also none
    //   bUseSpecialDates  load the data file, and mark special days with dots and tool tips
    //   pParent           receives the messages; must have a window and outlive the control
    //   bAllowNoDate      offer the Clear button
    //   bShowOptions      offer the Options button
    //   bAllowWebPage     offer the web page in the options
    //   bAllowDateRanges  offer the seventeen date ranges in the options
    // False, with a line in the log, if the window could not be created or exists already. A button that
    // could not be created is logged and left out. False as well if the host deleted the control meanwhile.
    // Throws what CalendarSettings::Load throws.
    bool Create(UINT nID, const CRect& rect, bool bUseSpecialDates, CWnd* pParent, bool bAllowNoDate,
                bool bShowOptions, bool bAllowWebPage, bool bAllowDateRanges);

    // The date whose month is shown, also while no date is selected.
    const DateTime& GetDate() const { return m_date; }

    // Selects a date, shows its month and sends CALWND_ONSELCHANGE. An invalid date selects none, shows
    // the month of today and sends nothing.
    void SetDate(const DateTime& date);

    // Reads the data file anew and looks the shown month up again, if special dates are in use. Throws what
    // CalendarSettings::Load throws.
    void ReloadSpecialDates();

    // Gives the buttons the push button shading that BkgStyle has now; Create does so too.
    void ApplyBkgShading();

    // Writes the month shown as a web page. False, with a file that was there before left as it was, if there
    // is no valid date or the file could not be written.
    bool SaveCalendarWebPage(const CString& strPath) const;

    // Puts the to-do list into use, for all calendars of the process and until its end.
    static void EnableToDoList();

protected:
    class Accessible;

    // The ids of the buttons, by which they send their commands.
    enum ButtonId : UINT
    {
        PrevYearButtonId = 2600,
        NextYearButtonId,
        PrevMonthButtonId,
        NextMonthButtonId,
        TodayButtonId,
        ClearButtonId,
        OptionsButtonId,
        MonthYearButtonId
    };

    // What a date range counts from: today, or the month shown.
    enum class RangeBase
    {
        Today,
        Shown
    };

    // How long a date range is.
    enum class RangeUnit
    {
        Month,
        Quarter,
        Year,
        Weeks
    };

    // Handles the keys of the control and its buttons, and passes the messages on to the tool tips. TRUE for
    // a Tab that moved the focus, and for an Alt key that pressed a button.
    BOOL PreTranslateMessage(MSG* pMsg) override;

    // The class style of the window: without CS_DBLCLKS a double click arrives as two presses.
    static constexpr UINT kClassStyle = CS_VREDRAW | CS_HREDRAW | CS_CLASSDC | CS_SAVEBITS;

    // Creation. The first two are what Create does before there is a window, and then to the window: for a
    // derived class whose window others make. BeginCreation throws what CalendarSettings::Load throws;
    // SetUpWindow is false if a button object is missing, or if the host deleted the control meanwhile.
    void BeginCreation(bool bUseSpecialDates, CWnd* pParent, bool bAllowNoDate, bool bShowOptions,
                       bool bAllowWebPage, bool bAllowDateRanges);
    bool SetUpWindow(int cx, int cy);
    void StandOnToday(); // back to the state of a new object: today, nothing selected, laid out or painted
    std::array<CZEBButton*, 8> GetButtons() const; // in the order of their creation
    bool HasAllButtons() const;
    void CreateToolTip();
    void CreateButtons();
    void CreateGridFont();

    // Layout of the client area, and the tables of what is special about the 42 days of the block.
    void CalculateDayLocations();
    void DetermineSpecialDays();
    void ClearCells();
    void LookUpDay(const DayNumbers::Date& date, std::size_t nCell); // 0, 0, 0 for no date

    // Painting. `rcCell` is the text rectangle of a cell.
    void DrawGrid(CDC* pDC);
    void DrawMonth(CDC* pDC);
    void DrawDayNames(CDC* pDC);
    void DrawDay(CDC* pDC, int nCell, const MonthBlock::Cell& cell);
    void DrawTodayBkg(CDC* pDC, const CRect& rcCell);
    void DrawSpecialDay(CDC* pDC, int nCell, CRect rcCell);
    void DrawSelectionFrame(CDC* pDC, COLORREF crFrame);
    void RemoveCellTips();
    CRect GetCellRect(const MonthBlock::Place& place) const;
    COLORREF GetFrameColor() const;

    // Moves the selection frame on the window itself: to `rcNew`, or, if that is empty, to the day of m_date.
    void MoveSelectionRect(const CRect& rcNew);

    // The date and what follows from it.
    bool ApplyNewDate(const DateTime& date); // stores a valid date; true if the month is another one
    void ShowDate(const DateTime& date);
    void SetValidDate(); // finds a valid date when there is none
    void StepDate(void (DateTime::*pStep)(int), int nCount);
    void NotifyAndRefresh();
    void RefreshMonth();
    void RefreshSpecialDays(); // shows what was changed in m_settings
    void UpdateMonthYearText();
    void InvalidateGrid();
    bool EraseSelectionFrame();
    void NotifyIfDate() const; // CALWND_ONSELCHANGE, if a date is selected
    void NotifyParentWnd(UINT nMessage, bool bFlag) const;
    void NotifyParentWndDateRange(const DateTime& dtEnd) const;
    virtual void SendToParent(UINT nMessage, LPARAM lParam) const; // every message takes this way

    // Input.
    bool HandleKey(WPARAM nKey);         // true if the key must go no further
    bool PressMarkedButton(WPARAM nKey); // true if a caption marks the letter
    bool MoveFocus(bool bBackward);
    void MoveSelection(void (DateTime::*pStep)(int), int nCount);
    void SelectInMonth(void (DateTime::*pSet)());
    void SelectAt(const CPoint& point);
    void SelectShownDay(int nDay, const MonthBlock::Place& place);
    void SelectNeighbourDay(int nOffset, int nDays);
    void RedrawSelection();
    void InvalidateSelection();

    // The tip of a step button: the month and year that a press leads to.
    CString GetStepTip(int nButtonId) const;

    // What is announced when it changes.
    struct DayShown
    {
        int nYear = 0;          // of the date
        int nMonth = 0;         // of the date
        int nDay = 0;           // of the date
        bool bSelected = false; // whether the date is selected

        // Whether there is nothing to announce.
        bool operator==(const DayShown&) const = default;
    };

    // What screen readers are told. An item is a cell, counted from 1; 0 stands for the control.
    CString GetDayName(int nCell) const;
    LONG GetSelectedItem() const;
    class Change; // an operation, at whose end is announced what it changed
    DayShown GetDayShown() const;
    void AnnounceChange(const DayShown& before);
    void AnnounceSelection() const;
    void AnnounceMonth() const;

    // Options.
    void FilterOptionsMenu(HMENU hMenu) const;
    void ShowDateRange(RangeBase base, RangeUnit unit, int nCount);
    static DateTime GetRangeStart(DateTime date, RangeUnit unit, int nCount);
    static DateTime GetRangeEnd(DateTime start, RangeUnit unit); // for all units but weeks

    // The handlers of the messages that they are named for; points and sizes in pixels of the client area.
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    BOOL OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt); // not in the message map
    afx_msg BOOL OnToolTipNotify(UINT id, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);

    // The handlers of the buttons.
    afx_msg void OnPreviousYearButton();
    afx_msg void OnNextYearButton();
    afx_msg void OnPreviousMonthButton();
    afx_msg void OnNextMonthButton();
    afx_msg void OnTodayButton();
    afx_msg void OnClearButton();
    afx_msg void OnOptionsButton();

    // The handlers of the options menu.
    afx_msg void OnUpdateOptionsCopydatelongform(CCmdUI* pCmdUI);
    afx_msg void OnUpdateOptionsCopydateshortform(CCmdUI* pCmdUI);
    afx_msg void OnUpdateOptionsGeneratewebpage(CCmdUI* pCmdUI);
    afx_msg void OnOptionsCopydatelongform();
    afx_msg void OnOptionsCopydateshortform();
    afx_msg void OnOptionsPrint();
    afx_msg void OnOptionsGeneratewebpage();

    // The count says how far the range lies from its base, or how many weeks it has.
    afx_msg void OnOptionsCurrentMonth() { ShowDateRange(RangeBase::Today, RangeUnit::Month, 0); }
    afx_msg void OnOptionsCurrentYear() { ShowDateRange(RangeBase::Today, RangeUnit::Year, 0); }
    afx_msg void OnOptionsPrevMonth() { ShowDateRange(RangeBase::Shown, RangeUnit::Month, -1); }
    afx_msg void OnOptionsNextMonth() { ShowDateRange(RangeBase::Shown, RangeUnit::Month, 1); }
    afx_msg void OnOptionsPrevYear() { ShowDateRange(RangeBase::Shown, RangeUnit::Year, -1); }
    afx_msg void OnOptionsNextYear() { ShowDateRange(RangeBase::Shown, RangeUnit::Year, 1); }
    afx_msg void OnOptionsCurrentQuarter() { ShowDateRange(RangeBase::Today, RangeUnit::Quarter, 0); }
    afx_msg void OnOptionsPrevQuarter() { ShowDateRange(RangeBase::Shown, RangeUnit::Quarter, -1); }
    afx_msg void OnOptionsNextQuarter() { ShowDateRange(RangeBase::Shown, RangeUnit::Quarter, 1); }
    afx_msg void OnOptionsLastWeek1() { ShowDateRange(RangeBase::Today, RangeUnit::Weeks, 1); }
    afx_msg void OnOptionsLastWeek2() { ShowDateRange(RangeBase::Today, RangeUnit::Weeks, 2); }
    afx_msg void OnOptionsLastWeek3() { ShowDateRange(RangeBase::Today, RangeUnit::Weeks, 3); }
    afx_msg void OnOptionsLastWeek4() { ShowDateRange(RangeBase::Today, RangeUnit::Weeks, 4); }
    afx_msg void OnOptionsLastWeek5() { ShowDateRange(RangeBase::Today, RangeUnit::Weeks, 5); }
    afx_msg void OnOptionsLastWeek6() { ShowDateRange(RangeBase::Today, RangeUnit::Weeks, 6); }
    afx_msg void OnOptionsLastWeek7() { ShowDateRange(RangeBase::Today, RangeUnit::Weeks, 7); }
    afx_msg void OnOptionsLastWeek8() { ShowDateRange(RangeBase::Today, RangeUnit::Weeks, 8); }

    DECLARE_MESSAGE_MAP()

    bool m_bHaveDate = false;        // a date is selected
    bool m_bUseSpecialDates = false; // this and the next four as Create was told
    bool m_bAllowNoDate = true;      // Clear is offered
    bool m_bShowOptions = true;      // the menu is offered
    bool m_bAllowWebPage = true;     // the menu offers the web page
    bool m_bAllowDateRanges = false; // the menu offers the date ranges
    bool m_bFocusCame = false;       // the focus came to the control during the operation that is going on
    int m_nChanges = 0;              // operations going on, each in a handler of the one before
    int m_nFirstDayColumn = -1;      // column of day 1, 1 to 7, as last painted; -1 before the first paint
    int m_nTodayCell = -1;           // cell of today, 0 to 41; -1 if today is outside the block
    unsigned int m_nNextToolId = 0;  // id that the next tool of m_toolTip gets
    DateTime m_date;                 // its month is shown; it is the selected date if m_bHaveDate
    CalendarSettings m_settings;     // the special dates
    CWnd* m_pParent = nullptr;       // hears the messages; not owned
    std::unique_ptr<CWndWatch> m_pParentWatch; // watches m_pParent

    // The buttons, which the control owns. The title is a disabled one.
    CZEBButton* m_pMonthYearButton;
    CZEBButton* m_pPrevMonthButton;
    CZEBButton* m_pNextMonthButton;
    CZEBButton* m_pPrevYearButton;
    CZEBButton* m_pNextYearButton;
    CZEBButton* m_pTodayButton;
    CZEBButton* m_pClearButton;
    CDownArrowButton* m_pOptionsButton;

    CFont m_fontGrid;                   // the font of names and numbers
    CRect m_rcGrid;                     // in client coordinates, as all rectangles here
    CRect m_rcSelection;                // text rectangle of the cell of m_date; empty if not known
    CRect m_rcToday;                    // today's highlight, as last painted
    CToolTipCtrl m_toolTip;             // one tool for each special cell
    std::vector<int> m_vRowEdges;       // 8 positions; empty before the first layout
    std::vector<int> m_vColumnEdges;    // 8 positions; empty before the first layout
    std::vector<COLORREF> m_vDayColors; // the colour of the dot in each of the 42 cells
    std::vector<CString> m_vDayDescs;   // what is special about each of the 42 days; empty for nothing
};
