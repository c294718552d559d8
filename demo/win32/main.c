// The desk calendar for Windows, in C; command_line.h describes its command line. The manifest makes UTF-8
// the code page of the process, so texts go as they are between the calendar, the system and the command
// line.
#include "failure.h"
#include "main_window.h"
#include "picture.h"
#include "resource.h"

#include <command_line.h>

#include <commctrl.h>
#include <stdio.h>
#include <stdlib.h>

// A zeb17_result.
static int prepare(const DeskOptions* options)
{
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_LISTVIEW_CLASSES | ICC_UPDOWN_CLASS};
    const zeb17_date today = {options->today.year, options->today.month, options->today.day};
    InitCommonControlsEx(&controls);
    int result = zeb17_set_today(today.year != 0 ? &today : NULL);
    if (result == ZEB17_OK && options->locale)
        result = zeb17_set_locale(options->locale);
    if (result == ZEB17_OK && options->data)
        result = zeb17_set_data_directory(options->data);
    zeb17_enable_todo();
    return result == ZEB17_OK ? zeb17_register() : result;
}

static int runLoop(const MainWindow* window)
{
    const HACCEL keys = LoadAccelerators(GetModuleHandle(NULL), MAKEINTRESOURCE(IDR_KEYS));
    MSG message;
    while (GetMessage(&message, NULL, 0, 0) > 0) {
        if (TranslateAccelerator(window->window, keys, &message) || IsDialogMessage(window->window, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessage(&message);
    }
    return (int)message.wParam;
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
    RedrawWindow(window->window, NULL, NULL, RDW_UPDATENOW | RDW_ALLCHILDREN);
    for (size_t i = 0; i < sizeof outputs / sizeof outputs[0]; ++i) {
        const char* const path = outputs[i].path;
        if (!path || outputs[i].write(outputs[i].window, path) == ZEB17_OK)
            continue;
        fprintf(stderr, "zeb17_desk: could not write %s\n", path);
        exitCode = 1;
    }
    return exitCode;
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE before, char* commandLine, int show)
{
    DeskOptions options;
    MainWindow window = {0};
    (void)instance, (void)before, (void)commandLine, (void)show;
    if (!deskReadOptions(&options, __argc, __argv))
        return 2;
    const int isAttended = !deskHasOutput(&options);
    const zeb17_date selected = {options.select.year, options.select.month, options.select.day};
    int result = prepare(&options);
    if (result == ZEB17_OK)
        result = createMainWindow(&window, selected.year != 0 ? &selected : NULL, isAttended);
    if (result != ZEB17_OK) {
        tellResult(NULL, "The calendar could not be started.", result);
        return 1;
    }
    return isAttended ? runLoop(&window) : writeOutputs(&window, &options);
}
