// The text field.
#pragma once

namespace winapi {

void registerEditClass();

}
