// The table of the United States.
#include "DatesUS.h"

#include "DateTexts.h"

#include <StoredText.h>

namespace {

const std::vector<int> kGroundhogDay = StoredText<13>("Groundhog Day");
const std::vector<int> kFlagDay = StoredText<8>("Flag Day");
const std::vector<int> kIndependenceDay = StoredText<16>("Independence Day");
const std::vector<int> kConstitutionDay = StoredText<16>("Constitution Day");
const std::vector<int> kVeteransDay = StoredText<12>("Veterans Day");
const std::vector<int> kPearlHarborRemembranceDay = StoredText<28>("Pearl Harbor Remembrance Day");
const std::vector<int> kMartinLutherKingJrDay = StoredText<27>("Martin Luther King, Jr. Day");
const std::vector<int> kPresidentsDay = StoredText<14>("Presidents Day");
const std::vector<int> kLaborDay = StoredText<9>("Labor Day");
const std::vector<int> kColumbusDay = StoredText<12>("Columbus Day");
const std::vector<int> kMemorialDay = StoredText<12>("Memorial Day");
const std::vector<int> kElectionDay = StoredText<12>("Election Day");

using namespace DateTexts;
using enum DateEntry::OCCURRENCE;
using enum DateEntry::KIND;
using enum DateTable::DayOfWeek;

constexpr DateTable::FixedDate kFixedDates[] = {
    // id, month, day
    {0, 1, 1, &kNewYearsDay},
    {1, 2, 2, &kGroundhogDay},
    {2, 2, 14, &kValentinesDay},
    {3, 3, 17, &kStPatricksDay},
    {4, 3, 21, &kSpring},
    {5, 4, 1, &kAprilFoolsDay},
    {6, 4, 22, &kEarthDay},
    {7, 5, 5, &kCincoDeMayo},
    {8, 6, 14, &kFlagDay},
    {9, 6, 21, &kSummer},
    {10, 7, 4, &kIndependenceDay},
    {11, 9, 21, &kAutumn},
    {12, 9, 17, &kConstitutionDay},
    {13, 10, 16, &kNationalBossDay, true},
    {14, 10, 31, &kHalloween},
    {15, 11, 11, &kVeteransDay},
    {17, 12, 7, &kPearlHarborRemembranceDay},
    {18, 12, 21, &kWinter},
    {19, 12, 24, &kChristmasEve},
    {20, 12, 25, &kChristmas},
    {21, 12, 31, &kNewYearsEve},
};

constexpr DateTable::WeekdayDate kWeekdayDates[] = {
    // id, occurrence, day of the week, month
    {22, OCCURRENCE_THIRD, MONDAY, 1, &kMartinLutherKingJrDay},
    {23, OCCURRENCE_THIRD, MONDAY, 2, &kPresidentsDay},
    {24, OCCURRENCE_FIRST, SUNDAY, 4, &kDaylightSavingTimeStartDate, KIND_UNTIL_YEAR, 2006},
    {25, OCCURRENCE_SECOND, SUNDAY, 3, &kDaylightSavingStarts, KIND_FROM_YEAR, 2007},
    {26, OCCURRENCE_SECOND, SUNDAY, 5, &kMothersDay},
    {27, OCCURRENCE_THIRD, SUNDAY, 6, &kFathersDay},
    {28, OCCURRENCE_FOURTH, SUNDAY, 7, &kParentsDay},
    {29, OCCURRENCE_FIRST, MONDAY, 9, &kLaborDay},
    {30, OCCURRENCE_SECOND, MONDAY, 10, &kColumbusDay},
    {31, OCCURRENCE_FIRST, SUNDAY, 11, &kDaylightSavingEnds, KIND_FROM_YEAR, 2007},
    {32, OCCURRENCE_FOURTH, THURSDAY, 11, &kThanksgiving},
    {33, OCCURRENCE_LAST, MONDAY, 5, &kMemorialDay},
    {34, OCCURRENCE_LAST, SUNDAY, 10, &kDaylightSavingTimeEndDate, KIND_UNTIL_YEAR, 2006},
};

constexpr DateTable::NearWeekdayDate kNearWeekdayDates[] = {
    // id, the weekday's occurrence, day of the week and month, the day of the week before or after it
    {35, OCCURRENCE_LAST, FRIDAY, 4, -WEDNESDAY, &kAdministrativeProfessionalsDay},
    {36, OCCURRENCE_FIRST, MONDAY, 9, SUNDAY, &kGrandparentsDay},
    {37, OCCURRENCE_FIRST, MONDAY, 11, TUESDAY, &kElectionDay, KIND_EVEN_YEARS},
};

constexpr DateTable::EasterDate kEasterDates[] = {
    // id, days after Easter
    {38, 0, &kEaster},
    {39, -46, &kAshWednesday},
    {40, -7, &kPalmSunday},
    {41, -2, &kGoodFriday},
};

}

DatesUS::DatesUS()
{
    AddTable({.fixed = kFixedDates,
              .weekdays = kWeekdayDates,
              .nearWeekdays = kNearWeekdayDates,
              .easter = kEasterDates});
}

bool DatesUS::Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const
{
    return LookupWithEaster(kEasterDates, nDay, nMonth, nYear, strDesc, dwColor);
}
