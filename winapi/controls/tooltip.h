// The tool-tip control.
#pragma once

namespace winapi {

void registerToolTipClass();

}
