// What the files of the program share, and the numbers that the resources know too.
#ifndef DESK_RESOURCE_H
#define DESK_RESOURCE_H

// How many elements an array has.
#define COUNT_OF(array) (int)(sizeof(array) / sizeof(array)[0])

#define IDR_MENU 100
#define IDR_KEYS 101
#define IDD_MAIN 102
#define IDD_DATE 103

// Commands: of the menu, and of the buttons of the main window.
#define IDM_SAVE 200
#define IDM_WEB_PAGE 201
#define IDM_PRINT 202
#define IDM_QUIT 203
#define IDM_ADD 210
#define IDM_EDIT 211
#define IDM_DELETE 212
#define IDM_GROUP_COLOR 213

// The main window.
#define IDC_PLACE 300
#define IDC_CALENDAR 301
#define IDC_RANGE 302
#define IDC_HEARD 303
#define IDC_GROUPS_LABEL 304
#define IDC_GROUPS 305
#define IDC_DATES_LABEL 306
#define IDC_DATES 307
#define IDC_WORDS 308

// The editor of a date.
#define IDC_STATIC (-1) // labels
#define IDC_TEXT 400
#define IDC_LIST 401
#define IDC_RULE 402
#define IDC_NEAR_LABEL 403
#define IDC_NEAR_WEEKDAY 404
#define IDC_SIDE 405
#define IDC_WHICH_LABEL 406
#define IDC_OCCURRENCE 407
#define IDC_WEEKDAY 408
#define IDC_MONTH 409
#define IDC_DAY 410
#define IDC_WORKING_DAY 411
#define IDC_YEARS 412
#define IDC_YEAR 413
#define IDC_YEAR_SPIN 414
#define IDC_COLOR 415
#define IDC_CHOOSE_COLOR 416
#define IDC_MEANING 417

#endif
