// The panel beside the calendar: the groups, the user's own dates, and what can be done with them.
#pragma once

#include <Zeb17CalendarWidget.h>

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QWidget>

class DatesPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DatesPanel(Zeb17CalendarWidget& calendar, QWidget* parent = nullptr);

    // What the user can do here; also for a menu.
    QList<QAction*> editActions() { return {&m_add, &m_edit, &m_delete, &m_undo, &m_color}; }
    QAction& saveAction() { return m_save; }

private:
    using Group = Zeb17CalendarWidget::Group;
    // Where a date of the user's stands.
    struct Place
    {
        Group group = Zeb17CalendarWidget::OwnDates;
        int index = -1;
    };

    void createActions();
    void createLayout();
    void refill();
    void showGroups();
    void refillDates();
    void showSelected();

    Place selected() const;
    void select(Place place);
    void add();
    void addTo(Group group, const Zeb17SpecialDate& date);
    void edit();
    void takeSelected();
    void undo();
    void chooseColor();
    void showGroup(const QListWidgetItem& item);

    Zeb17CalendarWidget& m_calendar;
    QAction m_add{tr("&Add...")};
    QAction m_edit{tr("E&dit...")};
    QAction m_delete{tr("De&lete")};
    QAction m_undo{tr("&Undo Delete")};
    QAction m_color{tr("&Group Colour...")};
    QAction m_save{tr("&Save")};
    QListWidget m_groups;
    QListWidget m_dates;
    QLabel m_words;
    QList<std::pair<Group, Zeb17SpecialDate>> m_deleted;
};
