// The functions of the interface that work with special dates.
#include "DateValues.h"
#include "Result.h"
#include "SettingsTable.h"
#include "Texts.h"

#include <algorithm>
#include <array>
#include <limits>

using namespace Zeb17;

namespace {

using Group = CalendarSettings::Group;

constexpr COLORREF kLastColor = 0xFFFFFF;
constexpr COLORREF kWhite = 0xFFFFFF;

// Makes a call with open settings.
template <class Call>
int WithSettings(zeb17_settings settings, Call call)
{
    return Run([&]() -> int {
        int result = ZEB17_OK;
        CalendarSettings* const found = SettingsTable::Find(settings, result);
        return found ? call(*found) : result;
    });
}

bool IsGroup(int group)
{
    return group >= ZEB17_US && group <= ZEB17_TODO;
}

bool IsUsers(int group)
{
    return group == ZEB17_CUSTOM || group == ZEB17_TODO;
}

bool MayChange(int group)
{
    return group != ZEB17_TODO || CalendarSettings::IsEnableToDoList();
}

// The same with an entry of the settings.
template <class Call>
int WithEntry(zeb17_settings settings, int group, uint32_t index, Call call)
{
    return WithSettings(settings, [&](CalendarSettings& found) -> int {
        if (!IsGroup(group))
            return ZEB17_BAD_ARGUMENT;
        const auto which = static_cast<Group>(group);
        CalendarDateEntry* const entry = index < found.GetCount(which) ? found.GetAt(which, index) : nullptr;
        return entry ? call(found, *entry) : static_cast<int>(ZEB17_NOT_FOUND);
    });
}

// ---- Rules

// The fields of an entry that the numbers of a rule stand in, in the order of DateEntry::m_anRule.
using Field = int32_t zeb17_entry::*;
using Fields = std::array<Field, 4>;
constexpr Fields kFields[] = {
    {},
    {&zeb17_entry::day, &zeb17_entry::month},
    {&zeb17_entry::occurrence, &zeb17_entry::weekday, &zeb17_entry::month},
    {&zeb17_entry::day, &zeb17_entry::month, &zeb17_entry::near_weekday},
    {&zeb17_entry::occurrence, &zeb17_entry::weekday, &zeb17_entry::month, &zeb17_entry::near_weekday},
};

void TellRule(const DateEntry& entry, zeb17_entry& told)
{
    if (entry.m_nRuleWord < 0 || entry.m_nRuleWord >= static_cast<int>(std::size(kFields)))
        return; // a form that a file has, and nobody knows
    told.rule = entry.m_nRuleWord;
    const Fields& fields = kFields[entry.m_nRuleWord];
    for (std::size_t i = 0; i < fields.size() && fields[i]; ++i)
        told.*fields[i] = entry.m_anRule[i];
}

zeb17_entry Tell(const CalendarDateEntry& entry)
{
    zeb17_entry told{};
    told.size = sizeof told;
    told.id = entry.m_nID;
    told.shown = entry.GetShow();
    told.color = entry.GetColor();
    TellRule(entry, told);
    told.working_day = entry.m_bRuleFlag;
    told.years = entry.m_nKind;
    told.year = entry.m_nStartYear;
    return told;
}

bool IsFlag(int32_t number)
{
    return number == 0 || number == 1;
}

bool HasYear(int32_t years)
{
    return years == ZEB17_FROM_YEAR || years == ZEB17_UNTIL_YEAR || years == ZEB17_ONCE;
}

bool IsRuleComplete(const zeb17_entry& entry)
{
    const bool bHasRule = entry.rule >= ZEB17_DAY && entry.rule <= ZEB17_NEAR_WEEKDAY;
    const bool bHasYears =
        entry.years == ZEB17_EVERY_YEAR || entry.years == ZEB17_EVEN_YEARS || HasYear(entry.years);
    const bool bYearFits =
        !HasYear(entry.years) || (entry.year >= DayNumbers::kMinYear && entry.year <= DayNumbers::kMaxYear);
    return bHasRule && bHasYears && bYearFits && IsFlag(entry.working_day);
}

int TakeLook(const zeb17_entry* given, CalendarDateEntry& entry)
{
    if (!given)
        return ZEB17_BAD_ARGUMENT;
    if (given->size != sizeof *given)
        return ZEB17_BAD_SIZE;
    if (!IsFlag(given->shown) || given->color > kLastColor)
        return ZEB17_BAD_ARGUMENT;
    entry.SetShow(given->shown != 0);
    entry.SetColor(given->color);
    return ZEB17_OK;
}

int TakeRule(const zeb17_entry& given, CalendarDateEntry& entry)
{
    if (!IsRuleComplete(given))
        return ZEB17_BAD_RULE;
    entry.m_nRuleWord = given.rule;
    const Fields& fields = kFields[given.rule];
    for (std::size_t i = 0; i < fields.size(); ++i)
        entry.m_anRule[i] = fields[i] ? given.*fields[i] : 0;
    entry.m_bRuleFlag = given.rule == ZEB17_DAY && given.working_day != 0;
    entry.m_nKind = given.years;
    entry.m_nStartYear = HasYear(given.years) ? given.year : 0;
    return entry.IsValid() ? ZEB17_OK : ZEB17_BAD_RULE;
}

int TakeText(const char* text, CalendarDateEntry& entry)
{
    CString desc;
    if (!FromUtf8(text, desc) || desc.IsEmpty())
        return ZEB17_BAD_TEXT;
    entry.SetDesc(desc);
    return ZEB17_OK;
}

// Takes the whole entry of a user's group.
int Take(const zeb17_entry* given, const char* text, CalendarDateEntry& entry)
{
    int result = TakeLook(given, entry);
    if (result == ZEB17_OK && text)
        result = TakeText(text, entry);
    return result == ZEB17_OK ? TakeRule(*given, entry) : result;
}

int TellNext(const CalendarDateEntry& entry, const zeb17_date* from, zeb17_date* next)
{
    if (!from || !next)
        return ZEB17_BAD_ARGUMENT;
    if (!ToDateTime(from).IsValid())
        return ZEB17_BAD_DATE;
    const auto date = entry.FindNext({from->year, from->month, from->day});
    if (!date)
        return ZEB17_NOT_FOUND;
    *next = {date->nYear, date->nMonth, date->nDay};
    return ZEB17_OK;
}

}

// ---- Settings as a whole

int zeb17_settings_open(zeb17_settings* settings)
{
    return Run([=] {
        if (!settings)
            return ZEB17_BAD_ARGUMENT;
        auto opened = std::make_unique<CalendarSettings>();
        opened->Load();
        *settings = SettingsTable::Add(std::move(opened));
        return ZEB17_OK;
    });
}

int zeb17_settings_load(zeb17_settings settings)
{
    return WithSettings(settings, [](CalendarSettings& found) {
        found.Load();
        return ZEB17_OK;
    });
}

int zeb17_settings_save(zeb17_settings settings)
{
    return WithSettings(settings,
                        [](CalendarSettings& found) { return found.Save() ? ZEB17_OK : ZEB17_FILE_FAILED; });
}

int zeb17_settings_close(zeb17_settings settings)
{
    return WithSettings(settings, [=](CalendarSettings&) {
        if (SettingsTable::IsLent(settings))
            return ZEB17_NOT_ALLOWED;
        SettingsTable::Remove(settings);
        return ZEB17_OK;
    });
}

int zeb17_describe(zeb17_settings settings, const zeb17_date* date, char* buffer, uint32_t size,
                   uint32_t* length, COLORREF* color)
{
    return WithSettings(settings, [=](CalendarSettings& found) -> int {
        if (!date)
            return ZEB17_BAD_ARGUMENT;
        if (!ToDateTime(date).IsValid())
            return ZEB17_BAD_DATE;
        DWORD shown = kWhite;
        const CString text = found.GetDateDesc(date->day, date->month, date->year, shown);
        uint32_t ignored = 0;
        const int result = GiveText(ToUtf8(text), buffer, size, length ? length : &ignored);
        if (result == ZEB17_OK && color)
            *color = shown;
        return result;
    });
}

// ---- Groups

int zeb17_group_name(int group, char* buffer, uint32_t size, uint32_t* length)
{
    return Run([=]() -> int {
        if (!IsGroup(group))
            return ZEB17_BAD_ARGUMENT;
        return GiveText(ToUtf8(CalendarSettings::GetName(static_cast<Group>(group))), buffer, size, length);
    });
}

int zeb17_group_get(zeb17_settings settings, int group, zeb17_group_info* info)
{
    return WithSettings(settings, [=](CalendarSettings& found) {
        if (!IsGroup(group) || !info)
            return ZEB17_BAD_ARGUMENT;
        if (info->size != sizeof *info)
            return ZEB17_BAD_SIZE;
        const auto which = static_cast<Group>(group);
        info->count = static_cast<uint32_t>(found.GetCount(which));
        info->shown = 0;
        info->color = ZEB17_MIXED_COLORS;
        for (uint32_t i = 0; i < info->count; ++i) {
            const CalendarDateEntry* const entry = found.GetAt(which, i);
            info->shown += entry->GetShow() ? 1 : 0;
            if (i == 0)
                info->color = entry->GetColor();
            else if (info->color != entry->GetColor())
                info->color = ZEB17_MIXED_COLORS;
        }
        return ZEB17_OK;
    });
}

int zeb17_group_set_color(zeb17_settings settings, int group, COLORREF color)
{
    return WithSettings(settings, [=](CalendarSettings& found) {
        if (!IsGroup(group) || color > kLastColor)
            return ZEB17_BAD_ARGUMENT;
        if (!MayChange(group))
            return ZEB17_NOT_ALLOWED;
        found.SetAllColor(static_cast<Group>(group), color);
        return ZEB17_OK;
    });
}

int zeb17_group_set_shown(zeb17_settings settings, int group, int shown)
{
    return WithSettings(settings, [=](CalendarSettings& found) {
        if (!IsGroup(group) || !IsFlag(shown))
            return ZEB17_BAD_ARGUMENT;
        if (!MayChange(group))
            return ZEB17_NOT_ALLOWED;
        found.SetAllShow(static_cast<Group>(group), shown != 0);
        return ZEB17_OK;
    });
}

// ---- Entries

int zeb17_entry_get(zeb17_settings settings, int group, uint32_t index, zeb17_entry* entry)
{
    return WithEntry(settings, group, index, [=](CalendarSettings&, const CalendarDateEntry& found) {
        if (!entry)
            return ZEB17_BAD_ARGUMENT;
        if (entry->size != sizeof *entry)
            return ZEB17_BAD_SIZE;
        *entry = Tell(found);
        return ZEB17_OK;
    });
}

int zeb17_entry_text(zeb17_settings settings, int group, uint32_t index, char* buffer, uint32_t size,
                     uint32_t* length)
{
    return WithEntry(settings, group, index, [=](CalendarSettings&, const CalendarDateEntry& found) {
        return GiveText(ToUtf8(found.m_strDesc), buffer, size, length);
    });
}

int zeb17_entry_set(zeb17_settings settings, int group, uint32_t index, const zeb17_entry* entry,
                    const char* text)
{
    return WithEntry(settings, group, index, [=](CalendarSettings&, CalendarDateEntry& found) -> int {
        if (!MayChange(group) || (!IsUsers(group) && text))
            return ZEB17_NOT_ALLOWED;
        CalendarDateEntry changed = found;
        const int result = IsUsers(group) ? Take(entry, text, changed) : TakeLook(entry, changed);
        if (result == ZEB17_OK)
            found = changed;
        return result;
    });
}

int zeb17_entry_add(zeb17_settings settings, int group, const zeb17_entry* entry, const char* text,
                    uint32_t* index)
{
    return WithSettings(settings, [=](CalendarSettings& found) -> int {
        if (!IsGroup(group))
            return ZEB17_BAD_ARGUMENT;
        if (!IsUsers(group) || !MayChange(group))
            return ZEB17_NOT_ALLOWED;
        auto added = std::make_unique<CalendarDateEntry>();
        const int result = text ? Take(entry, text, *added) : static_cast<int>(ZEB17_BAD_TEXT);
        if (result != ZEB17_OK)
            return result;
        if (index)
            *index = static_cast<uint32_t>(found.GetCount(static_cast<Group>(group)));
        group == ZEB17_CUSTOM ? found.AddCustomEntry(added.release()) : found.AddToDoEntry(added.release());
        return ZEB17_OK;
    });
}

int zeb17_entry_delete(zeb17_settings settings, int group, uint32_t index)
{
    return WithEntry(settings, group, index, [=](CalendarSettings& found, CalendarDateEntry& entry) {
        if (!IsUsers(group) || !MayChange(group))
            return ZEB17_NOT_ALLOWED;
        group == ZEB17_CUSTOM ? found.DeleteCustomEntry(&entry) : found.DeleteToDoEntry(&entry);
        return ZEB17_OK;
    });
}

int zeb17_entry_next(zeb17_settings settings, int group, uint32_t index, const zeb17_date* from,
                     zeb17_date* next)
{
    return WithEntry(settings, group, index, [=](CalendarSettings&, const CalendarDateEntry& found) {
        return TellNext(found, from, next);
    });
}

int zeb17_rule_next(const zeb17_entry* entry, const zeb17_date* from, zeb17_date* next)
{
    return Run([=]() -> int {
        if (!entry)
            return ZEB17_BAD_ARGUMENT;
        if (entry->size != sizeof *entry)
            return ZEB17_BAD_SIZE;
        CalendarDateEntry taken;
        taken.SetDesc("rule"); // without words no entry is valid
        const int result = TakeRule(*entry, taken);
        return result == ZEB17_OK ? TellNext(taken, from, next) : result;
    });
}
