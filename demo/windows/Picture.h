// Writes what a window shows to a picture file.
#pragma once

#include <afxwin.h>

// Writes the client area of `wnd` as a PNG file. False if the window or the file failed.
bool SaveWindowAsPng(CWnd& wnd, const CString& path);
