// Brings the calendar, its panel and the menus together, and shows what the calendar tells.
#include "main_window.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFrame>
#include <QMenuBar>
#include <QMessageBox>
#include <QVBoxLayout>

#include <cstdio>

namespace {

using Calendar = Zeb17CalendarWidget;

constexpr int kMaxHeard = 100;
constexpr int kHeardHeight = 80;
constexpr int kMargin = 12;
constexpr QSize kSize(820, 590);
constexpr int kPanelWidth = 280;
constexpr char kGeometryKey[] = "window/geometry";
constexpr char kSplitterKey[] = "window/splitter";
constexpr char kWebPageKey[] = "webPage";

QString isoDate(QDate date)
{
    return date.isValid() ? date.toString(Qt::ISODate) : QStringLiteral("none");
}

}

MainWindow::MainWindow(QSettings* settings) : m_settings(settings), m_panel(m_calendar)
{
    setWindowTitle(tr("zeb17 desk calendar"));
    m_calendar.setOptions(m_calendar.options() | Calendar::WebPage | Calendar::DateRanges |
                          Calendar::ToDoList);
    connectCalendar();
    createLayout();
    createMenus();
    restore();
    m_calendar.setFocus();
}

void MainWindow::createLayout()
{
    auto* const frame = new QFrame;
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* const inFrame = new QVBoxLayout(frame);
    inFrame->setContentsMargins({});
    inFrame->addWidget(&m_calendar);

    m_heard.setFixedHeight(kHeardHeight);
    m_heard.setAccessibleName(tr("Signals heard"));
    auto* const left = new QWidget;
    auto* const column = new QVBoxLayout(left);
    column->setContentsMargins({});
    column->addWidget(frame, 1);
    column->addWidget(&m_range);
    column->addWidget(&m_heard);

    m_splitter.addWidget(left);
    m_splitter.addWidget(&m_panel);
    m_splitter.setHandleWidth(kMargin);
    m_splitter.setChildrenCollapsible(false);
    m_splitter.setStretchFactor(0, 1);
    m_splitter.setSizes({kSize.width() - 3 * kMargin - kPanelWidth, kPanelWidth});
    m_splitter.setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    setCentralWidget(&m_splitter);
}

void MainWindow::createMenus()
{
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    file->addAction(&m_panel.saveAction());
    file->addAction(tr("Save as &Web Page..."), this, &MainWindow::saveWebPage);
    file->addAction(tr("&Print..."), QKeySequence::Print, &m_calendar, &Calendar::print);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);

    menuBar()->addMenu(tr("&Edit"))->addActions(m_panel.editActions());

    QMenu* const view = menuBar()->addMenu(tr("&View"));
    view->addAction(tr("&Today"), &m_calendar, &Calendar::showToday);
    view->addAction(tr("&Next Month"), &m_calendar, &Calendar::showNextMonth);
    view->addAction(tr("&Previous Month"), &m_calendar, &Calendar::showPreviousMonth);
    view->addAction(tr("Next &Year"), &m_calendar, &Calendar::showNextYear);
    view->addAction(tr("Previous Y&ear"), &m_calendar, &Calendar::showPreviousYear);
    view->addAction(tr("&Clear Selection"), &m_calendar, &Calendar::clearSelection);
}

void MainWindow::connectCalendar()
{
    const auto heard = [this](const char* signal) {
        return [this, signal](QDate date) { hear(QString::fromLatin1(signal), isoDate(date)); };
    };
    connect(&m_calendar, &Calendar::selectionChanged, this, heard("selectionChanged"));
    connect(&m_calendar, &Calendar::clicked, this, heard("clicked"));
    connect(&m_calendar, &Calendar::activated, this, heard("activated"));
    connect(&m_calendar, &Calendar::dismissed, this, [this] { hear(QStringLiteral("dismissed")); });
    connect(&m_calendar, &Calendar::currentPageChanged, this, [this](int year, int month) {
        hear(QStringLiteral("currentPageChanged"), QStringLiteral("%1 %2").arg(year).arg(month));
    });
    connect(&m_calendar, &Calendar::rangeSelected, this, [this](QDate first, QDate last) {
        const QString range = tr("%1 to %2").arg(isoDate(first), isoDate(last));
        m_range.setText(tr("Last range: %1").arg(range));
        hear(QStringLiteral("rangeSelected"), range);
    });
    connect(&m_calendar, &Calendar::webPageRequested, this, &MainWindow::saveWebPage);
    connect(&m_calendar, &Calendar::failed, this, &MainWindow::tellFailure);
}

// A row in the window for the user's eyes, and a line on the standard output for whoever drives the program.
void MainWindow::hear(const QString& signal, const QString& details)
{
    const QString line = (signal + QLatin1Char(' ') + details).trimmed();
    if (m_heard.count() == kMaxHeard)
        delete m_heard.takeItem(0);
    m_heard.addItem(line);
    m_heard.scrollToBottom();
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

// A data file that cannot be read is left as it is: the calendar then goes without special dates.
void MainWindow::tellFailure(const QString& error)
{
    const QString words =
        m_calendar.hasSpecialDates()
            ? tr("The calendar could not do that.")
            : tr("Your dates could not be read, so none are shown and none can be changed.");
    const QString text = words + QStringLiteral("\n\n") + error;
    std::fprintf(stderr, "zeb17_desk: %s\n", qPrintable(text));
    if (m_settings)
        QMessageBox::warning(this, windowTitle(), text);
}

void MainWindow::saveWebPage()
{
    const QString before = m_settings
                               ? m_settings->value(kWebPageKey, QStringLiteral("calendar.html")).toString()
                               : QStringLiteral("calendar.html");
    const QString path = QFileDialog::getSaveFileName(this, tr("Save as Web Page"), before,
                                                      tr("Web pages (*.html);;All files (*)"));
    if (!path.isEmpty() && m_calendar.saveWebPage(path) && m_settings)
        m_settings->setValue(kWebPageKey, path);
}

void MainWindow::restore()
{
    resize(kSize);
    if (!m_settings)
        return;
    restoreGeometry(m_settings->value(kGeometryKey).toByteArray());
    m_splitter.restoreState(m_settings->value(kSplitterKey).toByteArray());
}

bool MainWindow::mayClose()
{
    if (!m_calendar.hasUnsavedChanges())
        return true;
    const auto answer = QMessageBox::question(this, windowTitle(), tr("Save the changes to your dates?"),
                                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                              QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && m_calendar.saveSpecialDates());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayClose());
    if (!event->isAccepted() || !m_settings)
        return;
    m_settings->setValue(kGeometryKey, saveGeometry());
    m_settings->setValue(kSplitterKey, m_splitter.saveState());
}
