// The widget: its options, its date, the months it shows, and its place among Qt's widgets.
#include "Zeb17CalendarWidget.h"

#include "conversions.h"
#include "host.h"

#include <Clock.h>
#include <LocaleUtils.h>
#include <UIPrinter.h>
#include <ZebrikUtils.h>

#include <QEvent>
#include <QFocusEvent>

using namespace conversions;

Zeb17CalendarWidget::Zeb17CalendarWidget(QWidget* parent)
    : QWidget(parent), m_host(std::make_unique<Host>(*this))
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

Zeb17CalendarWidget::~Zeb17CalendarWidget() = default;

Zeb17CalendarWidget::Options Zeb17CalendarWidget::options() const
{
    return m_host->options();
}

void Zeb17CalendarWidget::setOptions(Options options)
{
    m_host->setOptions(options);
}

void Zeb17CalendarWidget::setOption(Option option, bool on)
{
    Options changed = options();
    setOptions(changed.setFlag(option, on));
}

QDate Zeb17CalendarWidget::selectedDate() const
{
    return toQDate(m_host->control().selected());
}

int Zeb17CalendarWidget::yearShown() const
{
    const DateTime& date = m_host->control().GetDate();
    return date.IsValid() ? date.GetYear() : 0;
}

int Zeb17CalendarWidget::monthShown() const
{
    return m_host->control().GetDate().GetMonth();
}

QString Zeb17CalendarWidget::lastError() const
{
    return m_host->lastError();
}

QSize Zeb17CalendarWidget::sizeHint() const
{
    return {360, 280};
}

QSize Zeb17CalendarWidget::minimumSizeHint() const
{
    return {250, 180};
}

void Zeb17CalendarWidget::setSelectedDate(QDate date)
{
    const DateTime day = toDateTime(date);
    if (date.isNull())
        clearSelection();
    else if (!day.IsValid())
        m_host->fail(tr("The calendar does not reach that day."));
    else
        m_host->run([&](Control& control) { control.SetDate(day); });
}

void Zeb17CalendarWidget::clearSelection()
{
    m_host->run([](Control& control) { control.clear(); });
}

void Zeb17CalendarWidget::setCurrentPage(int year, int month)
{
    if (DateTime::GetDaysInMonth(year, month) == 0)
        m_host->fail(tr("The calendar has no such month."));
    else
        m_host->run([=](Control& control) { control.showPage(year, month); });
}

void Zeb17CalendarWidget::showToday()
{
    m_host->run([](Control& control) { control.showToday(); });
}

void Zeb17CalendarWidget::showNextMonth()
{
    m_host->run([](Control& control) { control.step(&DateTime::AddMonths, 1); });
}

void Zeb17CalendarWidget::showPreviousMonth()
{
    m_host->run([](Control& control) { control.step(&DateTime::AddMonths, -1); });
}

void Zeb17CalendarWidget::showNextYear()
{
    m_host->run([](Control& control) { control.step(&DateTime::AddYears, 1); });
}

void Zeb17CalendarWidget::showPreviousYear()
{
    m_host->run([](Control& control) { control.step(&DateTime::AddYears, -1); });
}

bool Zeb17CalendarWidget::saveWebPage(const QString& path)
{
    return m_host->run([&](Control& control) {
        if (!control.SaveCalendarWebPage(toCString(path)))
            m_host->fail(tr("The web page could not be written to %1.").arg(path));
    });
}

bool Zeb17CalendarWidget::print()
{
    return m_host->run([](Control& control) { control.print(); });
}

bool Zeb17CalendarWidget::printToPdf(const QString& path)
{
    return m_host->run([&](Control& control) {
        const UIPrinter::ToFile toFile(toCString(path));
        control.print();
    });
}

void Zeb17CalendarWidget::setDataDirectory(const QString& path)
{
    ZebrikUtils::SetDataDirectory(toCString(path));
}

void Zeb17CalendarWidget::setToday(QDate date)
{
    const DateTime day = toDateTime(date);
    if (day.IsValid())
        Clock::SetToday(day.GetYear(), day.GetMonth(), day.GetDay());
    else
        Clock::Release();
}

QDate Zeb17CalendarWidget::today()
{
    DateTime day;
    day.SetToCurrentDate();
    return toQDate(day);
}

bool Zeb17CalendarWidget::setCalendarLocale(const QString& name)
{
    return LocaleUtils::SetLocale(toCString(name));
}

// The calendar is made before the widget is first shown, so that it is shown with it.
bool Zeb17CalendarWidget::event(QEvent* event)
{
    if (event->type() == QEvent::Polish)
        m_host->ready();
    return QWidget::event(event);
}

void Zeb17CalendarWidget::showEvent(QShowEvent* event)
{
    m_host->holdOptions();
    QWidget::showEvent(event);
}

void Zeb17CalendarWidget::resizeEvent(QResizeEvent* event)
{
    if (QWidget* const shown = m_host->shown())
        shown->setGeometry(rect());
    QWidget::resizeEvent(event);
}

void Zeb17CalendarWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        m_host->setEnabled(isEnabled());
    QWidget::changeEvent(event);
}

// Tab enters the calendar at its beginning, Shift+Tab at its end; otherwise the keyboard goes where it was
// before. What Qt shows is up to date, also in a picture that the application takes.
bool Zeb17CalendarWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_host || watched != m_host->shown())
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::Paint)
        m_host->control().paintNow();
    if (event->type() != QEvent::FocusIn)
        return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason)
        return false;
    const QPointer<Zeb17CalendarWidget> self(this);
    watched->event(event);
    if (self)
        m_host->control().enter(reason == Qt::BacktabFocusReason);
    return true;
}
