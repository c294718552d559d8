// The keyboard.
#pragma once

#include <zeb17_export.h>

class ZEB17_EXPORT Keyboard
{
public:
    // Whether either shift key is down, as of the message being handled.
    static bool IsShiftKeyDown();
};
