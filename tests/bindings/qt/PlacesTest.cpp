// The places in which the widget lives among Qt's: windows, dialogs, docks, scroll areas, forms, and the
// order of Tab.
#include "WidgetFixture.h"

#include "ui_form.h"

#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

class Places : public WidgetFixture
{
protected:
    static void present(QWidget& window)
    {
        window.show();
        window.activateWindow();
        serve();
    }

    // Presses the day of the second row and the column, and expects the widget to tell of it.
    static void expectPress(Widget& widget, int column, const char* where)
    {
        Listener listener(widget);
        press(widget, 1, column);
        const QString day = QStringLiteral("2026-11-%1").arg(8 + column, 2, 10, QLatin1Char('0'));
        EXPECT_EQ(listener.take(), "selected " + day + ", clicked " + day) << where;
    }
};

TEST_F(Places, TheWidgetWorksWhereverItIsPut)
{
    Widget& widget = *new Widget;
    {
        QMainWindow window;
        auto* const dock = new QDockWidget(&window);
        dock->setWidget(&widget);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        present(window);
        expectPress(widget, 0, "dock");
        dock->setFloating(true);
        serve();
        expectPress(widget, 1, "floating dock");
        dock->hide();
        serve();
        dock->show();
        serve();
        expectPress(widget, 2, "shown again");
        dock->setWidget(nullptr);
        widget.setParent(nullptr);
    }
    {
        QDialog dialog;
        (new QVBoxLayout(&dialog))->addWidget(&widget);
        present(dialog);
        expectPress(widget, 3, "dialog");
        QObject::connect(&widget, &Widget::dismissed, &dialog, &QDialog::reject);
        widget.setFocus();
        pressKey(Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "Enter is the calendar's";
        pressKey(Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
        widget.setParent(nullptr);
    }
    QScrollArea area;
    widget.resize(600, 500);
    area.setWidget(&widget);
    area.resize(300, 200);
    present(area);
    area.verticalScrollBar()->setValue(80);
    area.horizontalScrollBar()->setValue(100);
    serve();
    expectPress(widget, 4, "scroll area");
    EXPECT_EQ(widget.size(), QSize(600, 500));
}

TEST_F(Places, AWindowOfItsOwnOpensAtItsSizeHint)
{
    Widget widget;
    present(widget);
    const QSize screen = widget.screen()->size();
    const QSize mostByQt(screen.width() * 2 / 3, screen.height() * 2 / 3);
    EXPECT_EQ(widget.size(), widget.sizeHint().boundedTo(mostByQt));
    EXPECT_LE(widget.minimumSizeHint().width(), widget.sizeHint().width());
    expectPress(widget, 0, "window");
}

TEST_F(Places, TabGoesInAndOutAtBothEnds)
{
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    QLineEdit before;
    QLineEdit after;
    Widget first;
    Widget second;
    first.setOptions(Widget::NoDate | Widget::OptionsMenu);
    second.setOptions({});
    for (QWidget* const widget : {static_cast<QWidget*>(&after), static_cast<QWidget*>(&second),
                                  static_cast<QWidget*>(&before), static_cast<QWidget*>(&first)})
        layout->addWidget(widget);
    QWidget::setTabOrder(&before, &first);
    QWidget::setTabOrder(&first, &second);
    QWidget::setTabOrder(&second, &after);
    present(window);

    const QWidget* const round[] = {&before, &first, &second, &after};
    const int stops[] = {1, 8, 6, 1}; // fewer without the buttons for options and no date
    before.setFocus();
    const auto isIn = [](const QWidget* widget) {
        return QApplication::focusWidget() == widget || widget->isAncestorOf(QApplication::focusWidget());
    };
    for (std::size_t i = 0; i < std::size(round); ++i)
        for (int stop = 0; stop < stops[i]; ++stop) {
            EXPECT_TRUE(isIn(round[i])) << "forward " << i << ' ' << stop;
            pressKey(Qt::Key_Tab);
        }
    after.setFocus();
    for (std::size_t i = std::size(round); i-- > 0;)
        for (int stop = 0; stop < stops[i]; ++stop) {
            EXPECT_TRUE(isIn(round[i])) << "back " << i << ' ' << stop;
            pressKey(Qt::Key_Tab, Qt::ShiftModifier);
        }

    // Each of the two hears its own keys only.
    Listener listener(first);
    second.setFocus();
    pressKey(Qt::Key_T);
    EXPECT_EQ(listener.take(), "");
    EXPECT_TRUE(second.selectedDate().isValid());
}

TEST_F(Places, AloneInItsWindowTheWidgetKeepsTheKeyboard)
{
    Widget widget;
    present(widget);
    widget.setFocus();
    pressKey(Qt::Key_Tab, Qt::ShiftModifier); // from the grid backwards to the last button
    pressKey(Qt::Key_Tab);                    // and on to the grid
    Listener listener(widget);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(listener.take(), "activated none");
}

TEST_F(Places, AFormSetsTheProperties)
{
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    present(window);
    EXPECT_EQ(form.calendar->options(), Widget::SpecialDates | Widget::DateRanges);
    EXPECT_EQ(form.calendar->selectedDate(), QDate(2026, 11, 3));
    EXPECT_TRUE(form.calendar->hasSpecialDates());
    press(*form.calendar, 1, 1);
    EXPECT_EQ(form.day->text(), "2026-11-09") << "connected in the form";
}

TEST_F(Places, OptionsAreSetBeforeTheWidgetIsShown)
{
    Widget widget;
    Listener listener(widget);
    widget.setOptions({});
    widget.setSelectedDate({2026, 11, 5}); // makes the calendar
    EXPECT_FALSE(widget.hasSpecialDates());
    widget.setOptions(Widget::SpecialDates | Widget::NoDate);
    EXPECT_TRUE(widget.hasSpecialDates());
    EXPECT_EQ(widget.selectedDate(), QDate(2026, 11, 5));
    widget.setOption(Widget::SpecialDates, false);
    EXPECT_FALSE(widget.hasSpecialDates());
    present(widget);
    listener.take();
    widget.setOption(Widget::OptionsMenu);
    widget.setOption(Widget::WebPage);
    EXPECT_EQ(widget.options(), Widget::NoDate | Widget::WebPage);
    serve();
    EXPECT_EQ(listener.take(), "failed");
}

TEST_F(Places, APictureShowsTheLastChange)
{
    Widget shown;
    present(shown);
    Widget hidden;
    for (Widget* const widget : {&shown, &hidden}) {
        const QImage before = widget->grab().toImage();
        widget->setCurrentPage(2031, 1);
        EXPECT_NE(widget->grab().toImage(), before);
    }
    EXPECT_EQ(hidden.grab().size() / hidden.devicePixelRatio(), hidden.size());
}

}
