// The main window: the calendar, what it tells, the panel of dates, and the menu.
#ifndef DESK_MAIN_WINDOW_H
#define DESK_MAIN_WINDOW_H

#include "dates_panel.h"
#include "layout.h"

typedef struct MainWindow
{
    HWND window; // the dialog
    HWND calendar;
    DatesPanel panel;
    Layout layout;
    HWND owner; // of message boxes; null if nobody is there to answer them
} MainWindow;

// Creates and shows the window. It uses the structure until it is destroyed, and then ends the message loop.
// `selected` may be null. A zeb17_result.
int createMainWindow(MainWindow* window, const zeb17_date* selected, int isAttended);

#endif
