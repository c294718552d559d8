// Brings the calendar, the panel and the menu together, and shows what the calendar tells.
#include "main_window.h"

#include "failure.h"
#include "resource.h"

#include <commdlg.h>
#include <stdio.h>
#include <string.h>

static const LayoutRule layoutRules[] = {
    {IDC_CALENDAR, GROW_X | GROW_Y}, {IDC_RANGE, GROW_X | MOVE_Y},  {IDC_HEARD, GROW_X | MOVE_Y},
    {IDC_GROUPS_LABEL, MOVE_X},      {IDC_GROUPS, MOVE_X},          {IDC_DATES_LABEL, MOVE_X},
    {IDC_DATES, MOVE_X | GROW_Y},    {IDC_WORDS, MOVE_X | MOVE_Y},  {IDM_ADD, MOVE_X | MOVE_Y},
    {IDM_EDIT, MOVE_X | MOVE_Y},     {IDM_DELETE, MOVE_X | MOVE_Y}, {IDM_SAVE, MOVE_X | MOVE_Y},
};

// ---- What the calendar tells

// In the order of zeb17_event.
static const char* const eventNames[] = {"ZEB17_SELCHANGE", "ZEB17_NODATE",  "ZEB17_ENTERKEY",
                                         "ZEB17_ESCKEY",    "ZEB17_WEBPAGE", "ZEB17_RANGE"};

// A row in the window for the user's eyes, and a line on the standard output for whoever drives the program.
static void addHeard(const MainWindow* window, const char* event, const char* details)
{
    const HWND list = GetDlgItem(window->window, IDC_HEARD);
    char line[100];
    snprintf(line, sizeof line, *details ? "%s %s" : "%s", event, details);
    SendMessage(list, LB_SETTOPINDEX, (WPARAM)SendMessage(list, LB_ADDSTRING, 0, (LPARAM)line), 0);
    printf("%s\n", line);
    fflush(stdout);
}

static void writeDate(char text[20], zeb17_date date)
{
    snprintf(text, 20, "%04d-%02d-%02d", (int)date.year, (int)date.month, (int)date.day);
}

static void hear(const MainWindow* window, const zeb17_notification* told)
{
    const UINT event = told->header.code - ZEB17_NOTIFY_FIRST;
    char date[20], end[20], details[60] = "", range[80];
    if (event >= (UINT)COUNT_OF(eventNames))
        return;
    writeDate(date, told->date);
    writeDate(end, told->end);
    if (event == ZEB17_WEBPAGE)
        PostMessage(window->window, WM_COMMAND, IDM_WEB_PAGE, 0);
    else if (event == ZEB17_RANGE) {
        snprintf(details, sizeof details, "%s to %s", date, end);
        snprintf(range, sizeof range, "Last range: %s", details);
        SetDlgItemText(window->window, IDC_RANGE, range);
    } else if (event != ZEB17_NODATE)
        snprintf(details, sizeof details, "%s%s", date, told->by_press ? " (press)" : "");
    addHeard(window, eventNames[event], details);
}

// A line of the log has a mark in braces and, if the user should know of the failure, words behind it.
static void hearLog(void* context, const char* line)
{
    const MainWindow* const window = context;
    const char* const mark = strchr(line, '}');
    if (mark && mark[1])
        tellFailure(window->owner, "The calendar could not do that.", mark + 1);
}

// ---- Commands

static void saveWebPage(const MainWindow* window)
{
    char path[3 * MAX_PATH] = "calendar.html";
    OPENFILENAME dialog = {.lStructSize = sizeof dialog, .hwndOwner = window->window, .lpstrFile = path};
    dialog.lpstrFilter = "Web pages (*.html)\0*.html\0All files\0*.*\0";
    dialog.nMaxFile = sizeof path;
    dialog.lpstrDefExt = "html";
    dialog.Flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR;
    if (!GetSaveFileName(&dialog))
        return;
    const int result = zeb17_save_web_page(window->calendar, path);
    if (result != ZEB17_OK)
        tellResult(window->window, "The web page could not be written.", result);
}

static void runCommand(MainWindow* window, int id)
{
    switch (id) {
    case IDM_WEB_PAGE:
        saveWebPage(window);
        break;
    case IDM_PRINT:
        zeb17_print(window->calendar, NULL); // the log tells of failures
        break;
    case IDM_QUIT:
        SendMessage(window->window, WM_CLOSE, 0, 0);
        break;
    default:
        runDatesCommand(&window->panel, id);
    }
}

static int mayClose(MainWindow* window)
{
    if (!window->panel.isChanged)
        return 1;
    const int answer = MessageBox(window->window, "Save the changes to your dates?", "zeb17 desk calendar",
                                  MB_YESNOCANCEL | MB_ICONQUESTION);
    if (answer == IDYES)
        runDatesCommand(&window->panel, IDM_SAVE);
    return answer == IDNO || !window->panel.isChanged;
}

// ---- The dialog

// Creates the calendar in the place that the template keeps for it, also in the order of Tab. A data file
// that cannot be read is left as it is: the calendar then goes without special dates. A zeb17_result.
static int createCalendar(MainWindow* window)
{
    const HWND place = GetDlgItem(window->window, IDC_PLACE);
    int result = ZEB17_OK;
    RECT rect;
    GetWindowRect(place, &rect);
    MapWindowPoints(NULL, window->window, (POINT*)&rect, 2);
    window->calendar = zeb17_create(window->window, IDC_CALENDAR, &rect, ZEB17_ALL_FLAGS);
    if (!window->calendar) {
        result = zeb17_last_result();
        window->calendar = zeb17_create(window->window, IDC_CALENDAR, &rect,
                                        ZEB17_ALL_FLAGS & ~(uint32_t)ZEB17_SPECIAL_DATES);
    }
    SetWindowPos(window->calendar, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    DestroyWindow(place);
    return result;
}

static INT_PTR handle(MainWindow* window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        applyLayout(&window->layout);
        return TRUE;
    case WM_GETMINMAXINFO:
        limitLayout(&window->layout, (MINMAXINFO*)lParam);
        return TRUE;
    case WM_DPICHANGED: // the layout has the last word, when the system has moved the controls
        PostMessage(window->window, WM_SIZE, SIZE_RESTORED, 0);
        return FALSE;
    case WM_COMMAND:
        runCommand(window, LOWORD(wParam));
        return TRUE;
    case WM_NOTIFY:
        if (wParam == IDC_CALENDAR)
            hear(window, (const zeb17_notification*)lParam);
        else
            notifyDatesPanel(&window->panel, (const NMHDR*)lParam);
        return TRUE;
    case WM_QUERYENDSESSION:
        SetWindowLongPtr(window->window, DWLP_MSGRESULT, mayClose(window));
        return TRUE;
    case WM_CLOSE:
        if (mayClose(window))
            DestroyWindow(window->window);
        return TRUE;
    case WM_DESTROY:
        zeb17_set_log(NULL, NULL);
        PostQuitMessage(0);
        return TRUE;
    default:
        return FALSE;
    }
}

static INT_PTR CALLBACK mainProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
        SetWindowLongPtr(dialog, DWLP_USER, lParam);
    MainWindow* const window = (MainWindow*)GetWindowLongPtr(dialog, DWLP_USER);
    return window ? handle(window, message, wParam, lParam) : FALSE;
}

int createMainWindow(MainWindow* window, const zeb17_date* selected, int isAttended)
{
    window->window =
        CreateDialogParam(GetModuleHandle(NULL), MAKEINTRESOURCE(IDD_MAIN), NULL, mainProc, (LPARAM)window);
    window->owner = isAttended ? window->window : NULL;
    const int result = createCalendar(window);
    if (!window->calendar)
        return result;
    startLayout(&window->layout, window->window, layoutRules, COUNT_OF(layoutRules));
    startDatesPanel(&window->panel, window->window, window->calendar, result == ZEB17_OK);
    zeb17_set_log(hearLog, window);
    if (selected)
        zeb17_set_date(window->calendar, selected);
    ShowWindow(window->window, SW_SHOW);
    SetFocus(window->calendar);
    if (result != ZEB17_OK)
        tellResult(window->owner, "Your dates could not be read, so none are shown and none can be changed.",
                   result);
    return ZEB17_OK;
}
