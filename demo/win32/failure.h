// What the user is told when something fails.
#ifndef DESK_FAILURE_H
#define DESK_FAILURE_H

#include <windows.h>

// Tells a failure on the standard error output and, unless the owner is null, in a message box.
void tellFailure(HWND owner, const char* what, const char* why);

// The same of a call of the calendar that failed: what its result means, and what else is known.
void tellResult(HWND owner, const char* what, int result);

#endif
