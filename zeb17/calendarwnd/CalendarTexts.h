// The stored texts of the window. They are turned into text at the moment of use.
#pragma once

#include <vector>

namespace CalendarTexts {

extern const std::vector<int> Face;  // font face of the heading's buttons
extern const std::vector<int> Today; // captions of the buttons in the footer
extern const std::vector<int> Options;
extern const std::vector<int> Clear;
extern const std::vector<int> SelectDay; // what a screen reader offers to do with a day
extern const std::vector<int> NoDate;    // title, tip and heading while there is no valid date
extern const std::vector<int> TipPrefix; // stands directly before the month that a step button leads to

}
