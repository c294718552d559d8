// The stored texts of the window. Each is deciphered where it is used.
#pragma once

#include <vector>

namespace CalendarTexts {

extern const std::vector<int> kFace;  // font face of the heading's buttons
extern const std::vector<int> kToday; // this and the next two: captions of the buttons in the footer
extern const std::vector<int> kOptions;
extern const std::vector<int> kClear;
extern const std::vector<int> kSelectDay; // what screen readers call the action of a day
extern const std::vector<int> kNoDate;    // title, tips and printed heading while there is no valid date
extern const std::vector<int> kTipPrefix; // the tip of a step button; the month that it leads to follows

}
