// The rule of a special date in words for the user of a desk calendar. C99 or C++.
#ifndef DESK_RULE_WORDS_H
#define DESK_RULE_WORDS_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

// A number and what it is called.
typedef struct DeskChoice
{
    int value;
    const char* name;
} DeskChoice;

// A rule. `day` of `month`; or, with an occurrence, that `weekday` in `month`. With a near weekday it falls
// not on the day found so, but on the next such weekday after or before it.
typedef struct DeskRule
{
    int day;
    int month;          // 1 to 12
    int occurrence;     // a value of deskOccurrences; 0: the rule goes by `day`
    int weekday;        // 1 (Sunday) to 7
    int nearWeekday;    // 1 to 7 after the day, -1 to -7 before it; 0: the day itself
    int movesToWorkday; // on a weekend it falls on the nearest working day
    int years;          // a value of deskYears
    int year;           // for the last three of these
} DeskRule;

// The kinds of rules, as the user chooses among them; each of the values is its place, counted from 1.
extern const DeskChoice deskRuleKinds[4];
extern const DeskChoice deskOccurrences[5];
extern const DeskChoice deskYears[5];

enum
{
    DESK_EVERY_YEAR = 0,
    DESK_EVEN_YEARS = 2,
    DESK_FROM_YEAR = 4,
    DESK_UNTIL_YEAR = 5,
    DESK_IN_YEAR = 6
};

// The names in the user's language.
typedef struct DeskNames
{
    const char* months[12];
    const char* weekdays[7]; // from Sunday
} DeskNames;

// Writes the rule, such as "The fourth Thursday of November, from 2020 on", as far as it fits into `size`
// bytes with the null at the end. All numbers of the rule that count are to be as described above.
void deskRuleWords(char* words, size_t size, const DeskRule* rule, const DeskNames* names);

#ifdef __cplusplus
}
#endif

#endif
