// Printers and print jobs.
#include "printing.h"

#include "context.h"

namespace winapi {

QPrinter* printerOf(const Context&)
{
    return nullptr;
}

int printerCapability(const QPrinter&, int)
{
    return 0;
}

HDC createPrinterContext(const char*, const DEVMODEA*)
{
    return nullptr;
}

}
