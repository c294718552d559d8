// A calendar widget in a Qt application, with hands, and what it told.
#pragma once

#include <TemporaryDirectory.h>
#include <Zeb17CalendarWidget.h>

#include <gtest/gtest.h>

#include <QStringList>
#include <QTest>

using Widget = Zeb17CalendarWidget;
using Rule = Zeb17DateRule;

// Writes down the signals of a widget: "selected 2026-11-05", "page 2026-12", "clicked 2026-11-05" and so on.
class Listener : public QObject
{
public:
    explicit Listener(Widget& widget);

    QString take(); // what was told since the last call, with commas between

private:
    QStringList m_told;
};

// Today is Thursday, 26 November 2026, and the week begins on Sunday, as that month does.
class WidgetFixture : public testing::Test
{
protected:
    WidgetFixture();

    static void serve();                                    // lets the application do all its work
    static void press(Widget& widget, int row, int column); // a cell of the grid, both from 0
    static void pressKey(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier); // where the focus is
    static void choose(const QString& item); // the next menu that opens gets this choice

    QString pathOf(const char* name) const { return QString::fromStdString(m_data.PathOf(name)); }

    const TemporaryDirectory m_data;
};
