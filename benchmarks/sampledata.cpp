// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampledata.h"

#include <KCalendarCore/Calendar>
#include <KCalendarCore/Event>
#include <KCalendarCore/Journal>
#include <KCalendarCore/Recurrence>
#include <KCalendarCore/Todo>

#include <QBitArray>
#include <QTimeZone>

#include <array>
#include <random>

namespace
{
using namespace KCalCore;

constexpr int Days = 3652;

const QStringList &words()
{
    static const QStringList list =
        QStringLiteral("meeting review dentist lunch planning school garden train flight rehearsal "
                       "budget yoga Mökki Äiti délai Straße call workshop report visit market "
                       "choir practice kitchen repair invoice parents evening project release")
            .split(QLatin1Char(' '));
    return list;
}

class Maker
{
public:
    explicit Maker(const SampleData::Options &options) : m_options(options), m_random(options.seed)
    {
    }

    Incidence::List all()
    {
        Incidence::List list;
        while (list.size() < m_options.count) {
            addNext(&list);
        }
        return list;
    }

    Event::Ptr recurringEvent()
    {
        auto event = timedEvent();
        const QDateTime start = event->dtStart();
        Recurrence *recurrence = event->recurrence();
        const int kind = below(10);
        if (kind < 5) {
            QBitArray days(7);
            days.setBit(start.date().dayOfWeek() - 1);
            if (percent(40)) {
                days.setBit(below(5));
            }
            recurrence->setWeekly(1 + below(2), days);
        } else if (kind < 7) {
            recurrence->setMonthly(1);
            recurrence->addMonthlyDate(qMin(start.date().day(), 28));
        } else if (kind < 8) {
            recurrence->setYearly(1);
        } else {
            recurrence->setDaily(1 + below(3));
        }
        limit(recurrence, start);
        return event;
    }

private:
    int below(int limit) { return int(m_random() % quint32(limit)); }
    bool percent(int share) { return below(100) < share; }

    void addNext(Incidence::List *list)
    {
        const int kind = below(100);
        if (kind < 70) {
            list->append(timedEvent());
        } else if (kind < 78) {
            const auto event = recurringEvent();
            list->append(event);
            if (percent(25) && list->size() < m_options.count) {
                addException(event, list);
            }
        } else if (kind < 88) {
            list->append(allDayEvent());
        } else if (kind < 98) {
            list->append(todo());
        } else {
            list->append(journal());
        }
    }

    QDate date()
    {
        QDate day = SampleData::middle().addDays(below(Days) - Days / 2);
        if (day >= m_options.clearFrom && day <= m_options.clearTo) {
            day = day.addDays(m_options.clearFrom.daysTo(m_options.clearTo) + 1);
        }
        return day;
    }

    QDateTime moment()
    {
        static const std::array<QTimeZone, 4> zones = {
            QTimeZone("Europe/Helsinki"), QTimeZone("Europe/Berlin"), QTimeZone("America/New_York"),
            QTimeZone("Asia/Kolkata")};
        const QDate day = date();
        const QTime time(6 + below(15), 15 * below(4));
        const int kind = below(100);
        if (kind < 8) {
            return {day, time, Qt::UTC};
        }
        if (kind < 14) {
            return {day, time, Qt::LocalTime};
        }
        return {day, time, zones.at(kind < 70 ? 0 : std::size_t(kind) % zones.size())};
    }

    QString phrase(int count)
    {
        QStringList chosen;
        for (int i = 0; i < count; ++i) {
            chosen += words().at(below(words().size()));
        }
        return chosen.join(QLatin1Char(' '));
    }

    void describe(const Incidence::Ptr &incidence)
    {
        incidence->setUid(QStringLiteral("%1-%2@sample.example")
                              .arg(m_options.seed)
                              .arg(++m_count, 6, 10, QLatin1Char('0')));
        const QDateTime written(SampleData::middle().addDays(-Days / 2), QTime(12, 0), Qt::UTC);
        incidence->setCreated(written.addSecs(m_count));
        incidence->setSummary(phrase(2 + below(5)), false);
        if (percent(50)) {
            incidence->setLocation(phrase(2), false);
        }
        if (percent(30)) {
            incidence->setDescription(phrase(20 + below(200)), false);
        }
        if (percent(20)) {
            incidence->setCategories(QStringList{phrase(1), phrase(1)});
        }
        if (percent(10)) {
            incidence->setCustomProperty("SAMPLE", "SOURCE", phrase(1));
        }
        incidence->setLastModified(written.addDays(below(Days)));
    }

    void addAlarm(const Incidence::Ptr &incidence)
    {
        const auto alarm = incidence->newAlarm();
        alarm->setDisplayAlarm(incidence->summary());
        alarm->setStartOffset(Duration(-60 * 5 * (1 + below(12))));
        alarm->setEnabled(true);
    }

    void invite(const Incidence::Ptr &incidence)
    {
        const auto person = [this](int number) {
            return QStringLiteral("person%1@sample.example").arg(number);
        };
        const int first = below(1000);
        incidence->setOrganizer(Person(phrase(1), person(first)));
        const int count = 2 + below(5);
        for (int i = 0; i < count; ++i) {
            incidence->addAttendee(Attendee(phrase(2), person(first + i), true,
                                            Attendee::PartStat(below(4)),
                                            Attendee::ReqParticipant));
        }
    }

    Event::Ptr timedEvent()
    {
        const Event::Ptr event(new Event);
        const QDateTime start = moment();
        event->setDtStart(start);
        event->setDtEnd(start.addSecs(percent(2) ? 3 * 86400 : 900 * (1 + below(12))));
        describe(event);
        if (percent(40)) {
            addAlarm(event);
        }
        if (percent(25)) {
            invite(event);
        }
        return event;
    }

    Event::Ptr allDayEvent()
    {
        const Event::Ptr event(new Event);
        const QDateTime start(date(), QTime(0, 0), Qt::LocalTime);
        event->setAllDay(true);
        event->setDtStart(start);
        event->setDtEnd(start.addDays(percent(70) ? 1 : 2 + below(12)));
        describe(event);
        return event;
    }

    Todo::Ptr todo()
    {
        const Todo::Ptr todo(new Todo);
        const QDateTime due = moment();
        if (percent(30)) {
            todo->setDtStart(due.addDays(-1));
        }
        todo->setDtDue(due);
        todo->setPriority(below(10));
        describe(todo);
        if (percent(60)) {
            todo->setCompleted(due.toUTC());
        } else if (percent(50) && todo->hasStartDate()) {
            addAlarm(todo);
        }
        return todo;
    }

    Journal::Ptr journal()
    {
        const Journal::Ptr journal(new Journal);
        journal->setDtStart(moment());
        describe(journal);
        return journal;
    }

    /// Most series end, as courses and projects do; excluded dates are days on which they occur.
    void limit(Recurrence *recurrence, const QDateTime &start)
    {
        const int kind = below(10);
        if (kind < 4) {
            recurrence->setDuration(5 + below(40));
        } else if (kind < 7) {
            recurrence->setEndDateTime(start.addDays(60 + below(500)));
        } else {
            recurrence->setDuration(-1);
        }
        const QDateTime second = recurrence->getNextDateTime(start);
        if (percent(30) && second.isValid()) {
            recurrence->addExDateTime(second);
        }
    }

    void addException(const Event::Ptr &event, Incidence::List *list)
    {
        const QDateTime occurrence = event->recurrence()->getNextDateTime(event->dtStart());
        if (!occurrence.isValid()) {
            return;
        }
        const auto exception = Calendar::createException(event, occurrence);
        exception->setDtStart(occurrence.addSecs(3600));
        exception.staticCast<Event>()->setDtEnd(event->endDateForStart(occurrence).addSecs(3600));
        list->append(exception);
    }

    SampleData::Options m_options;
    std::mt19937 m_random;
    int m_count = 0;
};
} // namespace

QDate SampleData::middle()
{
    return {2026, 6, 15};
}

Incidence::List SampleData::incidences(const Options &options)
{
    return Maker(options).all();
}

Incidence::List SampleData::series(int count)
{
    Maker maker({count, 7});
    Incidence::List list;
    for (int i = 0; i < count; ++i) {
        list.append(maker.recurringEvent());
    }
    return list;
}
