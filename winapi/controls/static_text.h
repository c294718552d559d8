// The label.
#pragma once

namespace winapi {

void registerStaticClass();

}
