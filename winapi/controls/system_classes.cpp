// Registers the classes of the system's controls.
#include "button.h"
#include "rooms_above.h"
#include "tooltip.h"

void winapi::registerSystemClasses()
{
    registerButtonClass();
    registerToolTipClass();
}
