// Fills the lists from the calendar, and lets the calendar add, change and remove dates.
#include "dates_panel.h"

#include "color_button.h"
#include "date_editor.h"
#include "rule_text.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

using Calendar = Zeb17CalendarWidget;

constexpr Calendar::Group kGroups[] = {Calendar::UnitedStates, Calendar::Canada, Calendar::Netherlands,
                                       Calendar::OwnDates, Calendar::ToDos};
constexpr Calendar::Group kOwnGroups[] = {Calendar::OwnDates, Calendar::ToDos};
constexpr QRgb kNewColor = 0xff2e9b4f;
constexpr int kIndexRole = Qt::UserRole + 1;

Calendar::Group groupOf(const QListWidgetItem& item)
{
    return static_cast<Calendar::Group>(item.data(Qt::UserRole).toInt());
}

// A button that does what the action does, while it can be done.
QPushButton* buttonFor(QAction& action)
{
    auto* const button = new QPushButton(action.text());
    const auto follow = [&action, button] { button->setEnabled(action.isEnabled()); };
    QObject::connect(&action, &QAction::changed, button, follow);
    QObject::connect(button, &QPushButton::clicked, &action, &QAction::trigger);
    follow();
    return button;
}

QLabel* labelFor(QWidget& widget, const QString& text)
{
    auto* const label = new QLabel(text);
    label->setBuddy(&widget);
    widget.setAccessibleName(QString(text).remove(QLatin1Char('&')));
    return label;
}

}

DatesPanel::DatesPanel(Zeb17CalendarWidget& calendar, QWidget* parent) : QWidget(parent), m_calendar(calendar)
{
    for (const Group group : kGroups) {
        auto* const item = new QListWidgetItem(&m_groups);
        item->setData(Qt::UserRole, group);
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setToolTip(tr("Double click or Enter chooses a colour"));
    }
    m_groups.setCurrentRow(0);
    createActions();
    createLayout();
    connect(&m_groups, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) { showGroup(*item); });
    connect(&m_groups, &QListWidget::itemActivated, this, &DatesPanel::chooseColor);
    connect(&m_dates, &QListWidget::itemActivated, this, &DatesPanel::edit);
    connect(&m_dates, &QListWidget::currentRowChanged, this, &DatesPanel::showSelected);
    connect(&calendar, &Calendar::specialDatesChanged, this, &DatesPanel::refill);
    connect(&calendar, &Calendar::unsavedChangesChanged, &m_save, &QAction::setEnabled);
    refill();
    m_groups.setFixedHeight(m_groups.sizeHintForRow(0) * m_groups.count() + 2 * m_groups.frameWidth());
}

void DatesPanel::createActions()
{
    m_add.setShortcut(QKeySequence::New);
    m_delete.setShortcut(QKeySequence::Delete);
    m_delete.setShortcutContext(Qt::WidgetShortcut); // the key is that of the list alone
    m_dates.addAction(&m_delete);
    m_undo.setShortcut(QKeySequence::Undo);
    m_undo.setEnabled(false);
    m_save.setShortcut(QKeySequence::Save);
    m_save.setEnabled(false);
    connect(&m_add, &QAction::triggered, this, &DatesPanel::add);
    connect(&m_edit, &QAction::triggered, this, &DatesPanel::edit);
    connect(&m_delete, &QAction::triggered, this, &DatesPanel::takeSelected);
    connect(&m_undo, &QAction::triggered, this, &DatesPanel::undo);
    connect(&m_color, &QAction::triggered, this, &DatesPanel::chooseColor);
    connect(&m_save, &QAction::triggered, &m_calendar, &Calendar::saveSpecialDates);
}

void DatesPanel::createLayout()
{
    for (QListWidget* const list : {&m_groups, &m_dates})
        list->setIconSize({14, 14});
    m_words.setWordWrap(true);
    m_words.setAlignment(Qt::AlignTop);
    m_words.setMinimumHeight(3 * fontMetrics().lineSpacing());
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(labelFor(m_groups, tr("S&pecial dates")), 0, 0, 1, 3);
    layout->addWidget(&m_groups, 1, 0, 1, 3);
    layout->addWidget(labelFor(m_dates, tr("&My dates and to-dos")), 2, 0, 1, 3);
    layout->addWidget(&m_dates, 3, 0, 1, 3);
    layout->addWidget(&m_words, 4, 0, 1, 3);
    layout->addWidget(buttonFor(m_add), 5, 0);
    layout->addWidget(buttonFor(m_edit), 5, 1);
    layout->addWidget(buttonFor(m_delete), 5, 2);
    layout->addWidget(buttonFor(m_save), 6, 0, 1, 3);
}

void DatesPanel::refill()
{
    setEnabled(m_calendar.hasSpecialDates());
    m_add.setEnabled(isEnabled());
    m_color.setEnabled(isEnabled());
    showGroups();
    const Place before = selected();
    refillDates();
    select(before);
}

void DatesPanel::showGroups()
{
    const QSignalBlocker quiet(&m_groups);
    for (int row = 0; row < m_groups.count(); ++row) {
        QListWidgetItem* const item = m_groups.item(row);
        const Group group = groupOf(*item);
        item->setText(tr("%1 (%2)").arg(Calendar::groupName(group)).arg(m_calendar.specialDateCount(group)));
        item->setIcon(swatch(m_calendar.groupColor(group)));
        item->setCheckState(m_calendar.groupShown(group));
    }
}

void DatesPanel::refillDates()
{
    const QSignalBlocker quiet(&m_dates);
    m_dates.clear();
    for (const Group group : kOwnGroups) {
        const QString format = group == Calendar::ToDos ? tr("To do: %1") : QStringLiteral("%1");
        const QList<Zeb17SpecialDate> dates = m_calendar.specialDates(group);
        for (int i = 0; i < dates.size(); ++i) {
            auto* const item =
                new QListWidgetItem(swatch(dates[i].color), format.arg(dates[i].text), &m_dates);
            item->setData(Qt::UserRole, group);
            item->setData(kIndexRole, i);
            if (!dates[i].shown)
                item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
        }
    }
}

void DatesPanel::showSelected()
{
    const Place place = selected();
    const bool isSelected = place.index >= 0;
    m_edit.setEnabled(isSelected);
    m_delete.setEnabled(isSelected);
    if (isSelected)
        m_words.setText(describeRule(m_calendar.specialDate(place.group, place.index).rule));
    else
        m_words.setText(m_dates.count() == 0 ? tr("Add a date to see it in the calendar.")
                                             : tr("Choose a date to see when it falls."));
}

DatesPanel::Place DatesPanel::selected() const
{
    const QListWidgetItem* const item = m_dates.currentItem();
    return item ? Place{groupOf(*item), item->data(kIndexRole).toInt()} : Place{};
}

void DatesPanel::select(Place place)
{
    const int first = place.group == Calendar::ToDos ? m_calendar.specialDateCount(Calendar::OwnDates) : 0;
    const bool isThere = place.index >= 0 && place.index < m_calendar.specialDateCount(place.group);
    m_dates.setCurrentRow(isThere ? first + place.index : -1);
    showSelected();
}

// A new date begins as the selected day, of every year; without one as today.
void DatesPanel::add()
{
    const QDate day = m_calendar.selectedDate().isValid() ? m_calendar.selectedDate() : Calendar::today();
    const QColor color = m_calendar.groupColor(Calendar::OwnDates);
    Zeb17SpecialDate date;
    date.color = color.isValid() ? color : kNewColor; // its dates may have many
    date.rule = Zeb17DateRule::once(day).in(Zeb17DateRule::EveryYear);
    date.rule.weekday = date.rule.nearWeekday = static_cast<Qt::DayOfWeek>(day.dayOfWeek());
    DateEditor editor(date, Calendar::OwnDates, true, window());
    if (editor.exec() == QDialog::Accepted)
        addTo(editor.group(), editor.date());
}

void DatesPanel::addTo(Group group, const Zeb17SpecialDate& date)
{
    if (m_calendar.addSpecialDate(group, date))
        select({group, m_calendar.specialDateCount(group) - 1});
}

void DatesPanel::edit()
{
    const Place place = selected();
    if (place.index < 0)
        return;
    DateEditor editor(m_calendar.specialDate(place.group, place.index), place.group, false, window());
    if (editor.exec() == QDialog::Accepted)
        m_calendar.setSpecialDate(place.group, place.index, editor.date());
}

void DatesPanel::takeSelected()
{
    const Place place = selected();
    if (place.index < 0)
        return;
    m_deleted.emplaceBack(place.group, m_calendar.takeSpecialDate(place.group, place.index));
    m_undo.setEnabled(true);
}

// The date that was deleted last comes back, at the end of its group.
void DatesPanel::undo()
{
    const auto [group, date] = m_deleted.takeLast();
    m_undo.setEnabled(!m_deleted.isEmpty());
    addTo(group, date);
}

void DatesPanel::chooseColor()
{
    const Group group = groupOf(*m_groups.currentItem());
    const QColor before = m_calendar.groupColor(group);
    const QColor color = QColorDialog::getColor(before, window(), Calendar::groupName(group));
    if (color.isValid() && color != before)
        m_calendar.setGroupColor(group, color);
}

void DatesPanel::showGroup(const QListWidgetItem& item)
{
    m_calendar.setGroupShown(groupOf(item), item.checkState() == Qt::Checked);
}
