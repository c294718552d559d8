// All special dates of one calendar: the groups of three countries and the user's two groups, and the data
// file that keeps the user's choices and entries.
#pragma once

#include <DatesCanada.h>
#include <DatesCustom.h>
#include <DatesNetherlands.h>
#include <DatesToDo.h>
#include <DatesUS.h>

#include <afx.h>
#include <zeb17_export.h>

#include <cstddef>
#include <memory>
#include <span>

class MTMutex;

// An object must be used by one thread at a time. An operation on a value that is no group does nothing and
// gives 0, null or an empty text.
class ZEB17_EXPORT CalendarSettings
{
public:
    // The groups of special dates.
    enum Group : int
    {
        GroupUS,
        GroupCanada,
        GroupNetherlands,
        GroupCustom, // the user's own dates
        GroupToDo    // the user's to-do list
    };

    // All national entries shown and white, and the user's groups empty. Touches no file.
    CalendarSettings();
    ~CalendarSettings();
    CalendarSettings(const CalendarSettings&) = delete;
    CalendarSettings& operator=(const CalendarSettings&) = delete;

    // The name of a group, which the oldest form of the data file stores, and the number of its entries.
    static CString GetName(Group group);
    size_t GetCount(Group group) const;

    // An entry of the group, which the caller may change but does not own. An entry of the user's groups
    // lives until Load or a deletion ends it. Past the end a national group gives null, and a user's group
    // throws std::out_of_range.
    CalendarDateEntry* GetAt(Group group, size_t nIndex);

    // Puts the to-do list into use, for all calendars of the process and until its end. Before that its
    // entries are loaded, saved, counted and given out, but they are not looked up and cannot be added,
    // deleted, coloured or hidden by the operations below.
    static void EnableToDoList();
    static bool IsEnableToDoList();

    // What falls on the date: the texts of the shown entries, joined by "\r\n", each once. dwColor becomes
    // the colour of the last entry reported, 0x00BBGGRR, and stays as it is if there is none.
    CString GetDateDesc(int nDay, int nMonth, int nYear, DWORD& dwColor) const;

    // Gives all entries of a group a colour, 0x00BBGGRR; shows or hides them all.
    void SetAllColor(Group group, DWORD dwColor);
    void SetAllShow(Group group, bool bShow);

    // Gives the entry, which must be made by `new`, the next id and adds it to the group, which owns it from
    // then on. Null is ignored. While the to-do list is not in use, AddToDoEntry does nothing, and the entry
    // stays the caller's.
    void AddCustomEntry(CalendarDateEntry* pEntry);
    void AddToDoEntry(CalendarDateEntry* pEntry);

    // Deletes the entry. Does nothing if it is not an entry of the group.
    void DeleteCustomEntry(CalendarDateEntry* pEntry);
    void DeleteToDoEntry(CalendarDateEntry* pEntry);

    // Reads the newest data file that exists. The colours and show flags of the national entries are set as
    // the file has them, and the user's groups are replaced. False, with nothing changed, if there is no file
    // or it is empty.
    //
    // Throws CFileException* if what stands at the path cannot be opened or read as a file, or if another
    // process holds the lock of the data file for longer than a few seconds (the cause is then
    // sharingViolation); CArchiveException* if the file ends too early or holds an entry of an unknown form;
    // and std::length_error if it counts more entries than a list can hold. What was read before that stays.
    bool Load();

    // Writes the data file anew in the newest form, and gives true. Throws CFileException* on failure, also
    // if it cannot have the lock of the data file. The old file stays as it was until the new one is whole
    // and on the disk.
    bool Save();

protected:
    // Finds the newest data file that exists, and the version that its path stands for. False if there is
    // none.
    bool GetReadFromDataFile(unsigned short& nVersion, CString& strPath) const;

    // The readers of the forms of the file; the second also reads version 3. They throw what Load throws.
    void ReadDataFileVersion1(CArchive& archive);
    void ReadDataFileVersion2(CArchive& archive);
    void ReadDataFileVersion4(CArchive& archive);

private:
    Dates* FindGroup(Group group);
    const Dates* FindGroup(Group group) const;
    Dates* FindGroupInUse(Group group);
    void SerializeSections(CArchive& archive, std::span<const Group> groups);

    static bool m_bUseToDoList;

    std::unique_ptr<MTMutex> m_pMutex; // held while the data file is read or written
    DatesUS m_DatesUS;
    DatesCanada m_DatesCanada;
    DatesNetherlands m_DatesNetherlands;
    DatesCustom m_DatesCustom;
    DatesToDo m_DatesToDo;
};
