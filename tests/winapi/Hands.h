// A user's hands: real input, by the means of each platform.
#pragma once

#include <windows.h>

enum class MouseButton
{
    Left,
    Right,
};

void movePointer(int x, int y); // on the screen
void pressButton(MouseButton button);
void releaseButton(MouseButton button);
void turnWheel(int delta);
void pressKey(int virtualKey);
void releaseKey(int virtualKey);
