// The combo box.
#pragma once

namespace winapi {

void registerComboBoxClass();

}
