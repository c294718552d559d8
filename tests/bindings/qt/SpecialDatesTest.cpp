// Special dates in Qt's terms: rules, groups, entries, and the data file.
#include "WidgetFixture.h"

#include <ZebrikUtils.h>

#include <QFile>

namespace {

class SpecialDatesOfWidget : public WidgetFixture
{
protected:
    static Zeb17SpecialDate makeDate(const QString& text, const Rule& rule) { return {text, {}, true, rule}; }

    static void damageFile()
    {
        QFile file(QString::fromUtf8(ZebrikUtils::GetCalendarSettingsPath(4).GetString()));
        ASSERT_TRUE(file.resize(file.size() / 2));
    }
};

const struct
{
    const char* name;
    Rule rule;
    QDate next; // from 26 November 2026 on
} kRules[] = {
    {"day", Rule::onDay(25, 12), {2026, 12, 25}},
    {"leap day", Rule::onDay(29, 2), {2028, 2, 29}},
    {"workday",
     [] {
         Rule rule = Rule::onDay(25, 12);
         rule.movesToWorkday = true;
         return rule;
     }()
         .in(Rule::InYear, 2027),
     {2027, 12, 24}},
    {"weekday", Rule::onWeekday(Rule::Fourth, Qt::Thursday, 11), {2026, 11, 26}},
    {"last weekday", Rule::onWeekday(Rule::Last, Qt::Sunday, 10), {2027, 10, 31}},
    {"before a day", Rule::nearDay(Qt::Monday, Rule::Before, 25, 5), {2027, 5, 24}},
    {"after a day", Rule::nearDay(Qt::Sunday, Rule::After, 26, 11), {2026, 11, 29}},
    {"after a weekday",
     Rule::nearTheWeekday(Qt::Tuesday, Rule::After, Rule::First, Qt::Monday, 11),
     {2027, 11, 2}},
    {"seldom",
     Rule::nearDay(Qt::Sunday, Rule::After, 30, 12).in(Rule::FromYear, 2035),
     {2045, 12, 31}}, // the next year that ends with a Sunday
    {"even years", Rule::onDay(1, 1).in(Rule::EvenYears), {2028, 1, 1}},
    {"from a year on", Rule::onDay(1, 1).in(Rule::FromYear, 2050), {2050, 1, 1}},
    {"until a year", Rule::onDay(1, 12).in(Rule::UntilYear, 2025), {}},
    {"once", Rule::once({2031, 3, 8}), {2031, 3, 8}},
    {"once, long ago", Rule::once({1500, 3, 10}), {}},
};

TEST_F(SpecialDatesOfWidget, EveryKindOfRuleIsSavedAndReadBackWithItsDays)
{
    Widget first;
    Listener listener(first);
    const QColor color(10, 20, 30);
    for (const auto& [name, rule, next] : kRules) {
        EXPECT_TRUE(rule.isValid()) << name;
        EXPECT_EQ(rule.nextDate({2026, 11, 26}), next) << name;
        EXPECT_TRUE(
            first.addSpecialDate(Widget::OwnDates, {QString::fromUtf8(name) + " \u6708", color, true, rule}));
    }
    EXPECT_TRUE(first.hasUnsavedChanges());
    EXPECT_TRUE(first.saveSpecialDates()) << first.lastError().toStdString();
    EXPECT_FALSE(first.hasUnsavedChanges());
    EXPECT_TRUE(listener.take().startsWith("unsaved, special dates, special dates"));

    const Widget second;
    EXPECT_EQ(second.specialDates(Widget::OwnDates), first.specialDates(Widget::OwnDates));
    ASSERT_EQ(second.specialDateCount(Widget::OwnDates), static_cast<int>(std::size(kRules)));
    for (const auto& [name, rule, next] : kRules) {
        if (!next.isValid())
            continue;
        const Zeb17SpecialDay day = second.specialDates(next);
        EXPECT_TRUE(day.texts.join('\n').contains(QString::fromUtf8(name) + " \u6708")) << name;
        EXPECT_EQ(day.color, color) << name;
    }
}

TEST_F(SpecialDatesOfWidget, OnlyCompleteDatesOfTheUsersOwnAreTaken)
{
    Widget widget;
    Listener listener(widget);
    const Rule good = Rule::onDay(1, 2);
    EXPECT_FALSE(widget.addSpecialDate(Widget::OwnDates, makeDate("", good)));
    EXPECT_FALSE(widget.addSpecialDate(Widget::OwnDates, makeDate("two\nlines", good)));
    for (const Rule& bad :
         {Rule(), Rule::onDay(30, 2), Rule::onDay(1, 13), Rule::onDay(1, 2).in(Rule::InYear, 0),
          Rule::onWeekday(static_cast<Rule::Occurrence>(5), Qt::Monday, 1), Rule::once({20000, 1, 1})}) {
        EXPECT_FALSE(bad.isValid());
        EXPECT_FALSE(bad.fallsOn({2026, 2, 1}));
        EXPECT_FALSE(widget.addSpecialDate(Widget::OwnDates, makeDate("bad", bad)));
    }
    EXPECT_FALSE(widget.addSpecialDate(Widget::Canada, makeDate("national", good)));
    EXPECT_FALSE(widget.setSpecialDate(Widget::OwnDates, 0, makeDate("none there", good)));
    EXPECT_EQ(widget.takeSpecialDate(Widget::UnitedStates, 0), Zeb17SpecialDate());
    EXPECT_EQ(widget.specialDateCount(Widget::OwnDates), 0);
    EXPECT_FALSE(widget.hasUnsavedChanges());
    serve();
    EXPECT_EQ(listener.take().count("failed"), 11);
}

TEST_F(SpecialDatesOfWidget, AnEntryIsChangedTakenAndGivenBack)
{
    Widget widget;
    widget.setOption(Widget::ToDoList);
    for (const Widget::Group group : {Widget::OwnDates, Widget::ToDos}) {
        ASSERT_TRUE(widget.addSpecialDate(group, makeDate("a", Rule::onDay(1, 2))));
        ASSERT_TRUE(widget.addSpecialDate(group, makeDate("b", Rule::onDay(3, 2))));
        EXPECT_EQ(widget.specialDate(group, 0).color, widget.groupColor(group)) << "a date without a colour";

        Zeb17SpecialDate changed = widget.specialDate(group, 0);
        changed.text = "c";
        changed.color = Qt::red;
        changed.rule = Rule::onDay(4, 2);
        EXPECT_TRUE(widget.setSpecialDate(group, 0, changed));
        EXPECT_EQ(widget.specialDate(group, 0), changed);
        EXPECT_FALSE(widget.groupColor(group).isValid()) << "the colours differ";

        EXPECT_EQ(widget.takeSpecialDate(group, 0), changed);
        EXPECT_EQ(widget.specialDates({2027, 2, 4}).texts, QStringList());
        EXPECT_TRUE(widget.addSpecialDate(group, changed));
        EXPECT_EQ(widget.specialDates({2027, 2, 4}).texts, QStringList("c"));
        EXPECT_TRUE(widget.setGroupShown(group, false));
    }
}

TEST_F(SpecialDatesOfWidget, GroupsAreShownAndColoured)
{
    Widget widget;
    const QDate christmas(2026, 12, 25);
    EXPECT_EQ(widget.specialDates(christmas).texts, QStringList({"Kerstmis", "Christmas"}));
    EXPECT_EQ(widget.specialDates(christmas).color, widget.groupColor(Widget::UnitedStates));
    EXPECT_EQ(widget.specialDate(Widget::Netherlands, 0).rule.isValid(), true);

    EXPECT_TRUE(widget.setGroupShown(Widget::UnitedStates, false));
    EXPECT_TRUE(widget.setGroupShown(Widget::Canada, false));
    EXPECT_EQ(widget.groupShown(Widget::UnitedStates), Qt::Unchecked);
    Zeb17SpecialDate hidden = widget.specialDate(Widget::Netherlands, 0);
    hidden.shown = false;
    EXPECT_TRUE(widget.setSpecialDate(Widget::Netherlands, 0, hidden));
    EXPECT_EQ(widget.groupShown(Widget::Netherlands), Qt::PartiallyChecked);
    hidden.text = "another text";
    EXPECT_FALSE(widget.setSpecialDate(Widget::Netherlands, 0, hidden));
    EXPECT_TRUE(widget.setGroupColor(Widget::Netherlands, Qt::magenta));
    EXPECT_FALSE(widget.setGroupColor(Widget::Netherlands, QColor()));
    EXPECT_EQ(widget.specialDates(christmas).texts, QStringList("Kerstmis"));
    EXPECT_EQ(widget.specialDates(christmas).color, QColor(Qt::magenta));
    EXPECT_EQ(Widget::groupName(Widget::Netherlands), "The Netherlands");
}

TEST_F(SpecialDatesOfWidget, ADotIsSeenAtOnce)
{
    Widget widget;
    widget.setGroupShown(Widget::UnitedStates, false);
    const auto reds = [&] {
        const QImage image = widget.grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == QColor(Qt::red);
        return count;
    };
    EXPECT_EQ(reds(), 0);
    widget.addSpecialDate(Widget::OwnDates, {"a", Qt::red, true, Rule::onDay(10, 11)});
    EXPECT_GT(reds(), 20);
    widget.takeSpecialDate(Widget::OwnDates, 0);
    EXPECT_EQ(reds(), 0);
}

TEST_F(SpecialDatesOfWidget, ADamagedFileIsToldOfAndLeftAsItIs)
{
    {
        Widget widget;
        for (const char* const text : {"a", "b", "c"})
            widget.addSpecialDate(Widget::OwnDates, makeDate(text, Rule::onDay(1, 2)));
        ASSERT_TRUE(widget.saveSpecialDates());
    }
    const QString path = QString::fromUtf8(ZebrikUtils::GetCalendarSettingsPath(4).GetString());
    QFile(path).copy(pathOf("whole"));
    damageFile();
    const qint64 damagedSize = QFile(path).size();

    Widget widget;
    Listener listener(widget);
    widget.show();
    EXPECT_FALSE(widget.lastError().isEmpty());
    serve();
    EXPECT_EQ(listener.take(), "failed");
    EXPECT_FALSE(widget.hasSpecialDates());
    EXPECT_EQ(widget.specialDateCount(Widget::OwnDates), 0);
    EXPECT_TRUE(widget.specialDates({2026, 12, 25}).texts.isEmpty());
    EXPECT_FALSE(widget.addSpecialDate(Widget::OwnDates, makeDate("d", Rule::onDay(1, 2))));
    EXPECT_FALSE(widget.saveSpecialDates());
    EXPECT_EQ(QFile(path).size(), damagedSize);
    widget.setSelectedDate({2026, 11, 1}); // otherwise the calendar works
    EXPECT_EQ(widget.selectedDate(), QDate(2026, 11, 1));

    QFile::remove(path);
    QFile::rename(pathOf("whole"), path);
    EXPECT_TRUE(widget.reloadSpecialDates());
    EXPECT_EQ(widget.specialDateCount(Widget::OwnDates), 3);
    damageFile();
    EXPECT_FALSE(widget.reloadSpecialDates());
    EXPECT_EQ(widget.specialDateCount(Widget::OwnDates), 0);
}

TEST_F(SpecialDatesOfWidget, WhatCannotBeWrittenIsAFailure)
{
    Widget widget;
    Listener listener(widget);
    ASSERT_TRUE(QDir().mkpath(QString::fromUtf8(ZebrikUtils::GetCalendarSettingsPath(4).GetString())));
    EXPECT_FALSE(widget.saveWebPage(pathOf("no/such/folder.html")));
    EXPECT_TRUE(widget.saveWebPage(pathOf("month.html")));
    EXPECT_TRUE(widget.printToPdf(pathOf("month.pdf")));
    EXPECT_TRUE(QFile::exists(pathOf("month.pdf")));
    EXPECT_FALSE(widget.printToPdf(pathOf("no/such/folder.pdf")));
    serve();
    EXPECT_EQ(listener.take().count("failed"), 3)
        << "the directory in the file's place, the page, and the paper";
}

}
