// Shows the parts of a rule that its kind has, and makes a date of what they say.
#include "date_editor.h"

#include "rule_text.h"

#include <rule_words.h>

#include <QHBoxLayout>

#include <algorithm>

using Rule = Zeb17DateRule;

namespace {

constexpr int kMaxText = 100;
constexpr int kMaxYear = 9999;

template <std::size_t count>
void addChoices(QComboBox& box, const DeskChoice (&choices)[count])
{
    for (const DeskChoice& choice : choices)
        box.addItem(QString::fromUtf8(choice.name), choice.value);
}

QWidget* pair(QWidget& first, QWidget& second)
{
    auto* const both = new QWidget;
    auto* const layout = new QHBoxLayout(both);
    layout->setContentsMargins({});
    layout->addWidget(&first, 1);
    layout->addWidget(&second, 1);
    both->setFocusProxy(&first);
    return both;
}

// The lists of weekdays begin with Sunday.
void addWeekdays(QComboBox& box)
{
    for (int i = 0; i < 7; ++i)
        box.addItem(weekdayNames()[i], i == 0 ? Qt::Sunday : i);
}

// What the chosen line of a list stands for.
template <typename T>
T chosen(const QComboBox& box)
{
    return static_cast<T>(box.currentData().toInt());
}

void choose(QComboBox& box, int value)
{
    box.setCurrentIndex(std::max(box.findData(value), 0));
}

}

DateEditor::DateEditor(const Zeb17SpecialDate& date, Zeb17CalendarWidget::Group group, bool isNew,
                       QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(isNew ? tr("New Date") : tr("Edit Date"));
    fillChoices();
    createRows();
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(&m_rows);
    layout->addWidget(&m_words, 1, Qt::AlignTop);
    layout->addWidget(&m_buttons);
    choose(m_group, group);
    m_group.setEnabled(isNew);
    show(date);
    connectAll();
    update();
}

void DateEditor::createRows()
{
    m_rows.addRow(tr("&Description"), &m_text);
    m_rows.addRow(tr("&List"), &m_group);
    m_rows.addRow(tr("&Falls on"), &m_kind);
    m_rows.addRow(tr("&Weekday"), pair(m_nearWeekday, m_side));
    m_rows.addRow(tr("W&hich"), pair(m_occurrence, m_weekday));
    m_rows.addRow(tr("&Month"), pair(m_month, m_day));
    m_rows.addRow(QString(), &m_workday);
    m_rows.addRow(tr("&Years"), pair(m_years, m_year));
    m_rows.addRow(tr("&Colour"), pair(m_color, m_shown));
}

void DateEditor::fillChoices()
{
    m_text.setMaxLength(kMaxText);
    for (const auto group : {Zeb17CalendarWidget::OwnDates, Zeb17CalendarWidget::ToDos})
        m_group.addItem(Zeb17CalendarWidget::groupName(group), group);
    addChoices(m_kind, deskRuleKinds);
    addWeekdays(m_nearWeekday);
    m_side.addItems({tr("before"), tr("after")});
    addChoices(m_occurrence, deskOccurrences);
    addWeekdays(m_weekday);
    m_month.addItems(monthNames());
    for (int day = 1; day <= 31; ++day)
        m_day.addItem(QString::number(day));
    addChoices(m_years, deskYears);
    m_year.setRange(1, kMaxYear);
    m_words.setMinimumSize(400, 2 * fontMetrics().lineSpacing());
    m_words.setWordWrap(true);
}

void DateEditor::show(const Zeb17SpecialDate& date)
{
    const Rule& rule = date.rule;
    m_text.setText(date.text);
    choose(m_kind, rule.kind);
    choose(m_nearWeekday, rule.nearWeekday);
    m_side.setCurrentIndex(rule.side);
    choose(m_occurrence, rule.occurrence);
    choose(m_weekday, rule.weekday);
    m_month.setCurrentIndex(rule.month - 1);
    m_day.setCurrentIndex(rule.day - 1);
    m_workday.setChecked(rule.movesToWorkday);
    m_years.setCurrentIndex(rule.years);
    m_year.setValue(rule.year > 0 ? rule.year : Zeb17CalendarWidget::today().year());
    m_color.setColor(date.color);
    m_shown.setChecked(date.shown);
}

void DateEditor::connectAll()
{
    connect(&m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(&m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&m_text, &QLineEdit::textChanged, this, &DateEditor::update);
    for (QComboBox* const box :
         {&m_kind, &m_nearWeekday, &m_side, &m_occurrence, &m_weekday, &m_month, &m_day, &m_years})
        connect(box, &QComboBox::currentIndexChanged, this, &DateEditor::update);
    connect(&m_workday, &QCheckBox::toggled, this, &DateEditor::update);
    connect(&m_year, &QSpinBox::valueChanged, this, &DateEditor::update);
}

// Shows what the chosen kind of rule needs, and says what the whole means.
void DateEditor::update()
{
    const Rule rule = this->rule();
    const bool byWeekday = rule.kind == Rule::OnWeekday || rule.kind == Rule::NearWeekday;
    m_rows.setRowVisible(m_nearWeekday.parentWidget(),
                         rule.kind == Rule::NearDay || rule.kind == Rule::NearWeekday);
    m_rows.setRowVisible(m_occurrence.parentWidget(), byWeekday);
    m_day.setVisible(!byWeekday);
    m_rows.setRowVisible(&m_workday, rule.kind == Rule::OnDay);
    m_year.setVisible(rule.years >= Rule::FromYear);
    m_words.setText(describeRule(rule));
    m_buttons.button(QDialogButtonBox::Ok)->setEnabled(rule.isValid() && !m_text.text().trimmed().isEmpty());
}

Rule DateEditor::rule() const
{
    Rule rule;
    rule.kind = chosen<Rule::Kind>(m_kind);
    rule.day = m_day.currentIndex() + 1;
    rule.month = m_month.currentIndex() + 1;
    rule.occurrence = chosen<Rule::Occurrence>(m_occurrence);
    rule.weekday = chosen<Qt::DayOfWeek>(m_weekday);
    rule.nearWeekday = chosen<Qt::DayOfWeek>(m_nearWeekday);
    rule.side = static_cast<Rule::Side>(m_side.currentIndex());
    rule.movesToWorkday = rule.kind == Rule::OnDay && m_workday.isChecked();
    rule.years = static_cast<Rule::Years>(m_years.currentIndex());
    rule.year = rule.years >= Rule::FromYear ? m_year.value() : 0;
    return rule;
}

Zeb17SpecialDate DateEditor::date() const
{
    return {m_text.text().trimmed(), m_color.color(), m_shown.isChecked(), rule()};
}

Zeb17CalendarWidget::Group DateEditor::group() const
{
    return chosen<Zeb17CalendarWidget::Group>(m_group);
}
