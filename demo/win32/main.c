// The desk calendar for Windows: a month with special dates, the user's own dates and to-dos, in C. Its
// command line is described in command_line.h. The manifest makes UTF-8 the code page of the process, so that
// texts go as they are between the calendar, the system and the command line.
#include "main_window.h"
#include "picture.h"
#include "resource.h"

#include <command_line.h>

#include <commctrl.h>
#include <stdio.h>
#include <stdlib.h>

static zeb17_date toDate(const DeskDate* date)
{
    const zeb17_date result = {date->year, date->month, date->day};
    return result;
}

// A zeb17_result.
static int prepare(const DeskOptions* options)
{
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_LISTVIEW_CLASSES | ICC_UPDOWN_CLASS};
    const zeb17_date today = toDate(&options->today);
    int result = ZEB17_OK;
    InitCommonControlsEx(&controls);
    if (today.year != 0)
        result = zeb17_set_today(&today);
    if (result == ZEB17_OK && options->locale)
        result = zeb17_set_locale(options->locale);
    if (result == ZEB17_OK && options->data)
        result = zeb17_set_data_directory(options->data);
    zeb17_enable_todo();
    return result == ZEB17_OK ? zeb17_register() : result;
}

static void dispatch(const MainWindow* window, HACCEL keys, MSG* message)
{
    if (TranslateAccelerator(window->window, keys, message) || IsDialogMessage(window->window, message))
        return;
    TranslateMessage(message);
    DispatchMessage(message);
}

static int runLoop(const MainWindow* window)
{
    const HACCEL keys = LoadAccelerators(GetModuleHandle(NULL), MAKEINTRESOURCE(IDR_KEYS));
    MSG message;
    while (GetMessage(&message, NULL, 0, 0) > 0)
        dispatch(window, keys, &message);
    return (int)message.wParam;
}

// Until every window has painted itself.
static void pumpWaiting(const MainWindow* window)
{
    MSG message;
    while (PeekMessage(&message, NULL, 0, 0, PM_REMOVE))
        dispatch(window, NULL, &message);
}

// Writes what the command line asks for; the exit code of the program.
static int writeOutputs(const MainWindow* window, const DeskOptions* options)
{
    const struct
    {
        const char* path;
        int (*write)(HWND window, const char* path);
        HWND window;
    } outputs[] = {
        {options->png, savePicture, window->window},
        {options->web, zeb17_save_web_page, window->calendar},
        {options->print, zeb17_print, window->calendar},
    };
    int exitCode = 0;
    pumpWaiting(window);
    for (size_t i = 0; i < sizeof outputs / sizeof outputs[0]; ++i) {
        const char* const path = outputs[i].path;
        if (!path || outputs[i].write(outputs[i].window, path) == ZEB17_OK)
            continue;
        fprintf(stderr, "zeb17_desk: could not write %s\n", path);
        exitCode = 1;
    }
    return exitCode;
}

static int fail(int result)
{
    char why[FAILURE_SIZE];
    failureWords(why, result);
    tellFailure(NULL, "The calendar could not be started.", why);
    return 1;
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE before, char* commandLine, int show)
{
    DeskOptions options;
    MainWindow window = {0};
    (void)instance, (void)before, (void)commandLine, (void)show;
    if (!deskReadOptions(&options, __argc, __argv))
        return 2;
    const int result = prepare(&options);
    if (result != ZEB17_OK)
        return fail(result);
    const int isAttended = !deskHasOutput(&options);
    if (!createMainWindow(&window, isAttended))
        return fail(zeb17_last_result());
    const zeb17_date selected = toDate(&options.select);
    if (selected.year != 0)
        zeb17_set_date(window.calendar, &selected);
    showMainWindow(&window);
    return isAttended ? runLoop(&window) : writeOutputs(&window, &options);
}
