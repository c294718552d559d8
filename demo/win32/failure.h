// What the user is told when something fails.
#ifndef DESK_FAILURE_H
#define DESK_FAILURE_H

#include <windows.h>

enum
{
    FAILURE_SIZE = 1024 // bytes for the words on a failure
};

// Writes why a call of the calendar failed: what its result means, and what else is known.
void failureWords(char words[FAILURE_SIZE], int result);

// Tells a failure on the standard error output and, unless the owner is null, in a message box.
void tellFailure(HWND owner, const char* what, const char* why);

#endif
