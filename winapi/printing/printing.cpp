// Printers as devices to draw on, and print jobs.
#include "printing.h"

#include "application.h"
#include "context.h"
#include "errors.h"
#include "winerror.h"

#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <QPrinterInfo>

namespace winapi {

namespace {

int printerCapability(const QPrinter& printer, int index)
{
    const QPageLayout layout = printer.pageLayout();
    const QRect paper = layout.fullRectPixels(printer.resolution());
    const QRect page = layout.paintRectPixels(printer.resolution());
    switch (index) {
    case HORZRES:
        return page.width();
    case VERTRES:
        return page.height();
    case PHYSICALWIDTH:
        return paper.width();
    case PHYSICALHEIGHT:
        return paper.height();
    case PHYSICALOFFSETX:
        return page.left();
    case PHYSICALOFFSETY:
        return page.top();
    case LOGPIXELSX:
    case LOGPIXELSY:
        return printer.resolution();
    default:
        return 0;
    }
}

// A printer with its job. While a page is open, the drawing calls use the painter of the job.
class PrinterSurface : public Surface
{
public:
    PrinterSurface() : m_printer(QPrinter::HighResolution) {}
    ~PrinterSurface() override { abort(); }

    QPaintDevice& device() override { return m_printer; }
    int capability(int index) const override { return printerCapability(m_printer, index); }
    QPainter* heldPainter() override { return m_pageOpen ? &m_painter : nullptr; }
    QPrinter& printer() { return m_printer; }

    bool start(const QString& name, const QString& file)
    {
        if (m_painter.isActive())
            return false;
        if (!file.isEmpty())
            m_printer.setOutputFileName(file);
        m_printer.setDocName(name);
        const bool nowhere = m_printer.outputFormat() == QPrinter::PdfFormat && file.isEmpty() &&
                             m_printer.outputFileName().isEmpty();
        m_pages = 0;
        return !nowhere && isWritable() && m_painter.begin(&m_printer);
    }

    bool startPage()
    {
        if (!m_painter.isActive() || m_pageOpen)
            return false;
        m_pageOpen = m_pages++ == 0 || m_printer.newPage();
        return m_pageOpen;
    }

    bool endPage() { return std::exchange(m_pageOpen, false) && m_printer.printerState() != QPrinter::Error; }

    bool finish()
    {
        m_pageOpen = false;
        return m_painter.isActive() && m_painter.end() && isComplete();
    }

    bool abort()
    {
        m_pageOpen = false;
        if (!m_painter.isActive())
            return false;
        m_printer.abort();
        m_painter.end();
        if (QFileInfo(m_printer.outputFileName()).isFile())
            QFile::remove(m_printer.outputFileName());
        return true;
    }

private:
    bool isWritable() const
    {
        QFile file(m_printer.outputFileName());
        return file.fileName().isEmpty() || file.open(QIODevice::WriteOnly);
    }

    // Qt reports no failure of writing a file, but a file whose writing failed lacks its end.
    bool isComplete() const
    {
        if (m_printer.outputFormat() != QPrinter::PdfFormat)
            return m_printer.printerState() != QPrinter::Error;
        constexpr qint64 kTail = 16;
        QFile file(m_printer.outputFileName());
        return file.open(QIODevice::ReadOnly) && !file.isSequential() &&
               file.seek(std::max<qint64>(0, file.size() - kTail)) && file.read(kTail).contains("%%EOF");
    }

    QPrinter m_printer;
    QPainter m_painter;
    bool m_pageOpen = false;
    int m_pages = 0;
};

PrinterSurface* surfaceOf(HDC dc)
{
    const auto context = findContext(dc);
    return context ? dynamic_cast<PrinterSurface*>(&context->surface()) : nullptr;
}

bool choosePrinter(QPrinter& printer, const QString& name, const QString& port)
{
    if (name == kPdfPrinterName) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(port);
        return true;
    }
    if (!QPrinterInfo::availablePrinterNames().contains(name))
        return false;
    printer.setPrinterName(name);
    return true;
}

// Makes the page as large as the printer can print on.
void widenPage(QPrinter& printer)
{
    const bool toFile = printer.outputFormat() == QPrinter::PdfFormat;
    printer.setPageMargins(toFile ? QMarginsF() : printer.pageLayout().minimumMargins(), QPageLayout::Point);
}

int jobResult(bool done, DWORD error)
{
    return done ? 1 : fail(error, SP_ERROR);
}

}

HDC createPrinterContext(const char* name, const char* port, const DEVMODEA* mode)
{
    application();
    auto surface = std::make_unique<PrinterSurface>();
    QPrinter& printer = surface->printer();
    if (!choosePrinter(printer, QString::fromUtf8(name), QString::fromUtf8(port)))
        return fail(ERROR_INVALID_PRINTER_NAME, nullptr);
    if (mode)
        applyMode(printer, *mode);
    widenPage(printer);
    const QSize page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
    return addContext(std::make_shared<Context>(std::move(surface), QRect({}, page)));
}

DEVMODEA modeOf(const QPrinter& printer, const QString& name)
{
    const QPageLayout layout = printer.pageLayout();
    DEVMODEA mode{};
    qstrncpy(reinterpret_cast<char*>(mode.dmDeviceName), name.toUtf8().constData(), CCHDEVICENAME);
    mode.dmSize = sizeof mode;
    mode.dmFields = DM_ORIENTATION | DM_PAPERSIZE | DM_COPIES | DM_PRINTQUALITY;
    mode.dmOrientation =
        layout.orientation() == QPageLayout::Landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    mode.dmPaperSize = static_cast<short>(layout.pageSize().windowsId());
    mode.dmCopies = static_cast<short>(printer.copyCount());
    mode.dmPrintQuality = static_cast<short>(printer.resolution());
    return mode;
}

void applyMode(QPrinter& printer, const DEVMODEA& mode)
{
    const auto paper = QPageSize::id(mode.dmPaperSize);
    if ((mode.dmFields & DM_PAPERSIZE) && paper != QPageSize::Custom)
        printer.setPageSize(QPageSize(paper));
    if (mode.dmFields & DM_ORIENTATION)
        printer.setPageOrientation(mode.dmOrientation == DMORIENT_LANDSCAPE ? QPageLayout::Landscape
                                                                            : QPageLayout::Portrait);
    if ((mode.dmFields & DM_PRINTQUALITY) && mode.dmPrintQuality > 0)
        printer.setResolution(mode.dmPrintQuality);
    if ((mode.dmFields & DM_COPIES) && mode.dmCopies > 0)
        printer.setCopyCount(mode.dmCopies);
}

}

using namespace winapi;

int StartDocA(HDC dc, const DOCINFOA* document)
{
    PrinterSurface* surface = surfaceOf(dc);
    if (!surface || !document)
        return jobResult(false, surface ? ERROR_INVALID_PARAMETER : ERROR_INVALID_HANDLE);
    return jobResult(
        surface->start(QString::fromUtf8(document->lpszDocName), QString::fromUtf8(document->lpszOutput)),
        ERROR_CANNOT_MAKE);
}

int StartPage(HDC dc)
{
    PrinterSurface* surface = surfaceOf(dc);
    return jobResult(surface && surface->startPage(), ERROR_INVALID_HANDLE);
}

int EndPage(HDC dc)
{
    PrinterSurface* surface = surfaceOf(dc);
    return jobResult(surface && surface->endPage(), ERROR_INVALID_HANDLE);
}

int EndDoc(HDC dc)
{
    PrinterSurface* surface = surfaceOf(dc);
    return jobResult(surface && surface->finish(), surface ? ERROR_WRITE_FAULT : ERROR_INVALID_HANDLE);
}

int AbortDoc(HDC dc)
{
    PrinterSurface* surface = surfaceOf(dc);
    return jobResult(surface && surface->abort(), ERROR_INVALID_HANDLE);
}
