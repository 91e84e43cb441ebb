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
/// A small value over QDateTime; safe to copy between threads. An invalid value stays invalid
/// through every conversion and turns into a null QDateTime.
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
        ISODate, ///< ISO 8601: "2011-03-01T10:00:00+02:00", basic form and ordinal dates read too
        RFC3339Date ///< RFC 3339: always a time and an offset
    };

    /// The kind of clock of a KDateTime.
    class Spec
    {
    public:
        Spec() = default;
        explicit Spec(const QTimeZone &zone);
        explicit Spec(SpecType type, int utcOffsetSeconds = 0);

        static Spec LocalZone();
        static Spec UTC();
        static Spec ClockTime();
        static Spec OffsetFromUTC(int seconds);

        bool isValid() const { return m_type != Invalid; }
        SpecType type() const { return m_type; }
        bool isUtc() const { return m_type == KDateTime::UTC; }
        bool isClockTime() const { return m_type == KDateTime::ClockTime; }
        bool isLocalZone() const { return m_type == KDateTime::LocalZone; }
        /// Seconds east of UTC; 0 unless the type is OffsetFromUTC.
        int utcOffset() const { return m_utcOffset; }
        /// The zone that converts to and from UTC; for clock time and the local zone the system's.
        QTimeZone timeZone() const;

        bool operator==(const Spec &other) const;
        bool operator!=(const Spec &other) const { return !(*this == other); }

    private:
        SpecType m_type = Invalid;
        int m_utcOffset = 0;
        QTimeZone m_zone;
    };

    KDateTime() = default;
    /// A date without a time of day.
    explicit KDateTime(const QDate &date, const Spec &spec = Spec::LocalZone());
    KDateTime(const QDate &date, const QTime &time, const Spec &spec = Spec::LocalZone());
    /// Takes date, time and kind of clock from @p dateTime (Qt::LocalTime becomes clock time).
    explicit KDateTime(const QDateTime &dateTime);
    /// The wall clock of @p dateTime in @p spec: converted when both name an instant.
    KDateTime(const QDateTime &dateTime, const Spec &spec);

    static KDateTime currentLocalDateTime();
    static KDateTime currentUtcDateTime();
    static QDate currentLocalDate();
    static KDateTime currentDateTime(const Spec &spec);

    /// Reads @p text; invalid when it is not of that format. A date alone is date-only, a time
    /// without a zone is clock time.
    static KDateTime fromString(const QString &text, TimeFormat format = ISODate);
    /// Writes in @p format; empty when invalid. Date-only values are written as a date.
    QString toString(TimeFormat format = ISODate) const;

    bool isNull() const { return !isValid(); }
    bool isValid() const;
    bool isDateOnly() const { return m_dateOnly; }
    void setDateOnly(bool dateOnly);

    QDate date() const;
    QTime time() const;
    void setDate(const QDate &date);
    void setTime(const QTime &time);

    Spec timeSpec() const { return m_spec; }
    void setTimeSpec(const Spec &spec);
    QTimeZone timeZone() const { return m_spec.timeZone(); }
    bool isUtc() const { return m_spec.isUtc(); }
    bool isClockTime() const { return m_spec.isClockTime(); }
    bool isLocalZone() const { return m_spec.isLocalZone(); }
    /// Seconds east of UTC at this moment.
    int utcOffset() const;

    KDateTime toUtc() const;
    KDateTime toLocalZone() const;
    KDateTime toClockTime() const;
    KDateTime toZone(const QTimeZone &zone) const;
    KDateTime toTimeSpec(const Spec &spec) const;
    /// The same moment; null when invalid. Date-only gives the first instant of the day there.
    QDateTime dateTime() const;
    /// Seconds since 1970-01-01T00:00:00Z.
    qint64 toSecsSinceEpoch() const;

    KDateTime addDays(qint64 days) const;
    KDateTime addSecs(qint64 seconds) const;
    qint64 secsTo(const KDateTime &other) const;
    qint64 daysTo(const KDateTime &other) const;

    /// Equal when both name the same moment: a date-only value equals another with that date,
    /// never one with a time of day. Two invalid values are equal.
    bool operator==(const KDateTime &other) const;
    bool operator!=(const KDateTime &other) const { return !(*this == other); }
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
