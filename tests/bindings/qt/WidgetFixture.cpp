#include "WidgetFixture.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTimer>

namespace {

QString textOf(QDate date)
{
    return date.isValid() ? date.toString(Qt::ISODate) : QStringLiteral("none");
}

void makeApplication()
{
    static int argc = 1;
    static char name[] = "qt_tests";
    static char* argv[] = {name, nullptr};
    if (!qApp)
        new QApplication(argc, argv);
}

}

Listener::Listener(Widget& widget)
{
    const auto tell = [this](const char* what, const QString& details = {}) {
        m_told.append((what + (' ' + details)).trimmed());
    };
    connect(&widget, &Widget::selectionChanged, this, [tell](QDate day) { tell("selected", textOf(day)); });
    connect(&widget, &Widget::currentPageChanged, this,
            [tell](int year, int month) { tell("page", QStringLiteral("%1-%2").arg(year).arg(month)); });
    connect(&widget, &Widget::clicked, this, [tell](QDate day) { tell("clicked", textOf(day)); });
    connect(&widget, &Widget::activated, this, [tell](QDate day) { tell("activated", textOf(day)); });
    connect(&widget, &Widget::dismissed, this, [tell] { tell("dismissed"); });
    connect(&widget, &Widget::rangeSelected, this,
            [tell](QDate first, QDate last) { tell("range", textOf(first) + " to " + textOf(last)); });
    connect(&widget, &Widget::webPageRequested, this, [tell] { tell("web page"); });
    connect(&widget, &Widget::specialDatesChanged, this, [tell] { tell("special dates"); });
    connect(&widget, &Widget::unsavedChangesChanged, this,
            [tell](bool unsaved) { tell(unsaved ? "unsaved" : "saved"); });
    connect(&widget, &Widget::failed, this, [tell](const QString&) { tell("failed"); });
}

QString Listener::take()
{
    return std::exchange(m_told, {}).join(", ");
}

WidgetFixture::WidgetFixture()
{
    makeApplication();
    Widget::setDataDirectory(pathOf("data"));
    Widget::setToday({2026, 11, 26});
    Widget::setCalendarLocale("en-US");
}

void WidgetFixture::serve()
{
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WidgetFixture::press(Widget& widget, int row, int column)
{
    constexpr int kHeading = 43; // the title and the names of the weekdays
    constexpr int kFooter = 26;
    const QPoint place(widget.width() * (2 * column + 1) / 14,
                       kHeading + (widget.height() - kHeading - kFooter) * (2 * row + 1) / 12);
    QTest::mouseClick(widget.childAt(place), Qt::LeftButton, Qt::NoModifier, place);
    serve();
}

void WidgetFixture::pressKey(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    serve();
}

void WidgetFixture::choose(const QString& item)
{
    QTimer::singleShot(0, qApp, [item] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return choose(item);
        for (QAction* const action : menu->actions()) {
            if (action->text() != item)
                continue;
            menu->setActiveAction(action);
            QTest::keyClick(menu, Qt::Key_Return);
            return;
        }
        ADD_FAILURE() << "no item " << item.toStdString();
        menu->close();
    });
}
