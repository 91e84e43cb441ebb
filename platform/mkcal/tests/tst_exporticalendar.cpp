// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "exchange/incidenceimport.h"
#include "memorybulkwriter.h"

#include <mkcal/calendarexporter.h>
#include <mkcal/incidencecomparison.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/Todo>

#include <QBuffer>
#include <QtTest>

#include <ctime>

using namespace mKCal;
using namespace KCalCore;

namespace
{
QByteArray exported(const Incidence::List &incidences)
{
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    return CalendarExporter().write(incidences, &file) ? file.data() : QByteArray();
}

Incidence::Ptr throughFile(const Incidence::Ptr &incidence)
{
    MemoryBulkWriter writer;
    importBytes(exported({incidence}), &writer);
    return writer.incidences().value(0);
}

QDateTime localDay(int year, int month, int day)
{
    return QDate(year, month, day).startOfDay(Qt::LocalTime);
}

Event::Ptr allDayEvent(const QString &uid, int days)
{
    Event::Ptr event(new Event);
    event->setUid(uid);
    event->setDtStart(localDay(2026, 12, 7));
    event->setDtEnd(localDay(2026, 12, 7 + days));
    event->setAllDay(true);
    return event;
}

void setZone(const QByteArray &zone)
{
    qputenv("TZ", zone);
    tzset();
}

/// Takes what is written and fails when @p room bytes were.
class SmallDisk : public QIODevice
{
public:
    explicit SmallDisk(qint64 room) : m_room(room)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        setErrorString(QStringLiteral("no space"));
        return size <= m_room ? size : -1;
    }

private:
    qint64 m_room;
};
} // namespace

/// What stands in an exported file, and that it means the same everywhere.
class ExportICalendarTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void convention_data();
    void convention();
    void tenRounds_data();
    void tenRounds();
    void text_data();
    void text();
    void timeZonesComeFirst();
    void orderAndRepetition();
    void deviceRefuses();
};

void ExportICalendarTest::init()
{
    setZone("Europe/Helsinki");
}

void ExportICalendarTest::convention_data()
{
    QTest::addColumn<int>("days");
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("one day") << 1 << QByteArray("DTEND;VALUE=DATE:20261208");
    QTest::newRow("three days") << 3 << QByteArray("DTEND;VALUE=DATE:20261210");
    QTest::newRow("no day") << 0 << QByteArray("DTEND;VALUE=DATE:20261208");
}

void ExportICalendarTest::convention()
{
    QFETCH(int, days);
    QFETCH(QByteArray, end);
    const Event::Ptr event = allDayEvent(QStringLiteral("a"), days);
    const Incidence::Ptr clone = toICalendarConvention(event);
    QCOMPARE(event->dtEnd(), localDay(2026, 12, 7 + days));
    QVERIFY(ICalFormat().toRawString(clone).contains(end));
    fromICalendarConvention(clone);
    QCOMPARE(clone.staticCast<Event>()->dtEnd(), localDay(2026, 12, 7 + qMax(days, 1)));
}

void ExportICalendarTest::tenRounds_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *zone : {"Europe/Helsinki", "Pacific/Auckland", "America/New_York",
                             "Pacific/Honolulu", "Asia/Kolkata", "UTC", "America/Havana"}) {
        QTest::newRow(zone) << QByteArray(zone);
    }
}

/// Nothing wears off: not the end of an all-day series, which is a date and no moment.
void ExportICalendarTest::tenRounds()
{
    QFETCH(QByteArray, zone);
    setZone(zone);
    const Event::Ptr event = allDayEvent(QStringLiteral("a"), 2);
    event->recurrence()->setDaily(1);
    event->recurrence()->setEndDate(QDate(2026, 12, 10));
    event->recurrence()->addExDate(QDate(2026, 12, 8));
    Incidence::Ptr incidence = event;
    for (int round = 0; round < 10; ++round) {
        QVERIFY(exported({incidence}).contains("UNTIL=20261210"));
        incidence = throughFile(incidence);
        QCOMPARE(incidence->recurrence()->rRules().first()->endDt().date(), QDate(2026, 12, 10));
        QCOMPARE(incidence.staticCast<Event>()->dtEnd().date(), QDate(2026, 12, 9));
        QVERIFY(incidence->recursOn(QDate(2026, 12, 10), QTimeZone::systemTimeZone()));
        QVERIFY(!incidence->recursOn(QDate(2026, 12, 11), QTimeZone::systemTimeZone()));
    }
}

void ExportICalendarTest::text_data()
{
    QTest::addColumn<Incidence::Ptr>("incidence");
    QTest::addColumn<QByteArray>("present");
    QTest::addColumn<QByteArray>("absent");
    const QDateTime start(QDate(2026, 4, 1), QTime(10, 0), QTimeZone("Europe/Helsinki"));
    const auto row = [start](const char *name, const std::function<void(Event &)> &give,
                             const QByteArray &present, const QByteArray &absent = QByteArray()) {
        const Event::Ptr event(new Event);
        event->setUid(QStringLiteral("a"));
        event->setDtStart(start);
        event->setLastModified(QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC));
        give(*event);
        QTest::newRow(name) << Incidence::Ptr(event) << present << absent;
    };
    row(
        "stamped with its last change", [](Event &) {}, "DTSTAMP:20260101T000000Z");
    row(
        "identifier of an all-day occurrence",
        [](Event &event) {
            event.setAllDay(true);
            event.setDtStart(localDay(2026, 4, 2));
            event.setRecurrenceId(localDay(2026, 4, 1));
            event.setThisAndFuture(true);
        },
        "RECURRENCE-ID;VALUE=DATE;RANGE=THISANDFUTURE:20260401");
    row(
        "comma in a category",
        [](Event &event) {
            event.setCategories(QStringList{QStringLiteral("a, b"), QStringLiteral("c")});
        },
        "CATEGORIES:a\\, b,c");
    row(
        "telephone number",
        [](Event &event) {
            event.addAttendee(Attendee(QStringLiteral("A"), QStringLiteral("+358401234567")));
        },
        ":tel:+358401234567", "X-UID");
    row(
        "removed attendee",
        [](Event &event) {
            event.addAttendee(Attendee(QStringLiteral("A"), QStringLiteral("a@example.org"), false,
                                       Attendee::PartStat(8)));
        },
        "PARTSTAT=X-REMOVED", "NEEDS-ACTION");
    row(
        "hours once",
        [](Event &event) {
            event.recurrence()->setDaily(1);
            event.recurrence()->defaultRRule()->setByHours({9, 12});
        },
        "BYHOUR=9,12\r\n");
    row(
        "floating end of floating times",
        [](Event &event) {
            event.setDtStart(QDateTime(QDate(2026, 4, 1), QTime(10, 0), Qt::LocalTime));
            event.recurrence()->setDaily(1);
            event.recurrence()->setEndDateTime(
                QDateTime(QDate(2026, 4, 5), QTime(10, 0), Qt::LocalTime));
        },
        "UNTIL=20260405T100000\r\n");
    row(
        "period in UTC",
        [start](Event &event) {
            event.recurrence()->addRDateTimePeriod(Period(start.addDays(1), start.addDays(2)));
        },
        "RDATE;VALUE=PERIOD:20260402T070000Z/20260403T070000Z");
    row(
        "resources",
        [](Event &event) {
            event.setResources({QStringLiteral("Room, large"), QStringLiteral("Car")});
        },
        "RESOURCES:Room\\, large,Car", "X-DASKEL");
    row(
        "child",
        [](Event &event) { event.setRelatedTo(QStringLiteral("b"), Incidence::RelTypeChild); },
        "RELATED-TO;RELTYPE=CHILD:b", "X-DASKEL");
    row(
        "switched-on alarm",
        [](Event &event) {
            const auto alarm = event.newAlarm();
            alarm->setDisplayAlarm(QStringLiteral("x"));
            alarm->setEnabled(true);
        },
        "BEGIN:VALARM", "X-KDE");
}

void ExportICalendarTest::text()
{
    QFETCH(Incidence::Ptr, incidence);
    QFETCH(QByteArray, present);
    QFETCH(QByteArray, absent);
    const QByteArray unfolded = exported({incidence}).replace("\r\n ", "");
    QVERIFY2(unfolded.contains(present), unfolded.constData());
    QVERIFY2(absent.isEmpty() || !unfolded.contains(absent), unfolded.constData());
}

void ExportICalendarTest::timeZonesComeFirst()
{
    Incidence::List incidences;
    for (const char *zone : {"Europe/Helsinki", "America/New_York", "Europe/Helsinki"}) {
        const Event::Ptr event(new Event);
        event->setDtStart(QDateTime(QDate(2026, 4, 1), QTime(10, 0), QTimeZone(zone)));
        incidences.append(event);
    }
    const QByteArray text = exported(incidences);
    QCOMPARE(text.count("BEGIN:VTIMEZONE"), 2);
    QVERIFY(text.lastIndexOf("END:VTIMEZONE") < text.indexOf("BEGIN:VEVENT"));
    QCOMPARE(text.count("BEGIN:VCALENDAR"), 1);
}

/// The same calendar gives the same file, in the order of the list, however often it is written.
void ExportICalendarTest::orderAndRepetition()
{
    Incidence::List incidences;
    for (int i = 0; i < 600; ++i) {
        const Event::Ptr event = allDayEvent(QString::number(i), 1);
        event->setLastModified(localDay(2026, 1, 1));
        event->setCreated(localDay(2026, 1, 1).toUTC());
        incidences.append(event);
    }
    const QByteArray text = exported(incidences);
    QCOMPARE(exported(incidences), text);

    QVector<qint64> progress;
    CalendarExporter exporter;
    exporter.setProgress([&progress](qint64 done, qint64 total) {
        progress.append(done);
        QCOMPARE(total, qint64(600));
    });
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QVERIFY(exporter.write(incidences, &file));
    QCOMPARE(progress, QVector<qint64>({250, 500, 600}));

    int last = -1;
    for (int i = 0; i < 600; ++i) {
        const int position = text.indexOf("\r\nUID:" + QByteArray::number(i) + "\r\n");
        QVERIFY(position > last);
        last = position;
    }
}

void ExportICalendarTest::deviceRefuses()
{
    SmallDisk disk(10);
    CalendarExporter exporter;
    QVERIFY(!exporter.write({allDayEvent(QStringLiteral("a"), 1)}, &disk));
    QCOMPARE(exporter.errorMessage(), QStringLiteral("no space"));
}

QTEST_GUILESS_MAIN(ExportICalendarTest)
#include "tst_exporticalendar.moc"
