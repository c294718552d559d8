// The button.
#pragma once

namespace winapi {

void registerButtonClass();

}
