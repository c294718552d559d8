#include "control.h"

#include "drawing_objects.h"
#include "system_colors.h"

namespace winapi {

HFONT fontOr(HFONT font)
{
    return font ? font : windowFont();
}

ControlContext::ControlContext(HWND window, HFONT font)
    : m_window(window), m_dc(GetDC(window)), m_oldFont(SelectObject(m_dc, fontOr(font)))
{
}

ControlContext::~ControlContext()
{
    SelectObject(m_dc, m_oldFont);
    ReleaseDC(m_window, m_dc);
}

ControlPaint::ControlPaint(HWND window, HFONT font) : m_window(window)
{
    BeginPaint(window, &m_paint);
    m_oldFont = SelectObject(m_paint.hdc, fontOr(font));
}

ControlPaint::~ControlPaint()
{
    SelectObject(m_paint.hdc, m_oldFont);
    EndPaint(m_window, &m_paint);
}

void notifyCommand(const Window& control, WORD code)
{
    SendMessageA(control.parent->handle, WM_COMMAND, MAKEWPARAM(control.id, code),
                 reinterpret_cast<LPARAM>(control.handle));
}

}
