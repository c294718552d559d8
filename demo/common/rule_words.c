// Puts the rule of a special date into words.
#include "rule_words.h"

#include <stdarg.h>
#include <stdio.h>
#include <string.h>

const DeskChoice deskRuleKinds[4] = {
    {1, "A day of the year"},
    {2, "A weekday of a month"},
    {3, "A weekday before or after a day"},
    {4, "A weekday before or after another"},
};

const DeskChoice deskOccurrences[5] = {
    {1, "first"}, {2, "second"}, {3, "third"}, {4, "fourth"}, {7, "last"},
};

const DeskChoice deskYears[5] = {
    {DESK_EVERY_YEAR, "Every year"},    {DESK_EVEN_YEARS, "Even years"},
    {DESK_FROM_YEAR, "From the year"},  {DESK_UNTIL_YEAR, "Until the year"},
    {DESK_IN_YEAR, "Only in the year"},
};

static const char* occurrenceName(int value)
{
    for (size_t i = 0; i < sizeof deskOccurrences / sizeof deskOccurrences[0]; ++i)
        if (deskOccurrences[i].value == value)
            return deskOccurrences[i].name;
    return "";
}

static void append(char* words, size_t size, const char* format, ...)
{
    const size_t length = strlen(words);
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(words + length, size - length, format, arguments);
    va_end(arguments);
}

static void appendNearWeekday(char* words, size_t size, int nearWeekday, const DeskNames* names)
{
    const int before = nearWeekday < 0;
    if (nearWeekday != 0)
        append(words, size, "the %s %s ", names->weekdays[(before ? -nearWeekday : nearWeekday) - 1],
               before ? "before" : "after");
}

static void appendYears(char* words, size_t size, int years, int year)
{
    switch (years) {
    case DESK_EVEN_YEARS:
        append(words, size, ", in even years");
        break;
    case DESK_FROM_YEAR:
        append(words, size, ", from %d on", year);
        break;
    case DESK_UNTIL_YEAR:
        append(words, size, ", until %d", year);
        break;
    case DESK_IN_YEAR:
        append(words, size, ", in %d only", year);
        break;
    default:
        break;
    }
}

void deskRuleWords(char* words, size_t size, const DeskRule* rule, const DeskNames* names)
{
    const char* const month = names->months[rule->month - 1];
    words[0] = '\0';
    appendNearWeekday(words, size, rule->nearWeekday, names);
    if (rule->occurrence != 0)
        append(words, size, "the %s %s of %s", occurrenceName(rule->occurrence),
               names->weekdays[rule->weekday - 1], month);
    else
        append(words, size, "%d %s", rule->day, month);
    if (rule->movesToWorkday)
        append(words, size, ", or the nearest working day");
    appendYears(words, size, rule->years, rule->year);
    if (words[0] == 't')
        words[0] = 'T';
}
