// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef KCALCOMPAT_KDATETIME_H
#define KCALCOMPAT_KDATETIME_H

#include <QDateTime>
#include <QMetaType>
#include <QTimeZone>

/// A moment as a calendar writes it: a date with or without a time of day, and the kind of clock
/// that it is read from (the local zone, a named zone, UTC, a fixed offset, or "clock time", which
/// is whatever the wall clock shows where one happens to be).
///
/// A small value over QDateTime, safe to use on any thread. An invalid value stays invalid through
/// every conversion and becomes a null QDateTime.
///
/// A time of day that a clock change leaves out is moved past the change, by as much as it lies
/// inside the gap (03:30 becomes 04:30, RFC 5545, section 3.3.5); midnight becomes the first
/// instant of its day. Of an hour that a change repeats, date and time name the first pass (the
/// same section; firstPass() tells the exception), while a conversion from another clock keeps the
/// pass that it comes from.
class KDateTime
{
public:
    enum SpecType {
        Invalid, ///< no clock at all
        UTC,
        OffsetFromUTC, ///< a fixed number of seconds east of Greenwich
        TimeZone, ///< a zone of the system's zone database
        LocalZone, ///< the zone the system is set to
        ClockTime ///< floating: the same wall clock everywhere
    };

    enum TimeFormat {
        ISODate, ///< ISO 8601, such as "2011-03-01T10:00:00+02:00"
        RFC3339Date ///< RFC 3339: always a date, a time and an offset
    };

    /// The kind of clock of a KDateTime.
    class Spec
    {
    public:
        Spec() = default;
        /// A named zone; an invalid spec when @p zone is invalid.
        explicit Spec(const QTimeZone &zone);
        /// @p utcOffsetSeconds (east of Greenwich, less than a day either way) counts for
        /// OffsetFromUTC alone. The type TimeZone needs a zone and is invalid here.
        explicit Spec(SpecType type, int utcOffsetSeconds = 0);

        // NOLINTBEGIN(readability-identifier-naming): named as the types they give.
        static Spec LocalZone();
        static Spec UTC();
        static Spec ClockTime();
        static Spec OffsetFromUTC(int seconds);
        // NOLINTEND(readability-identifier-naming)

        bool isValid() const { return m_type != Invalid; }
        SpecType type() const { return m_type; }
        bool isUtc() const { return m_type == KDateTime::UTC; }
        bool isClockTime() const { return m_type == KDateTime::ClockTime; }
        bool isLocalZone() const { return m_type == KDateTime::LocalZone; }
        /// Seconds east of UTC; 0 unless the type is OffsetFromUTC.
        int utcOffset() const { return m_utcOffset; }
        /// The zone that converts to and from UTC; for clock time and the local zone the system's.
        /// Invalid for offsets of more than 14 hours, which QTimeZone refuses.
        QTimeZone timeZone() const;

        /// The same kind of clock: the local zone and the named zone of the same place differ.
        bool operator==(const Spec &other) const;
        bool operator!=(const Spec &other) const { return !(*this == other); }

    private:
        SpecType m_type = Invalid;
        int m_utcOffset = 0;
        QTimeZone m_zone;
    };

    KDateTime() = default;
    /// A date without a time of day: it keeps its date in every zone.
    explicit KDateTime(const QDate &date, const Spec &spec = Spec::LocalZone());
    KDateTime(const QDate &date, const QTime &time, const Spec &spec = Spec::LocalZone());
    /// Takes date, time and kind of clock from @p dateTime (Qt::LocalTime becomes clock time).
    explicit KDateTime(const QDateTime &dateTime);
    /// The moment of @p dateTime on the clock of @p spec.
    KDateTime(const QDateTime &dateTime, const Spec &spec);

    /// The present moment, as KCalCompat::Clock tells it.
    static KDateTime currentLocalDateTime();
    static KDateTime currentUtcDateTime();
    static QDate currentLocalDate();
    static KDateTime currentDateTime(const Spec &spec);

    /// Reads @p text; invalid when it is not of that format. RFC3339Date takes what RFC 3339
    /// section 5.6 describes. ISODate takes extended and basic form ("20110301T100000Z"), calendar
    /// and ordinal dates ("2011-060"), minutes and seconds left out, 24:00, fractions of a second
    /// (kept to the millisecond), offsets as +02, +0200 and +02:00. A date alone is date-only;
    /// without a zone the result is clock time, with "Z" UTC, else a fixed offset. Week dates
    /// ("2011-W09-2") and years beyond four digits are refused; a leap second counts as the second
    /// before it.
    static KDateTime fromString(const QString &text, TimeFormat format = ISODate);
    /// Writes in the extended form of @p format, with milliseconds when there are some; empty when
    /// invalid or beyond the year 9999. ISODate writes a date-only value as a date, clock time
    /// without a zone, UTC with "Z" and everything else with its offset (of whole minutes, at the
    /// same moment). RFC3339Date writes a date-only value as the first instant of its day and clock
    /// time with the present place's offset.
    QString toString(TimeFormat format = ISODate) const;

    bool isNull() const { return !isValid(); }
    bool isValid() const;
    bool isDateOnly() const { return m_dateOnly; }
    /// Takes the time of day away, or makes it the first instant of the day.
    void setDateOnly(bool dateOnly);

    QDate date() const;
    /// The time of day; 00:00 when date-only.
    QTime time() const;
    /// Moves to @p date at the same time of day; a value without valid time becomes invalid.
    void setDate(const QDate &date);
    /// Moves to @p time of the same date; the value is not date-only any more.
    void setTime(const QTime &time);

    Spec timeSpec() const { return m_spec; }
    /// Keeps date and time of day and reads them from another clock: another moment.
    void setTimeSpec(const Spec &spec);
    QTimeZone timeZone() const { return m_spec.timeZone(); }
    bool isUtc() const { return m_spec.isUtc(); }
    bool isClockTime() const { return m_spec.isClockTime(); }
    bool isLocalZone() const { return m_spec.isLocalZone(); }
    /// Seconds east of UTC at this moment.
    int utcOffset() const;

    /// The same moment on another clock; date-only values keep their date. Invalid when this value
    /// or the target is invalid.
    KDateTime toUtc() const;
    KDateTime toLocalZone() const;
    KDateTime toClockTime() const;
    KDateTime toZone(const QTimeZone &zone) const;
    KDateTime toTimeSpec(const Spec &spec) const;
    /// The same moment; null when invalid. Date-only gives the first instant of the day there.
    /// Clock time comes as Qt::LocalTime. The local zone comes as the system's zone, or as
    /// Qt::LocalTime when QTimeZone cannot read the system's setting.
    QDateTime dateTime() const;
    /// Seconds since 1970-01-01T00:00:00Z; 0 when invalid.
    qint64 toSecsSinceEpoch() const;

    /// The same time of day @p days later.
    KDateTime addDays(qint64 days) const;
    /// The moment @p seconds later; date-only values move by the whole days in @p seconds.
    KDateTime addSecs(qint64 seconds) const;
    /// Seconds from this moment to @p other; 0 when either is invalid.
    qint64 secsTo(const KDateTime &other) const;
    /// Days from this date to the date of @p other on this clock; 0 when either is invalid.
    qint64 daysTo(const KDateTime &other) const;

    /// Equal when both name the same moment: a date-only value equals another with that date,
    /// never one with a time of day. Two invalid values are equal.
    bool operator==(const KDateTime &other) const;
    bool operator!=(const KDateTime &other) const { return !(*this == other); }
    /// Earlier; fit for sorting. Invalid values come first; a date-only value comes just before
    /// the first instant of its day at the local clock.
    bool operator<(const KDateTime &other) const;
    bool operator<=(const KDateTime &other) const { return !(other < *this); }
    bool operator>(const KDateTime &other) const { return other < *this; }
    bool operator>=(const KDateTime &other) const { return !(*this < other); }

    operator QDateTime() const { return dateTime(); } // NOLINT(google-explicit-constructor)

private:
    QDateTime m_dateTime;
    Spec m_spec;
    bool m_dateOnly = false;
};

/// A KDateTime beside a QDateTime: both by their moment, a date-only value by the first instant of
/// its day. Written out for both orders, because the implicit conversion alone would leave the
/// compiler two ways to compare.
bool operator==(const KDateTime &a, const QDateTime &b);
bool operator<(const KDateTime &a, const QDateTime &b);
bool operator<(const QDateTime &a, const KDateTime &b);

inline bool operator==(const QDateTime &a, const KDateTime &b)
{
    return b == a;
}
inline bool operator!=(const KDateTime &a, const QDateTime &b)
{
    return !(a == b);
}
inline bool operator!=(const QDateTime &a, const KDateTime &b)
{
    return !(b == a);
}
inline bool operator<=(const KDateTime &a, const QDateTime &b)
{
    return !(b < a);
}
inline bool operator<=(const QDateTime &a, const KDateTime &b)
{
    return !(b < a);
}
inline bool operator>(const KDateTime &a, const QDateTime &b)
{
    return b < a;
}
inline bool operator>(const QDateTime &a, const KDateTime &b)
{
    return b < a;
}
inline bool operator>=(const KDateTime &a, const QDateTime &b)
{
    return !(a < b);
}
inline bool operator>=(const QDateTime &a, const KDateTime &b)
{
    return !(a < b);
}

Q_DECLARE_METATYPE(KDateTime)
Q_DECLARE_TYPEINFO(KDateTime, Q_MOVABLE_TYPE);

#endif
