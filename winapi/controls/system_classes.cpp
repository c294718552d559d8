// Registers the classes of the system's controls.
#include "button.h"
#include "combo_box.h"
#include "edit.h"
#include "list_box.h"
#include "rooms_above.h"
#include "static_text.h"
#include "tooltip.h"

void winapi::registerSystemClasses()
{
    registerButtonClass();
    registerComboBoxClass();
    registerEditClass();
    registerListBoxClass();
    registerStaticClass();
    registerToolTipClass();
}
