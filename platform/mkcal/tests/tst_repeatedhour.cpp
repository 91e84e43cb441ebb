// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kcalcompat/ksystemtimezones.h>
#include <mkcal/calendarexporter.h>
#include <mkcal/calendarimporter.h>
#include <mkcal/sqlitestorage.h>

#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>

using namespace mKCal;

namespace
{
QByteArray eventText(const QByteArray &times)
{
    return "BEGIN:VEVENT\r\nUID:e\r\n" + times + "END:VEVENT\r\n";
}

/// One opened database with its calendar.
struct Home {
    explicit Home(const QString &fileName)
        : calendar(ExtendedCalendar::Ptr::create(KSystemTimeZones::local())),
          storage(QSharedPointer<SqliteStorage>::create(calendar, fileName))
    {
        storage->open();
        if (storage->notebooks().isEmpty()) {
            const auto notebook = Notebook::Ptr::create();
            storage->addNotebook(notebook, false);
            storage->setDefaultNotebook(notebook);
        }
    }

    bool import(QByteArray text) const
    {
        QBuffer file(&text);
        ImportReport report;
        return CalendarImporter(storage).importDevice(&file, QString(), &report)
            && report.skipped.isEmpty();
    }

    QByteArray exported() const
    {
        QBuffer file;
        file.open(QIODevice::ReadWrite);
        KCalCore::Incidence::List all;
        storage->allIncidences(&all);
        CalendarExporter().write(all, &file);
        return file.data();
    }

    /// "25 00:30-00:45" for each occurrence from the day before to the day after, in UTC.
    QString occurrences(const QDate &day) const
    {
        storage->load();
        auto incidences = calendar->rawIncidences();
        const auto expanded = calendar->expandRecurrences(
            &incidences, KDateTime(day.addDays(-1), QTime(0, 0), KDateTime::Spec::UTC()),
            KDateTime(day.addDays(2), QTime(0, 0), KDateTime::Spec::UTC()), 1000);
        QStringList texts;
        for (const auto &occurrence : expanded) {
            const QDateTime end = occurrence.first.dtEnd.toUTC();
            texts.append(occurrence.first.dtStart.toUTC().toString(QStringLiteral("d hh:mm"))
                         + end.toString(QStringLiteral("-hh:mm")));
        }
        return texts.join(QStringLiteral(", "));
    }

    ExtendedCalendar::Ptr calendar;
    QSharedPointer<SqliteStorage> storage;
};
} // namespace

/// When the clocks go back, an hour comes twice. A time in it is that of the first (RFC 5545,
/// section 3.3.5), wherever it stands in a file, in the database and after an export.
class RepeatedHourTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void occurrences_data();
    void occurrences();
    void secondPassStays();
};

void RepeatedHourTest::cleanup()
{
    qputenv("TZ", "UTC");
    KSystemTimeZones().configChanged();
}

void RepeatedHourTest::occurrences_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &zone, const QDate &day,
                        const QByteArray &text, const char *expected) {
        QTest::newRow(name) << zone << day << text << QString::fromLatin1(expected);
    };
    // In Helsinki 03:00 to 04:00 is shown from 00:00Z and from 01:00Z on.
    const QDate day(2026, 10, 25);
    const auto helsinki = [&](const char *name, const QByteArray &text, const char *expected) {
        row(name, "Europe/Helsinki", day, text, expected);
    };
    const QByteArray at0330 = "DTSTART;TZID=Europe/Helsinki:20261025T033000\r\n";
    const QByteArray since21 = "DTSTART;TZID=Europe/Helsinki:20261021T033000\r\n"
                               "DTEND;TZID=Europe/Helsinki:20261021T034500\r\n";
    const QByteArray moved = "RECURRENCE-ID;TZID=Europe/Helsinki:20261025T033000\r\n"
                             "DTSTART:20261025T120000Z\r\nDTEND:20261025T123000Z\r\n";

    helsinki("start and end", eventText(at0330 + "DTEND;TZID=Europe/Helsinki:20261025T034500\r\n"),
             "25 00:30-00:45");
    helsinki("end",
             eventText("DTSTART:20261024T230000Z\r\n"
                       "DTEND;TZID=Europe/Helsinki:20261025T033000\r\n"),
             "24 23:00-00:30");
    helsinki("length", eventText(at0330 + "DURATION:PT1H\r\n"), "25 00:30-01:30");
    helsinki("floating", eventText("DTSTART:20261025T033000\r\nDTEND:20261025T034500\r\n"),
             "25 00:30-00:45");
    helsinki("the first in UTC", eventText("DTSTART:20261025T003000Z\r\n"), "25 00:30-00:30");
    helsinki("the second in UTC", eventText("DTSTART:20261025T013000Z\r\n"), "25 01:30-01:30");
    helsinki("due",
             "BEGIN:VTODO\r\nUID:t\r\nDUE;TZID=Europe/Helsinki:20261025T033000\r\nEND:VTODO\r\n",
             "25 00:30-00:30");
    helsinki("daily", eventText(since21 + "RRULE:FREQ=DAILY\r\n"),
             "24 00:30-00:45, 25 00:30-00:45, 26 01:30-01:45");
    helsinki("daily and floating",
             eventText("DTSTART:20261021T033000\r\nDTEND:20261021T034500\r\nRRULE:FREQ=DAILY\r\n"),
             "24 00:30-00:45, 25 00:30-00:45, 26 01:30-01:45");
    helsinki("daily for another place",
             eventText("DTSTART;TZID=America/New_York:20261021T203000\r\n"
                       "RRULE:FREQ=DAILY\r\n"),
             "24 00:30-00:30, 25 00:30-00:30, 26 00:30-00:30");
    helsinki("counted from that hour on", eventText(at0330 + "RRULE:FREQ=DAILY;COUNT=2\r\n"),
             "25 00:30-00:30, 26 01:30-01:30");
    helsinki("every hour",
             eventText("DTSTART;TZID=Europe/Helsinki:20261025T023000\r\n"
                       "RRULE:FREQ=HOURLY;COUNT=4\r\n"),
             "24 23:30-23:30, 25 00:30-00:30, 25 01:30-01:30, 25 02:30-02:30");
    helsinki("until then", eventText(since21 + "RRULE:FREQ=DAILY;UNTIL=20261025T003000Z\r\n"),
             "24 00:30-00:45, 25 00:30-00:45");
    helsinki("added", eventText(since21 + "RDATE;TZID=Europe/Helsinki:20261025T031500\r\n"),
             "25 00:15-00:30");
    helsinki(
        "excluded",
        eventText(since21 + "RRULE:FREQ=DAILY\r\nEXDATE;TZID=Europe/Helsinki:20261025T033000\r\n"),
        "24 00:30-00:45, 26 01:30-01:45");
    helsinki("excluded in UTC",
             eventText(since21 + "RRULE:FREQ=DAILY\r\nEXDATE:20261025T003000Z\r\n"),
             "24 00:30-00:45, 26 01:30-01:45");
    helsinki("excluded when it floats",
             eventText("DTSTART:20261021T033000\r\nRRULE:FREQ=DAILY\r\nEXDATE:20261025T033000\r\n"),
             "24 00:30-00:30, 26 01:30-01:30");
    helsinki("replaced", eventText(since21 + "RRULE:FREQ=DAILY\r\n") + eventText(moved),
             "24 00:30-00:45, 25 12:00-12:30, 26 01:30-01:45");
    helsinki("replaced in UTC",
             eventText(since21 + "RRULE:FREQ=DAILY\r\n")
                 + eventText("RECURRENCE-ID:20261025T003000Z\r\nDTSTART:20261025T120000Z\r\n"),
             "24 00:30-00:45, 25 12:00-12:00, 26 01:30-01:45");
    // Programs that take the second name it so.
    helsinki("replaced in UTC by the second",
             eventText(since21 + "RRULE:FREQ=DAILY\r\n")
                 + eventText("RECURRENCE-ID:20261025T013000Z\r\nDTSTART:20261025T120000Z\r\n"),
             "24 00:30-00:45, 25 12:00-12:00, 26 01:30-01:45");
    helsinki(
        "replaced, every hour",
        eventText("DTSTART;TZID=Europe/Helsinki:20261025T023000\r\nRRULE:FREQ=HOURLY;COUNT=4\r\n")
            + eventText("RECURRENCE-ID:20261025T013000Z\r\nDTSTART:20261025T120000Z\r\n"),
        "24 23:30-23:30, 25 00:30-00:30, 25 02:30-02:30, 25 12:00-12:00");

    row("in New York", "UTC", QDate(2026, 11, 1),
        eventText("DTSTART;TZID=America/New_York:20261025T013000\r\nRRULE:FREQ=WEEKLY\r\n"),
        "1 05:30-05:30");
    row("in Sydney", "UTC", QDate(2026, 4, 4),
        eventText("DTSTART;TZID=Australia/Sydney:20260405T023000\r\n"), "4 15:30-15:30");
    row("half an hour on Lord Howe", "UTC", QDate(2026, 4, 4),
        eventText("DTSTART;TZID=Australia/Lord_Howe:20260329T014500\r\nRRULE:FREQ=WEEKLY\r\n"),
        "4 14:45-14:45");
    // A day of 25 hours that begins twice.
    row("all-day in Havana", "America/Havana", QDate(2023, 11, 5),
        eventText("DTSTART;VALUE=DATE:20231029\r\nRRULE:FREQ=WEEKLY\r\n"), "5 04:00-05:00");
}

void RepeatedHourTest::occurrences()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    qputenv("TZ", zone);
    KSystemTimeZones().configChanged();
    const QTemporaryDir folder;
    {
        const Home writer(folder.filePath(QStringLiteral("a.db")));
        QVERIFY(writer.import(text));
        QCOMPARE(writer.occurrences(day), expected);
    }
    const Home reader(folder.filePath(QStringLiteral("a.db")));
    QCOMPARE(reader.occurrences(day), expected);
    const Home elsewhere(folder.filePath(QStringLiteral("b.db")));
    QVERIFY(elsewhere.import(reader.exported()));
    QCOMPARE(elsewhere.occurrences(day), expected);
}

/// What a person has put into the second of the hours is there, too.
void RepeatedHourTest::secondPassStays()
{
    const QTimeZone zone("Europe/Helsinki");
    const QDateTime first(QDate(2026, 10, 25), QTime(0, 30), Qt::UTC);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("a.db"));
    {
        const Home writer(fileName);
        for (const QDateTime &start : {first, first.addSecs(3600)}) {
            const auto event = KCalCore::Event::Ptr::create();
            event->setDtStart(start.toTimeZone(zone));
            event->setDtEnd(start.addSecs(900).toTimeZone(zone));
            writer.calendar->addIncidence(event);
        }
        QVERIFY(writer.storage->save());
    }
    const QString expected = QStringLiteral("25 00:30-00:45, 25 01:30-01:45");
    const Home reader(fileName);
    QCOMPARE(reader.occurrences(first.date()), expected);
    const Home elsewhere(folder.filePath(QStringLiteral("b.db")));
    QVERIFY(elsewhere.import(reader.exported()));
    QCOMPARE(elsewhere.occurrences(first.date()), expected);
}

QTEST_GUILESS_MAIN(RepeatedHourTest)
#include "tst_repeatedhour.moc"
