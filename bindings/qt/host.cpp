// The window in which the calendar of a widget lives: it makes the calendar, runs its operations, hears its
// messages and tells the widget's signals.
#include "host.h"

#include "conversions.h"

#include <Keyboard.h>
#include <zeb17_qt.h>

#include <QCoreApplication>

#include <exception>
#include <optional>
#include <utility>

using namespace conversions;

namespace {

constexpr QRgb kGroupColors[] = {0x2a6fc9, 0xd03a3a, 0xe8801a, 0x2e9b4f, 0x8a4fbf};

// The other options are asked for only when the calendar is made.
constexpr Zeb17CalendarWidget::Options kLateOptions =
    Zeb17CalendarWidget::WebPage | Zeb17CalendarWidget::DateRanges | Zeb17CalendarWidget::ToDoList;

QString textOf(const CException& exception)
{
    char text[512] = "";
    exception.GetErrorMessage(text, sizeof text);
    return QString::fromUtf8(text);
}

// Hears the log of the process for as long as it lives. A logger that the application has set hears it too.
class LogCatcher : public AppLogger
{
public:
    explicit LogCatcher(std::function<void(const QString&)> tell)
        : m_tell(std::move(tell)), m_before(m_pInstance), m_application(outerOf(m_before))
    {
        m_pInstance = this;
    }
    ~LogCatcher() override { m_pInstance = m_before; }
    LogCatcher(const LogCatcher&) = delete;
    LogCatcher& operator=(const LogCatcher&) = delete;

    // A line is a mark of the place in the code, in braces, at times followed by words for the user.
    void AddLine(const CString& line) override
    {
        if (m_application)
            m_application->AddLine(line);
        const QString words = toQString(line);
        const QString rest = words.mid(words.indexOf(QLatin1Char('}')) + 1).trimmed();
        m_tell(rest.isEmpty() ? QCoreApplication::translate("Zeb17CalendarWidget",
                                                            "A part of the calendar does not work. %1")
                                    .arg(words)
                              : rest);
    }

private:
    static AppLogger* outerOf(AppLogger* logger)
    {
        auto* const catcher = dynamic_cast<LogCatcher*>(logger);
        return catcher ? catcher->m_application : logger;
    }

    std::function<void(const QString&)> m_tell;
    AppLogger* m_before;
    AppLogger* m_application;
};

}

GdiPlusSession::GdiPlusSession()
{
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
}

GdiPlusSession::~GdiPlusSession()
{
    Gdiplus::GdiplusShutdown(m_token);
}

BEGIN_MESSAGE_MAP(Zeb17CalendarWidget::Host, CWnd)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ENTERKEY, &Zeb17CalendarWidget::Host::OnEnterKey)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ESCKEY, &Zeb17CalendarWidget::Host::OnEscKey)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_PROMPT_SAVEWEBPAGE,
                          &Zeb17CalendarWidget::Host::OnPromptSaveWebPage)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_DATERANGE_CHANGED,
                          &Zeb17CalendarWidget::Host::OnDateRangeChanged)
END_MESSAGE_MAP()

Zeb17CalendarWidget::Host::Host(Zeb17CalendarWidget& widget) : m_widget(widget), m_control(*this)
{
    for (const Group group : {UnitedStates, Canada, Netherlands, OwnDates, ToDos}) {
        groupColor(group) = QColor(kGroupColors[group]);
        m_control.settings().SetAllColor(static_cast<CalendarSettings::Group>(group),
                                         toColorRef(groupColor(group)));
    }
    m_told = state();
    guarded([this] { createWindow(); });
}

Zeb17CalendarWidget::Host::~Host()
{
    m_closing = true;
    DestroyWindow();
}

// The window is there from the beginning, so that its widget stands behind ours in the order of Tab.
void Zeb17CalendarWidget::Host::createWindow()
{
    AfxWinInit(GetModuleHandle(nullptr), nullptr, "", SW_SHOW);
    const CRect rect(0, 0, m_widget.width(), m_widget.height());
    CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_CLIPCHILDREN, rect, nullptr, 0);
    m_shown = QWidgetFromWindow(m_hWnd);
    if (!m_shown)
        return;
    m_shown->setParent(&m_widget);
    m_shown->setGeometry(m_widget.rect());
    m_shown->installEventFilter(&m_widget);
    m_widget.setFocusProxy(m_shown);
}

bool Zeb17CalendarWidget::Host::ready()
{
    if (!std::exchange(m_creationTried, true)) {
        bool created = false;
        guarded([&] { created = createControl(); });
        if (!created)
            fail(tr("The calendar could not be created."));
        m_heard.clear();
        m_told = state();
    }
    return m_control.GetSafeHwnd();
}

bool Zeb17CalendarWidget::Host::createControl()
{
    if (!m_shown || !m_control.createIn(*this, m_options))
        return false;
    if (m_options.testFlag(SpecialDates))
        load();
    setEnabled(m_widget.isEnabled());
    // Shown with the widget. It paints itself already, for a picture of a widget that is not shown yet.
    ShowWindow(SW_SHOWNA);
    return true;
}

void Zeb17CalendarWidget::Host::setOptions(Options options)
{
    if (m_optionsHeld && ((options ^ m_options) & ~kLateOptions)) {
        fail(tr("This option of the calendar can only be set before it is shown."));
        options = (m_options & ~kLateOptions) | (options & kLateOptions);
    }
    const Options changes = options ^ std::exchange(m_options, options);
    if (options.testFlag(ToDoList))
        CCalendarWnd::EnableToDoList();
    if (!changes || !m_control.GetSafeHwnd())
        return;
    run([&](Control& control) {
        control.setMenu(options);
        if (changes & ~kLateOptions) {
            control.createAgain(*this, options);
            setEnabled(m_widget.isEnabled());
        }
        if (options.testFlag(SpecialDates) && changes.testFlag(SpecialDates))
            load();
        else
            control.useSpecialDates(control.usesSpecialDates() && options.testFlag(SpecialDates));
    });
}

void Zeb17CalendarWidget::Host::setEnabled(bool enable)
{
    if (!m_control.GetSafeHwnd())
        return;
    EnableWindow(enable);
    m_control.enableButtons(enable);
}

void Zeb17CalendarWidget::Host::guarded(const std::function<void()>& action)
{
    const QPointer<Zeb17CalendarWidget> widget(&m_widget);
    std::optional<QString> failure;
    {
        const LogCatcher log([this, widget](const QString& words) {
            if (widget)
                fail(words);
        });
        ++m_depth;
        try {
            action();
        } catch (CException* exception) {
            failure = textOf(*exception);
            exception->Delete();
        } catch (const std::exception& exception) {
            failure = QString::fromUtf8(exception.what());
        }
    }
    if (!widget)
        return;
    --m_depth;
    if (failure)
        fail(*failure);
}

bool Zeb17CalendarWidget::Host::run(const std::function<void(Control&)>& operation)
{
    if (!ready())
        return false;
    const QPointer<Zeb17CalendarWidget> widget(&m_widget);
    const int failures = m_failures;
    guarded([&] { operation(m_control); });
    if (!widget)
        return false;
    const bool good = m_failures == failures;
    tell();
    return good;
}

void Zeb17CalendarWidget::Host::runMessage(UINT message, const std::function<void()>& handle)
{
    if (m_closing) {
        handle();
        return;
    }
    const QPointer<Zeb17CalendarWidget> widget(&m_widget);
    const int failures = m_failures;
    guarded(handle);
    if (!widget)
        return;
    if (message == WM_PAINT && m_failures != failures)
        ::ValidateRect(m_control, nullptr); // otherwise the message would come again at once, for ever
    if (m_depth == 0)
        tell();
}

Zeb17CalendarWidget::Host::State Zeb17CalendarWidget::Host::state() const
{
    const DateTime& date = m_control.GetDate();
    State now;
    now.selected = toQDate(m_control.selected());
    now.year = date.IsValid() ? date.GetYear() : 0;
    now.month = date.GetMonth();
    now.unsaved = m_unsaved;
    return now;
}

// A slot may delete the widget, and this object with it.
void Zeb17CalendarWidget::Host::tell()
{
    if (m_closing)
        return;
    const State now = state();
    const State before = std::exchange(m_told, now);
    std::vector<Signal> due;
    if (now.year != before.year || now.month != before.month)
        due.emplace_back([now](auto& widget) { Q_EMIT widget.currentPageChanged(now.year, now.month); });
    if (now.selected != before.selected)
        due.emplace_back([now](auto& widget) { Q_EMIT widget.selectionChanged(now.selected); });
    if (now.unsaved != before.unsaved)
        due.emplace_back([now](auto& widget) { Q_EMIT widget.unsavedChangesChanged(now.unsaved); });
    for (Signal& signal : std::exchange(m_heard, {}))
        due.push_back(std::move(signal));

    const QPointer<Zeb17CalendarWidget> widget(&m_widget);
    for (const Signal& signal : due) {
        if (!widget)
            return;
        signal(*widget);
    }
}

void Zeb17CalendarWidget::Host::hearPress()
{
    hear([day = toQDate(m_control.selected())](auto& widget) { Q_EMIT widget.clicked(day); });
}

bool Zeb17CalendarWidget::Host::fail(const QString& words)
{
    ++m_failures;
    m_lastError = words;
    QMetaObject::invokeMethod(&m_widget, "failed", Qt::QueuedConnection, Q_ARG(QString, words));
    return false;
}

bool Zeb17CalendarWidget::Host::hasSpecialDates()
{
    return ready() && m_control.usesSpecialDates();
}

bool Zeb17CalendarWidget::Host::needSpecialDates()
{
    if (!ready())
        return false;
    if (m_control.usesSpecialDates())
        return true;
    return fail(m_options.testFlag(SpecialDates)
                    ? tr("The special dates could not be read, and are left as they are.")
                    : tr("The calendar does not use special dates."));
}

bool Zeb17CalendarWidget::Host::mayChange(Group group)
{
    if (!needSpecialDates())
        return false;
    if (!isGroup(group))
        return fail(tr("This is no group of special dates."));
    return group != ToDos || CalendarSettings::IsEnableToDoList() ||
           fail(tr("The to-do list is not in use."));
}

// What a file holds that cannot be read to its end is not used: a save would keep a part of it only.
bool Zeb17CalendarWidget::Host::load()
{
    if (!m_options.testFlag(SpecialDates))
        return needSpecialDates();
    bool good = false;
    guarded([&] {
        const bool read = m_control.settings().Load();
        m_unsaved = m_unsaved && !read; // without a file everything stays as it is
        good = true;
    });
    m_control.useSpecialDates(good);
    hear([](auto& widget) { Q_EMIT widget.specialDatesChanged(); });
    return good;
}

bool Zeb17CalendarWidget::Host::save()
{
    if (!needSpecialDates())
        return false;
    return run([this](Control& control) {
        control.settings().Save();
        m_unsaved = false;
    });
}

void Zeb17CalendarWidget::Host::changed()
{
    run([this](Control& control) {
        m_unsaved = true;
        control.refreshSpecialDates();
        hear([](auto& widget) { Q_EMIT widget.specialDatesChanged(); });
    });
}

void Zeb17CalendarWidget::Host::OnSize(UINT, int width, int height)
{
    if (m_control.GetSafeHwnd())
        m_control.MoveWindow(0, 0, width, height);
}

// The control hands the keyboard to the window around it when Tab leaves it: then it is the turn of the
// widget's neighbour. Otherwise the keyboard comes from outside.
void Zeb17CalendarWidget::Host::OnSetFocus(CWnd*)
{
    const bool leaves = m_control.isTabUnderWay();
    const bool back = leaves && Keyboard::IsShiftKeyDown();
    if (!leaves || !m_widget.focusNextPrevChild(!back))
        m_control.enter(back); // also where the widget has no neighbour
}

LRESULT Zeb17CalendarWidget::Host::OnEnterKey(WPARAM, LPARAM)
{
    hear([day = toQDate(m_control.selected())](auto& widget) { Q_EMIT widget.activated(day); });
    return 0;
}

LRESULT Zeb17CalendarWidget::Host::OnEscKey(WPARAM, LPARAM)
{
    hear([](auto& widget) { Q_EMIT widget.dismissed(); });
    return 0;
}

LRESULT Zeb17CalendarWidget::Host::OnPromptSaveWebPage(WPARAM, LPARAM)
{
    hear([](auto& widget) { Q_EMIT widget.webPageRequested(); });
    return 0;
}

LRESULT Zeb17CalendarWidget::Host::OnDateRangeChanged(WPARAM, LPARAM last)
{
    const QDate first = toQDate(m_control.GetDate());
    const QDate end = toQDate(*reinterpret_cast<const DateTime*>(last));
    hear([first, end](auto& widget) { Q_EMIT widget.rangeSelected(first, end); });
    return 0;
}
