// What went wrong with the data file, in words for the user.
#pragma once

#include <afx.h>

#include <functional>

// Runs `action`; if it throws what Load and Save throw, gives false and the words.
bool RunTellingErrors(const std::function<void()>& action, CString& words);
