// The dialog in which a special date is made or changed.
#ifndef DESK_DATE_EDITOR_H
#define DESK_DATE_EDITOR_H

#include <zeb17.h>

enum
{
    DATE_TEXT_SIZE = 1024
};

// The date that the dialog shows and that the user changes. The list can be chosen for a new date only.
typedef struct DateEdit
{
    int isNew;
    int group; // ZEB17_CUSTOM or ZEB17_TODO
    zeb17_entry entry;
    char text[DATE_TEXT_SIZE];
} DateEdit;

// Shows the dialog. 1 if the user is content with the date, 0 if it is to be forgotten.
int editDate(HWND owner, DateEdit* edit);

#endif
