// The life of the widget: deleted in its own signals, made and deleted many times.
#include "WidgetFixture.h"

#include <ZebrikUtils.h>

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QTimer>

#include <malloc.h>

namespace {

class Life : public WidgetFixture
{
protected:
    // Makes a widget that is shown and deletes itself in the signal.
    template <class Signal>
    QPointer<Widget> makeDoomed(Signal signal)
    {
        auto* const widget = new Widget;
        widget->setOption(Widget::DateRanges);
        QObject::connect(widget, signal, widget, [widget] { delete widget; });
        widget->show();
        widget->activateWindow();
        widget->setFocus();
        serve();
        return widget;
    }
};

TEST_F(Life, TheWidgetMayBeDeletedInItsOwnSignals)
{
    QPointer<Widget> widget = makeDoomed(&Widget::selectionChanged);
    press(*widget, 1, 1);
    EXPECT_FALSE(widget) << "press";

    widget = makeDoomed(&Widget::clicked);
    press(*widget, 0, 6);
    EXPECT_FALSE(widget) << "clicked";

    widget = makeDoomed(&Widget::currentPageChanged);
    pressKey(Qt::Key_PageDown);
    EXPECT_FALSE(widget) << "key";

    widget = makeDoomed(&Widget::activated);
    pressKey(Qt::Key_Return);
    EXPECT_FALSE(widget) << "activated";

    widget = makeDoomed(&Widget::selectionChanged);
    widget->setSelectedDate({2026, 1, 1});
    EXPECT_FALSE(widget) << "a call";

    widget = makeDoomed(&Widget::specialDatesChanged);
    widget->setGroupShown(Widget::Canada, false);
    EXPECT_FALSE(widget) << "special dates";

    widget = makeDoomed(&Widget::failed);
    widget->setCurrentPage(0, 0);
    serve();
    EXPECT_FALSE(widget) << "failure";

    widget = makeDoomed(&Widget::rangeSelected);
    pressKey(Qt::Key_Tab);
    pressKey(Qt::Key_Tab);
    choose("Show Last Week");
    pressKey(Qt::Key_Space);
    EXPECT_FALSE(widget) << "menu";
}

TEST_F(Life, TheWidgetMayBeDeletedWhileItsMenuIsOpen)
{
    QPointer<Widget> widget = makeDoomed(&Widget::dismissed);
    pressKey(Qt::Key_Tab);
    pressKey(Qt::Key_Tab);
    QTimer::singleShot(50, qApp, [widget] {
        EXPECT_TRUE(QApplication::activePopupWidget());
        delete widget.data();
    });
    pressKey(Qt::Key_Space);
    EXPECT_FALSE(widget);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(Life, AFailureIsHeardBySlotsOfLater)
{
    ASSERT_TRUE(QDir().mkpath(QString::fromUtf8(ZebrikUtils::GetCalendarSettingsPath(4).GetString())));
    Widget widget;
    widget.show();
    const QString error = widget.lastError();
    EXPECT_FALSE(error.isEmpty());
    Listener listener(widget);
    serve();
    EXPECT_EQ(listener.take(), "failed");
    EXPECT_EQ(widget.lastError(), error);
}

// Tables that grow with the widgets keep their memory for the next ones, so that only the last widgets tell.
TEST_F(Life, AThousandWidgetsLeaveNothingBehind)
{
    const auto use = [](int count) {
        for (int i = 0; i < count; ++i) {
            Widget widget;
            widget.setSelectedDate({2026, 11, 5});
            widget.show();
            QCoreApplication::processEvents();
        }
        serve();
    };
    use(50);
    const auto widgets = QApplication::allWidgets().size();
    use(700);
    const std::size_t before = mallinfo2().uordblks;
    use(250);
    EXPECT_EQ(QApplication::allWidgets().size(), widgets);
    EXPECT_LT(mallinfo2().uordblks, before + 250UL * 40) << "less than the smallest object a widget";
}

}
