// The table of Canada.
#include "DatesCanada.h"

#include "DateTexts.h"

#include <StoredText.h>

namespace {

const std::vector<int> kStJeanBaptisteDay = StoredText<21>("St. Jean Baptiste Day");
const std::vector<int> kCanadaDay = StoredText<10>("Canada Day");
const std::vector<int> kAllSaintsDay = StoredText<15>("All Saints' Day");
const std::vector<int> kNationalChildDay = StoredText<18>("National Child Day");
const std::vector<int> kBoxingDay = StoredText<10>("Boxing Day");
const std::vector<int> kFamilyDay = StoredText<10>("Family Day");
const std::vector<int> kCivicHoliday = StoredText<13>("Civic Holiday");
const std::vector<int> kLabourDay = StoredText<10>("Labour Day");
const std::vector<int> kVictoriaDay = StoredText<12>("Victoria Day");
const std::vector<int> kEasterMonday = StoredText<13>("Easter Monday");

using namespace DateTexts;
using enum DateEntry::OCCURRENCE;
using enum DateEntry::KIND;
using enum DateTable::DayOfWeek;

constexpr DateTable::FixedDate kFixedDates[] = {
    // id, month, day
    {100, 1, 1, &kNewYearsDay}, {101, 2, 14, &kValentinesDay}, {102, 3, 17, &kStPatricksDay},
    {103, 3, 21, &kSpring},     {104, 4, 1, &kAprilFoolsDay},  {105, 4, 22, &kEarthDay},
    {106, 5, 5, &kCincoDeMayo}, {107, 6, 21, &kSummer},        {108, 6, 24, &kStJeanBaptisteDay},
    {109, 7, 1, &kCanadaDay},   {110, 9, 21, &kAutumn},        {111, 10, 16, &kNationalBossDay, true},
    {112, 10, 31, &kHalloween}, {113, 11, 1, &kAllSaintsDay},  {114, 11, 20, &kNationalChildDay},
    {116, 12, 21, &kWinter},    {117, 12, 24, &kChristmasEve}, {118, 12, 25, &kChristmas},
    {119, 12, 26, &kBoxingDay}, {120, 12, 31, &kNewYearsEve},
};

constexpr DateTable::WeekdayDate kWeekdayDates[] = {
    // id, occurrence, day of the week, month
    {121, OCCURRENCE_THIRD, MONDAY, 2, &kFamilyDay},
    {122, OCCURRENCE_FIRST, SUNDAY, 4, &kDaylightSavingTimeStartDate, KIND_UNTIL_YEAR, 2006},
    {123, OCCURRENCE_SECOND, SUNDAY, 3, &kDaylightSavingStarts, KIND_FROM_YEAR, 2007},
    {124, OCCURRENCE_SECOND, SUNDAY, 5, &kMothersDay},
    {125, OCCURRENCE_THIRD, SUNDAY, 6, &kFathersDay},
    {126, OCCURRENCE_FOURTH, SUNDAY, 7, &kParentsDay},
    {127, OCCURRENCE_FIRST, MONDAY, 8, &kCivicHoliday},
    {128, OCCURRENCE_FIRST, MONDAY, 9, &kLabourDay},
    {129, OCCURRENCE_SECOND, MONDAY, 10, &kThanksgiving},
    {130, OCCURRENCE_FIRST, SUNDAY, 11, &kDaylightSavingEnds, KIND_FROM_YEAR, 2007},
    {131, OCCURRENCE_LAST, SUNDAY, 10, &kDaylightSavingTimeEndDate, KIND_UNTIL_YEAR, 2006},
};

constexpr DateTable::NearWeekdayDate kNearWeekdayDates[] = {
    // id, the weekday's occurrence, day of the week and month, the day of the week before or after it
    {132, OCCURRENCE_FIRST, MONDAY, 9, SUNDAY, &kGrandparentsDay},
    {133, OCCURRENCE_LAST, FRIDAY, 4, -WEDNESDAY, &kAdministrativeProfessionalsDay},
};

constexpr DateTable::NearFixedDate kNearFixedDates[] = {
    // id, month, day, the day of the week before or after it
    {134, 5, 25, -MONDAY, &kVictoriaDay},
};

constexpr DateTable::EasterDate kEasterDates[] = {
    // id, days after Easter
    {135, 0, &kEaster},      {136, 1, &kEasterMonday}, {137, -46, &kAshWednesday},
    {138, -7, &kPalmSunday}, {139, -2, &kGoodFriday},
};

}

DatesCanada::DatesCanada()
{
    AddTable({.fixed = kFixedDates,
              .weekdays = kWeekdayDates,
              .nearWeekdays = kNearWeekdayDates,
              .nearFixed = kNearFixedDates,
              .easter = kEasterDates});
}

bool DatesCanada::Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const
{
    return LookupWithEaster(kEasterDates, nDay, nMonth, nYear, strDesc, dwColor);
}
