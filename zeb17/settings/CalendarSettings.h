// All special dates of one calendar: the groups of three countries and the user's own, and the file that
// keeps what the user settled about them.
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

class MTMutex;

// Not guarded against use from several threads at once. An operation on a value that is no group does nothing
// and gives the empty value.
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

    // The national groups as they are by default, all shown and white, and the user's groups empty. Touches
    // no file.
    CalendarSettings();
    ~CalendarSettings();
    CalendarSettings(const CalendarSettings&) = delete;
    CalendarSettings& operator=(const CalendarSettings&) = delete;

    // The name of a group, by which the oldest data file knows it, and the number of its entries.
    static CString GetName(Group group);
    size_t GetCount(Group group) const;

    // The entry, which stays the group's: it may be changed, and lives until Load or a deletion ends it. Past
    // the end a national group gives null, a user's group throws std::out_of_range.
    CalendarDateEntry* GetAt(Group group, size_t nIndex);

    // Puts the to-do list into use, for all calendars of the process and for good. Until then its entries are
    // kept with the file, can be counted and read, and nothing else.
    static void EnableToDoList();
    static bool IsEnableToDoList();

    // What falls on the date: the texts of all shown entries, joined by "\r\n", each once. dwColor is set to
    // the colour of the last entry reported, 0x00BBGGRR, and stays as it is if there is none.
    CString GetDateDesc(int nDay, int nMonth, int nYear, DWORD& dwColor) const;

    // Gives all entries of a group a colour, 0x00BBGGRR, or shows or hides them all.
    void SetAllColor(Group group, DWORD dwColor);
    void SetAllShow(Group group, bool bShow);

    // An added entry, which must come from new, gets the next id and is owned by its group; null is ignored.
    // While the to-do list is not in use, its entry stays the caller's.
    void AddCustomEntry(CalendarDateEntry* pEntry);
    void AddToDoEntry(CalendarDateEntry* pEntry);

    // Ends the entry. One that is not in the group is left alone.
    void DeleteCustomEntry(CalendarDateEntry* pEntry);
    void DeleteToDoEntry(CalendarDateEntry* pEntry);

    // Lays the newest data file that exists over what is here; the lists of the user are replaced. False,
    // with nothing changed, if there is no file or the file is empty.
    //
    // Throws, as pointers: CFileException if the file cannot be opened or read, CArchiveException if it ends
    // too early or holds an entry of an unknown form; and std::length_error if it counts more entries than a
    // list can hold. What was read before stays.
    bool Load();

    // Writes the data file anew in the newest form; true, failures are thrown as pointers to CFileException.
    // Until the new file is whole and on the disk, the old one stays as it was.
    bool Save();

protected:
    // The newest data file that exists, and the version that its path stands for.
    bool GetReadFromDataFile(unsigned short& nVersion, CString& strPath) const;

    // The readers of the forms; the second serves version 3 too. They throw what Load throws.
    void ReadDataFileVersion1(CArchive& archive);
    void ReadDataFileVersion2(CArchive& archive);
    void ReadDataFileVersion4(CArchive& archive);

private:
    Dates* FindGroup(Group group);
    const Dates* FindGroup(Group group) const;
    Dates* FindGroupInUse(Group group);

    static bool m_bUseToDoList;

    std::unique_ptr<MTMutex> m_pMutex; // of the data file
    DatesUS m_DatesUS;
    DatesCanada m_DatesCanada;
    DatesNetherlands m_DatesNetherlands;
    DatesCustom m_DatesCustom;
    DatesToDo m_DatesToDo;
};
