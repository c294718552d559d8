// Printers as devices to draw on, and print jobs.
#include "printing.h"

#include "application.h"
#include "context.h"
#include "errors.h"
#include "job_file.h"
#include "winerror.h"

#include <QBuffer>
#include <QPdfWriter>
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

// A printer with its job. While a page is open, the drawing calls use the painter of the job. Pages for a
// file are collected in memory, so that the file is written in one go and each failure of it is known.
//
// Operations give ERROR_SUCCESS, or the error that they failed with.
class PrinterSurface : public Surface
{
public:
    PrinterSurface() : m_printer(QPrinter::HighResolution) {}
    ~PrinterSurface() override { abort(); }

    QPaintDevice& device() override { return m_printer; }
    int capability(int index) const override { return printerCapability(m_printer, index); }
    QPainter* beginCall(const Placement& placement) override
    {
        if (!m_pageOpen)
            return nullptr;
        m_painter.save();
        placement.applyTo(m_painter);
        return &m_painter;
    }
    void endCall(const QRect&) override { m_painter.restore(); }
    QPrinter& printer() { return m_printer; }

    DWORD start(const QString& name, const QString& file)
    {
        if (m_painter.isActive())
            return ERROR_INVALID_HANDLE;
        m_pageCount = 0;
        m_printer.setDocName(name);
        const QString path = file.isEmpty() ? m_printer.outputFileName() : file;
        if (!path.isEmpty())
            return startFile(name, path);
        if (m_printer.outputFormat() == QPrinter::PdfFormat)
            return ERROR_CANNOT_MAKE; // the printer that stands in writes files only
        m_pagedDevice = &m_printer;
        return m_painter.begin(&m_printer) ? ERROR_SUCCESS : ERROR_CANNOT_MAKE;
    }

    DWORD startPage()
    {
        if (!m_painter.isActive() || m_pageOpen)
            return ERROR_INVALID_HANDLE;
        m_pageOpen = m_pageCount++ == 0 || m_pagedDevice->newPage();
        return m_pageOpen ? ERROR_SUCCESS : ERROR_WRITE_FAULT;
    }

    DWORD endPage()
    {
        if (!std::exchange(m_pageOpen, false))
            return ERROR_INVALID_HANDLE;
        return m_printer.printerState() == QPrinter::Error ? ERROR_WRITE_FAULT : ERROR_SUCCESS;
    }

    DWORD finish()
    {
        if (!m_painter.isActive())
            return ERROR_INVALID_HANDLE;
        m_pageOpen = false;
        const bool ended = m_painter.end() && m_printer.printerState() != QPrinter::Error;
        const QByteArray pages = takePages();
        if (!ended)
            m_file.discard();
        if (!m_file.isOpen())
            return ended ? ERROR_SUCCESS : ERROR_WRITE_FAULT;
        return m_file.finish(pages);
    }

    DWORD abort()
    {
        if (!m_painter.isActive())
            return ERROR_INVALID_HANDLE;
        m_pageOpen = false;
        if (m_pagedDevice == &m_printer)
            m_printer.abort();
        m_painter.end();
        takePages();
        m_file.discard();
        return ERROR_SUCCESS;
    }

private:
    DWORD startFile(const QString& name, const QString& path)
    {
        if (const DWORD error = m_file.open(path))
            return error;
        m_collected.open(QIODevice::WriteOnly);
        m_writer = std::make_unique<QPdfWriter>(&m_collected);
        m_writer->setTitle(name);
        m_writer->setResolution(m_printer.resolution());
        m_writer->setPageLayout(m_printer.pageLayout());
        m_pagedDevice = m_writer.get();
        if (m_painter.begin(m_writer.get()))
            return ERROR_SUCCESS;
        takePages();
        m_file.discard();
        return ERROR_CANNOT_MAKE;
    }

    // The pages that were collected; the job has ended.
    QByteArray takePages()
    {
        m_writer.reset();
        m_collected.close();
        QByteArray pages = m_collected.data();
        m_collected.setData({});
        return pages;
    }

    QPrinter m_printer;
    JobFile m_file;
    QBuffer m_collected;
    std::unique_ptr<QPdfWriter> m_writer;       // of a job to a file
    QPagedPaintDevice* m_pagedDevice = nullptr; // what the job paints on
    QPainter m_painter;
    bool m_pageOpen = false;
    int m_pageCount = 0;
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

constexpr double kTenths = 10; // of a millimetre, the unit of lengths in a mode

// The paper of a mode, which may have any size; `otherwise` where the mode tells none.
QPageSize paperOf(const DEVMODEA& mode, const QPageSize& otherwise)
{
    constexpr DWORD kLengths = DM_PAPERLENGTH | DM_PAPERWIDTH;
    const QSizeF size(mode.dmPaperWidth / kTenths, mode.dmPaperLength / kTenths);
    if ((mode.dmFields & kLengths) == kLengths && !size.isEmpty())
        return QPageSize(size, QPageSize::Millimeter, {}, QPageSize::FuzzyMatch);
    const auto id = QPageSize::id(mode.dmPaperSize);
    return (mode.dmFields & DM_PAPERSIZE) && id != QPageSize::Custom ? QPageSize(id) : otherwise;
}

int jobResult(DWORD error)
{
    return error == ERROR_SUCCESS ? 1 : fail(error, SP_ERROR);
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
    mode.dmFields =
        DM_ORIENTATION | DM_PAPERSIZE | DM_PAPERLENGTH | DM_PAPERWIDTH | DM_COPIES | DM_PRINTQUALITY;
    mode.dmOrientation =
        layout.orientation() == QPageLayout::Landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    const QSizeF paper = layout.pageSize().size(QPageSize::Millimeter);
    mode.dmPaperSize = static_cast<short>(layout.pageSize().windowsId());
    mode.dmPaperLength = static_cast<short>(qRound(paper.height() * kTenths));
    mode.dmPaperWidth = static_cast<short>(qRound(paper.width() * kTenths));
    mode.dmCopies = static_cast<short>(printer.copyCount());
    mode.dmPrintQuality = static_cast<short>(printer.resolution());
    return mode;
}

void applyMode(QPrinter& printer, const DEVMODEA& mode)
{
    printer.setPageSize(paperOf(mode, printer.pageLayout().pageSize()));
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

HDC CreateDCA(LPCSTR, LPCSTR device, LPCSTR port, const DEVMODEA* mode)
{
    return createPrinterContext(device, port, mode);
}

int StartDocA(HDC dc, const DOCINFOA* document)
{
    PrinterSurface* surface = surfaceOf(dc);
    if (!surface || !document)
        return jobResult(surface ? ERROR_INVALID_PARAMETER : ERROR_INVALID_HANDLE);
    return jobResult(
        surface->start(QString::fromUtf8(document->lpszDocName), QString::fromUtf8(document->lpszOutput)));
}

int StartPage(HDC dc)
{
    PrinterSurface* surface = surfaceOf(dc);
    return jobResult(surface ? surface->startPage() : ERROR_INVALID_HANDLE);
}

int EndPage(HDC dc)
{
    PrinterSurface* surface = surfaceOf(dc);
    return jobResult(surface ? surface->endPage() : ERROR_INVALID_HANDLE);
}

int EndDoc(HDC dc)
{
    PrinterSurface* surface = surfaceOf(dc);
    return jobResult(surface ? surface->finish() : ERROR_INVALID_HANDLE);
}

int AbortDoc(HDC dc)
{
    PrinterSurface* surface = surfaceOf(dc);
    return jobResult(surface ? surface->abort() : ERROR_INVALID_HANDLE);
}
