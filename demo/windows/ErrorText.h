// What went wrong, in words for the user.
#pragma once

#include <afx.h>

#include <functional>

// Runs `action`; if it throws what Load and Save throw, gives false and the words.
bool RunTellingErrors(const std::function<void()>& action, CString& words);

// Shows the words in a box, unless nobody is there to read it, and writes them on the standard error output.
void TellUser(const CString& words, bool attended = true);
