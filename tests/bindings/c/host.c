// Checks of the interface from C: special dates, a plain loop, a dialog, two controls, a second thread.
#include "host.h"

#include <zeb17.h>

#ifndef _WIN32
#include <pthread.h>
#endif

static int failures;

static void check(int holds, const char* what)
{
    if (holds)
        return;
    ++failures;
    say(what);
}

#define TEXT_OF(x) #x
#define PLACE_OF(line) "host.c:" TEXT_OF(line) ": "
#define CHECK(condition) check((condition) != 0, PLACE_OF(__LINE__) #condition)

static int same_text(const char* one, const char* other)
{
    while (*one && *one == *other) {
        ++one;
        ++other;
    }
    return *one == *other;
}

static int same_date(const zeb17_date* date, int year, int month, int day)
{
    return date->year == year && date->month == month && date->day == day;
}

// ---- Special dates, without a window

#define ENTRY(rule) sizeof(zeb17_entry), 0, 1, RGB(0x2E, 0x9B, 0x4F), rule // the first fields of an entry

static void check_rules(zeb17_settings settings)
{
    static const struct
    {
        const char* text;
        zeb17_date next; // after 15 July 2026
        zeb17_entry entry;
    } rules[] = {
        // size, id, shown, color, rule, day, month, occurrence, weekday, near_weekday, working_day, years,
        // year
        {"Leap day", {2028, 2, 29}, {ENTRY(ZEB17_DAY), 29, 2, 0, 0, 0, 0, ZEB17_EVERY_YEAR, 0}},
        {"Last Friday", {2026, 11, 27}, {ENTRY(ZEB17_WEEKDAY), 0, 11, 7, 6, 0, 0, ZEB17_FROM_YEAR, 2020}},
        {"Monday before", {2027, 5, 24}, {ENTRY(ZEB17_NEAR_DAY), 25, 5, 0, 0, -2, 0, ZEB17_UNTIL_YEAR, 2030}},
        {"Election", {2026, 11, 3}, {ENTRY(ZEB17_NEAR_WEEKDAY), 0, 11, 1, 2, 3, 0, ZEB17_EVEN_YEARS, 0}},
    };
    const zeb17_date from = {2026, 7, 15};
    zeb17_entry entry = {ENTRY(ZEB17_DAY), 29, 2, 0, 0, 0, 0, ZEB17_ONCE, 2027};
    zeb17_date next;
    uint32_t index = 99;
    uint32_t i;
    CHECK(zeb17_entry_add(settings, ZEB17_CUSTOM, &entry, "Never", NULL) == ZEB17_OK);
    CHECK(zeb17_entry_next(settings, ZEB17_CUSTOM, 0, &from, &next) == ZEB17_NOT_FOUND);
    CHECK(zeb17_entry_delete(settings, ZEB17_CUSTOM, 0) == ZEB17_OK);
    for (i = 0; i < sizeof rules / sizeof *rules; ++i) {
        const zeb17_date* const due = &rules[i].next;
        CHECK(zeb17_entry_add(settings, ZEB17_CUSTOM, &rules[i].entry, rules[i].text, &index) == ZEB17_OK);
        CHECK(index == i && zeb17_entry_next(settings, ZEB17_CUSTOM, i, &from, &next) == ZEB17_OK);
        CHECK(same_date(&next, due->year, due->month, due->day));
        CHECK(zeb17_rule_next(&rules[i].entry, due, &next) == ZEB17_OK);
        CHECK(same_date(&next, due->year, due->month, due->day));
    }
    CHECK(zeb17_rule_next(&entry, &from, &next) == ZEB17_NOT_FOUND); // no leap day in 2027
    entry.month = 13;
    CHECK(zeb17_rule_next(&entry, &from, &next) == ZEB17_BAD_RULE);
    CHECK(zeb17_entry_set(settings, ZEB17_CUSTOM, 3, &entry, NULL) == ZEB17_BAD_RULE);
}

static void check_groups(zeb17_settings settings)
{
    zeb17_entry entry = {0};
    zeb17_group_info info = {0};
    char text[64];
    uint32_t length = 0;
    info.size = sizeof info;
    entry.size = sizeof entry;
    CHECK(zeb17_group_set_color(settings, ZEB17_US, RGB(0x2A, 0x6F, 0xC9)) == ZEB17_OK);
    CHECK(zeb17_group_get(settings, ZEB17_US, &info) == ZEB17_OK);
    CHECK(info.count == 41 && info.shown == 41 && info.color == RGB(0x2A, 0x6F, 0xC9));
    CHECK(zeb17_group_name(ZEB17_CANADA, text, sizeof text, &length) == ZEB17_OK);
    CHECK(same_text(text, "Canada") && length == 6);
    CHECK(zeb17_group_name(ZEB17_CANADA, text, 6, &length) == ZEB17_SMALL_BUFFER && length == 6);
    CHECK(zeb17_group_name(ZEB17_CANADA, NULL, 0, &length) == ZEB17_OK);

    CHECK(zeb17_entry_get(settings, ZEB17_US, 3, &entry) == ZEB17_OK);
    entry.shown = 0;
    CHECK(zeb17_entry_set(settings, ZEB17_US, 3, &entry, NULL) == ZEB17_OK);
    CHECK(zeb17_group_get(settings, ZEB17_US, &info) == ZEB17_OK && info.shown == 40);
    CHECK(zeb17_entry_set(settings, ZEB17_US, 3, &entry, "Mine") == ZEB17_NOT_ALLOWED);
    CHECK(zeb17_entry_add(settings, ZEB17_US, &entry, "Mine", NULL) == ZEB17_NOT_ALLOWED);
    CHECK(zeb17_entry_get(settings, ZEB17_US, 41, &entry) == ZEB17_NOT_FOUND);
    entry.size = 4;
    CHECK(zeb17_entry_get(settings, ZEB17_US, 0, &entry) == ZEB17_BAD_SIZE);
}

static void check_settings(void)
{
    const zeb17_date leap_day = {2028, 2, 29};
    zeb17_settings settings = NULL;
    zeb17_settings again = NULL;
    const zeb17_entry todo = {ENTRY(ZEB17_DAY), 29, 2, 0, 0, 0, 0, ZEB17_ONCE, 2028};
    COLORREF color = 0;
    char text[256];
    CHECK(zeb17_settings_open(&settings) == ZEB17_OK);
    check_rules(settings);
    check_groups(settings);
    CHECK(zeb17_entry_add(settings, ZEB17_TODO, &todo, "Leap", NULL) == ZEB17_NOT_ALLOWED);
    CHECK(zeb17_enable_todo() == ZEB17_OK);
    CHECK(zeb17_entry_add(settings, ZEB17_TODO, &todo, "Leap", NULL) == ZEB17_OK);
    CHECK(zeb17_settings_save(settings) == ZEB17_OK);

    CHECK(zeb17_settings_open(&again) == ZEB17_OK && again != settings);
    CHECK(zeb17_entry_set(again, ZEB17_TODO, 0, &todo, "Jump") == ZEB17_OK);
    CHECK(zeb17_describe(again, &leap_day, text, sizeof text, NULL, &color) == ZEB17_OK);
    CHECK(same_text(text, "Leap day\r\nJump") && color == RGB(0x2E, 0x9B, 0x4F));
    CHECK(zeb17_entry_delete(again, ZEB17_CUSTOM, 0) == ZEB17_OK);
    CHECK(zeb17_entry_text(again, ZEB17_CUSTOM, 0, text, sizeof text, NULL) == ZEB17_OK);
    CHECK(same_text(text, "Last Friday"));
    CHECK(zeb17_settings_load(again) == ZEB17_OK);
    CHECK(zeb17_entry_text(again, ZEB17_CUSTOM, 0, text, sizeof text, NULL) == ZEB17_OK);
    CHECK(same_text(text, "Leap day"));

    CHECK(zeb17_settings_close(settings) == ZEB17_OK);
    CHECK(zeb17_settings_close(settings) == ZEB17_BAD_HANDLE);
    CHECK(zeb17_settings_close(again) == ZEB17_OK);
    CHECK(zeb17_last_result() == ZEB17_BAD_HANDLE && *zeb17_error_text(zeb17_last_result()));
}

// ---- A window with a control

enum
{
    FIRST_ID = 100, // controls and buttons
    SECOND_ID = 101,
    BUTTON_ID = 200
};

typedef struct heard
{
    int count[6];
    int with_id; // the id in the last message
    zeb17_date end;
    UINT notified; // the last code of WM_NOTIFY
    int commands;  // what a dialog hears of Enter and Esc
} heard;

static heard told;

static LRESULT hear(UINT message, WPARAM wParam, LPARAM lParam)
{
    int event;
    for (event = ZEB17_SELCHANGE; event <= ZEB17_RANGE; ++event)
        if (message == zeb17_message(event)) {
            ++told.count[event];
            told.with_id = (int)wParam;
            if (event == ZEB17_RANGE)
                CHECK(zeb17_range_end(lParam, &told.end) == ZEB17_OK);
        }
    if (message == WM_NOTIFY)
        told.notified = ((const zeb17_notification*)lParam)->header.code;
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL))
        ++told.commands;
    return 0;
}

static LRESULT CALLBACK window_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    hear(message, wParam, lParam);
    return DefWindowProcA(window, message, wParam, lParam);
}

static HWND create_window(void)
{
    const char* const name = "zeb17 host in C";
    static int registered;
    WNDCLASSA window_class = {0};
    HWND window;
    window_class.lpfnWndProc = window_proc;
    window_class.hInstance = GetModuleHandleA(NULL);
    window_class.lpszClassName = name;
    if (!registered++)
        RegisterClassA(&window_class);
    window = CreateWindowExA(0, name, "", WS_OVERLAPPEDWINDOW, 50, 50, 700, 400, NULL, NULL, NULL, NULL);
    ShowWindow(window, SW_SHOW);
    return window;
}

static HWND create_button(HWND parent, int id, int x)
{
    return CreateWindowExA(0, "BUTTON", "&Take", WS_CHILD | WS_VISIBLE | WS_TABSTOP, x, 300, 60, 25, parent,
                           (HMENU)(INT_PTR)id, NULL, NULL);
}

static HWND create_control(HWND parent, int id, uint32_t flags)
{
    const RECT rect = {10, 10, 310, 250};
    return zeb17_create(parent, id, &rect, flags);
}

// The loop of a host: that of a dialog if `dialog` is one.
static void pump(HWND dialog)
{
    MSG message;
    while (PeekMessageA(&message, NULL, 0, 0, PM_REMOVE))
        if (!dialog || !IsDialogMessageA(dialog, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
}

// Twice in the same moment, if `times` is 2: both count.
static void press(HWND dialog, int key, int times)
{
    const HWND focus = GetFocus();
    for (; times > 0; --times) {
        PostMessageA(focus, WM_KEYDOWN, (WPARAM)key, 1);
        PostMessageA(focus, WM_KEYUP, (WPARAM)key, (LPARAM)0xC0000001);
    }
    pump(dialog);
}

static void hold_shift(int down)
{
    BYTE keys[256] = {0};
    keys[VK_SHIFT] = down ? 0x80 : 0;
    SetKeyboardState(keys);
}

static int shows(HWND control, int year, int month, int day)
{
    zeb17_date date = {0, 0, 0};
    return zeb17_get_date(control, &date, NULL) == ZEB17_OK && same_date(&date, year, month, day);
}

static void start(HWND control)
{
    const zeb17_date date = {2026, 7, 15};
    CHECK(zeb17_set_date(control, &date) == ZEB17_OK);
    SetFocus(control);
    pump(NULL);
}

static void check_keys(HWND dialog, HWND control)
{
    start(control);
    press(dialog, VK_RIGHT, 2);
    CHECK(shows(control, 2026, 7, 17));
    press(dialog, VK_UP, 1);
    press(dialog, VK_NEXT, 1);
    CHECK(shows(control, 2026, 8, 10));
    press(dialog, VK_HOME, 1);
    press(dialog, VK_TAB, 1); // to a button, which sees the keys of the control
    CHECK(GetParent(GetFocus()) == control);
    press(dialog, VK_LEFT, 1);
    CHECK(shows(control, 2026, 7, 31));
    press(dialog, 'T', 1);
    CHECK(shows(control, 2026, 7, 15) && GetFocus() == control);
}

static void check_messages(HWND control)
{
    int selected = 1;
    CHECK(told.count[ZEB17_NODATE] == 1 && told.with_id == FIRST_ID);
    CHECK(zeb17_get_date(control, NULL, &selected) == ZEB17_OK && selected == 0);
    start(control);
    CHECK(told.count[ZEB17_SELCHANGE] == 1 && told.notified == ZEB17_NOTIFY_FIRST + ZEB17_SELCHANGE);
    press(NULL, VK_RETURN, 1);
    press(NULL, VK_ESCAPE, 1);
    CHECK(told.count[ZEB17_ENTERKEY] == 1 && told.count[ZEB17_ESCKEY] == 1);
    SendMessageA(control, WM_COMMAND, 42043, 0); // Show Next Month
    CHECK(told.count[ZEB17_RANGE] == 1 && same_date(&told.end, 2026, 8, 31));
    CHECK(zeb17_range_end(17, &told.end) == ZEB17_BAD_ARGUMENT);
    CHECK(zeb17_step(control, ZEB17_YEARS, -1) == ZEB17_OK && shows(control, 2025, 8, 1));
    CHECK(zeb17_step(control, ZEB17_MONTHS, 1000000) == ZEB17_BAD_DATE && shows(control, 2025, 8, 1));
    CHECK(zeb17_set_date(control, NULL) == ZEB17_OK && shows(control, 2026, 7, 15));
}

static void check_own_settings(HWND control)
{
    const zeb17_date day = {2026, 7, 20};
    zeb17_settings own = NULL;
    const zeb17_entry entry = {ENTRY(ZEB17_DAY), 20, 7, 0, 0, 0, 0, ZEB17_EVERY_YEAR, 0};
    char text[64];
    CHECK(zeb17_control_settings(control, &own) == ZEB17_OK);
    CHECK(zeb17_entry_add(own, ZEB17_CUSTOM, &entry, "Fair", NULL) == ZEB17_OK);
    CHECK(zeb17_refresh(control) == ZEB17_OK);
    CHECK(zeb17_describe(own, &day, text, sizeof text, NULL, NULL) == ZEB17_OK && same_text(text, "Fair"));
    CHECK(zeb17_settings_close(own) == ZEB17_NOT_ALLOWED);
    CHECK(zeb17_reload(control) == ZEB17_OK);
    CHECK(zeb17_describe(own, &day, text, sizeof text, NULL, NULL) == ZEB17_OK && same_text(text, ""));
    DestroyWindow(control);
    CHECK(zeb17_refresh(control) == ZEB17_BAD_HANDLE && zeb17_settings_save(own) == ZEB17_BAD_HANDLE);
}

static void check_plain_loop(void)
{
    const HWND window = create_window();
    const heard nothing = {{0}, 0, {0, 0, 0}, 0, 0};
    HWND control;
    told = nothing;
    control = create_control(window, FIRST_ID, ZEB17_ALL_FLAGS);
    CHECK(control != NULL);
    check_messages(control);
    check_keys(NULL, control);
    check_own_settings(control);
    DestroyWindow(window);
    CHECK(create_control(window, FIRST_ID, 0) == NULL && zeb17_last_result() == ZEB17_BAD_HANDLE);
}

static void check_two_controls(void)
{
    const HWND window = create_window();
    const HWND first = create_control(window, FIRST_ID, ZEB17_ALLOW_NO_DATE);
    const HWND second = create_control(window, SECOND_ID, ZEB17_SPECIAL_DATES);
    start(second);
    check_keys(NULL, first);
    CHECK(shows(second, 2026, 7, 15));
    check_keys(NULL, second);
    DestroyWindow(window);
    CHECK(zeb17_get_date(second, NULL, NULL) == ZEB17_BAD_HANDLE);
}

// ---- A dialog

// From the control the keys lead through its eight stops, and on to the buttons of the dialog; and back.
static void check_ring(HWND dialog, HWND control, HWND before, HWND behind)
{
    int i;
    start(control);
    for (i = 0; i < 8; ++i) {
        CHECK(GetFocus() == control || IsChild(control, GetFocus()));
        press(dialog, VK_TAB, 1);
    }
    CHECK(GetFocus() == behind);
    SetFocus(control);
    hold_shift(1);
    press(dialog, VK_TAB, 1);
    hold_shift(0);
    CHECK(GetFocus() == before);
    press(dialog, VK_TAB, 1);
    CHECK(GetFocus() == control);
}

static void check_dialog_keys(HWND dialog, HWND control)
{
    check_keys(dialog, control);
    told.commands = 0;
    start(control);
    press(dialog, VK_RETURN, 1);
    press(dialog, VK_ESCAPE, 1);
    CHECK(told.commands == 2);
    told.commands = told.count[ZEB17_ENTERKEY] = 0;
    SetWindowLongPtrA(control, GWL_STYLE, GetWindowLongPtrA(control, GWL_STYLE) | ZEB17_WANT_ENTER);
    press(dialog, VK_RETURN, 1);
    CHECK(told.commands == 0 && told.count[ZEB17_ENTERKEY] == 1);
}

static void check_dialog(int control_first)
{
    const uint32_t flags = ZEB17_ALLOW_NO_DATE | ZEB17_OPTIONS;
    const HWND dialog = create_window();
    HWND control = control_first ? create_control(dialog, FIRST_ID, flags) : NULL;
    const HWND one = create_button(dialog, BUTTON_ID, 10);
    const HWND other = create_button(dialog, BUTTON_ID + 1, 100);
    if (!control)
        control = create_control(dialog, FIRST_ID, flags);
    check_dialog_keys(dialog, control);
    check_ring(dialog, control, other, one);
    DestroyWindow(dialog);
}

#ifdef _WIN32
// A template in memory: the control and two buttons, in either order.
typedef struct template_writer
{
    WORD words[256];
    int count;
} template_writer;

static void put_text(template_writer* writer, const char* text)
{
    do
        writer->words[writer->count++] = (WORD)*text;
    while (*text++);
}

static void put_item(template_writer* writer, const char* class_name, DWORD style, int id, short x)
{
    const DWORD whole = style | WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    writer->count += writer->count & 1;
    writer->words[writer->count++] = LOWORD(whole);
    writer->words[writer->count++] = HIWORD(whole);
    writer->words[writer->count++] = 0;
    writer->words[writer->count++] = 0;
    writer->words[writer->count++] = (WORD)x;
    writer->words[writer->count++] = 10;
    writer->words[writer->count++] = style & ZEB17_OPTIONS ? 150 : 30;
    writer->words[writer->count++] = style & ZEB17_OPTIONS ? 120 : 14;
    writer->words[writer->count++] = (WORD)id;
    put_text(writer, class_name);
    put_text(writer, "&Take");
    writer->words[writer->count++] = 0;
}

static const DLGTEMPLATE* write_template(template_writer* writer, int control_first)
{
    const DWORD flags = ZEB17_ALLOW_NO_DATE | ZEB17_OPTIONS;
    const DWORD style = WS_POPUP | WS_CAPTION | WS_VISIBLE;
    const WORD head[] = {LOWORD(style), HIWORD(style), 0, 0, 3, 10, 10, 250, 150, 0, 0, 0};
    int i;
    writer->count = 0;
    for (i = 0; i < 12; ++i)
        writer->words[writer->count++] = head[i];
    if (control_first)
        put_item(writer, ZEB17_CLASS, flags, FIRST_ID, 10);
    put_item(writer, "BUTTON", 0, BUTTON_ID, 170);
    put_item(writer, "BUTTON", 0, BUTTON_ID + 1, 210);
    if (!control_first)
        put_item(writer, ZEB17_CLASS, flags, FIRST_ID, 10);
    return (const DLGTEMPLATE*)writer->words;
}

static INT_PTR CALLBACK dialog_proc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    hear(message, wParam, lParam);
    if (message == WM_INITDIALOG && lParam) { // keys typed ahead, for the loop of the dialog
        const HWND control = GetDlgItem(dialog, FIRST_ID);
        CHECK(told.count[ZEB17_NODATE] == 1);
        start(control);
        PostMessageA(control, WM_KEYDOWN, VK_RIGHT, 1);
        PostMessageA(control, WM_KEYDOWN, VK_RIGHT, 1);
        PostMessageA(control, WM_KEYDOWN, VK_RETURN, 1);
        return FALSE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDOK && told.count[ZEB17_NODATE]) {
        CHECK(shows(GetDlgItem(dialog, FIRST_ID), 2026, 7, 17));
        EndDialog(dialog, 17);
    }
    return FALSE;
}

static void check_real_dialog(int control_first)
{
    const heard nothing = {{0}, 0, {0, 0, 0}, 0, 0};
    template_writer writer;
    const DLGTEMPLATE* const dialog_template = write_template(&writer, control_first);
    const HWND dialog =
        CreateDialogIndirectParamA(GetModuleHandleA(NULL), dialog_template, NULL, dialog_proc, 0);
    const HWND one = GetDlgItem(dialog, BUTTON_ID);
    const HWND other = GetDlgItem(dialog, BUTTON_ID + 1);
    const HWND control = GetDlgItem(dialog, FIRST_ID);
    CHECK(control != NULL);
    told = nothing;
    check_dialog_keys(dialog, control);
    check_ring(dialog, control, other, one);
    DestroyWindow(dialog);
    told = nothing;
    CHECK(DialogBoxIndirectParamA(GetModuleHandleA(NULL), dialog_template, NULL, dialog_proc, 1) == 17);
}

// ---- Threads: each may have its own control

static DWORD WINAPI run_thread(LPVOID foreign)
{
    const HWND window = create_window();
    const HWND control = create_control(window, FIRST_ID, ZEB17_SPECIAL_DATES);
    CHECK(zeb17_refresh((HWND)foreign) == ZEB17_WRONG_THREAD);
    CHECK(create_control(GetParent((HWND)foreign), FIRST_ID, 0) == NULL);
    CHECK(zeb17_last_result() == ZEB17_WRONG_THREAD);
    check_keys(NULL, control);
    DestroyWindow(window);
    return 0;
}

static void check_thread(void)
{
    const HWND window = create_window();
    const HWND control = create_control(window, FIRST_ID, 0);
    const HANDLE thread = CreateThread(NULL, 0, run_thread, control, 0, NULL);
    while (WaitForSingleObject(thread, 10) == WAIT_TIMEOUT)
        pump(NULL);
    CloseHandle(thread);
    SetForegroundWindow(window);
    check_keys(NULL, control);
    DestroyWindow(window);
}
#else
static void* run_thread(void* foreign)
{
    zeb17_settings settings = NULL;
    CHECK(zeb17_refresh((HWND)foreign) == ZEB17_WRONG_THREAD);
    CHECK(create_control(GetParent((HWND)foreign), FIRST_ID, 0) == NULL);
    CHECK(zeb17_last_result() == ZEB17_WRONG_THREAD);
    CHECK(zeb17_settings_open(&settings) == ZEB17_OK); // settings of its own it may have
    return settings;
}

static void check_thread(void)
{
    const HWND window = create_window();
    const HWND control = create_control(window, FIRST_ID, 0);
    void* settings = NULL;
    pthread_t thread;
    pthread_create(&thread, NULL, run_thread, control);
    pthread_join(thread, &settings);
    CHECK(zeb17_settings_save((zeb17_settings)settings) == ZEB17_WRONG_THREAD);
    check_keys(NULL, control);
    DestroyWindow(window);
}
#endif

int run_host(const char* directory)
{
    const zeb17_date today = {2026, 7, 15};
    CHECK(zeb17_version() == ZEB17_VERSION);
    CHECK(zeb17_set_data_directory(directory) == ZEB17_OK);
    CHECK(zeb17_set_locale("en-US") == ZEB17_OK);
    CHECK(zeb17_set_today(&today) == ZEB17_OK);
    CHECK(zeb17_register() == ZEB17_OK && zeb17_register() == ZEB17_OK);
    check_settings();
    check_plain_loop();
    check_two_controls();
    check_dialog(1);
    check_dialog(0);
#ifdef _WIN32
    check_real_dialog(1);
    check_real_dialog(0);
#endif
    check_thread();
    if (!failures)
        say("all checks of the host in C hold");
    return failures;
}
