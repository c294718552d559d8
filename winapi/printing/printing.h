// Printers, for contexts and for the print dialog.
#pragma once

#include "wingdi.h"

#include <QString>

class QPrinter;

namespace winapi {

// The printer that stands in where the system has none, and writes a file.
inline const QString kPdfPrinterName = QStringLiteral("Print to File (PDF)");

// A context for the printer of this name. The printer that stands in writes to the file `port`. `mode` may be
// null. Gives null, and sets the last error, if there is no such printer.
HDC createPrinterContext(const char* name, const char* port, const DEVMODEA* mode);

// The paper, the copies and the resolution of a printer: what they are, and what they shall be.
DEVMODEA modeOf(const QPrinter& printer, const QString& name);
void applyMode(QPrinter& printer, const DEVMODEA& mode);

}
