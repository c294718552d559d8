// Rules of special dates in words.
#ifndef DESK_RULE_TEXT_H
#define DESK_RULE_TEXT_H

#include <rule_words.h>

#include <zeb17.h>

enum
{
    NAME_SIZE = 64,
    RULE_TEXT_SIZE = 512
};

// The months and weekdays in the user's language. The structure is not to be copied: it points into itself.
typedef struct DateNames
{
    DeskNames names;
    char texts[19][NAME_SIZE];
} DateNames;

void getDateNames(DateNames* names);

// Writes what the rule of an entry says and when it falls next. 0 if there is no such day.
int describeRule(char text[RULE_TEXT_SIZE], const zeb17_entry* entry);

#endif
