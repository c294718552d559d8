// Painting windows and drawing on them.
#pragma once

#include "window.h"

namespace winapi {

// Ends the contexts that a program has left open on a top-level window, when that is destroyed.
void releaseContextsOf(const Window& root);

}
