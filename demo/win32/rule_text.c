// Hands the rule, with the names of the user's language, to the words that all desk calendars share.
#include "rule_text.h"

#include <stdio.h>

void getDateNames(DateNames* names)
{
    for (int i = 0; i < 12; ++i) {
        zeb17_month_name(i + 1, ZEB17_LONG, names->texts[i], NAME_SIZE, NULL);
        names->names.months[i] = names->texts[i];
    }
    for (int i = 0; i < 7; ++i) {
        zeb17_weekday_name(i + 1, ZEB17_LONG, names->texts[12 + i], NAME_SIZE, NULL);
        names->names.weekdays[i] = names->texts[12 + i];
    }
}

int describeRule(char text[RULE_TEXT_SIZE], const zeb17_entry* entry)
{
    const DeskRule rule = {entry->day,          entry->month,       entry->occurrence, entry->weekday,
                           entry->near_weekday, entry->working_day, entry->years,      entry->year};
    DateNames names = {0};
    char words[RULE_TEXT_SIZE / 2] = "There is no such day";
    char date[NAME_SIZE] = "none";
    zeb17_date next;
    zeb17_today(&next);
    const int result = zeb17_rule_next(entry, &next, &next);
    const int isRule = result == ZEB17_OK || result == ZEB17_NOT_FOUND;
    getDateNames(&names);
    if (isRule)
        deskRuleWords(words, sizeof words, &rule, &names.names);
    if (result == ZEB17_OK)
        zeb17_date_text(&next, ZEB17_LONG, date, sizeof date, NULL);
    snprintf(text, RULE_TEXT_SIZE, "%s.\nNext: %s", words, date);
    return isRule;
}
