// The input of a user as Windows lets programs make it.
#include "Hands.h"

void movePointer(int x, int y)
{
    SetCursorPos(x, y);
}

void pressButton()
{
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
}

void releaseButton()
{
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
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
