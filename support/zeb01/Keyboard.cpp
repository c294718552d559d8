// The state of the shift key.
#include "Keyboard.h"

#include <windows.h>

bool Keyboard::IsShiftKeyDown()
{
    return GetKeyState(VK_SHIFT) < 0;
}
