// The list box.
#pragma once

namespace winapi {

void registerListBoxClass();

}
