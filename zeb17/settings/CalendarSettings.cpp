// The five groups as one object, in memory.
#include "CalendarSettings.h"

#include <MTMutex.h>
#include <StoredText.h>
#include <StringUtils.h>

#include <stdexcept>

namespace {

const std::vector<int> kUnitedStates = StoredText<13>("United States");
const std::vector<int> kCanada = StoredText<6>("Canada");
const std::vector<int> kTheNetherlands = StoredText<15>("The Netherlands");
const std::vector<int> kCustomDates = StoredText<12>("Custom dates");
const std::vector<int> kToDoList = StoredText<10>("To-do list");
const std::vector<int>* const kGroupNames[] = {&kUnitedStates, &kCanada, &kTheNetherlands, &kCustomDates,
                                               &kToDoList};

const std::vector<int> kMutexName = StoredText<9>("zeb17data");

}

bool CalendarSettings::m_bUseToDoList = false;

CalendarSettings::CalendarSettings()
{
    m_pMutex = std::make_unique<MTMutex>(false, StringUtils::DecryptText(kMutexName), nullptr);
}

CalendarSettings::~CalendarSettings()
{
    m_pMutex.reset(); // the mutex goes before the groups
}

CString CalendarSettings::GetName(Group group)
{
    if (group < GroupUS || group > GroupToDo)
        return {};
    return StringUtils::DecryptText(*kGroupNames[group]);
}

size_t CalendarSettings::GetCount(Group group) const
{
    const Dates* pGroup = FindGroup(group);
    return pGroup ? pGroup->GetCount() : 0;
}

CalendarDateEntry* CalendarSettings::GetAt(Group group, size_t nIndex)
{
    const Dates* pGroup = FindGroup(group);
    if (!pGroup)
        return nullptr;
    if ((group == GroupCustom || group == GroupToDo) && nIndex >= pGroup->GetCount())
        throw std::out_of_range("invalid vector subscript");
    return pGroup->GetAt(nIndex);
}

void CalendarSettings::EnableToDoList()
{
    m_bUseToDoList = true;
}

bool CalendarSettings::IsEnableToDoList()
{
    return m_bUseToDoList;
}

CString CalendarSettings::GetDateDesc(int nDay, int nMonth, int nYear, DWORD& dwColor) const
{
    // Each lookup that reports an entry sets the colour, so the group that is asked last wins.
    const Dates* const groups[] = {&m_DatesNetherlands, &m_DatesCanada, &m_DatesUS, &m_DatesCustom};
    CString strDesc;
    for (const Dates* pGroup : groups)
        pGroup->Lookup(nDay, nMonth, nYear, strDesc, dwColor);
    if (m_bUseToDoList)
        m_DatesToDo.Lookup(nDay, nMonth, nYear, strDesc, dwColor);
    return strDesc;
}

void CalendarSettings::SetAllColor(Group group, DWORD dwColor)
{
    if (Dates* pGroup = FindGroupInUse(group))
        pGroup->SetAllColor(dwColor);
}

void CalendarSettings::SetAllShow(Group group, bool bShow)
{
    if (Dates* pGroup = FindGroupInUse(group))
        pGroup->SetAllShow(bShow);
}

void CalendarSettings::AddCustomEntry(CalendarDateEntry* pEntry)
{
    if (!pEntry)
        return;
    pEntry->m_nID = static_cast<std::int32_t>(DatesCustom::s_nNextCustomID++);
    m_DatesCustom.Add(std::unique_ptr<CalendarDateEntry>(pEntry));
}

void CalendarSettings::AddToDoEntry(CalendarDateEntry* pEntry)
{
    if (!m_bUseToDoList || !pEntry)
        return;
    pEntry->m_nID = static_cast<std::int32_t>(DatesToDo::s_nNextToDoID++);
    m_DatesToDo.Add(std::unique_ptr<CalendarDateEntry>(pEntry));
}

void CalendarSettings::DeleteCustomEntry(CalendarDateEntry* pEntry)
{
    m_DatesCustom.Delete(pEntry);
}

void CalendarSettings::DeleteToDoEntry(CalendarDateEntry* pEntry)
{
    if (m_bUseToDoList)
        m_DatesToDo.Delete(pEntry);
}

Dates* CalendarSettings::FindGroup(Group group)
{
    switch (group) {
    case GroupUS:
        return &m_DatesUS;
    case GroupCanada:
        return &m_DatesCanada;
    case GroupNetherlands:
        return &m_DatesNetherlands;
    case GroupCustom:
        return &m_DatesCustom;
    case GroupToDo:
        return &m_DatesToDo;
    }
    return nullptr;
}

const Dates* CalendarSettings::FindGroup(Group group) const
{
    return const_cast<CalendarSettings*>(this)->FindGroup(group);
}

Dates* CalendarSettings::FindGroupInUse(Group group)
{
    return group != GroupToDo || m_bUseToDoList ? FindGroup(group) : nullptr;
}
