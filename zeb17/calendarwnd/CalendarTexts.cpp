// The stored texts of the window.
#include "CalendarTexts.h"

#include <StoredText.h>

namespace CalendarTexts {

const std::vector<int> kFace = StoredText<5>("Arial");
const std::vector<int> kToday = StoredText<6>("&Today");
const std::vector<int> kOptions = StoredText<8>("&Options");
const std::vector<int> kClear = StoredText<6>("&Clear");
const std::vector<int> kSelectDay = StoredText<6>("Select");
const std::vector<int> kNoDate = StoredText<9>("(no date)");
const std::vector<int> kTipPrefix = StoredText<5>("Show ");

}
