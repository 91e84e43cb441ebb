// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ksystemtimezones_p.h"

#include <kcalcompat/clock.h>
#include <kcalcompat/firstpass.h>
#include <kcalcompat/kdatetime.h>

namespace
{
const QTime midnight(0, 0);
constexpr qint64 secondsPerDay = 86400;

/// QDateTime cannot hold some moments in their zone: the first hours after a last clock change
/// forward are invalid (1 May 2016 in Caracas), and of an hour that a change without daylight
/// saving time repeats it knows only the second pass. Such a moment is kept at its offset instead.
QDateTime inZone(const QDateTime &moment, const QTimeZone &zone)
{
    QDateTime there = moment.toTimeZone(zone);
    if (there.isValid() && there == moment)
        return there;
    return moment.toOffsetFromUtc(zone.offsetFromUtc(moment));
}

/// What the clock shows at @p asked when a clock change leaves that time out: as far after the
/// change as it was asked for (RFC 5545, section 3.3.5). Gaps that take in a midnight begin with
/// it, so midnight becomes the first instant of its day. QDateTime leaves such a time invalid, and
/// the occurrence would vanish.
QDateTime existing(const QDateTime &asked)
{
    if (asked.isValid())
        return asked;
    if (!asked.date().isValid() || !asked.time().isValid())
        return {};
    const bool zoned = asked.timeSpec() == Qt::TimeZone;
    const QTimeZone zone = zoned ? asked.timeZone() : QTimeZone();
    const auto there = [&](const QDateTime &moment) {
        return zoned ? inZone(moment, zone) : moment.toLocalTime();
    };
    // A day before and a day after, the offsets are those of either side, wherever on earth.
    const QDateTime wallClock(asked.date(), asked.time(), Qt::UTC);
    const int offsetBefore = there(wallClock.addDays(-1)).offsetFromUtc();
    const int offsetAfter = there(wallClock.addDays(1)).offsetFromUtc();
    QDateTime leftByQtAlone = there(wallClock.addSecs(-offsetAfter));
    if (leftByQtAlone.offsetFromUtc() == offsetAfter)
        return leftByQtAlone;

    return there(wallClock.addSecs(-offsetBefore));
}

/// The moment that a date and a time of day name.
QDateTime named(const QDateTime &asked)
{
    return asked.isValid() ? KCalCompat::firstPass(asked) : existing(asked);
}

QDateTime wallClockIn(const KDateTime::Spec &spec, const QDate &date, const QTime &time)
{
    // QDateTime would take a missing time for midnight.
    if (!time.isValid())
        return {};
    switch (spec.type()) {
    case KDateTime::Invalid:
        break;
    case KDateTime::UTC:
        return QDateTime(date, time, Qt::UTC);
    case KDateTime::OffsetFromUTC:
        return QDateTime(date, time, Qt::OffsetFromUTC, spec.utcOffset());
    case KDateTime::TimeZone:
        return named(QDateTime(date, time, spec.timeZone()));
    case KDateTime::LocalZone: {
        const QTimeZone zone = KCalCompat::systemZone();
        return named(zone.isValid() ? QDateTime(date, time, zone) : QDateTime(date, time));
    }
    case KDateTime::ClockTime:
        return named(QDateTime(date, time));
    }
    return {};
}

QDateTime momentIn(const KDateTime::Spec &spec, const QDateTime &moment)
{
    switch (spec.type()) {
    case KDateTime::Invalid:
        break;
    case KDateTime::UTC:
        return moment.toUTC();
    case KDateTime::OffsetFromUTC:
        return moment.toOffsetFromUtc(spec.utcOffset());
    case KDateTime::TimeZone:
        return inZone(moment, spec.timeZone());
    case KDateTime::LocalZone: {
        const QTimeZone zone = KCalCompat::systemZone();
        return zone.isValid() ? inZone(moment, zone) : moment.toLocalTime();
    }
    case KDateTime::ClockTime:
        return moment.toLocalTime();
    }
    return {};
}

KDateTime::Spec specOf(const QDateTime &dateTime)
{
    switch (dateTime.timeSpec()) {
    case Qt::UTC:
        return KDateTime::Spec::UTC();
    case Qt::OffsetFromUTC:
        return KDateTime::Spec::OffsetFromUTC(dateTime.offsetFromUtc());
    case Qt::TimeZone:
        return KDateTime::Spec(dateTime.timeZone());
    case Qt::LocalTime:
        break;
    }
    return KDateTime::Spec::ClockTime();
}
} // namespace

// The date of a date-only value is kept as UTC, where no day is missing or begins late.
KDateTime::KDateTime(const QDate &date, const Spec &spec)
    : m_dateTime(date, midnight, Qt::UTC), m_spec(spec), m_dateOnly(true)
{
}

KDateTime::KDateTime(const QDate &date, const QTime &time, const Spec &spec)
    : m_dateTime(wallClockIn(spec, date, time)), m_spec(spec)
{
}

KDateTime::KDateTime(const QDateTime &dateTime)
    : m_dateTime(existing(dateTime)), m_spec(m_dateTime.isValid() ? specOf(dateTime) : Spec())
{
}

KDateTime::KDateTime(const QDateTime &dateTime, const Spec &spec)
    : m_dateTime(momentIn(spec, existing(dateTime))), m_spec(spec)
{
}

KDateTime KDateTime::currentLocalDateTime()
{
    return currentDateTime(Spec::LocalZone());
}

KDateTime KDateTime::currentUtcDateTime()
{
    return currentDateTime(Spec::UTC());
}

QDate KDateTime::currentLocalDate()
{
    return currentLocalDateTime().date();
}

KDateTime KDateTime::currentDateTime(const Spec &spec)
{
    return KDateTime(KCalCompat::Clock::now(), spec);
}

bool KDateTime::isValid() const
{
    return m_dateTime.isValid() && m_spec.isValid();
}

void KDateTime::setDateOnly(bool dateOnly)
{
    if (dateOnly == m_dateOnly)
        return;
    *this = dateOnly ? KDateTime(date(), m_spec) : KDateTime(date(), midnight, m_spec);
}

QDate KDateTime::date() const
{
    return isValid() ? m_dateTime.date() : QDate();
}

QTime KDateTime::time() const
{
    return isValid() ? m_dateTime.time() : QTime();
}

void KDateTime::setDate(const QDate &date)
{
    *this = m_dateOnly ? KDateTime(date, m_spec) : KDateTime(date, time(), m_spec);
}

void KDateTime::setTime(const QTime &time)
{
    *this = KDateTime(date(), time, m_spec);
}

void KDateTime::setTimeSpec(const Spec &spec)
{
    *this = m_dateOnly ? KDateTime(date(), spec) : KDateTime(date(), time(), spec);
}

int KDateTime::utcOffset() const
{
    return dateTime().offsetFromUtc();
}

KDateTime KDateTime::toUtc() const
{
    return toTimeSpec(Spec::UTC());
}

KDateTime KDateTime::toLocalZone() const
{
    return toTimeSpec(Spec::LocalZone());
}

KDateTime KDateTime::toClockTime() const
{
    return toTimeSpec(Spec::ClockTime());
}

KDateTime KDateTime::toZone(const QTimeZone &zone) const
{
    return toTimeSpec(Spec(zone));
}

KDateTime KDateTime::toTimeSpec(const Spec &spec) const
{
    if (!isValid() || !spec.isValid())
        return {};
    return m_dateOnly ? KDateTime(date(), spec) : KDateTime(m_dateTime, spec);
}

QDateTime KDateTime::dateTime() const
{
    if (!isValid())
        return {};
    return m_dateOnly ? wallClockIn(m_spec, date(), midnight) : m_dateTime;
}

qint64 KDateTime::toSecsSinceEpoch() const
{
    return isValid() ? dateTime().toSecsSinceEpoch() : 0;
}

KDateTime KDateTime::addDays(qint64 days) const
{
    // The wall clock stays, also in the hour that a clock change repeats.
    if (days == 0)
        return *this;
    KDateTime moved = *this;
    moved.setDate(date().addDays(days));
    return moved;
}

KDateTime KDateTime::addSecs(qint64 seconds) const
{
    if (!isValid())
        return {};
    if (m_dateOnly)
        return addDays(seconds / secondsPerDay);
    return KDateTime(m_dateTime.toUTC().addSecs(seconds), m_spec);
}

qint64 KDateTime::secsTo(const KDateTime &other) const
{
    if (!isValid() || !other.isValid())
        return 0;
    if (m_dateOnly && other.m_dateOnly)
        return daysTo(other) * secondsPerDay;
    return dateTime().secsTo(other.dateTime());
}

qint64 KDateTime::daysTo(const KDateTime &other) const
{
    return date().daysTo(other.toTimeSpec(m_spec).date());
}

bool KDateTime::operator==(const KDateTime &other) const
{
    if (!isValid() || !other.isValid())
        return isValid() == other.isValid();
    return m_dateOnly == other.m_dateOnly && m_dateTime == other.m_dateTime;
}

bool KDateTime::operator<(const KDateTime &other) const
{
    if (!isValid() || !other.isValid())
        return !isValid() && other.isValid();
    if (m_dateOnly == other.m_dateOnly)
        return m_dateTime < other.m_dateTime;
    // Dates are equal whatever their zones, so one day start has to serve for them all: with one
    // for each zone, sorting would meet a < b < c with c equal to a.
    const auto dayStart = [](const QDate &date) {
        return wallClockIn(Spec::ClockTime(), date, midnight);
    };
    return m_dateOnly ? dayStart(date()) <= other.m_dateTime : m_dateTime < dayStart(other.date());
}

bool operator==(const KDateTime &a, const QDateTime &b)
{
    return a.isValid() && b.isValid() ? a.dateTime() == b : a.isValid() == b.isValid();
}

bool operator<(const KDateTime &a, const QDateTime &b)
{
    return a.isValid() && b.isValid() ? a.dateTime() < b : !a.isValid() && b.isValid();
}

bool operator<(const QDateTime &a, const KDateTime &b)
{
    return a.isValid() && b.isValid() ? a < b.dateTime() : !a.isValid() && b.isValid();
}
