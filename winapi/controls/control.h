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

// Handles the messages of one control. A derived class adds `handle`.
template <class StateOfControl>
class Control
{
public:
    using State = StateOfControl;

    Control(Window& window, State& state) : m_window(window), m_state(state) {}

protected:
    HWND hwnd() const { return m_window.handle; }

    Window& m_window;
    State& m_state;
};

void notifyCommand(const Window& control, WORD code);
// For a control without a font of its own.
HFONT fontOr(HFONT font);

}
