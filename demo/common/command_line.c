// Reads the command line of the desk calendars.
#include "command_line.h"

#include <stdio.h>
#include <string.h>

static int daysInMonth(int year, int month)
{
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int leap = year % 4 == 0 && (year <= 1582 || year % 100 != 0 || year % 400 == 0);
    return days[month - 1] + (leap && month == 2 ? 1 : 0);
}

static int readDate(DeskDate* date, const char* text)
{
    char rest = 0;
    if (sscanf(text, "%4d-%2d-%2d%c", &date->year, &date->month, &date->day, &rest) != 3)
        return 0;
    if (date->year == 1582 && date->month == 10 && date->day > 4 && date->day < 15)
        return 0; // the days that were left out for the Gregorian calendar
    return date->year >= 1 && date->month >= 1 && date->month <= 12 && date->day >= 1 &&
           date->day <= daysInMonth(date->year, date->month);
}

static int takeOption(DeskOptions* options, const char* name, const char* value)
{
    const struct
    {
        const char* name;
        const char** text;
    } texts[] = {{"--png", &options->png},
                 {"--web", &options->web},
                 {"--print", &options->print},
                 {"--locale", &options->locale},
                 {"--data", &options->data}};
    for (size_t i = 0; i < sizeof texts / sizeof texts[0]; ++i)
        if (strcmp(name, texts[i].name) == 0) {
            *texts[i].text = value;
            return 1;
        }
    if (strcmp(name, "--today") == 0)
        return readDate(&options->today, value);
    return strcmp(name, "--select") == 0 && readDate(&options->select, value);
}

int deskReadOptions(DeskOptions* options, int argc, char** argv)
{
    const DeskOptions none = {0};
    *options = none;
    for (int i = 1; i < argc; i += 2) {
        if (i + 1 < argc && takeOption(options, argv[i], argv[i + 1]))
            continue;
        fprintf(stderr,
                "usage: %s [--png FILE] [--web FILE] [--print FILE.pdf] [--select YYYY-MM-DD]\n"
                "       [--today YYYY-MM-DD] [--locale NAME] [--data DIRECTORY]\n",
                argv[0]);
        return 0;
    }
    return 1;
}

int deskHasOutput(const DeskOptions* options)
{
    return options->png || options->web || options->print;
}
