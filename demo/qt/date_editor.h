// The dialog in which a special date is made or changed.
#pragma once

#include "color_button.h"

#include <Zeb17CalendarWidget.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

class DateEditor : public QDialog
{
    Q_OBJECT

public:
    // Starts from the date. The user may choose the group only of a date that is new.
    DateEditor(const Zeb17SpecialDate& date, Zeb17CalendarWidget::Group group, bool isNew,
               QWidget* parent = nullptr);

    // What the user has entered; complete once the dialog was accepted.
    Zeb17SpecialDate date() const;
    Zeb17CalendarWidget::Group group() const;

private:
    void fillChoices();
    void createRows();
    void show(const Zeb17SpecialDate& date);
    void connectAll();
    void update();
    Zeb17DateRule rule() const;

    QFormLayout m_rows;
    QLineEdit m_text;
    QComboBox m_group;
    QComboBox m_kind;
    QComboBox m_nearWeekday;
    QComboBox m_side;
    QComboBox m_occurrence;
    QComboBox m_weekday;
    QComboBox m_month;
    QComboBox m_day;
    QCheckBox m_workday{tr("Or the &nearest working day")};
    QComboBox m_years;
    QSpinBox m_year;
    ColorButton m_color;
    QCheckBox m_shown{tr("&Shown")};
    QLabel m_words;
    QDialogButtonBox m_buttons{QDialogButtonBox::Ok | QDialogButtonBox::Cancel};
};
