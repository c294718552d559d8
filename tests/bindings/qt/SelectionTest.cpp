// The selected day, the month shown, and the signals that tell of them.
#include "WidgetFixture.h"

#include <functional>

namespace {

class Selection : public WidgetFixture
{
protected:
    Selection()
    {
        m_widget.setOptions(Widget::NoDate | Widget::OptionsMenu | Widget::WebPage | Widget::DateRanges);
        m_widget.show();
        m_widget.activateWindow();
        m_widget.setFocus();
        serve();
    }

    Widget m_widget;
    Listener m_listener{m_widget};
};

TEST_F(Selection, EachChangeIsToldOnce)
{
    const struct
    {
        const char* what;
        std::function<void()> act;
        QString told;
    } steps[] = {
        {"a day",
         [&] {
             m_widget.setSelectedDate({2026, 11, 5});
         },
         "selected 2026-11-05"},
        {"the same day",
         [&] {
             m_widget.setSelectedDate({2026, 11, 5});
         },
         ""},
        {"another month",
         [&] {
             m_widget.setSelectedDate({2026, 12, 25});
         },
         "page 2026-12, selected 2026-12-25"},
        {"press", [&] { press(m_widget, 0, 2); }, "selected 2026-12-01, clicked 2026-12-01"},
        {"press the same day", [&] { press(m_widget, 0, 2); }, "clicked 2026-12-01"},
        {"press a grey day", [&] { press(m_widget, 0, 0); },
         "page 2026-11, selected 2026-11-29, clicked 2026-11-29"},
        {"arrow", [&] { pressKey(Qt::Key_Right); }, "selected 2026-11-30"},
        {"page key", [&] { pressKey(Qt::Key_PageDown); }, "page 2026-12, selected 2026-12-30"},
        {"two months on", [&] { m_widget.setCurrentPage(2027, 2); }, "page 2027-2, selected 2027-02-28"},
        {"the month shown", [&] { m_widget.setCurrentPage(2027, 2); }, ""},
        {"enter", [&] { pressKey(Qt::Key_Return); }, "activated 2027-02-28"},
        {"clear", [&] { m_widget.clearSelection(); }, "selected none"},
        {"clear again", [&] { m_widget.setSelectedDate(QDate()); }, ""},
        {"next year", [&] { m_widget.showNextYear(); }, "page 2028-2"},
        {"previous month", [&] { m_widget.showPreviousMonth(); }, "page 2028-1"},
        {"today", [&] { m_widget.showToday(); }, "page 2026-11"},
        {"escape", [&] { pressKey(Qt::Key_Escape); }, "dismissed"},
        {"T", [&] { pressKey(Qt::Key_T); }, "selected 2026-11-26"},
        {"no month", [&] { m_widget.setCurrentPage(2026, 13); }, "failed"},
    };
    for (const auto& step : steps) {
        step.act();
        serve();
        EXPECT_EQ(m_listener.take(), step.told) << step.what;
    }
}

TEST_F(Selection, TheMenuGivesRangesAndAsksForAWebPage)
{
    const auto openMenu = [this](const char* item) {
        m_widget.activateWindow(); // after a menu the off-screen display activates no window by itself
        m_widget.setFocus();
        serve();
        choose(item);
        pressKey(Qt::Key_Space);
    };
    pressKey(Qt::Key_Tab);
    pressKey(Qt::Key_Tab); // the Options button
    openMenu("Show Current Quarter");
    EXPECT_EQ(m_listener.take(), "page 2026-10, selected 2026-10-01, range 2026-10-01 to 2026-12-31");
    openMenu("Generate Web Page...");
    EXPECT_EQ(m_listener.take(), "web page");
}

TEST_F(Selection, DaysMeetByTheirJulianDayNumber)
{
    const struct
    {
        QDate day;
        int year;
        int month;
    } days[] = {
        {{1582, 10, 15}, 1582, 10}, {{1582, 10, 14}, 1582, 10}, // 4 October, the last Julian day
        {{1500, 3, 10}, 1500, 2},                               // 29 February by the Julian calendar
        {{-1, 12, 30}, 1, 1},       {{9999, 12, 31}, 9999, 12},
    };
    for (const auto& [day, year, month] : days) {
        m_widget.setSelectedDate(day);
        EXPECT_EQ(m_widget.selectedDate(), day);
        EXPECT_EQ(m_widget.yearShown(), year) << day.toString().toStdString();
        EXPECT_EQ(m_widget.monthShown(), month) << day.toString().toStdString();
    }
    for (const QDate outside : {QDate(-1, 12, 29), QDate(10000, 1, 1)}) {
        m_widget.setSelectedDate(outside);
        EXPECT_EQ(m_widget.selectedDate(), QDate(9999, 12, 31));
        EXPECT_FALSE(m_widget.lastError().isEmpty());
    }
    m_widget.showNextMonth(); // beyond the range there is no month
    EXPECT_EQ(m_widget.yearShown(), 0);
    EXPECT_FALSE(m_widget.selectedDate().isValid());
}

TEST_F(Selection, ASlotHearsOfTheNewStateAndMayChangeIt)
{
    QObject::connect(&m_widget, &Widget::selectionChanged, &m_widget, [this](QDate day) {
        EXPECT_EQ(m_widget.selectedDate(), day);
        if (day.dayOfWeek() == Qt::Sunday)
            m_widget.setSelectedDate(day.addDays(1));
    });
    press(m_widget, 1, 0);
    EXPECT_EQ(m_listener.take(), "selected 2026-11-08, selected 2026-11-09, clicked 2026-11-08");
}

TEST_F(Selection, ADisabledCalendarTakesNoInput)
{
    m_widget.setEnabled(false);
    press(m_widget, 1, 1);
    EXPECT_EQ(m_listener.take(), "");
    m_widget.setEnabled(true);
    press(m_widget, 1, 1);
    EXPECT_EQ(m_listener.take(), "selected 2026-11-09, clicked 2026-11-09");
}

TEST_F(Selection, PropertiesSpeakForTheWidget)
{
    EXPECT_TRUE(m_widget.setProperty("selectedDate", QDate(2026, 7, 4)));
    EXPECT_EQ(m_widget.property("selectedDate").toDate(), QDate(2026, 7, 4));
    EXPECT_EQ(m_widget.property("yearShown").toInt(), 2026);
    EXPECT_EQ(m_widget.property("monthShown").toInt(), 7);
    EXPECT_EQ(QByteArray(m_widget.metaObject()->userProperty().name()), "selectedDate");
}

}
