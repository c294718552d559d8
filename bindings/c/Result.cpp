// The codes of the interface, their texts, and what each thread remembers of its last failure.
#include "Result.h"
#include "Texts.h"

#include <iterator>
#include <memory>
#include <utility>

namespace Zeb17 {

namespace {

constexpr const char* kErrorTexts[] = {
    "The call succeeded.",
    "An argument is null, or a number that is none of those allowed.",
    "The size in the structure is not known.",
    "The handle stands for no calendar, window or settings of this process.",
    "The calendar, the settings or the parent belong to another thread.",
    "There is no such date.",
    "The rule falls on no date.",
    "The text is no UTF-8, is empty, or cannot be written in the code page.",
    "The buffer is too small for the text.",
    "There is no such entry, locale or next date.",
    "This is not allowed with the group.",
    "The window was not created.",
    "The file could not be opened, read or written.",
    "Another program holds the data file.",
    "The data file is damaged.",
    "The month could not be printed.",
    "There is not enough memory.",
    "The system failed.",
};

struct LastFailure
{
    int nResult = ZEB17_OK;
    unsigned int nCount = 0;
    std::string strDetail;
};

LastFailure& Last()
{
    thread_local LastFailure last;
    return last;
}

int ResultOf(const CException& exception)
{
    if (const auto* const pFile = dynamic_cast<const CFileException*>(&exception))
        return pFile->m_cause == CFileException::sharingViolation ? ZEB17_FILE_BUSY : ZEB17_FILE_FAILED;
    if (dynamic_cast<const CArchiveException*>(&exception))
        return ZEB17_FILE_DAMAGED;
    return dynamic_cast<const CMemoryException*>(&exception) ? ZEB17_NO_MEMORY : ZEB17_FAILED;
}

std::string TextOf(const CException& exception)
{
    char szText[1024] = "";
    exception.GetErrorMessage(szText, static_cast<UINT>(std::size(szText)));
    return ToUtf8(szText);
}

}

int Note(int nResult, std::string strDetail) noexcept
{
    if (nResult == ZEB17_OK)
        return nResult;
    LastFailure& last = Last();
    last.nResult = nResult;
    ++last.nCount;
    last.strDetail = std::move(strDetail);
    return nResult;
}

int Note(CException* pException) noexcept
{
    struct Delete
    {
        void operator()(CException* p) const { p->Delete(); }
    };
    const std::unique_ptr<CException, Delete> owner(pException);
    std::string strDetail;
    try {
        strDetail = TextOf(*pException);
    } catch (const std::bad_alloc&) { // the code alone has to do
        strDetail.clear();
    }
    return Note(ResultOf(*pException), std::move(strDetail));
}

unsigned int CountOfFailures() noexcept
{
    return Last().nCount;
}

}

using namespace Zeb17;

const char* zeb17_error_text(int result)
{
    const auto nIndex = static_cast<unsigned int>(result);
    return nIndex < std::size(kErrorTexts) ? kErrorTexts[nIndex] : "";
}

int zeb17_last_result(void)
{
    return Last().nResult;
}

int zeb17_last_detail(char* buffer, uint32_t size, uint32_t* length)
{
    return GiveText(Last().strDetail, buffer, size, length);
}
