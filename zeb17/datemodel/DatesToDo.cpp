// The section of the to-do list.
#include "DatesToDo.h"

namespace {

constexpr WORD kSectionWord = 1;

}

DWORD DatesToDo::s_nNextToDoID = 11000;

void DatesToDo::Serialize(CArchive& archive)
{
    if (archive.IsStoring()) {
        StoreEntries(archive, kSectionWord);
        return;
    }
    WORD wSectionWord = 0;
    archive >> wSectionWord; // there is one form, so the word decides nothing
    m_Entries.clear();
    LoadEntries(archive, ReadCount(archive, false));
}
