// The command line of the desk calendars. C99 or C++.
#ifndef DESK_COMMAND_LINE_H
#define DESK_COMMAND_LINE_H

#ifdef __cplusplus
extern "C" {
#endif

// A day as the calendar numbers it: by the Julian calendar up to 4 October 1582, then by the Gregorian one.
typedef struct DeskDate
{
    int year; // 0: no date
    int month;
    int day;
} DeskDate;

// What the command line asks for. The texts are those of argv; null where an option is not given.
typedef struct DeskOptions
{
    const char* png;    // write the window to this file as a picture, and exit
    const char* web;    // write the month to this file as a web page, and exit
    const char* print;  // print the month to this PDF file, and exit
    const char* locale; // follow the locale of this name, such as nl-NL
    const char* data;   // keep all files in this folder
    DeskDate today;
    DeskDate select;
} DeskOptions;

// Reads the command line. 0, after a word on its use on the standard error output, if it makes no sense.
int deskReadOptions(DeskOptions* options, int argc, char** argv);

// Whether there is something to write without hands, instead of a window to use.
int deskHasOutput(const DeskOptions* options);

#ifdef __cplusplus
}
#endif

#endif
