// The table of the Netherlands.
#include "DatesNetherlands.h"

#include "DateTexts.h"

#include <StoredText.h>

namespace {

const std::vector<int> kNieuwjaar = StoredText<9>("Nieuwjaar");
const std::vector<int> kLente = StoredText<5>("Lente");
const std::vector<int> kKoninginnedag = StoredText<13>("Koninginnedag");
const std::vector<int> kDodenherdenking = StoredText<15>("Dodenherdenking");
const std::vector<int> kBevrijdingsdag = StoredText<14>("Bevrijdingsdag");
const std::vector<int> kZomer = StoredText<6>("Zomer!");
const std::vector<int> kHerfst = StoredText<6>("Herfst");
const std::vector<int> kSinterklaas = StoredText<11>("Sinterklaas");
const std::vector<int> kKoninkrijksdag = StoredText<14>("Koninkrijksdag");
const std::vector<int> kKerstmis = StoredText<8>("Kerstmis");
const std::vector<int> kOudejaarsavond = StoredText<17>("De oudejaarsavond");
const std::vector<int> kBeginZomertijd = StoredText<15>("Begin zomertijd");
const std::vector<int> kEindeVanDeZomertijd = StoredText<22>("Einde van de zomertijd");
const std::vector<int> kEindeZomertijd = StoredText<15>("Einde zomertijd");
const std::vector<int> kEerstePaasdag = StoredText<14>("Eerste paasdag");
const std::vector<int> kTweedePaasdag = StoredText<14>("Tweede paasdag");
const std::vector<int> kAswoensdag = StoredText<10>("Aswoensdag");
const std::vector<int> kPalmpaasdag = StoredText<11>("Palmpaasdag");
const std::vector<int> kHemelvaartweek = StoredText<14>("Hemelvaartweek");
const std::vector<int> kPinksteren = StoredText<10>("Pinksteren");
const std::vector<int> kTweedePinksterdag = StoredText<18>("Tweede pinksterdag");

using namespace DateTexts;
using enum DateEntry::OCCURRENCE;
using enum DateEntry::KIND;
using enum DateTable::DayOfWeek;

constexpr DateTable::FixedDate kFixedDates[] = {
    // id, month, day
    {200, 1, 1, &kNieuwjaar},       {201, 3, 21, &kLente},         {202, 4, 30, &kKoninginnedag},
    {203, 5, 4, &kDodenherdenking}, {204, 5, 5, &kBevrijdingsdag}, {205, 6, 21, &kZomer},
    {206, 9, 21, &kHerfst},         {207, 12, 5, &kSinterklaas},   {208, 12, 15, &kKoninkrijksdag},
    {209, 12, 21, &kWinter},        {210, 12, 25, &kKerstmis},     {211, 12, 31, &kOudejaarsavond},
};

constexpr DateTable::WeekdayDate kWeekdayDates[] = {
    // id, occurrence, day of the week, month
    {212, OCCURRENCE_LAST, SUNDAY, 3, &kBeginZomertijd},
    {213, OCCURRENCE_LAST, SUNDAY, 9, &kEindeVanDeZomertijd, KIND_UNTIL_YEAR, 1996},
    {214, OCCURRENCE_LAST, SUNDAY, 10, &kEindeZomertijd, KIND_FROM_YEAR, 1997},
};

constexpr DateTable::EasterDate kEasterDates[] = {
    // id, days after Easter
    {215, 0, &kEerstePaasdag},      {216, 1, &kTweedePaasdag},   {217, -46, &kAswoensdag},
    {218, -7, &kPalmpaasdag},       {219, 40, &kHemelvaartweek}, {220, 49, &kPinksteren},
    {221, 50, &kTweedePinksterdag},
};

}

DatesNetherlands::DatesNetherlands()
{
    AddTable({.fixed = kFixedDates, .weekdays = kWeekdayDates, .easter = kEasterDates});
}

bool DatesNetherlands::Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const
{
    return LookupWithEaster(kEasterDates, nDay, nMonth, nYear, strDesc, dwColor);
}
