// The dialog that asks for a printer.
#include "commdlg.h"

#include "application.h"
#include "modal_dialog.h"
#include "printing.h"
#include "winbase.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <cstring>

namespace winapi {

namespace {

QString nameOf(const QPrinter& printer)
{
    return printer.outputFormat() == QPrinter::PdfFormat ? kPdfPrinterName : printer.printerName();
}

HGLOBAL makeBlock(const void* data, std::size_t size)
{
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    if (void* const memory = block ? GlobalLock(block) : nullptr) {
        std::memcpy(memory, data, size);
        GlobalUnlock(block);
    }
    return block;
}

HGLOBAL makeNames(const QPrinter& printer)
{
    DEVNAMES names{};
    QByteArray texts;
    const auto append = [&texts](const QString& text) {
        const auto offset = sizeof(DEVNAMES) + static_cast<std::size_t>(texts.size());
        texts.append(text.toUtf8()).append('\0');
        return static_cast<WORD>(offset);
    };
    names.wDriverOffset = append("winspool");
    names.wDeviceOffset = append(nameOf(printer));
    names.wOutputOffset = append(printer.outputFileName());
    QByteArray block(reinterpret_cast<const char*>(&names), sizeof names);
    block.append(texts);
    return makeBlock(block.constData(), static_cast<std::size_t>(block.size()));
}

void tellPages(const QPrinter& printer, PRINTDLGA& dialog)
{
    dialog.Flags &= ~static_cast<DWORD>(PD_PAGENUMS | PD_SELECTION);
    if (printer.printRange() == QPrinter::Selection)
        dialog.Flags |= PD_SELECTION;
    if (printer.printRange() != QPrinter::PageRange)
        return;
    dialog.Flags |= PD_PAGENUMS;
    dialog.nFromPage = static_cast<WORD>(printer.fromPage());
    dialog.nToPage = static_cast<WORD>(printer.toPage());
}

BOOL tellChoice(const QPrinter& printer, PRINTDLGA& dialog)
{
    const QString name = nameOf(printer);
    const DEVMODEA mode = modeOf(printer, name);
    for (HGLOBAL* const block : {&dialog.hDevMode, &dialog.hDevNames})
        if (*block)
            GlobalFree(*block);
    dialog.hDevMode = makeBlock(&mode, sizeof mode);
    dialog.hDevNames = makeNames(printer);
    dialog.nCopies = static_cast<WORD>(printer.copyCount());
    if (!(dialog.Flags & PD_RETURNDC))
        return TRUE;
    dialog.hDC =
        createPrinterContext(name.toUtf8().constData(), printer.outputFileName().toUtf8().constData(), &mode);
    return dialog.hDC ? TRUE : failDialog(PDERR_INITFAILURE);
}

// The dialog begins with the choice of the last time, if the caller has kept it.
void applyChoice(QPrinter& printer, const PRINTDLGA& dialog)
{
    if (!dialog.hDevMode)
        return;
    applyMode(printer, *static_cast<const DEVMODEA*>(GlobalLock(dialog.hDevMode)));
    GlobalUnlock(dialog.hDevMode);
}

// Printing to a file is always offered, as one of the printers, also where the caller wants no box for it.
bool ask(QPrinter& printer, const PRINTDLGA& request)
{
    QPrintDialog dialog(&printer);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, !(request.Flags & PD_NOSELECTION));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, !(request.Flags & PD_NOPAGENUMS));
    if (request.nMaxPage >= request.nMinPage && request.nMaxPage > 0)
        dialog.setMinMax(request.nMinPage, request.nMaxPage);
    return runModal(dialog, request.hwndOwner) == QDialog::Accepted;
}

}

}

using namespace winapi;

BOOL PrintDlgA(PRINTDLGA* dialog)
{
    if (!dialog || dialog->lStructSize != sizeof *dialog)
        return failDialog(dialog ? CDERR_STRUCTSIZE : CDERR_INITIALIZATION);
    lastDialogError() = 0;
    application();
    const bool wantsDefault = (dialog->Flags & PD_RETURNDEFAULT) != 0;
    if (wantsDefault && (dialog->hDevMode || dialog->hDevNames))
        return failDialog(PDERR_RETDEFFAILURE);

    // Without printers in the system this one prints to a file.
    QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    if (!wantsDefault) {
        applyChoice(printer, *dialog);
        if (!ask(printer, *dialog))
            return FALSE;
        tellPages(printer, *dialog);
    }
    return tellChoice(printer, *dialog);
}
