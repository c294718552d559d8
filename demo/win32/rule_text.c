// Hands the rule, with the names of the user's language, to the words that all desk calendars share.
#include "rule_text.h"

#include <rule_words.h>

#include <stdio.h>

void getDateNames(DateNames* names)
{
    for (int month = 1; month <= 12; ++month)
        zeb17_month_name(month, ZEB17_LONG, names->months[month - 1], NAME_SIZE, NULL);
    for (int weekday = 1; weekday <= 7; ++weekday)
        zeb17_weekday_name(weekday, ZEB17_LONG, names->weekdays[weekday - 1], NAME_SIZE, NULL);
}

static void ruleWords(char* words, size_t size, const zeb17_entry* entry)
{
    const DeskRule rule = {entry->day,          entry->month,       entry->occurrence, entry->weekday,
                           entry->near_weekday, entry->working_day, entry->years,      entry->year};
    DateNames texts = {0};
    DeskNames names = {0};
    getDateNames(&texts);
    for (int i = 0; i < 12; ++i)
        names.months[i] = texts.months[i];
    for (int i = 0; i < 7; ++i)
        names.weekdays[i] = texts.weekdays[i];
    deskRuleWords(words, size, &rule, &names);
}

void describeRule(char text[RULE_TEXT_SIZE], const zeb17_entry* entry)
{
    char words[RULE_TEXT_SIZE / 2];
    char date[NAME_SIZE] = "none";
    zeb17_date next;
    zeb17_today(&next);
    const int result = zeb17_rule_next(entry, &next, &next);
    if (result == ZEB17_OK)
        zeb17_date_text(&next, ZEB17_LONG, date, sizeof date, NULL);
    else if (result != ZEB17_NOT_FOUND) {
        snprintf(text, RULE_TEXT_SIZE, "There is no such day.");
        return;
    }
    ruleWords(words, sizeof words, entry);
    snprintf(text, RULE_TEXT_SIZE, "%s.\nNext: %s", words, date);
}
