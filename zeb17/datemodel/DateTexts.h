// The texts that several national groups share. Each is one constant, so that a date that two groups have is
// reported with one text.
#pragma once

#include <StoredText.h>

#include <vector>

namespace DateTexts {

inline const std::vector<int> kNewYearsDay = StoredText<14>("New Year's Day");
inline const std::vector<int> kValentinesDay = StoredText<15>("Valentine's Day");
inline const std::vector<int> kStPatricksDay = StoredText<17>("St. Patrick's Day");
inline const std::vector<int> kSpring = StoredText<6>("Spring");
inline const std::vector<int> kAprilFoolsDay = StoredText<15>("April Fools Day");
inline const std::vector<int> kEarthDay = StoredText<9>("Earth Day");
inline const std::vector<int> kCincoDeMayo = StoredText<13>("Cinco de Mayo");
inline const std::vector<int> kSummer = StoredText<6>("Summer");
inline const std::vector<int> kAutumn = StoredText<6>("Autumn");
inline const std::vector<int> kNationalBossDay = StoredText<18>("National Boss' Day");
inline const std::vector<int> kHalloween = StoredText<9>("Halloween");
inline const std::vector<int> kWinter = StoredText<6>("Winter");
inline const std::vector<int> kChristmasEve = StoredText<13>("Christmas Eve");
inline const std::vector<int> kChristmas = StoredText<9>("Christmas");
inline const std::vector<int> kNewYearsEve = StoredText<14>("New Year's Eve");
inline const std::vector<int> kDaylightSavingTimeStartDate = StoredText<28>("Daylight Saving Time (start)");
inline const std::vector<int> kDaylightSavingStarts = StoredText<22>("Daylight Saving Starts");
inline const std::vector<int> kMothersDay = StoredText<12>("Mother's Day");
inline const std::vector<int> kFathersDay = StoredText<12>("Father's Day");
inline const std::vector<int> kParentsDay = StoredText<12>("Parents' Day");
inline const std::vector<int> kDaylightSavingEnds = StoredText<20>("Daylight Saving Ends");
inline const std::vector<int> kThanksgiving = StoredText<12>("Thanksgiving");
inline const std::vector<int> kDaylightSavingTimeEndDate = StoredText<26>("Daylight Saving Time (end)");
inline const std::vector<int> kAdministrativeProfessionalsDay =
    StoredText<32>("Administrative Professionals Day");
inline const std::vector<int> kGrandparentsDay = StoredText<16>("Grandparents Day");
inline const std::vector<int> kEaster = StoredText<6>("Easter");
inline const std::vector<int> kAshWednesday = StoredText<13>("Ash Wednesday");
inline const std::vector<int> kPalmSunday = StoredText<11>("Palm Sunday");
inline const std::vector<int> kGoodFriday = StoredText<11>("Good Friday");

}
