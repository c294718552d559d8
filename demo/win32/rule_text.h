// Rules of special dates, months and weekdays in words.
#ifndef DESK_RULE_TEXT_H
#define DESK_RULE_TEXT_H

#include <zeb17.h>

enum
{
    NAME_SIZE = 64,
    RULE_TEXT_SIZE = 512
};

// The names in the user's language.
typedef struct DateNames
{
    char months[12][NAME_SIZE];
    char weekdays[7][NAME_SIZE]; // from Sunday
} DateNames;

void getDateNames(DateNames* names);

// Writes what the rule of an entry says and when it falls next, or that it falls on no day.
void describeRule(char text[RULE_TEXT_SIZE], const zeb17_entry* entry);

#endif
