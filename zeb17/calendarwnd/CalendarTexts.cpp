#include "CalendarTexts.h"

#include <StoredText.h>

namespace CalendarTexts {

const std::vector<int> Face = StoredText<5>("Arial");
const std::vector<int> Today = StoredText<6>("&Today");
const std::vector<int> Options = StoredText<8>("&Options");
const std::vector<int> Clear = StoredText<6>("&Clear");
const std::vector<int> SelectDay = StoredText<6>("Select");
const std::vector<int> NoDate = StoredText<9>("(no date)");
const std::vector<int> TipPrefix = StoredText<5>("Show ");

}
