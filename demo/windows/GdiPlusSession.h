// The host starts GDI+ for the control, which draws its dots with it, and stops it at the end.
#pragma once

#include <afxwin.h>
#include <gdiplus.h>

class GdiPlusSession
{
public:
    GdiPlusSession()
    {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~GdiPlusSession() { Gdiplus::GdiplusShutdown(m_token); }
    GdiPlusSession(const GdiPlusSession&) = delete;
    GdiPlusSession& operator=(const GdiPlusSession&) = delete;

private:
    ULONG_PTR m_token = 0;
};
