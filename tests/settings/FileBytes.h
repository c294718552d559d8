// The data file byte by byte, by docs/data-file.md and without the code that stores and loads it.
#pragma once

#include <CalendarSettings.h>

#include <cstdint>
#include <string>
#include <vector>

using Entries = std::vector<CalendarDateEntry>;

inline CalendarDateEntry MakeEntry(int nID, const char* szDesc = "Fourth", bool bShow = true,
                                   DWORD dwColor = 0xFFFFFF)
{
    CalendarDateEntry entry;
    entry.SetDay(szDesc, 4, 7);
    entry.m_nID = nID;
    entry.SetShow(bShow);
    entry.SetColor(dwColor);
    return entry;
}

inline Entries EntriesOf(CalendarSettings& settings, CalendarSettings::Group group)
{
    Entries entries;
    for (size_t i = 0; i < settings.GetCount(group); ++i)
        entries.push_back(*settings.GetAt(group, i));
    return entries;
}

class FileBytes
{
public:
    FileBytes& Number(std::uint64_t nValue, int nBytes)
    {
        for (int i = 0; i < nBytes; ++i)
            m_bytes += static_cast<char>(nValue >> (8 * i));
        return *this;
    }
    FileBytes& U8(unsigned nValue) { return Number(nValue, 1); }
    FileBytes& U16(unsigned nValue) { return Number(nValue, 2); }
    FileBytes& U32(std::uint32_t nValue) { return Number(nValue, 4); }
    FileBytes& I32(std::int32_t nValue) { return Number(static_cast<std::uint32_t>(nValue), 4); }
    FileBytes& U64(std::uint64_t nValue) { return Number(nValue, 8); }
    FileBytes& Raw(const std::string& bytes)
    {
        m_bytes += bytes;
        return *this;
    }

    FileBytes& Text(const std::string& text)
    {
        const auto nLength = static_cast<unsigned>(text.size());
        if (nLength < 255)
            return U8(nLength).Raw(text);
        if (nLength < 0xFFFE)
            return U8(255).U16(nLength).Raw(text);
        return U8(255).U16(0xFFFF).U32(nLength).Raw(text);
    }

    // All but the description.
    FileBytes& Rule(const DateEntry& entry, unsigned nForm = 2)
    {
        U16(nForm).I32(entry.m_nRuleWord).I32(entry.m_nKind);
        if (nForm == 2)
            U8(entry.m_bRuleFlag ? 1 : 0);
        for (const std::int32_t nValue : entry.m_anRule)
            I32(nValue);
        if (nForm == 2)
            I32(entry.m_nStartYear);
        return I32(entry.m_nID);
    }
    FileBytes& Date(const DateEntry& entry, unsigned nForm = 2)
    {
        return Rule(entry, nForm).Text(entry.m_strDesc.GetString());
    }
    FileBytes& Entry(const CalendarDateEntry& entry, unsigned nForm = 2)
    {
        return Date(entry, nForm).U16(1).U8(entry.m_bShow ? 1 : 0).U32(entry.m_dwColor);
    }

    FileBytes& Overlay(const Entries& entries, unsigned nSectionWord = 2)
    {
        U16(nSectionWord).Number(entries.size(), nSectionWord == 1 ? 2 : 8);
        for (const CalendarDateEntry& entry : entries)
            I32(entry.m_nID).U32(entry.m_dwColor).U8(entry.m_bShow ? 1 : 0);
        return *this;
    }
    FileBytes& NoOverlays() { return Overlay({}).Overlay({}).Overlay({}); }
    FileBytes& Custom(const Entries& entries, unsigned nSectionWord = 3)
    {
        U16(nSectionWord).Number(entries.size(), nSectionWord <= 2 ? 2 : 8);
        for (const CalendarDateEntry& entry : entries)
            nSectionWord == 1 ? Date(entry) : Entry(entry);
        return *this;
    }
    FileBytes& ToDo(const Entries& entries, unsigned nSectionWord = 1)
    {
        U16(nSectionWord).U64(entries.size());
        for (const CalendarDateEntry& entry : entries)
            Entry(entry);
        return *this;
    }

    std::size_t Size() const { return m_bytes.size(); }
    operator const std::string&() const { return m_bytes; }
    bool operator==(const FileBytes&) const = default;

private:
    std::string m_bytes;
};

inline FileBytes BytesOf(const Entries& entries)
{
    return FileBytes().ToDo(entries);
}

// What a save writes.
inline std::string SavedBytesOf(CalendarSettings& settings)
{
    FileBytes file;
    file.U16(3);
    for (const auto group :
         {CalendarSettings::GroupUS, CalendarSettings::GroupCanada, CalendarSettings::GroupNetherlands})
        file.Overlay(EntriesOf(settings, group));
    return file.Custom(EntriesOf(settings, CalendarSettings::GroupCustom))
        .ToDo(EntriesOf(settings, CalendarSettings::GroupToDo))
        .U32(DatesCustom::s_nNextCustomID);
}
