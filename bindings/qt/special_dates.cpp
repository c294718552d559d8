// The special dates of the widget: groups, entries, and the data file.
#include "Zeb17CalendarWidget.h"

#include "conversions.h"
#include "date_entries.h"
#include "host.h"

#include <algorithm>

using namespace conversions;

namespace {

CalendarSettings::Group toGroup(Zeb17CalendarWidget::Group group)
{
    return static_cast<CalendarSettings::Group>(group);
}

static_assert(static_cast<int>(Zeb17CalendarWidget::UnitedStates) == CalendarSettings::GroupUS);
static_assert(static_cast<int>(Zeb17CalendarWidget::ToDos) == CalendarSettings::GroupToDo);

bool isOwn(Zeb17CalendarWidget::Group group)
{
    return group == Zeb17CalendarWidget::OwnDates || group == Zeb17CalendarWidget::ToDos;
}

int countOf(const CalendarSettings& settings, Zeb17CalendarWidget::Group group)
{
    return static_cast<int>(settings.GetCount(toGroup(group)));
}

// Null beyond the end of the group.
CalendarDateEntry* entryAt(CalendarSettings& settings, Zeb17CalendarWidget::Group group, int index)
{
    if (index < 0 || index >= countOf(settings, group))
        return nullptr;
    return settings.GetAt(toGroup(group), static_cast<std::size_t>(index));
}

std::vector<CalendarDateEntry*> entriesOf(CalendarSettings& settings, Zeb17CalendarWidget::Group group)
{
    std::vector<CalendarDateEntry*> entries;
    entries.reserve(settings.GetCount(toGroup(group)));
    for (int i = 0; i < countOf(settings, group); ++i)
        entries.push_back(entryAt(settings, group, i));
    return entries;
}

}

bool Zeb17CalendarWidget::hasSpecialDates() const
{
    return m_host->hasSpecialDates();
}

bool Zeb17CalendarWidget::hasUnsavedChanges() const
{
    return m_host->isUnsaved();
}

Zeb17SpecialDay Zeb17CalendarWidget::specialDates(QDate date) const
{
    const DateTime day = toDateTime(date);
    if (!hasSpecialDates() || !day.IsValid())
        return {};
    DWORD color = 0;
    const CString texts =
        m_host->control().settings().GetDateDesc(day.GetDay(), day.GetMonth(), day.GetYear(), color);
    if (texts.IsEmpty())
        return {};
    return {toQString(texts).split(QStringLiteral("\r\n")), toQColor(color)};
}

QString Zeb17CalendarWidget::groupName(Group group)
{
    return toQString(CalendarSettings::GetName(toGroup(group)));
}

QColor Zeb17CalendarWidget::groupColor(Group group) const
{
    if (!Host::isGroup(group) || !hasSpecialDates())
        return {};
    const auto entries = entriesOf(m_host->control().settings(), group);
    if (entries.empty())
        return m_host->groupColor(group);
    const DWORD first = entries.front()->GetColor();
    const auto isFirst = [first](const CalendarDateEntry* entry) { return entry->GetColor() == first; };
    return std::ranges::all_of(entries, isFirst) ? toQColor(first) : QColor();
}

Qt::CheckState Zeb17CalendarWidget::groupShown(Group group) const
{
    if (!Host::isGroup(group) || !hasSpecialDates())
        return Qt::Unchecked;
    const auto entries = entriesOf(m_host->control().settings(), group);
    const auto shown = std::ranges::count_if(entries, &CalendarDateEntry::GetShow);
    if (shown == std::ssize(entries))
        return Qt::Checked;
    return shown == 0 ? Qt::Unchecked : Qt::PartiallyChecked;
}

bool Zeb17CalendarWidget::setGroupColor(Group group, const QColor& color)
{
    if (!m_host->mayChange(group))
        return false;
    if (!color.isValid())
        return m_host->fail(tr("This is no colour."));
    m_host->groupColor(group) = color;
    m_host->control().settings().SetAllColor(toGroup(group), toColorRef(color));
    m_host->changed();
    return true;
}

bool Zeb17CalendarWidget::setGroupShown(Group group, bool shown)
{
    if (!m_host->mayChange(group))
        return false;
    m_host->control().settings().SetAllShow(toGroup(group), shown);
    m_host->changed();
    return true;
}

int Zeb17CalendarWidget::specialDateCount(Group group) const
{
    return Host::isGroup(group) && hasSpecialDates() ? countOf(m_host->control().settings(), group) : 0;
}

Zeb17SpecialDate Zeb17CalendarWidget::specialDate(Group group, int index) const
{
    if (index < 0 || index >= specialDateCount(group))
        return {};
    return date_entries::fromEntry(*entryAt(m_host->control().settings(), group, index));
}

QList<Zeb17SpecialDate> Zeb17CalendarWidget::specialDates(Group group) const
{
    QList<Zeb17SpecialDate> dates;
    for (int i = 0; i < specialDateCount(group); ++i)
        dates.append(specialDate(group, i));
    return dates;
}

bool Zeb17CalendarWidget::addSpecialDate(Group group, const Zeb17SpecialDate& date)
{
    if (!m_host->mayChange(group))
        return false;
    if (!isOwn(group))
        return m_host->fail(tr("Dates can be added to your own ones and to the to-do list only."));
    if (!date_entries::isComplete(date))
        return m_host->fail(tr("A special date needs a text of one line and a rule that falls on a day."));
    Zeb17SpecialDate whole = date;
    if (!whole.color.isValid())
        whole.color = m_host->groupColor(group);
    auto entry = std::make_unique<CalendarDateEntry>();
    date_entries::toEntry(whole, *entry);
    CalendarSettings& settings = m_host->control().settings();
    if (group == OwnDates)
        settings.AddCustomEntry(entry.release());
    else
        settings.AddToDoEntry(entry.release());
    m_host->changed();
    return true;
}

bool Zeb17CalendarWidget::setSpecialDate(Group group, int index, const Zeb17SpecialDate& date)
{
    if (!m_host->mayChange(group))
        return false;
    CalendarDateEntry* const entry = entryAt(m_host->control().settings(), group, index);
    if (!entry)
        return m_host->fail(tr("There is no such special date."));
    const Zeb17SpecialDate before = date_entries::fromEntry(*entry);
    Zeb17SpecialDate whole = date;
    if (!whole.color.isValid())
        whole.color = before.color;
    if (!isOwn(group) && (whole.text != before.text || whole.rule != before.rule))
        return m_host->fail(tr("Of a national date only the colour and whether it is shown can be changed."));
    if (isOwn(group)) {
        if (!date_entries::isComplete(whole))
            return m_host->fail(
                tr("A special date needs a text of one line and a rule that falls on a day."));
        date_entries::toEntry(whole, *entry);
    }
    entry->SetColor(toColorRef(whole.color));
    entry->SetShow(whole.shown);
    m_host->changed();
    return true;
}

Zeb17SpecialDate Zeb17CalendarWidget::takeSpecialDate(Group group, int index)
{
    if (!m_host->mayChange(group))
        return {};
    CalendarSettings& settings = m_host->control().settings();
    CalendarDateEntry* const entry = isOwn(group) ? entryAt(settings, group, index) : nullptr;
    if (!entry) {
        m_host->fail(tr("There is no such date of your own."));
        return {};
    }
    const Zeb17SpecialDate taken = date_entries::fromEntry(*entry);
    if (group == OwnDates)
        settings.DeleteCustomEntry(entry);
    else
        settings.DeleteToDoEntry(entry);
    m_host->changed();
    return taken;
}

bool Zeb17CalendarWidget::reloadSpecialDates()
{
    bool read = false;
    m_host->run([&](Control&) { read = m_host->load(); });
    return read;
}

bool Zeb17CalendarWidget::saveSpecialDates()
{
    return m_host->save();
}
