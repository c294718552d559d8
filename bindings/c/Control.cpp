// The functions of the interface that make a control and work with one.
#include "DateValues.h"
#include "HostedCalendar.h"
#include "Result.h"
#include "Texts.h"

using namespace Zeb17;

namespace {

// Makes a call with the calendar of a window.
template <class Call>
int WithCalendar(HWND control, Call call)
{
    return Run([&]() -> int {
        int result = ZEB17_OK;
        HostedCalendar* const calendar = HostedCalendar::Find(control, result);
        return calendar ? call(*calendar) : result;
    });
}

int CheckParent(HWND parent)
{
    if (!::IsWindow(parent))
        return ZEB17_BAD_HANDLE;
    const DWORD thread = ::GetWindowThreadProcessId(parent, nullptr);
    return thread == ::GetCurrentThreadId() ? ZEB17_OK : ZEB17_WRONG_THREAD;
}

int CheckCreation(HWND parent, const RECT* rect, uint32_t flags)
{
    if (!rect || (flags & ~static_cast<uint32_t>(ZEB17_ALL_FLAGS)))
        return ZEB17_BAD_ARGUMENT;
    const int result = CheckParent(parent);
    return result == ZEB17_OK ? zeb17_register() : result;
}

}

int zeb17_register(void)
{
    return Run([] { return RegisterCalendarClass() ? ZEB17_OK : ZEB17_FAILED; });
}

HWND zeb17_create(HWND parent, int id, const RECT* rect, uint32_t flags)
{
    HWND control = nullptr;
    Run([&]() -> int {
        const int result = CheckCreation(parent, rect, flags);
        if (result != ZEB17_OK)
            return result;
        const unsigned int failures = CountOfFailures();
        const CRect place(*rect);
        control = ::CreateWindowExA(0, ZEB17_CLASS, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP | flags,
                                    place.left, place.top, place.Width(), place.Height(), parent,
                                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
        // The creation itself notes why it failed.
        if (control || failures != CountOfFailures())
            return ZEB17_OK;
        return ZEB17_NO_WINDOW;
    });
    return control;
}

int zeb17_get_date(HWND control, zeb17_date* date, int* selected)
{
    return WithCalendar(control, [=](HostedCalendar& calendar) { return calendar.GetState(date, selected); });
}

int zeb17_set_date(HWND control, const zeb17_date* date)
{
    return WithCalendar(control, [=](HostedCalendar& calendar) {
        const DateTime value = ToDateTime(date);
        if (date && !value.IsValid())
            return ZEB17_BAD_DATE;
        calendar.SetDate(value);
        return ZEB17_OK;
    });
}

int zeb17_select_today(HWND control)
{
    return WithCalendar(control, [](HostedCalendar& calendar) {
        calendar.OnTodayButton();
        return ZEB17_OK;
    });
}

int zeb17_step(HWND control, int unit, int count)
{
    return WithCalendar(control, [=](HostedCalendar& calendar) { return calendar.Step(unit, count); });
}

int zeb17_reload(HWND control)
{
    return WithCalendar(control, [](HostedCalendar& calendar) {
        calendar.ReloadSpecialDates();
        return ZEB17_OK;
    });
}

int zeb17_refresh(HWND control)
{
    return WithCalendar(control, [](HostedCalendar& calendar) {
        calendar.RefreshSpecialDays();
        return ZEB17_OK;
    });
}

int zeb17_save_web_page(HWND control, const char* path)
{
    return WithCalendar(control, [=](HostedCalendar& calendar) {
        CString text;
        if (!FromUtf8(path, text) || text.IsEmpty())
            return ZEB17_BAD_TEXT;
        if (!calendar.GetDate().IsValid())
            return ZEB17_BAD_DATE;
        return calendar.SaveCalendarWebPage(text) ? ZEB17_OK : ZEB17_FILE_FAILED;
    });
}

int zeb17_print(HWND control, const char* path)
{
    return WithCalendar(control, [=](HostedCalendar& calendar) { return calendar.Print(path); });
}

int zeb17_apply_shading(HWND control)
{
    return WithCalendar(control, [](HostedCalendar& calendar) {
        calendar.ApplyBkgShading();
        return ZEB17_OK;
    });
}

int zeb17_control_settings(HWND control, zeb17_settings* settings)
{
    return WithCalendar(control, [=](HostedCalendar& calendar) {
        if (!settings)
            return ZEB17_BAD_ARGUMENT;
        *settings = calendar.Settings();
        return ZEB17_OK;
    });
}

int zeb17_range_end(LPARAM lParam, zeb17_date* date)
{
    return Run([=] {
        const DateTime* const end = RangeEndAt(lParam);
        if (!date || !end)
            return ZEB17_BAD_ARGUMENT;
        if (!end->IsValid()) // the range of a month beyond the last date
            return ZEB17_BAD_DATE;
        *date = FromDateTime(*end);
        return ZEB17_OK;
    });
}
