// The month calendar for C, and for every language that can call C: a window class, messages, and functions
// on plain structures. C99 or C++, any compiler.
//
// The least a host does: zeb17_register(), then zeb17_create() or a window of the class ZEB17_CLASS, then its
// message loop. The control sees keys and the pointer by itself: in a plain GetMessage loop, in a dialog, and
// in the loop of another framework. Destroying the window frees all that belongs to it.
//
// Results. A function gives ZEB17_OK or another of the codes below; where it gives something else, such as a
// window, zeb17_last_result() tells what went wrong. A call that fails changes nothing, unless it says so.
// What is given back through a pointer is written only if the call succeeds. No exception leaves a function,
// and nothing that is given back has to be freed.
//
// Texts are UTF-8 that ends in a null, on Windows too. A function that gives a text takes the caller's
// buffer, the buffer's size in bytes, and where to put the text's length in bytes without the null; the last
// may be null. If the buffer is too small, the length is written all the same, and the code is
// ZEB17_SMALL_BUFFER; a null buffer of size 0 asks for the length alone, and that is no failure. On Windows
// the library keeps texts in the process's code page: a text that the page lacks a character for is refused.
// A program whose manifest asks for the UTF-8 code page can have any text.
//
// Threads. A control belongs to the thread that creates its window, settings to the thread that opens them; a
// call from another thread is refused. On Linux all windows belong to one thread. What holds for the process
// (register, to-do list, shading, today, locale, data directory, log) is set by one thread before the others
// begin.
//
// Compatibility. Within a major version the exported names, the numbers below, and sizes and offsets of
// structures stay as they are. A structure tells its size in its first field, which the caller sets to
// sizeof. zeb17_date and zeb17_face, which never grow, have none.
#ifndef ZEB17_H
#define ZEB17_H

#include <stddef.h>
#include <stdint.h>
#include <windows.h>

#include "zeb17_export.h"

#ifdef __cplusplus
extern "C" {
#endif

// ---- Version and results

// 10000 times the major version, 100 times the minor one, and the patch: of this header, and of the library.
#define ZEB17_VERSION 10000
ZEB17_EXPORT int zeb17_version(void);

// What the functions give.
enum zeb17_result
{
    ZEB17_OK = 0,
    ZEB17_BAD_ARGUMENT = 1, // a null pointer, or a number that is none of those allowed
    ZEB17_BAD_SIZE = 2,     // the size in a structure is none that this library knows
    ZEB17_BAD_HANDLE = 3,   // no window, no calendar, or settings that are closed
    ZEB17_WRONG_THREAD = 4, // the control, the settings or the parent belong to another thread
    ZEB17_BAD_DATE = 5,     // no such date, or a step beyond 1 January of year 1 or 31 December 9999
    ZEB17_BAD_RULE = 6,     // a rule that falls on no date
    ZEB17_BAD_TEXT = 7,     // no UTF-8, empty where it must not be, or not to be had in the code page
    ZEB17_SMALL_BUFFER = 8, // the length says how much is needed, without the null
    ZEB17_NOT_FOUND = 9,    // no such entry, locale or next date
    ZEB17_NOT_ALLOWED = 10, // not with this group, or not before zeb17_enable_todo
    ZEB17_NO_WINDOW = 11,   // the system did not make the window, or the host destroyed it meanwhile
    ZEB17_FILE_FAILED = 12, // a file could not be opened, read or written
    ZEB17_FILE_BUSY = 13,   // another process holds the data file for too long
    ZEB17_FILE_DAMAGED = 14,
    ZEB17_PRINT_FAILED = 15,
    ZEB17_NO_MEMORY = 16,
    ZEB17_FAILED = 17 // the system failed in another way
};

// What a code means, in English, for people who write hosts. Good for ever; "" for a number that is no code.
ZEB17_EXPORT const char* zeb17_error_text(int result);

// The code of the last call of this thread that failed, ZEB17_OK if none has; and what is known beyond the
// code, such as the words of the system on a file; empty if nothing is. Neither call changes them.
ZEB17_EXPORT int zeb17_last_result(void);
ZEB17_EXPORT int zeb17_last_detail(char* buffer, uint32_t size, uint32_t* length);

// ---- Dates

// A day. Julian up to 4 October 1582, Gregorian from 15 October 1582 on;
// the ten days between are no dates.
typedef struct zeb17_date
{
    int32_t year;  // 1 to 9999
    int32_t month; // 1 to 12
    int32_t day;   // from 1
} zeb17_date;

// Today, as the library has it.
ZEB17_EXPORT int zeb17_today(zeb17_date* date);
// Stops the library's clock at noon of that day, for pictures and tests; null lets it run again.
ZEB17_EXPORT int zeb17_set_today(const zeb17_date* date);

// How a date or a name is written.
enum zeb17_form
{
    ZEB17_LONG = 0,
    ZEB17_SHORT = 1
};

// The date as a user of the locale writes it; `form` is a zeb17_form.
ZEB17_EXPORT int zeb17_date_text(const zeb17_date* date, int form, char* buffer, uint32_t size,
                                 uint32_t* length);
// The names in the user's locale: months from 1, weekdays from 1 (Sunday) to 7.
ZEB17_EXPORT int zeb17_month_name(int month, int form, char* buffer, uint32_t size, uint32_t* length);
ZEB17_EXPORT int zeb17_weekday_name(int weekday, int form, char* buffer, uint32_t size, uint32_t* length);
// Adds days, also below 0. ZEB17_BAD_DATE if that leads out of the range of dates.
ZEB17_EXPORT int zeb17_add_days(zeb17_date* date, int32_t days);
// 1 (Sunday) to 7.
ZEB17_EXPORT int zeb17_weekday(const zeb17_date* date, int* weekday);

// Makes the process follow the locale of that name, such as "nl-NL"; "" stands for the user's own.
// ZEB17_NOT_FOUND if the system knows no such locale. To be called before a control is made.
ZEB17_EXPORT int zeb17_set_locale(const char* name);

// ---- The control

// The window class, for CreateWindowEx and dialog templates. In the low 16 bits of the window's style stand
// the zeb17_flag values. The control begins without a date and tells its parent so (ZEB17_NODATE): inside the
// creation, in a dialog before WM_INITDIALOG. WS_TABSTOP gives it a place in the order of a dialog.
#define ZEB17_CLASS "zeb17.Calendar"

// What a control offers; the low 16 bits of its window style.
enum zeb17_flag
{
    ZEB17_SPECIAL_DATES = 0x0001, // load the data file; mark special days by dots and tool tips
    ZEB17_ALLOW_NO_DATE = 0x0002, // offer Clear
    ZEB17_OPTIONS = 0x0004,       // offer the menu
    ZEB17_WEB_PAGE = 0x0008,      // the menu offers the web page
    ZEB17_DATE_RANGES = 0x0010,   // the menu offers the seventeen ranges
    ZEB17_NOTIFY = 0x0020,        // send WM_NOTIFY too, see zeb17_notification
    ZEB17_WANT_ENTER = 0x0040, // in a dialog, Enter and Esc are the control's instead of the dialog's, while
    ZEB17_WANT_ESC = 0x0080,   // the focus is in the control
    ZEB17_ALL_FLAGS = 0x00FF
};

// Registers the class and starts what the control needs, GDI+ included. May be called again. The library then
// stays loaded to the end of the process, so the class does too.
ZEB17_EXPORT int zeb17_register(void);

// Registers the class and creates a visible control, with WS_TABSTOP.
//   parent   a window of the calling thread, whoever made it: it hears the messages
//   id       the control's id, which the messages carry
//   rect     in client coordinates of the parent; any size
//   flags    of zeb17_flag
// Null if that fails; zeb17_last_result tells why. A data file that cannot be read is such a failure: a host
// may then create the control without ZEB17_SPECIAL_DATES.
ZEB17_EXPORT HWND zeb17_create(HWND parent, int id, const RECT* rect, uint32_t flags);

// The date whose month is shown, and whether it is selected (1) or not (0). Either pointer may be null.
ZEB17_EXPORT int zeb17_get_date(HWND control, zeb17_date* date, int* selected);
// Selects a date, shows its month and sends ZEB17_SELCHANGE. With null it selects none, shows the month of
// today and sends nothing.
ZEB17_EXPORT int zeb17_set_date(HWND control, const zeb17_date* date);
// Does what the Today button does: it also gives the control the focus.
ZEB17_EXPORT int zeb17_select_today(HWND control);

// What zeb17_step steps by.
enum zeb17_unit
{
    ZEB17_MONTHS = 0,
    ZEB17_YEARS = 1
};

// Shows a month that lies `count` units later, or earlier for a count below 0, and takes the date along. Does
// what the step buttons do. ZEB17_BAD_DATE, with nothing changed, if that leads out of the range of dates.
ZEB17_EXPORT int zeb17_step(HWND control, int unit, int count);

// Reads the data file anew and shows what it says. After a failure the control shows what was read before.
ZEB17_EXPORT int zeb17_reload(HWND control);
// Shows what was changed in the settings that zeb17_control_settings gave.
ZEB17_EXPORT int zeb17_refresh(HWND control);
// Writes the month shown as a web page to that path. A file that was there stays as it was if that fails.
ZEB17_EXPORT int zeb17_save_web_page(HWND control, const char* path);
// Prints the month shown: on the printer that the user chooses, or, with a path, to that file (PDF) on the
// default printer and without asking.
ZEB17_EXPORT int zeb17_print(HWND control, const char* path);

// The face of a button: its colours, 0x00BBGGRR, from the top to the bottom, and the line around it.
typedef struct zeb17_face
{
    COLORREF top;    // of the area's upper end
    COLORREF bottom; // of its lower end
    COLORREF border; // of the line
} zeb17_face;

// The faces of a button in its four states.
typedef struct zeb17_shading
{
    uint32_t size;       // of this structure
    zeb17_face normal;   // at rest
    zeb17_face hot;      // under the pointer
    zeb17_face pressed;  // while it is held down
    zeb17_face disabled; // where it can't be pressed
} zeb17_shading;

// Sets the shading of the buttons of controls that are made later. A control that is there shows it after
// zeb17_apply_shading.
ZEB17_EXPORT int zeb17_set_shading(const zeb17_shading* shading);
ZEB17_EXPORT int zeb17_apply_shading(HWND control);

// ---- What the parent hears

// Each is a registered message that is sent, not posted: the parent's window procedure runs inside the
// operation that causes it. wParam is the control's id. The handler may do anything, also destroy the
// control.
enum zeb17_event
{
    ZEB17_SELCHANGE =
        0, // a date is selected: it changed or was confirmed; lParam 0 after a press on a day, else 1
    ZEB17_NODATE = 1,   // no date is selected: at creation, and after Clear
    ZEB17_ENTERKEY = 2, // Enter or Esc, while the control itself has the focus
    ZEB17_ESCKEY = 3,
    ZEB17_WEBPAGE = 4, // the user wants a web page: ask for a path and call zeb17_save_web_page
    ZEB17_RANGE = 5    // the user chose a range, from the control's date up to and including zeb17_range_end
};

// The number of the message, which is the same in all processes; 0 if `event` is no zeb17_event.
ZEB17_EXPORT UINT zeb17_message(int event);

// The last day of the range. `lParam` is that of the message ZEB17_RANGE, while it is being handled; at any
// other moment, or with any other number, the code is ZEB17_BAD_ARGUMENT.
ZEB17_EXPORT int zeb17_range_end(LPARAM lParam, zeb17_date* date);

// The code of the first notification.
#define ZEB17_NOTIFY_FIRST 1700u

// With ZEB17_NOTIFY the parent gets each message a second time, as WM_NOTIFY: lParam points to this, for the
// time of the call. The size stands behind the header that the system asks for.
typedef struct zeb17_notification
{
    NMHDR header;     // code: ZEB17_NOTIFY_FIRST plus the zeb17_event
    uint32_t size;    // of this structure
    int32_t by_press; // 1 after a press on a day
    int32_t selected; // whether the date is selected
    zeb17_date date;  // the control's date
    zeb17_date end;   // with ZEB17_RANGE the last day of the range; else as `date`
} zeb17_notification;

// ---- Special dates

// Settings hold five groups of special dates: three of countries, the user's own dates, and the user's to-do
// list. One file of the user's keeps colours, show flags and the user's entries. A control loads settings of
// its own; a host without a window opens some.
typedef struct zeb17_settings_handle* zeb17_settings;

// The groups, by which all functions below name them.
enum zeb17_group
{
    ZEB17_US = 0,
    ZEB17_CANADA = 1,
    ZEB17_NETHERLANDS = 2,
    ZEB17_CUSTOM = 3, // the user's own dates
    ZEB17_TODO = 4
};

// Opens the data file, and gives settings that zeb17_settings_close ends. If there is no file yet, all
// national entries are shown and white, and the user's groups are empty.
ZEB17_EXPORT int zeb17_settings_open(zeb17_settings* settings);
// The control's own settings, good as long as the control is; they are not to be closed. What is changed in
// them is seen after zeb17_refresh. zeb17_reload reads them anew, and what was changed and not saved is then
// lost.
ZEB17_EXPORT int zeb17_control_settings(HWND control, zeb17_settings* settings);
// Reads the data file anew. After a failure, what was read before it stays.
ZEB17_EXPORT int zeb17_settings_load(zeb17_settings settings);
// Writes the data file. The old one stays as it was until the new one is whole.
ZEB17_EXPORT int zeb17_settings_save(zeb17_settings settings);
ZEB17_EXPORT int zeb17_settings_close(zeb17_settings settings);

// Puts the to-do list into use, for the process and to its end. Before that the group can be read, and
// nothing of it is shown or can be changed.
ZEB17_EXPORT int zeb17_enable_todo(void);

// Keeps the data file in that directory from now on, so that the host has one of its own; a save makes the
// directory if it is not there. "" stands for the user's own, whose file all hosts of the user share.
ZEB17_EXPORT int zeb17_set_data_directory(const char* directory);

// What falls on a date: the texts of the entries that are shown, parted by "\r\n"; empty for nothing. The
// colour, 0x00BBGGRR, is that of the dot; white for nothing. Either of `length` and `color` may be null.
ZEB17_EXPORT int zeb17_describe(zeb17_settings settings, const zeb17_date* date, char* buffer, uint32_t size,
                                uint32_t* length, COLORREF* color);

// Stands for a colour where the entries of a group have several.
#define ZEB17_MIXED_COLORS 0xFFFFFFFFu

// A group at a glance.
typedef struct zeb17_group_info
{
    uint32_t size;  // of this structure
    uint32_t count; // how many entries there are
    uint32_t shown; // how many of them are shown
    uint32_t color; // the colour of all, 0x00BBGGRR; ZEB17_MIXED_COLORS if they differ, and of an empty group
} zeb17_group_info;

// The name of a group, in English.
ZEB17_EXPORT int zeb17_group_name(int group, char* buffer, uint32_t size, uint32_t* length);
// How many entries a group has and shows, and their colour.
ZEB17_EXPORT int zeb17_group_get(zeb17_settings settings, int group, zeb17_group_info* info);
// Gives all entries of a group a colour, shows or hides them all.
ZEB17_EXPORT int zeb17_group_set_color(zeb17_settings settings, int group, COLORREF color);
ZEB17_EXPORT int zeb17_group_set_shown(zeb17_settings settings, int group, int shown);

// The date that a rule picks. `day` and `month`, or `occurrence`, `weekday` and `month`, give a date; the
// last two rules pick the nearest `near_weekday` before or after that date, never the date itself.
enum zeb17_rule
{
    ZEB17_CALCULATED = 0,  // counted from Easter: national entries only
    ZEB17_DAY = 1,         // day, month
    ZEB17_WEEKDAY = 2,     // occurrence, weekday, month
    ZEB17_NEAR_DAY = 3,    // day, month, near_weekday
    ZEB17_NEAR_WEEKDAY = 4 // occurrence, weekday, month, near_weekday
};

// In which years a rule holds; `year` gives the year.
enum zeb17_years
{
    ZEB17_EVERY_YEAR = 0,
    ZEB17_EVEN_YEARS = 2,
    ZEB17_FROM_YEAR = 4,  // the tip counts the years since then
    ZEB17_UNTIL_YEAR = 5, // that year included
    ZEB17_ONCE = 6        // in that year only
};

// One special date. Numbers that its rule does not use are 0.
typedef struct zeb17_entry
{
    uint32_t size;        // of this structure
    int32_t id;           // given, not taken: the library numbers entries
    int32_t shown;        // 1 or 0
    uint32_t color;       // 0x00BBGGRR; white is not seen on the white grid
    int32_t rule;         // a zeb17_rule
    int32_t day;          // 1 to 31
    int32_t month;        // 1 to 12
    int32_t occurrence;   // 1 to 4; 7 for the last of the month
    int32_t weekday;      // 1 (Sunday) to 7
    int32_t near_weekday; // -1 to -7 before, 1 to 7 after
    int32_t working_day;  // with ZEB17_DAY: 1 if kept on the nearest working day
    int32_t years;        // a zeb17_years
    int32_t year;         // 1 to 9999 for the last three of them
} zeb17_entry;

// Entries are named by group and index from 0. A deletion moves those behind it; a load replaces those of the
// user.
ZEB17_EXPORT int zeb17_entry_get(zeb17_settings settings, int group, uint32_t index, zeb17_entry* entry);
ZEB17_EXPORT int zeb17_entry_text(zeb17_settings settings, int group, uint32_t index, char* buffer,
                                  uint32_t size, uint32_t* length);
// Changes an entry; with null as the text, the text stays. Of a national entry only `shown` and `color` are
// taken, and the text must be null.
ZEB17_EXPORT int zeb17_entry_set(zeb17_settings settings, int group, uint32_t index, const zeb17_entry* entry,
                                 const char* text);
// Adds an entry at the end of ZEB17_CUSTOM or ZEB17_TODO, and gives its index unless `index` is null.
ZEB17_EXPORT int zeb17_entry_add(zeb17_settings settings, int group, const zeb17_entry* entry,
                                 const char* text, uint32_t* index);
// Deletes an entry of one of these two.
ZEB17_EXPORT int zeb17_entry_delete(zeb17_settings settings, int group, uint32_t index);
// The first date from `from` on, that day included, on which the entry falls. ZEB17_NOT_FOUND if there is
// none, or if the entry is calculated.
ZEB17_EXPORT int zeb17_entry_next(zeb17_settings settings, int group, uint32_t index, const zeb17_date* from,
                                  zeb17_date* next);
// The same of a rule that stands in no settings, such as one that the user is about to make: of the entry its
// rule with its numbers and its years count. ZEB17_BAD_RULE for a rule that falls on no date.
ZEB17_EXPORT int zeb17_rule_next(const zeb17_entry* entry, const zeb17_date* from, zeb17_date* next);

// ---- The log

// Hears a line for each failure after which the control goes on. `line` is good during the call only.
typedef void (*zeb17_log_proc)(void* context, const char* line);
// Sets who hears the log; null for nobody. `context` is handed on as it is.
ZEB17_EXPORT int zeb17_set_log(zeb17_log_proc proc, void* context);

#ifdef __cplusplus
}
#endif

#endif
