#include "window_class.h"
namespace winapi {
void registerToolTipClass() {}
}
