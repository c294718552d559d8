// What the controls of the system share.
#pragma once

#include "window.h"

namespace winapi {

// A context of a control for the time of one drawing, in the control's font.
class ControlContext
{
public:
    ControlContext(HWND window, HFONT font);
    ~ControlContext();
    ControlContext(const ControlContext&) = delete;
    ControlContext& operator=(const ControlContext&) = delete;

    HDC dc() const { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
    HGDIOBJ m_oldFont;
};

// The same within WM_PAINT.
class ControlPaint
{
public:
    ControlPaint(HWND window, HFONT font);
    ~ControlPaint();
    ControlPaint(const ControlPaint&) = delete;
    ControlPaint& operator=(const ControlPaint&) = delete;

    HDC dc() const { return m_paint.hdc; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint;
    HGDIOBJ m_oldFont;
};

// Fills a control with the brush that its parent chooses, and sets the colours of its text.
void fillByParent(const Window& control, HDC dc, UINT colorMessage);
void notifyCommand(const Window& control, WORD code);
// For a control without a font of its own.
HFONT fontOr(HFONT font);

}
