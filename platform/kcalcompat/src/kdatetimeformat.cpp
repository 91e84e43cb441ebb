// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Reading and writing KDateTime as text. Qt's ISO reader knows only the extended form of calendar
// dates, so the other forms are rewritten into that one first.

#include <kcalcompat/kdatetime.h>

#include <QRegularExpression>

namespace
{
/// ISO 8601: a calendar or ordinal date, then perhaps a time of day and its zone. Dashes and
/// colons stand everywhere or nowhere.
const QRegularExpression &isoPattern()
{
    static const QRegularExpression pattern(QStringLiteral(
        R"(^(?<year>\d{4})(?<dash>-?)(?:(?<ordinal>\d{3})|(?<month>\d\d)\k<dash>(?<day>\d\d)))"
        R"((?:[Tt ](?<hour>\d\d)(?:(?<colon>:?)(?<minute>\d\d))"
        R"((?:\k<colon>(?<second>\d\d)(?<fraction>[.,]\d+)?)?)?)"
        R"((?<zone>[Zz]|[+-]\d\d(?::?\d\d)?)?)?\z)"));
    return pattern;
}

/// RFC 3339, section 5.6: nothing may be left out, and the hour 24 does not exist.
const QRegularExpression &rfc3339Pattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^\d{4}-\d\d-\d\d[Tt ](?:[01]\d|2[0-3]):\d\d:\d\d(?:\.\d+)?)"
                       R"((?:[Zz]|[+-]\d\d:\d\d)\z)"));
    return pattern;
}

QString extendedDate(const QRegularExpressionMatch &iso)
{
    const QString year = iso.captured(u"year");
    const QString ordinal = iso.captured(u"ordinal");
    if (ordinal.isEmpty())
        return year + u'-' + iso.captured(u"month") + u'-' + iso.captured(u"day");
    const QDate newYear(year.toInt(), 1, 1);
    const int day = ordinal.toInt();
    if (day < 1 || day > newYear.daysInYear())
        return {};
    return newYear.addDays(day - 1).toString(Qt::ISODate);
}

QString extendedTime(const QRegularExpressionMatch &iso)
{
    const QString minute = iso.captured(u"minute");
    QString second = iso.captured(u"second");
    // A leap second counts as the second before it (RFC 5545, section 3.3.12): QTime has none.
    if (second == u"60")
        second = QStringLiteral("59");
    const QString zero = QStringLiteral("00");
    return iso.captured(u"hour") + u':' + (minute.isEmpty() ? zero : minute) + u':'
        + (second.isEmpty() ? zero : second) + iso.captured(u"fraction");
}
} // namespace

KDateTime KDateTime::fromString(const QString &text, TimeFormat format)
{
    if (format == RFC3339Date && !rfc3339Pattern().match(text).hasMatch())
        return {};
    const QRegularExpressionMatch iso = isoPattern().match(text);
    if (!iso.hasMatch())
        return {};
    const QString date = extendedDate(iso);
    if (iso.capturedStart(u"hour") < 0)
        return KDateTime(QDate::fromString(date, Qt::ISODate), Spec::ClockTime());

    const QString zone = iso.captured(u"zone").toUpper();
    const QString utc = QStringLiteral("Z");
    // Clock time is read as UTC too: what a clock change leaves out here is no mistake in the text.
    const QDateTime read = QDateTime::fromString(
        date + u'T' + extendedTime(iso) + (zone.isEmpty() ? utc : zone), Qt::ISODate);
    if (zone.isEmpty())
        return KDateTime(read.date(), read.time(), Spec::ClockTime());
    if (zone == utc)
        return KDateTime(read.date(), read.time(), Spec::UTC());
    return KDateTime(read.date(), read.time(), Spec::OffsetFromUTC(read.offsetFromUtc()));
}

QString KDateTime::toString(TimeFormat format) const
{
    if (!isValid())
        return {};
    if (m_dateOnly && format == ISODate)
        return date().toString(Qt::ISODate);

    QDateTime moment = dateTime();
    const bool withoutZone = isClockTime() && format == ISODate;
    if (!withoutZone && !isUtc()) {
        // Local mean times of long ago have offsets with seconds, which no text can carry.
        const int offset = moment.offsetFromUtc();
        moment = moment.toOffsetFromUtc(offset - offset % 60);
    }
    const bool wholeSecond = moment.time().msec() == 0;
    QString text = moment.toString(wholeSecond ? Qt::ISODate : Qt::ISODateWithMs);
    // Qt takes the offset 0 for UTC; here they are two kinds of clock.
    if (!isUtc() && text.endsWith(u'Z'))
        text.replace(text.size() - 1, 1, QStringLiteral("+00:00"));
    return text;
}
