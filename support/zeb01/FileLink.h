// Where a link to a file leads.
#pragma once

#include <afx.h>

// The path of the file that the link at strPath leads to. A path that is no link comes back as it is, and so
// does that of a link whose file cannot be opened.
CString FollowLink(const CString& strPath);

// The path of an open file, without links; empty, with the last error, if the system knows none.
CString GetPathOf(const CFile& file);

// Whether a link stands at the path itself.
bool IsLink(const CString& strPath);
