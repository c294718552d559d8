// Where a link to a file leads.
#pragma once

#include <afx.h>

// The path of the file that the link at strPath leads to. Any other path comes back as it is, and so does
// that of a link that leads nowhere.
CString FollowLink(const CString& strPath);
