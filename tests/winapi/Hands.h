// A user's hands: real input, by the means of each platform.
#pragma once

#include <windows.h>

void movePointer(int x, int y); // on the screen
void pressButton();             // the left one
void releaseButton();
void turnWheel(int delta);
void pressKey(int virtualKey);
void releaseKey(int virtualKey);
