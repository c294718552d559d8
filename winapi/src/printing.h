// Printers, as contexts and the print dialog share them.
#pragma once

#include "wingdi.h"

class QPrinter;

namespace winapi {

class Context;

// The printer that a context draws on, or null.
QPrinter* printerOf(const Context& context);
int printerCapability(const QPrinter& printer, int index);

// A context for the printer of this name; null if there is none.
HDC createPrinterContext(const char* name, const DEVMODEA* mode);

}
