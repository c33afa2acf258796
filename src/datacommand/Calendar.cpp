#include "datacommand/Calendar.h"

#include <algorithm>
#include <memory>
#include <vector>

#include <libical/ical.h>
#include <QFileInfo>
#include <QSaveFile>
#include <QUuid>

#include "datacommand/DataCommand.h"
#include "datacommand/KeepersData.h"
#include "datacommand/TerminalDoors.h"
#include "datacommand/Upcoming.h"
#include "logic/reminders/ReminderRun.h"
#include "platform/core/RuntimeFailure.h"

namespace {

/// A reminder and its days in the range, in order.
struct CalendarEntry
{
    RecurrenceRule rule;
    std::vector<QDate> dates;
};

/// The namespace for the identities of our events, so that no other program has the same ones.
constexpr QUuid eventNames(0x6f6d6b61, 0x1998, 0x4d42, 0x8a, 0x71, 0x72, 0x65, 0x6d, 0x69, 0x6e, 0x64);

icaltimetype icalDay(const QDate &date)
{
    icaltimetype time = icaltime_null_time(); // the library's own date has an hour of -1, with which it counts wrong
    time.is_date = 1;
    time.year = date.year();
    time.month = date.month();
    time.day = date.day();
    return time;
}

/// 0 is Sunday, as in WeekDays.
int weekdayOf(const QDate &date) { return date.dayOfWeek() % 7; }

QString codeOf(int weekday) { return WeekdayNames()[weekday].left(2).toUpper(); }

/// The days of a rule for every n weeks, if its weeks begin on that weekday.
std::vector<QDate> weeklyDates(const WeekDays &chosen, int interval, int weekStart, const QDate &first,
                               const QDate &last)
{
    const qint64 firstWeek = first.toJulianDay() - (weekdayOf(first) - weekStart + 7) % 7;
    std::vector<QDate> dates;
    for (QDate day = first; day <= last; day = day.addDays(1))
        if (chosen[std::size_t(weekdayOf(day))] && (day.toJulianDay() - firstWeek) / 7 % interval == 0)
            dates.push_back(day);
    return dates;
}

/// The weeks of a reminder begin on the weekday of its first day. Weeks that begin on Sunday are tried first, because
/// some calendars know no others.
QString weeklyRecurrence(const RecurrenceRule &rule, const std::vector<QDate> &dates)
{
    const WeekDays chosen = ReadWeeklyDetail(rule.RecurrenceDetail);
    QStringList days;
    for (int i = 0; i < 7; ++i)
        if (chosen[std::size_t(i)])
            days << codeOf(i);
    for (int weekStart = 0; weekStart < 7; ++weekStart)
        if (weeklyDates(chosen, rule.RecurrenceInterval, weekStart, dates.front(), dates.back()) == dates)
            return QStringLiteral("FREQ=WEEKLY;INTERVAL=%1;WKST=%2;BYDAY=%3")
                .arg(rule.RecurrenceInterval)
                .arg(codeOf(weekStart), days.join(u','));
    return {};
}

/// The part of a monthly or yearly recurrence that names the day of the month.
QString dayOfMonth(const RecurrenceRule &rule, const QDate &first)
{
    if (rule.RecurrenceSubtype == 0)
        return QStringLiteral(";BYMONTHDAY=%1").arg(first.day());
    const MonthWeekday place = ReadMonthWeekday(rule.RecurrenceDetail);
    return QStringLiteral(";BYDAY=%1%2")
        .arg(place.ordinal < lastOrdinal ? place.ordinal + 1 : -1)
        .arg(codeOf(weekdayOf(first)));
}

/// A recurrence that should have these dates; empty if there is none. The day and the month are those of the first
/// date, because the schedule shows a yearly reminder in the month before the stored one.
QString likelyRecurrence(const RecurrenceRule &rule, const std::vector<QDate> &dates)
{
    const QDate &first = dates.front();
    switch (Pattern(rule.RecurrenceType)) {
    case Pattern::Daily:
        return rule.RecurrenceSubtype == 1 ? QStringLiteral("FREQ=WEEKLY;WKST=SU;BYDAY=MO,TU,WE,TH,FR")
                                           : QStringLiteral("FREQ=DAILY;INTERVAL=%1").arg(rule.RecurrenceInterval);
    case Pattern::Weekly: return weeklyRecurrence(rule, dates);
    case Pattern::Monthly:
        return QStringLiteral("FREQ=MONTHLY;INTERVAL=%1").arg(rule.RecurrenceInterval) + dayOfMonth(rule, first);
    case Pattern::Yearly: return QStringLiteral("FREQ=YEARLY;BYMONTH=%1").arg(first.month()) + dayOfMonth(rule, first);
    case Pattern::Once: break;
    }
    return {};
}

/// Whether the library expands a recurrence to exactly these dates.
bool gives(const icalrecurrencetype &recurrence, const std::vector<QDate> &dates)
{
    const std::unique_ptr<icalrecur_iterator, decltype(&icalrecur_iterator_free)> iterator(
        icalrecur_iterator_new(recurrence, icalDay(dates.front())), icalrecur_iterator_free);
    if (!iterator)
        return false;
    for (const QDate &date : dates) {
        const icaltimetype next = icalrecur_iterator_next(iterator.get());
        if (icaltime_is_null_time(next) || QDate(next.year, next.month, next.day) != date)
            return false;
    }
    return icaltime_is_null_time(icalrecur_iterator_next(iterator.get()));
}

void addDates(icalcomponent *event, const std::vector<QDate> &dates)
{
    for (const QDate &date : dates) {
        icalproperty *property = icalproperty_new_rdate({icalDay(date), icalperiodtype_null_period()});
        icalproperty_add_parameter(property, icalparameter_new_value(ICAL_VALUE_DATE));
        icalcomponent_add_property(event, property);
    }
}

/// Adds all dates except the first, which is the start of the event.
void addRecurrence(icalcomponent *event, const CalendarEntry &entry)
{
    if (entry.dates.size() == 1)
        return;
    if (const QString likely = likelyRecurrence(entry.rule, entry.dates); !likely.isEmpty()) {
        const QString text = likely + u";UNTIL=" + entry.dates.back().toString(QStringLiteral("yyyyMMdd"));
        const icalrecurrencetype recurrence = icalrecurrencetype_from_string(text.toLatin1().constData());
        if (gives(recurrence, entry.dates)) {
            icalcomponent_add_property(event, icalproperty_new_rrule(recurrence));
            return;
        }
    }
    addDates(event, {entry.dates.begin() + 1, entry.dates.end()});
}

icalcomponent *makeEvent(const CalendarEntry &entry, const QString &name, const icaltimetype &stamp)
{
    const auto utf8 = [](const QString &text) { return OnOneLine(text).toUtf8(); };
    const QString uid = QUuid::createUuidV5(eventNames, name).toString(QUuid::WithoutBraces) + u"@ostrelmark";
    icalcomponent *event = icalcomponent_new(ICAL_VEVENT_COMPONENT);
    icalcomponent_add_property(event, icalproperty_new_uid(uid.toLatin1().constData()));
    icalcomponent_add_property(event, icalproperty_new_dtstamp(stamp));
    icalcomponent_add_property(event, icalproperty_new_dtstart(icalDay(entry.dates.front())));
    icalcomponent_add_property(event, icalproperty_new_summary(utf8(entry.rule.TaskDescription).constData()));
    if (!entry.rule.EnglishDescription.isEmpty())
        icalcomponent_add_property(event,
                                   icalproperty_new_description(utf8(entry.rule.EnglishDescription).constData()));
    icalcomponent_add_property(event, icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT)); // the keeper is not busy
    addRecurrence(event, entry);
    return event;
}

icaltimetype icalMoment(const QDateTime &moment)
{
    icaltimetype time = icalDay(moment.toUTC().date());
    const QTime clock = moment.toUTC().time();
    time.hour = clock.hour();
    time.minute = clock.minute();
    time.second = clock.second();
    time.is_date = 0;
    time.zone = icaltimezone_get_utc_timezone();
    return time;
}

/// Protects another file if the keeper mistypes the name.
void requireNoOtherFile(const QString &fileName)
{
    QFile former(fileName);
    if (!former.exists())
        return;
    if (!former.open(QIODevice::ReadOnly) || !former.read(64).trimmed().startsWith("BEGIN:VCALENDAR"))
        throw RuntimeFailure(
            Failure::PermissionDenied,
            QStringLiteral("%1 already exists and is not a calendar. It was left as it is.").arg(fileName));
}

void writeFile(const QString &fileName, const QByteArray &text)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        throw RuntimeFailure(
            QFileInfo(QFileInfo(fileName).absolutePath()).isDir() ? Failure::DeviceError : Failure::PathNotFound,
            QStringLiteral("The calendar %1 could not be written (%2).").arg(fileName, file.errorString()));
}

/// The text of the file. Entries without dates are left out.
QByteArray makeCalendar(const std::vector<CalendarEntry> &entries, const QDateTime &now)
{
    const std::unique_ptr<icalcomponent, decltype(&icalcomponent_free)> calendar(
        icalcomponent_new(ICAL_VCALENDAR_COMPONENT), icalcomponent_free);
    icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
    icalcomponent_add_property(calendar.get(), icalproperty_new_prodid("-//Ostrelmark//Reminders//EN"));
    int number = 0;
    for (const CalendarEntry &entry : entries) {
        ++number;
        if (entry.dates.empty())
            continue;
        const QString &task = entry.rule.TaskDescription; // unique, but it may be empty in several reminders
        icalcomponent_add_component(calendar.get(),
                                    makeEvent(entry, task.isEmpty() ? QString::number(number) : task, icalMoment(now)));
    }
    const std::unique_ptr<char, decltype(&icalmemory_free_buffer)> text(
        icalcomponent_as_ical_string_r(calendar.get()), [](void *buffer) { icalmemory_free_buffer(buffer); });
    return QByteArray(text.get());
}

} // namespace

int WriteCalendar(KeepersData &data, const QString &fileName, const QDate &from, const QDate &to)
{
    DateRange range = TwoYearsFrom(from.isValid() ? from : Now().date());
    if (to.isValid())
        range.to = to;
    if (range.to < range.from) {
        Complain(QStringLiteral("the last day is before the first. Nothing was written."));
        return DataWrongUse;
    }
    requireNoOtherFile(fileName);
    Globals &globals = data.open();
    std::vector<CalendarEntry> entries;
    const std::vector<RecurrenceRule> rules = LoadReminders(globals);
    for (const RecurrenceRule &rule : rules)
        entries.push_back({rule, {}});
    const UndatedReminders undated = RunReminders(
        globals, rules,
        {scheduleRun, range, [&](const QDate &date, int rule) { entries[std::size_t(rule)].dates.push_back(date); },
         [](const QString &, int) {}});
    for (CalendarEntry &entry : entries)
        std::ranges::sort(entry.dates);
    writeFile(fileName, makeCalendar(entries, Now()));
    const auto events = std::ranges::count_if(entries, [](const CalendarEntry &entry) { return !entry.dates.empty(); });
    Say(Counted(events, "reminder was", "reminders were") + u" written to " + fileName + u'.');
    return TellUndated(undated);
}
