// A host all of whose objects are global: they end after main, in the reverse order of their making.
#include <CalendarWnd.h>
#include <ZebrikUtils.h>
#include <afxwin.h>
#include <gdiplus.h>

namespace {

class Frame : public CWnd
{
public:
    ~Frame() override { DestroyWindow(); }
};

// The calendar is destroyed after its parent, and both after what the library itself keeps.
CWinApp theApp;
CCalendarWnd theCalendar;
Frame theFrame;
CFont theFont;

}

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    ZebrikUtils::SetDataDirectory(argv[1]);
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, "", SW_SHOW);
    ULONG_PTR nToken = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&nToken, &input, nullptr);
    LOGFONTA font{};
    font.lfHeight = 12;
    theFont.CreateFontIndirect(&font);
    if (!theFrame.CreateEx(0, AfxRegisterWndClass(0), "frame", WS_POPUP | WS_VISIBLE, CRect(0, 0, 400, 300),
                           nullptr, 0) ||
        !theCalendar.Create(1, CRect(0, 0, 300, 250), true, &theFrame, true, true, true, true))
        return 1;
    theFrame.UpdateWindow();
    theCalendar.UpdateWindow();
    MSG msg;
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageA(&msg);
    return 0;
}
