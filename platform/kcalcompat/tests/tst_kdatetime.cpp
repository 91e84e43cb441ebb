// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "systemzone.h"
#include "testtable.h"

#include <kcalcompat/clock.h>
#include <kcalcompat/firstpass.h>
#include <kcalcompat/kcalcore.h>
#include <kcalcompat/kdatetime.h>

#include <KCalendarCore/Event>

#include <QSignalSpy>
#include <QtTest>

#include <optional>

using Spec = KDateTime::Spec;

Q_DECLARE_METATYPE(KDateTime::Spec)
Q_DECLARE_METATYPE(KDateTime::TimeFormat)

namespace
{
KDateTime at(const char *iso)
{
    return KDateTime::fromString(QLatin1String(iso));
}

Spec zone(const char *id)
{
    return Spec(QTimeZone(id));
}

/// How a moment reads in a zone: its date, time and offset.
QString readsAs(const KDateTime &moment, const QByteArray &zoneId)
{
    return moment.toZone(QTimeZone(zoneId)).toString();
}
} // namespace

class TestKDateTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_helsinki.emplace("Europe/Helsinki"); }
    void cleanupTestCase() { m_helsinki.reset(); }

    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void writesWhatItReads_data();
    void writesWhatItReads();
    void leftOutTimes_data();
    void leftOutTimes();
    void repeatedTimes_data();
    void repeatedTimes();
    void conversionsKeepTheMoment_data();
    void conversionsKeepTheMoment();
    void dateOnlyKeepsItsDate_data();
    void dateOnlyKeepsItsDate();
    void invalidStaysNull_data();
    void invalidStaysNull();
    void order();
    void arithmetic_data();
    void arithmetic();
    void setters();
    void presentMoment();
    void metaTypes();

Q_SIGNALS:
    void occurred(const KDateTime &moment, const KCalCore::Incidence::Ptr &incidence);
    void replaced(const QSharedPointer<KCalCore::Incidence> &incidence);

private:
    Q_INVOKABLE void replace(const KDateTime &, const KCalCore::Incidence::Ptr &incidence)
    {
        Q_EMIT replaced(incidence);
    }

    std::optional<SystemZone> m_helsinki;
};

void TestKDateTime::reads_data()
{
    addColumns<QString, QDateTime, Spec, bool>("text", "wallClock", "spec", "dateOnly");

    const QDateTime ten({2011, 3, 1}, {10, 0}, Qt::UTC);
    const QDateTime day({2011, 3, 1}, {0, 0}, Qt::UTC);
    const auto row = [](const char *text, const QDateTime &wallClock, const Spec &spec) {
        addRow(text, text, wallClock, spec, false);
    };
    const auto dateRow = [&](const char *text) {
        addRow(text, text, day, Spec::ClockTime(), true);
    };
    dateRow("2011-03-01");
    dateRow("20110301");
    dateRow("2011-060");
    dateRow("2011060");
    for (const char *text :
         {"2011-03-01T10:00:00", "20110301T100000", "2011-060T10:00", "2011060T10",
          "2011-03-01 10:00", "2011-03-01t10:00:00.0004", "20110301T10:00:00"})
        row(text, ten, Spec::ClockTime());
    for (const char *text : {"2011-03-01T10:00:00Z", "20110301T100000Z", "2011060T1000z"})
        row(text, ten, Spec::UTC());
    for (const char *text : {"2011-03-01T10:00:00+02:00", "2011-03-01T10:00:00+0200",
                             "2011-03-01T10:00:00+02", "20110301T100000+02", "20110301T10+0200"})
        row(text, ten, Spec::OffsetFromUTC(7200));
    row("20110301T100000-0330", ten, Spec::OffsetFromUTC(-12600));
    row("2011-03-01T10:00:00+00:00", ten, Spec::OffsetFromUTC(0));
    row("2011-02-28T24:00:00Z", day, Spec::UTC());
    row("20110228T240000+02", day, Spec::OffsetFromUTC(7200));
    row("2011-03-01T10:00:00.250Z", ten.addMSecs(250), Spec::UTC());
    row("20110301T100000,25", ten.addMSecs(250), Spec::ClockTime());
    row("2011-03-01T09:59:59.99999Z", ten.addMSecs(-1), Spec::UTC());
    row("2011-03-01T09:59:60Z", ten.addSecs(-1), Spec::UTC());
    row("2012-366T10:00:00Z", QDateTime({2012, 12, 31}, {10, 0}, Qt::UTC), Spec::UTC());
    row("2011-03-27T03:30:00", QDateTime({2011, 3, 27}, {4, 30}, Qt::UTC), Spec::ClockTime());
}

void TestKDateTime::reads()
{
    QFETCH(QString, text);
    QFETCH(QDateTime, wallClock);
    QFETCH(Spec, spec);
    const KDateTime moment = KDateTime::fromString(text);
    QVERIFY(moment.isValid());
    QCOMPARE(moment.date(), wallClock.date());
    QCOMPARE(moment.time(), wallClock.time());
    QVERIFY(moment.timeSpec() == spec);
    QTEST(moment.isDateOnly(), "dateOnly");
}

void TestKDateTime::refuses_data()
{
    addColumns<QString, KDateTime::TimeFormat>("text", "format");
    const auto rows = [](KDateTime::TimeFormat format, const std::vector<const char *> &texts) {
        for (const char *text : texts)
            QTest::addRow("%d: '%s'", int(format), text) << QString::fromUtf8(text) << format;
    };
    rows(KDateTime::ISODate,
         {"",
          "T",
          "2011",
          "2011-03",
          "2011-3-1",
          "2011-02-29",
          "2011-13-01",
          "2011-000",
          "2011-366",
          "2011-W09-2",
          "0000-01-01",
          "+12011-03-01",
          "2011-0301",
          "2011-03-01T",
          "2011-03-01TZ",
          "2011-03-01T10:0000Z",
          "2011-03-01T1000:00",
          "2011-03-01T24:00:01Z",
          "2011-03-01T25:00",
          "2011-03-01T10:60",
          "2011-03-01T10:00:61Z",
          "2011-03-01T10:00:00.Z",
          "2011-03-01Z",
          "2011-03-01T10:00:00+2",
          "2011-03-01T10:00:00+25:00",
          "2011-03-01T10:00:00+02:60",
          "2011-03-01T10:00:00Zulu",
          "2011-03-01T10:00:00Z\n",
          " 2011-03-01"});
    rows(KDateTime::ISODate, {"٢٠١١-٠٣-٠١"});
    rows(KDateTime::RFC3339Date,
         {"2011-03-01", "2011-03-01T10:00:00", "2011-03-01T10:00Z", "20110301T100000Z",
          "2011-03-01T10:00:00+0200", "2011-03-01T24:00:00Z", "2011-03-01T10:00:00,5Z",
          "2011-060T10:00:00Z", "2011-02-29T10:00:00Z"});
}

void TestKDateTime::refuses()
{
    QFETCH(QString, text);
    QFETCH(KDateTime::TimeFormat, format);
    QVERIFY(KDateTime::fromString(text, format).isNull());
}

void TestKDateTime::writesWhatItReads_data()
{
    addColumns<KDateTime, QString, QString>("value", "iso", "rfc3339");
    const QDate day(2011, 3, 1);
    const QTime time(10, 0);
    const auto row = [](const char *name, const KDateTime &value, const char *iso,
                        const char *rfc3339 = nullptr) {
        addRow(name, value, iso, rfc3339 ? rfc3339 : iso);
    };
    row("UTC", KDateTime(day, time, Spec::UTC()), "2011-03-01T10:00:00Z");
    row("offset", KDateTime(day, time, Spec::OffsetFromUTC(-12600)), "2011-03-01T10:00:00-03:30");
    row("no offset is not UTC", KDateTime(day, time, Spec::OffsetFromUTC(0)),
        "2011-03-01T10:00:00+00:00");
    row("offset with seconds", KDateTime(day, time, Spec::OffsetFromUTC(5989)),
        "2011-03-01T09:59:11+01:39");
    row("milliseconds", KDateTime(day, QTime(10, 0, 0, 7), Spec::UTC()),
        "2011-03-01T10:00:00.007Z");
    row("clock time", KDateTime(day, time, Spec::ClockTime()), "2011-03-01T10:00:00",
        "2011-03-01T10:00:00+02:00");
    row("local zone", KDateTime(day, time), "2011-03-01T10:00:00+02:00");
    row("named zone", KDateTime(day, time, zone("Asia/Kathmandu")), "2011-03-01T10:00:00+05:45");
    row("named zone at UTC", KDateTime(day, time, zone("Europe/London")),
        "2011-03-01T10:00:00+00:00");
    row("local mean time", KDateTime(QDate(1900, 1, 1), time, zone("Europe/Helsinki")),
        "1900-01-01T09:59:11+01:39");
    row("date-only", KDateTime(day, Spec::ClockTime()), "2011-03-01", "2011-03-01T00:00:00+02:00");
    row("beyond four digits", KDateTime(QDate(10000, 1, 1), time, Spec::UTC()), "");
}

void TestKDateTime::writesWhatItReads()
{
    QFETCH(KDateTime, value);
    QFETCH(QString, iso);
    QFETCH(QString, rfc3339);
    QCOMPARE(value.toString(), iso);
    QCOMPARE(value.toString(KDateTime::RFC3339Date), rfc3339);
    if (iso.isEmpty())
        return;
    const KDateTime back = KDateTime::fromString(iso);
    QVERIFY(back == value);
    const bool hasZone = value.isLocalZone() || value.timeSpec().type() == KDateTime::TimeZone;
    QCOMPARE(back.timeSpec().type(), hasZone ? KDateTime::OffsetFromUTC : value.timeSpec().type());
    QCOMPARE(KDateTime::fromString(rfc3339, KDateTime::RFC3339Date).dateTime(), value.dateTime());
}

void TestKDateTime::leftOutTimes_data()
{
    addColumns<QByteArray, QString, QString>("zoneId", "asked", "given");
    const auto row = [](const char *zoneId, const char *asked, const char *given) {
        QTest::addRow("%s %s", zoneId, asked) << QByteArray(zoneId) << asked << given;
    };
    row("Europe/Helsinki", "2011-03-27T03:00:00Z", "2011-03-27T04:00:00+03:00");
    row("Europe/Helsinki", "2011-03-27T03:59:59Z", "2011-03-27T04:59:59+03:00");
    row("Europe/Helsinki", "2011-03-27T02:59:59Z", "2011-03-27T02:59:59+02:00");
    row("America/New_York", "2011-03-13T02:30:00Z", "2011-03-13T03:30:00-04:00");
    row("Asia/Beirut", "2011-03-27T00:00:00Z", "2011-03-27T01:00:00+03:00");
    row("Asia/Beirut", "2011-03-27T00:30:00Z", "2011-03-27T01:30:00+03:00");
    row("Australia/Lord_Howe", "2011-10-02T02:15:00Z", "2011-10-02T02:45:00+11:00");
    row("Pacific/Apia", "2011-12-30T00:00:00Z", "2011-12-31T00:00:00+14:00");
    row("Pacific/Apia", "2011-12-30T15:00:00Z", "2011-12-31T15:00:00+14:00");
    row("America/Caracas", "2016-05-01T02:40:00Z", "2016-05-01T03:10:00-04:00");
    row("America/Caracas", "2016-05-01T06:00:00Z", "2016-05-01T06:00:00-04:00");
}

void TestKDateTime::leftOutTimes()
{
    QFETCH(QByteArray, zoneId);
    QFETCH(QString, asked);
    QFETCH(QString, given);
    const KDateTime wallClock = KDateTime::fromString(asked);
    const SystemZone systemZone(zoneId);
    for (const Spec &spec : {Spec(QTimeZone(zoneId)), Spec::LocalZone(), Spec::ClockTime()}) {
        const KDateTime moment(wallClock.date(), wallClock.time(), spec);
        QVERIFY(moment.isValid());
        QVERIFY(moment.timeSpec() == spec);
        QCOMPARE(readsAs(moment, zoneId), given);
        QCOMPARE(moment.toString().left(19), given.left(19));
    }
    const QDateTime fromQt(wallClock.date(), wallClock.time(), QTimeZone(zoneId));
    QCOMPARE(readsAs(KDateTime(fromQt), zoneId), given);
}

void TestKDateTime::repeatedTimes_data()
{
    addColumns<QByteArray, QString, QString>("zoneId", "asked", "given");
    const auto row = [](const char *zoneId, const char *asked, const char *given) {
        QTest::addRow("%s %s", zoneId, asked) << QByteArray(zoneId) << asked << given;
    };
    row("Europe/Helsinki", "2026-10-25T02:59:59Z", "2026-10-25T02:59:59+03:00");
    row("Europe/Helsinki", "2026-10-25T03:00:00Z", "2026-10-25T03:00:00+03:00");
    row("Europe/Helsinki", "2026-10-25T03:59:59Z", "2026-10-25T03:59:59+03:00");
    row("Europe/Helsinki", "2026-10-25T04:00:00Z", "2026-10-25T04:00:00+02:00");
    row("Europe/Helsinki", "2026-10-25T06:59:59Z", "2026-10-25T06:59:59+02:00");
    row("Europe/London", "2026-10-25T01:30:00Z", "2026-10-25T01:30:00+01:00");
    row("America/New_York", "2026-11-01T01:30:00Z", "2026-11-01T01:30:00-04:00");
    row("America/Havana", "2023-11-05T00:00:00Z", "2023-11-05T00:00:00-04:00");
    row("Australia/Sydney", "2026-04-05T02:30:00Z", "2026-04-05T02:30:00+11:00");
    row("Australia/Lord_Howe", "2026-04-05T01:45:00Z", "2026-04-05T01:45:00+11:00");
    row("Antarctica/Troll", "2026-10-25T01:15:00Z", "2026-10-25T01:15:00+02:00");
}

void TestKDateTime::repeatedTimes()
{
    QFETCH(QByteArray, zoneId);
    QFETCH(QString, asked);
    QFETCH(QString, given);
    const KDateTime wallClock = KDateTime::fromString(asked);
    const SystemZone systemZone(zoneId);
    for (const Spec &spec : {Spec(QTimeZone(zoneId)), Spec::LocalZone(), Spec::ClockTime()}) {
        const KDateTime moment(wallClock.date(), wallClock.time(), spec);
        QCOMPARE(readsAs(moment, zoneId), given);
        QCOMPARE(readsAs(moment.addDays(-1).addDays(1), zoneId), given);
        QCOMPARE(KCalCompat::firstPass(moment.dateTime()), moment.dateTime());
    }
}

void TestKDateTime::conversionsKeepTheMoment_data()
{
    addColumns<QByteArray, QString, QString>("zoneId", "utc", "there");
    const auto row = [](const char *zoneId, const char *utc, const char *there) {
        QTest::addRow("%s %s", zoneId, utc) << QByteArray(zoneId) << utc << there;
    };
    row("Europe/Helsinki", "2011-10-30T00:30:00Z", "2011-10-30T03:30:00+03:00");
    row("Europe/Helsinki", "2011-10-30T01:30:00Z", "2011-10-30T03:30:00+02:00");
    row("America/New_York", "2011-11-06T05:30:00Z", "2011-11-06T01:30:00-04:00");
    row("America/New_York", "2011-11-06T06:30:00Z", "2011-11-06T01:30:00-05:00");
    row("Asia/Beirut", "2011-10-29T20:30:00Z", "2011-10-29T23:30:00+03:00");
    row("Asia/Beirut", "2011-10-29T21:30:00Z", "2011-10-29T23:30:00+02:00");
    row("Australia/Lord_Howe", "2011-04-02T14:45:00Z", "2011-04-03T01:45:00+11:00");
    row("Australia/Lord_Howe", "2011-04-02T15:15:00Z", "2011-04-03T01:45:00+10:30");
    row("Pacific/Apia", "2011-12-30T09:59:59Z", "2011-12-29T23:59:59-10:00");
    row("Pacific/Apia", "2011-12-30T10:00:00Z", "2011-12-31T00:00:00+14:00");
    row("Africa/Algiers", "1979-10-25T22:30:00Z", "1979-10-25T23:30:00+01:00");
    row("Africa/Algiers", "1979-10-25T23:30:00Z", "1979-10-25T23:30:00+00:00");
    row("America/Caracas", "2016-05-01T09:00:00Z", "2016-05-01T05:00:00-04:00");
}

void TestKDateTime::conversionsKeepTheMoment()
{
    QFETCH(QByteArray, zoneId);
    QFETCH(QString, utc);
    QFETCH(QString, there);
    const KDateTime moment = KDateTime::fromString(utc);
    const SystemZone systemZone(zoneId);
    const KDateTime zoned = moment.toZone(QTimeZone(zoneId));
    QCOMPARE(zoned.toString(), there);
    QCOMPARE(moment.toClockTime().toString(), there.left(19));
    for (const KDateTime &other :
         {zoned, moment.toLocalZone(), moment.toTimeSpec(Spec::OffsetFromUTC(12345))}) {
        QVERIFY(other == moment);
        QCOMPARE(other.toUtc().toString(), utc);
        QCOMPARE(other.toSecsSinceEpoch(), moment.toSecsSinceEpoch());
        QCOMPARE(other.addSecs(-86400).addSecs(86400).toUtc().toString(), utc);
        QVERIFY(other.addDays(0) == moment);
        QVERIFY(KDateTime(other.dateTime()) == moment);
    }
}

void TestKDateTime::dateOnlyKeepsItsDate_data()
{
    addColumns<QDate, QByteArray, QString>("date", "zoneId", "dayStart");
    const auto row = [](const char *name, const QDate &date, const char *zoneId,
                        const char *start) { addRow(name, date, QByteArray(zoneId), start); };
    row("usual day", QDate(2011, 3, 1), "Europe/Helsinki", "2011-03-01T00:00:00+02:00");
    row("day begins at one", QDate(2011, 3, 27), "Asia/Beirut", "2011-03-27T01:00:00+03:00");
    row("day is missing there", QDate(2011, 12, 30), "Pacific/Apia", "2011-12-31T00:00:00+14:00");
}

void TestKDateTime::dateOnlyKeepsItsDate()
{
    QFETCH(QDate, date);
    QFETCH(QByteArray, zoneId);
    QFETCH(QString, dayStart);
    const SystemZone systemZone(zoneId);
    for (const Spec &spec : {Spec(QTimeZone(zoneId)), Spec::LocalZone(), Spec::ClockTime()}) {
        const KDateTime day(date, spec);
        QCOMPARE(day.date(), date);
        QCOMPARE(day.time(), QTime(0, 0));
        QCOMPARE(readsAs(KDateTime(day.dateTime()), zoneId), dayStart);
        const KDateTime elsewhere = day.toUtc().toZone(QTimeZone("America/New_York"));
        QVERIFY(elsewhere.isDateOnly());
        QCOMPARE(elsewhere.date(), date);
        QVERIFY(elsewhere == day);
        QVERIFY(day == day.dateTime());
        QVERIFY(day != KDateTime(day.dateTime()));
    }
}

void TestKDateTime::invalidStaysNull_data()
{
    QTest::addColumn<KDateTime>("value");
    const QDate day(2011, 3, 1);
    addRow("default", KDateTime());
    addRow("no date", KDateTime(QDate()));
    addRow("no date but midnight", KDateTime(QDate(), QTime(0, 0)));
    addRow("no date in a zone", KDateTime(QDate(), QTime(0, 0), zone("Asia/Beirut")));
    addRow("no time", KDateTime(day, QTime()));
    addRow("null QDateTime", KDateTime(QDateTime()));
    addRow("QDateTime of midnight alone", KDateTime(QDateTime(QDate(), QTime(0, 0))));
    addRow("null QDateTime in UTC", KDateTime(QDateTime(), Spec::UTC()));
    addRow("no spec", KDateTime(day, QTime(10, 0), Spec()));
    addRow("date without spec", KDateTime(day, Spec()));
    addRow("unknown zone", KDateTime(day, QTime(10, 0), zone("Europe/Atlantis")));
    addRow("zone type without zone", KDateTime(day, Spec(KDateTime::TimeZone)));
    addRow("a whole day of offset", KDateTime(day, Spec::OffsetFromUTC(86400)));
    addRow("to no spec", at("2011-03-01T10:00:00Z").toTimeSpec(Spec()));
    addRow("to an unknown zone", at("2011-03-01").toZone(QTimeZone("Europe/Atlantis")));
}

void TestKDateTime::invalidStaysNull()
{
    QFETCH(KDateTime, value);
    for (const KDateTime &null : {value, value.toUtc(), value.toLocalZone(), value.toClockTime(),
                                  value.toZone(QTimeZone("Asia/Beirut")), value.addDays(1),
                                  value.addSecs(1), value.addDays(0)}) {
        QVERIFY(null.isNull());
        QVERIFY(null.dateTime().isNull());
        QVERIFY(QDateTime(null).isNull());
        QVERIFY(null == KDateTime());
        QVERIFY(null == QDateTime());
        QVERIFY(!null.date().isValid());
        QVERIFY(!null.time().isValid());
        QCOMPARE(null.toString(), QString());
    }
    QCOMPARE(value.secsTo(at("2011-03-01T10:00:00Z")), 0);
    QCOMPARE(at("2011-03-01").daysTo(value), 0);
}

void TestKDateTime::order()
{
    const QDate day(2011, 3, 1);
    const QVector<KDateTime> ascending = {
        KDateTime(),
        at("2011-02-28T23:59:59"),
        KDateTime(day, zone("America/New_York")),
        KDateTime(day, QTime(0, 0)),
        at("2011-02-28T22:00:00.001Z"),
        KDateTime(day, QTime(10, 0), zone("Asia/Tokyo")),
        at("2011-03-01T10:00:00"),
        KDateTime(day, QTime(10, 0), Spec::UTC()),
        KDateTime(day, QTime(10, 0), zone("America/New_York")),
        at("2011-03-02"),
    };
    for (int i = 0; i < ascending.size(); ++i) {
        for (int j = 0; j < ascending.size(); ++j) {
            const KDateTime &a = ascending.at(i);
            const KDateTime &b = ascending.at(j);
            QCOMPARE(a == b, i == j);
            QCOMPARE(a < b, i < j);
            QCOMPARE(a >= b, i >= j);
            if (a.isDateOnly() || b.isDateOnly())
                continue;
            const QDateTime moment = b;
            QCOMPARE(a == moment, i == j);
            QCOMPARE(moment != a, i != j);
            QCOMPARE(a < moment, i < j);
            QCOMPARE(moment < a, j < i);
            QCOMPARE(a <= moment, i <= j);
            QCOMPARE(moment > a, j > i);
        }
    }
    QVERIFY(KDateTime(day, Spec::UTC()) == KDateTime(day, zone("Asia/Tokyo")));
    QVERIFY(at("2011-03-01T08:00:00Z") == KDateTime(day, QTime(10, 0)));
}

void TestKDateTime::arithmetic_data()
{
    addColumns<KDateTime, int, QString, QString>("from", "days", "sameTimeOfDay", "sameSeconds");
    const auto row = [](const char *zoneId, const char *from, int days, const char *sameTimeOfDay,
                        const char *sameSeconds) {
        const KDateTime wallClock = at(from);
        QTest::addRow("%s %s %+d", zoneId, from, days)
            << KDateTime(wallClock.date(), wallClock.time(), zone(zoneId)) << days << sameTimeOfDay
            << sameSeconds;
    };
    row("Europe/Helsinki", "2011-03-26T12:00:00Z", 1, "2011-03-27T12:00:00+03:00",
        "2011-03-27T13:00:00+03:00");
    row("Europe/Helsinki", "2011-03-26T03:30:00Z", 1, "2011-03-27T04:30:00+03:00",
        "2011-03-27T04:30:00+03:00");
    row("Europe/Helsinki", "2011-10-29T12:00:00Z", 1, "2011-10-30T12:00:00+02:00",
        "2011-10-30T11:00:00+02:00");
    row("America/New_York", "2011-11-07T12:00:00Z", -2, "2011-11-05T12:00:00-04:00",
        "2011-11-05T13:00:00-04:00");
    row("Asia/Beirut", "2011-03-26T00:00:00Z", 1, "2011-03-27T01:00:00+03:00",
        "2011-03-27T01:00:00+03:00");
    row("Australia/Lord_Howe", "2011-10-01T12:00:00Z", 2, "2011-10-03T12:00:00+11:00",
        "2011-10-03T12:30:00+11:00");
    row("Pacific/Apia", "2011-12-29T12:00:00Z", 1, "2011-12-31T12:00:00+14:00",
        "2011-12-31T12:00:00+14:00");
    row("Pacific/Apia", "2011-12-29T12:00:00Z", 2, "2011-12-31T12:00:00+14:00",
        "2012-01-01T12:00:00+14:00");
}

void TestKDateTime::arithmetic()
{
    QFETCH(KDateTime, from);
    QFETCH(int, days);
    QFETCH(QString, sameTimeOfDay);
    const qint64 seconds = qint64(days) * 86400;
    const KDateTime byDays = from.addDays(days);
    QCOMPARE(byDays.toString(), sameTimeOfDay);
    QCOMPARE(from.daysTo(byDays), from.date().daysTo(byDays.date()));
    QCOMPARE(from.daysTo(byDays.toUtc()), from.daysTo(byDays));
    const KDateTime bySeconds = from.addSecs(seconds);
    QTEST(bySeconds.toString(), "sameSeconds");
    QVERIFY(bySeconds.timeSpec() == from.timeSpec());
    QCOMPARE(from.secsTo(bySeconds), seconds);

    const KDateTime day(from.date(), from.timeSpec());
    QCOMPARE(day.addDays(days).date(), from.date().addDays(days));
    QVERIFY(day.addSecs(seconds) == day.addDays(days));
    QCOMPARE(day.secsTo(day.addDays(days)), seconds);
}

void TestKDateTime::setters()
{
    KDateTime moment(QDate(2011, 3, 1), QTime(10, 0), zone("Asia/Beirut"));
    moment.setDate(QDate(2011, 3, 2));
    moment.setTime(QTime(11, 0));
    QCOMPARE(moment.toString(), QStringLiteral("2011-03-02T11:00:00+02:00"));
    moment.setTimeSpec(Spec::OffsetFromUTC(-3600));
    QCOMPARE(moment.toString(), QStringLiteral("2011-03-02T11:00:00-01:00"));
    moment.setDateOnly(true);
    QCOMPARE(moment.toString(), QStringLiteral("2011-03-02"));
    moment.setDate(QDate(2011, 3, 3));
    moment.setTimeSpec(Spec::UTC());
    QVERIFY(moment.isDateOnly());
    moment.setDateOnly(false);
    QCOMPARE(moment.toString(), QStringLiteral("2011-03-03T00:00:00Z"));
    moment.setDateOnly(true);
    moment.setTime(QTime(9, 0));
    QCOMPARE(moment.toString(), QStringLiteral("2011-03-03T09:00:00Z"));

    const KDateTime before = at("2011-03-03T09:00:00Z");
    KDateTime copy = before;
    copy.setDate(QDate());
    QVERIFY(copy.isNull());
    QVERIFY(before.isValid());
}

void TestKDateTime::presentMoment()
{
    KCalCompat::Clock::setSource([] { return at("2011-02-28T22:30:00Z").dateTime(); });
    QCOMPARE(KDateTime::currentLocalDate(), QDate(2011, 3, 1));
    QCOMPARE(KDateTime::currentLocalDateTime().toString(),
             QStringLiteral("2011-03-01T00:30:00+02:00"));
    QCOMPARE(KDateTime::currentUtcDateTime().toString(), QStringLiteral("2011-02-28T22:30:00Z"));
    QCOMPARE(KDateTime::currentDateTime(zone("America/New_York")).time(), QTime(17, 30));
    KCalCompat::Clock::setSource(nullptr);
}

void TestKDateTime::metaTypes()
{
    KCalCompat::registerMetaTypes();
    KCalCompat::registerMetaTypes(); // again, as each user of the library may
    for (const char *name : {"KCalCore::Incidence::Ptr", "QSharedPointer<KCalCore::Incidence>",
                             "KCalendarCore::Incidence::Ptr"})
        QCOMPARE(QMetaType::type(name), qMetaTypeId<KCalCore::Incidence::Ptr>());

    const KCalCore::Incidence::Ptr event(new KCalCore::Event);
    const QVariant moment = QVariant::fromValue(at("2011-03-01"));
    QSignalSpy byAlias(this, SIGNAL(occurred(KDateTime, KCalCore::Incidence::Ptr)));
    QSignalSpy byPointer(this, SIGNAL(replaced(QSharedPointer<KCalCore::Incidence>)));
    connect(this, SIGNAL(occurred(KDateTime, KCalCore::Incidence::Ptr)), this,
            SLOT(replace(KDateTime, KCalCore::Incidence::Ptr)), Qt::QueuedConnection);
    Q_EMIT occurred(at("20110301"), event);
    QVERIFY(byPointer.wait());
    QCOMPARE(byPointer.at(0).at(0).value<KCalCore::Incidence::Ptr>(), event);
    QCOMPARE(byAlias.at(0).at(0), moment);
    QVERIFY(QVariant::fromValue(at("2011-03-02")) != moment);
}

QTEST_GUILESS_MAIN(TestKDateTime)
#include "tst_kdatetime.moc"
