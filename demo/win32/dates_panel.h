// The part of the main window beside the calendar: the groups, the user's own dates, and what can be done
// with them.
#ifndef DESK_DATES_PANEL_H
#define DESK_DATES_PANEL_H

#include <zeb17.h>

typedef struct DatesPanel
{
    HWND dialog; // has the panel's controls
    HWND calendar;
    zeb17_settings settings; // the calendar's; null if its data file cannot be read
    int isFilling;           // the program itself changes the lists
    int isChanged;           // since the last save
} DatesPanel;

// Fills the controls; dates that cannot be read can be neither seen nor changed.
void startDatesPanel(DatesPanel* panel, HWND dialog, HWND calendar, int isReadable);

// Does what a command of the panel says, also IDOK, which is Enter. Other commands do nothing.
void runDatesCommand(DatesPanel* panel, int id);

// Follows what the user does in the two lists: at WM_NOTIFY.
void notifyDatesPanel(DatesPanel* panel, const NMHDR* header);

#endif
