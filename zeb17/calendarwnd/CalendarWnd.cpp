// The messages to the parent, the message map of the control, and the life of its object.
#include "CalendarWnd.h"

#include "DownArrowButton.h"
#include "MonthBlock.h"
#include "resource.h"

#include <WndWatch.h>
#include <oleacc.h>

const unsigned int CCalendarWnd::CALWND_ONSELCHANGE =
    ::RegisterWindowMessageA("02DCA7F3-3BA7-4355-8307-672F728EC143");
const unsigned int CCalendarWnd::CALWND_ONNODATE =
    ::RegisterWindowMessageA("2A88EFEB-13BE-4196-904A-9777D7723DF2");
const unsigned int CCalendarWnd::CALWND_ENTERKEY =
    ::RegisterWindowMessageA("2DDDEBF7-A28D-4b30-9B96-6B932D2E092E");
const unsigned int CCalendarWnd::CALWND_ESCKEY =
    ::RegisterWindowMessageA("FC5EEBD0-90F6-4DF0-B369-6890226B210C");
const unsigned int CCalendarWnd::CALWND_PROMPT_SAVEWEBPAGE =
    ::RegisterWindowMessageA("8326BD76-9326-40ab-B6DF-F9736E9C5FA6");
const unsigned int CCalendarWnd::CALWND_DATERANGE_CHANGED =
    ::RegisterWindowMessageA("202D3DF1-33EF-47E9-A46B-2EC9C3AF3D6C");

BEGIN_MESSAGE_MAP(CCalendarWnd, CWnd)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_SETCURSOR()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_MOUSEWHEEL()
    ON_MESSAGE(WM_GETOBJECT, &CCalendarWnd::OnGetObject)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CCalendarWnd::OnToolTipNotify)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xFFFF, &CCalendarWnd::OnToolTipNotify)

    ON_BN_CLICKED(PrevYearButtonId, &CCalendarWnd::OnPreviousYearButton)
    ON_BN_CLICKED(NextYearButtonId, &CCalendarWnd::OnNextYearButton)
    ON_BN_CLICKED(PrevMonthButtonId, &CCalendarWnd::OnPreviousMonthButton)
    ON_BN_CLICKED(NextMonthButtonId, &CCalendarWnd::OnNextMonthButton)
    ON_BN_CLICKED(TodayButtonId, &CCalendarWnd::OnTodayButton)
    ON_BN_CLICKED(ClearButtonId, &CCalendarWnd::OnClearButton)
    ON_BN_CLICKED(OptionsButtonId, &CCalendarWnd::OnOptionsButton)

    ON_UPDATE_COMMAND_UI(ID_OPTIONS_COPYDATELONGFORM, &CCalendarWnd::OnUpdateOptionsCopydatelongform)
    ON_UPDATE_COMMAND_UI(ID_OPTIONS_COPYDATESHORTFORM, &CCalendarWnd::OnUpdateOptionsCopydateshortform)
    ON_UPDATE_COMMAND_UI(ID_OPTIONS_GENERATEWEBPAGE, &CCalendarWnd::OnUpdateOptionsGeneratewebpage)
    ON_COMMAND(ID_OPTIONS_COPYDATELONGFORM, &CCalendarWnd::OnOptionsCopydatelongform)
    ON_COMMAND(ID_OPTIONS_COPYDATESHORTFORM, &CCalendarWnd::OnOptionsCopydateshortform)
    ON_COMMAND(ID_OPTIONS_PRINT, &CCalendarWnd::OnOptionsPrint)
    ON_COMMAND(ID_OPTIONS_GENERATEWEBPAGE, &CCalendarWnd::OnOptionsGeneratewebpage)

    ON_COMMAND(ID_OPTIONS_CURRENTMONTH, &CCalendarWnd::OnOptionsCurrentMonth)
    ON_COMMAND(ID_OPTIONS_CURRENTYEAR, &CCalendarWnd::OnOptionsCurrentYear)
    ON_COMMAND(ID_OPTIONS_PREVMONTH, &CCalendarWnd::OnOptionsPrevMonth)
    ON_COMMAND(ID_OPTIONS_NEXTMONTH, &CCalendarWnd::OnOptionsNextMonth)
    ON_COMMAND(ID_OPTIONS_PREVYEAR, &CCalendarWnd::OnOptionsPrevYear)
    ON_COMMAND(ID_OPTIONS_NEXTYEAR, &CCalendarWnd::OnOptionsNextYear)
    ON_COMMAND(ID_OPTIONS_CURRENTQUARTER, &CCalendarWnd::OnOptionsCurrentQuarter)
    ON_COMMAND(ID_OPTIONS_PREVQUARTER, &CCalendarWnd::OnOptionsPrevQuarter)
    ON_COMMAND(ID_OPTIONS_NEXTQUARTER, &CCalendarWnd::OnOptionsNextQuarter)
    ON_COMMAND(ID_OPTIONS_LASTWEEK1, &CCalendarWnd::OnOptionsLastWeek1)
    ON_COMMAND(ID_OPTIONS_LASTWEEK2, &CCalendarWnd::OnOptionsLastWeek2)
    ON_COMMAND(ID_OPTIONS_LASTWEEK3, &CCalendarWnd::OnOptionsLastWeek3)
    ON_COMMAND(ID_OPTIONS_LASTWEEK4, &CCalendarWnd::OnOptionsLastWeek4)
    ON_COMMAND(ID_OPTIONS_LASTWEEK5, &CCalendarWnd::OnOptionsLastWeek5)
    ON_COMMAND(ID_OPTIONS_LASTWEEK6, &CCalendarWnd::OnOptionsLastWeek6)
    ON_COMMAND(ID_OPTIONS_LASTWEEK7, &CCalendarWnd::OnOptionsLastWeek7)
    ON_COMMAND(ID_OPTIONS_LASTWEEK8, &CCalendarWnd::OnOptionsLastWeek8)
END_MESSAGE_MAP()

// A button for which there is no memory stays null, and Create fails.
CCalendarWnd::CCalendarWnd()
    : m_pMonthYearButton(new (std::nothrow) CZEBButton), m_pPrevMonthButton(new (std::nothrow) CZEBButton),
      m_pNextMonthButton(new (std::nothrow) CZEBButton), m_pPrevYearButton(new (std::nothrow) CZEBButton),
      m_pNextYearButton(new (std::nothrow) CZEBButton), m_pTodayButton(new (std::nothrow) CZEBButton),
      m_pClearButton(new (std::nothrow) CZEBButton), m_pOptionsButton(new (std::nothrow) CDownArrowButton),
      m_vDayColors(MonthBlock::kCells), m_vDayDescs(MonthBlock::kCells)
{
    StandOnToday();
}

void CCalendarWnd::StandOnToday()
{
    m_bHaveDate = false;
    m_nFirstDayColumn = m_nTodayCell = -1;
    m_nNextToolId = 0;
    m_date.SetToCurrent();
    for (CRect* const pRect : {&m_rcGrid, &m_rcSelection, &m_rcToday})
        pRect->SetRectEmpty();
    m_vRowEdges.clear();
    m_vColumnEdges.clear();
    ClearCells();
}

CCalendarWnd::~CCalendarWnd()
{
    const auto release = [](auto*& pButton) {
        delete pButton;
        pButton = nullptr;
    };
    DestroyWindow(); // now, since its messages still reach the members that end below
    m_fontGrid.DeleteObject();
    release(m_pMonthYearButton);
    release(m_pPrevMonthButton);
    release(m_pNextMonthButton);
    release(m_pPrevYearButton);
    release(m_pNextYearButton);
    release(m_pTodayButton);
    release(m_pClearButton);
    release(m_pOptionsButton);
    m_pParent = nullptr;
}

void CCalendarWnd::EnableToDoList()
{
    CalendarSettings::EnableToDoList();
}
