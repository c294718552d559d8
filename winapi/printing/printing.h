// Printers, as contexts and the print dialog share them.
#pragma once

#include "wingdi.h"

#include <QString>

class QPrinter;

namespace winapi {

// The printer that stands in where the system has none, and writes a file.
inline const QString pdfPrinterName = QStringLiteral("Print to File (PDF)");

// A context for the printer of this name, writing to the file `port` if that is a printer to a file. Null if
// there is no such printer.
HDC createPrinterContext(const char* name, const char* port, const DEVMODEA* mode);

// The paper and the resolution of a printer, out and in.
DEVMODEA modeOf(const QPrinter& printer, const QString& name);
void applyMode(QPrinter& printer, const DEVMODEA& mode);

}
