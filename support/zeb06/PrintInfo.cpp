// The texts of a print job.
#include "PrintInfo.h"

PrintInfo::PrintInfo() = default;

PrintInfo::~PrintInfo() = default;

void PrintInfo::SetPageTitleText(const CString& strTitle)
{
    m_strPageTitle = strTitle;
}

CString PrintInfo::GetPageTitleText() const
{
    return m_strPageTitle;
}

void PrintInfo::SetErrorMsg(const CString& strMsg)
{
    m_strErrorMsg = strMsg;
}

CString PrintInfo::GetErrorMsg() const
{
    return m_strErrorMsg;
}
