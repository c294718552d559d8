// Windows, messages, input, painting, menus and controls.
#pragma once

#include "windef.h"
