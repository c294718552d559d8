#include "Hands.h"

void movePointer(int x, int y)
{
    SetCursorPos(x, y);
}

void pressButton(MouseButton button)
{
    mouse_event(button == MouseButton::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN, 0, 0, 0, 0);
}

void releaseButton(MouseButton button)
{
    mouse_event(button == MouseButton::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP, 0, 0, 0, 0);
}

void turnWheel(int delta)
{
    mouse_event(MOUSEEVENTF_WHEEL, 0, 0, static_cast<DWORD>(delta), 0);
}

void pressKey(int virtualKey)
{
    keybd_event(static_cast<BYTE>(virtualKey), static_cast<BYTE>(MapVirtualKeyA(virtualKey, 0)), 0, 0);
}

void releaseKey(int virtualKey)
{
    keybd_event(static_cast<BYTE>(virtualKey), static_cast<BYTE>(MapVirtualKeyA(virtualKey, 0)),
                KEYEVENTF_KEYUP, 0);
}
