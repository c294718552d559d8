// The main window: the calendar, what it tells, the panel of dates, and the menu.
#ifndef DESK_MAIN_WINDOW_H
#define DESK_MAIN_WINDOW_H

#include "dates_panel.h"
#include "failure.h"
#include "layout.h"

typedef struct MainWindow
{
    HWND window; // the dialog
    HWND calendar;
    DatesPanel panel;
    Layout layout;
    int isAttended;                 // there is somebody who can answer message boxes
    char loadFailure[FAILURE_SIZE]; // why the dates cannot be read; empty if they can
} MainWindow;

// Creates the window, still hidden. It uses the structure until it is destroyed, and then ends the message
// loop. 0 if it cannot be created.
int createMainWindow(MainWindow* window, int isAttended);

// Shows the window, and tells what went wrong before there was one.
void showMainWindow(MainWindow* window);

#endif
