// Brings the calendar, the panel and the menu together, and shows what the calendar tells.
#include "main_window.h"

#include "resource.h"

#include <commdlg.h>
#include <stdio.h>
#include <string.h>

#define COUNT_OF(table) (int)(sizeof(table) / sizeof(table)[0])

enum
{
    WORDS_SIZE = 80,
    MAX_HEARD = 100
};

static const LayoutRule layoutRules[] = {
    {IDC_CALENDAR, GROW_X | GROW_Y}, {IDC_RANGE, GROW_X | MOVE_Y},  {IDC_HEARD, GROW_X | MOVE_Y},
    {IDC_GROUPS_LABEL, MOVE_X},      {IDC_GROUPS, MOVE_X},          {IDC_DATES_LABEL, MOVE_X},
    {IDC_DATES, MOVE_X | GROW_Y},    {IDC_WORDS, MOVE_X | MOVE_Y},  {IDM_ADD, MOVE_X | MOVE_Y},
    {IDM_EDIT, MOVE_X | MOVE_Y},     {IDM_DELETE, MOVE_X | MOVE_Y}, {IDM_SAVE, MOVE_X | MOVE_Y},
};

// Who can answer a message box.
static HWND ownerOf(const MainWindow* window)
{
    return window->isAttended ? window->window : NULL;
}

// ---- What the calendar tells

static void dateWords(const MainWindow* window, LPARAM lParam, char words[WORDS_SIZE])
{
    zeb17_date date = {0, 0, 0};
    (void)lParam;
    zeb17_get_date(window->calendar, &date, NULL);
    snprintf(words, WORDS_SIZE, "%04d-%02d-%02d", (int)date.year, (int)date.month, (int)date.day);
}

static void selectionWords(const MainWindow* window, LPARAM lParam, char words[WORDS_SIZE])
{
    dateWords(window, lParam, words);
    if (lParam == 0)
        strcat(words, " (press)");
}

static void rangeWords(const MainWindow* window, LPARAM lParam, char words[WORDS_SIZE])
{
    zeb17_date end = {0, 0, 0};
    zeb17_range_end(lParam, &end);
    dateWords(window, lParam, words);
    const size_t length = strlen(words);
    snprintf(words + length, WORDS_SIZE - length, " to %04d-%02d-%02d", (int)end.year, (int)end.month,
             (int)end.day);
}

// In the order of zeb17_event.
static const struct
{
    const char* name;
    void (*describe)(const MainWindow* window, LPARAM lParam, char words[WORDS_SIZE]);
} events[] = {
    {"ZEB17_SELCHANGE", selectionWords}, {"ZEB17_NODATE", NULL},  {"ZEB17_ENTERKEY", dateWords},
    {"ZEB17_ESCKEY", dateWords},         {"ZEB17_WEBPAGE", NULL}, {"ZEB17_RANGE", rangeWords},
};

// A row in the window for the user's eyes, and a line on the standard output for whoever drives the program.
static void addHeard(const MainWindow* window, const char* line)
{
    const HWND list = GetDlgItem(window->window, IDC_HEARD);
    if (SendMessage(list, LB_GETCOUNT, 0, 0) == MAX_HEARD)
        SendMessage(list, LB_DELETESTRING, 0, 0);
    SendMessage(list, LB_SETTOPINDEX, (WPARAM)SendMessage(list, LB_ADDSTRING, 0, (LPARAM)line), 0);
    printf("%s\n", line);
    fflush(stdout);
}

static void hear(MainWindow* window, int event, LPARAM lParam)
{
    char words[WORDS_SIZE] = "";
    char line[2 * WORDS_SIZE];
    if (events[event].describe)
        events[event].describe(window, lParam, words);
    snprintf(line, sizeof line, "%s%s%s", events[event].name, words[0] ? " " : "", words);
    addHeard(window, line);
    if (event == ZEB17_WEBPAGE)
        PostMessage(window->window, WM_COMMAND, IDM_WEB_PAGE, 0);
    if (event != ZEB17_RANGE)
        return;
    snprintf(line, sizeof line, "Last range: %s", words);
    SetDlgItemText(window->window, IDC_RANGE, line);
}

static int eventOf(UINT message)
{
    int event = COUNT_OF(events) - 1;
    while (event >= 0 && message != zeb17_message(event))
        --event;
    return event;
}

// The log has a mark of the place, in braces, and may have words for the user behind it. Failures that a call
// tells too come here alone.
static void hearLog(void* context, const char* line)
{
    const MainWindow* const window = context;
    const char* const mark = strchr(line, '}');
    const char* const words = mark ? mark + 1 : line;
    if (*words)
        tellFailure(ownerOf(window), "The calendar could not do that.", words);
}

// ---- Commands

static void saveWebPage(MainWindow* window)
{
    char path[MAX_PATH] = "calendar.html";
    OPENFILENAME dialog = {0};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = window->window;
    dialog.lpstrFilter = "Web pages (*.html)\0*.html\0All files\0*.*\0";
    dialog.lpstrFile = path;
    dialog.nMaxFile = sizeof path;
    dialog.lpstrDefExt = "html";
    dialog.Flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR;
    if (!GetSaveFileName(&dialog))
        return;
    const int result = zeb17_save_web_page(window->calendar, path);
    if (result == ZEB17_OK)
        return;
    char why[FAILURE_SIZE];
    failureWords(why, result);
    tellFailure(window->window, "The web page could not be written.", why);
}

static void print(MainWindow* window)
{
    zeb17_print(window->calendar, NULL);
}

static void quit(MainWindow* window)
{
    SendMessage(window->window, WM_CLOSE, 0, 0);
}

static void selectToday(MainWindow* window)
{
    zeb17_select_today(window->calendar);
}

static void clearSelection(MainWindow* window)
{
    zeb17_set_date(window->calendar, NULL);
}

static const struct
{
    int id;
    void (*run)(MainWindow* window);
} commands[] = {
    {IDM_WEB_PAGE, saveWebPage}, {IDM_PRINT, print},          {IDM_QUIT, quit},
    {IDM_TODAY, selectToday},    {IDM_CLEAR, clearSelection},
};

static const struct
{
    int id;
    int unit;
    int count;
} steps[] = {
    {IDM_NEXT_MONTH, ZEB17_MONTHS, 1},
    {IDM_PREVIOUS_MONTH, ZEB17_MONTHS, -1},
    {IDM_NEXT_YEAR, ZEB17_YEARS, 1},
    {IDM_PREVIOUS_YEAR, ZEB17_YEARS, -1},
};

static void runCommand(MainWindow* window, int id)
{
    for (int i = 0; i < COUNT_OF(commands); ++i)
        if (commands[i].id == id)
            commands[i].run(window);
    for (int i = 0; i < COUNT_OF(steps); ++i)
        if (steps[i].id == id)
            zeb17_step(window->calendar, steps[i].unit, steps[i].count);
    runDatesCommand(&window->panel, id);
}

static int mayClose(MainWindow* window)
{
    if (!window->panel.isChanged)
        return 1;
    switch (MessageBox(window->window, "Save the changes to your dates?", "zeb17 desk calendar",
                       MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES:
        return saveDates(&window->panel);
    case IDNO:
        return 1;
    default:
        return 0;
    }
}

// ---- Creation

// A data file that cannot be read is left as it is: the calendar then goes without special dates.
static HWND createCalendar(MainWindow* window, const RECT* rect)
{
    const uint32_t flags = ZEB17_ALL_FLAGS & ~ZEB17_NOTIFY;
    const HWND calendar = zeb17_create(window->window, IDC_CALENDAR, rect, flags);
    if (calendar)
        return calendar;
    failureWords(window->loadFailure, zeb17_last_result());
    return zeb17_create(window->window, IDC_CALENDAR, rect, flags & ~ZEB17_SPECIAL_DATES);
}

// The calendar takes the place that the template keeps for it, also in the order of Tab.
static void placeCalendar(MainWindow* window)
{
    const HWND place = GetDlgItem(window->window, IDC_PLACE);
    RECT rect;
    GetWindowRect(place, &rect);
    MapWindowPoints(NULL, window->window, (POINT*)&rect, 2);
    window->calendar = createCalendar(window, &rect);
    SetWindowPos(window->calendar, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    DestroyWindow(place);
}

static void start(MainWindow* window, HWND dialog)
{
    window->window = dialog;
    SetWindowLongPtr(dialog, DWLP_USER, (LONG_PTR)window);
    placeCalendar(window);
    if (!window->calendar)
        return;
    startDatesPanel(&window->panel, dialog, window->calendar, !window->loadFailure[0]);
    startLayout(&window->layout, dialog, layoutRules, COUNT_OF(layoutRules));
    zeb17_set_log(hearLog, window);
    SetFocus(window->calendar);
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
    case WM_COMMAND:
        runCommand(window, LOWORD(wParam));
        return TRUE;
    case WM_NOTIFY:
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
    MainWindow* const window = (MainWindow*)GetWindowLongPtr(dialog, DWLP_USER);
    if (message == WM_INITDIALOG) {
        start((MainWindow*)lParam, dialog);
        return FALSE; // the focus has its place
    }
    if (!window)
        return FALSE;
    const int event = eventOf(message);
    if (event < 0)
        return handle(window, message, wParam, lParam);
    hear(window, event, lParam);
    return TRUE;
}

int createMainWindow(MainWindow* window, int isAttended)
{
    const HINSTANCE instance = GetModuleHandle(NULL);
    window->isAttended = isAttended;
    return CreateDialogParam(instance, MAKEINTRESOURCE(IDD_MAIN), NULL, mainProc, (LPARAM)window) &&
           window->calendar;
}

void showMainWindow(MainWindow* window)
{
    ShowWindow(window->window, SW_SHOW);
    UpdateWindow(window->window);
    if (window->loadFailure[0])
        tellFailure(ownerOf(window),
                    "Your dates could not be read, so none are shown and none can be changed.",
                    window->loadFailure);
}
