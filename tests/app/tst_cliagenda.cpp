// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clirunner.h"
#include "testtable.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace
{
QJsonArray toArray(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).array();
}

QStringList toLines(const QJsonArray &array)
{
    QStringList lines;
    for (const auto &value : array) {
        lines.append(
            QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact)));
    }
    return lines;
}

QString calendarOf(const QByteArray &components)
{
    return QStringLiteral("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:test\r\n%1END:VCALENDAR\r\n")
        .arg(QString::fromUtf8(components));
}
} // namespace

class TestCliAgenda : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void json_data();
    void json();
    void allDayIsTheSameInEveryZone();
    void systemZones_data();
    void systemZones();
    void offsetZones_data();
    void offsetZones();
    void text_data();
    void text();
    void nothing();
    void hourly_data();
    void hourly();
    void tooOften();
    void hiddenNotebook();
    void controlCharacters();
    void refusal_data();
    void refusal();
};

// Each fixture NAME.json names a calendar, the arguments, and the agenda that they give.
void TestCliAgenda::json_data()
{
    QTest::addColumn<QString>("fixture");
    const QDir fixtures(CliRunner::fixture(QString()));
    for (const QString &name : fixtures.entryList({"*.json"})) {
        addRow(qPrintable(name), fixtures.filePath(name));
    }
}

void TestCliAgenda::json()
{
    QFETCH(QString, fixture);
    const QJsonObject expected = QJsonDocument::fromJson(CliRunner::read(fixture)).object();
    QVERIFY(!expected.isEmpty());
    CliRunner cli;
    const QString calendar = expected.value("calendar").toString();
    const CliResult imported = cli.run({"import", CliRunner::fixture(calendar)});
    QVERIFY2(imported.exitCode == 0, imported.described());

    QStringList arguments{"agenda", "--json"};
    for (const auto &argument : expected.value("arguments").toArray()) {
        arguments.append(argument.toString());
    }
    const CliResult agenda = cli.run(arguments);
    QVERIFY2(agenda.exitCode == 0 && agenda.error.isEmpty(), agenda.described());
    const QStringList actualLines = toLines(toArray(agenda.out));
    const QStringList expectedLines = toLines(expected.value("agenda").toArray());
    for (int i = 0; i < qMin(actualLines.size(), expectedLines.size()); ++i) {
        QCOMPARE(actualLines.at(i), expectedLines.at(i));
    }
    QVERIFY2(actualLines.size() == expectedLines.size(), agenda.described());
}

void TestCliAgenda::allDayIsTheSameInEveryZone()
{
    CliRunner cli;
    cli.run({"import", CliRunner::fixture("all-day.ics")});
    const QStringList week{"agenda", "--json", "--from", "2026-05-01"};
    const QString here = cli.run(week).out;
    QVERIFY(toArray(here).size() > 5);
    for (const char *zone : {"Pacific/Kiritimati", "Pacific/Pago_Pago", "Australia/Lord_Howe"}) {
        QCOMPARE(cli.run(week + QStringList{"--zone", QLatin1String(zone)}).out, here);
        cli.environment.insert("TZ", QLatin1String(zone));
        QCOMPARE(cli.run(week).out, here);
        cli.environment.insert("TZ", "Europe/Helsinki");
    }
}

// However the system names its zone, what is bound to the wall clock stands where it stood.
void TestCliAgenda::systemZones_data()
{
    QTest::addColumn<QString>("setting");
    for (const char *setting :
         {"Europe/Helsinki", ":/usr/share/zoneinfo/Asia/Tokyo", "UTC", "UTC-5", "UTC+3",
          "<+0545>-5:45", "EET-2EEST", "EST5EDT,M3.2.0,M11.1.0", "EET-2EEST,M3.5.0/3,M10.5.0/4",
          "Mars/Olympus"}) {
        addRow(setting, QString::fromUtf8(setting));
    }
}

void TestCliAgenda::systemZones()
{
    QFETCH(QString, setting);
    CliRunner cli(setting);
    const QByteArray components = "BEGIN:VEVENT\r\nUID:a\r\nDTSTART;VALUE=DATE:20260105\r\n"
                                  "SUMMARY:Bins\r\nRRULE:FREQ=WEEKLY\r\nEND:VEVENT\r\n"
                                  "BEGIN:VEVENT\r\nUID:b\r\nDTSTART;VALUE=DATE:20260601\r\n"
                                  "SUMMARY:Trip\r\nDTEND;VALUE=DATE:20260608\r\nEND:VEVENT\r\n"
                                  "BEGIN:VEVENT\r\nUID:c\r\nDTSTART:20260105T090000\r\n"
                                  "SUMMARY:Run\r\nDTEND:20260105T093000\r\n"
                                  "RRULE:FREQ=DAILY;COUNT=149\r\nEND:VEVENT\r\n"
                                  "BEGIN:VTODO\r\nUID:d\r\nDUE;VALUE=DATE:20260105\r\n"
                                  "SUMMARY:Water\r\nDTSTART;VALUE=DATE:20260105\r\n"
                                  "RRULE:FREQ=WEEKLY;BYDAY=TU;UNTIL=20260602\r\nEND:VTODO\r\n";
    cli.run({"import", cli.write("wall.ics", calendarOf(components).toUtf8())});
    const CliResult agenda = cli.run({"agenda", "--from", "2026-06-01", "--days", "3"});
    QCOMPARE(agenda.out,
             QString::fromUtf8("2026-06-01 Monday\n"
                               "  all day      Bins  · Personal\n"
                               "  all day      Trip (day 1 of 7)  · Personal\n"
                               "  09:00–09:30  Run  · Personal\n"
                               "\n"
                               "2026-06-02 Tuesday\n"
                               "  all day      Trip (day 2 of 7)  · Personal\n"
                               "  due          [ ] Water  · Personal\n"
                               "  09:00–09:30  Run  · Personal\n"
                               "\n"
                               "2026-06-03 Wednesday\n"
                               "  all day      Trip (day 3 of 7)  · Personal\n"));
}

void TestCliAgenda::offsetZones_data()
{
    addColumns<QString, QString>("zone", "start");
    addRow("east", "UTC+05:45", "2026-05-01T13:45:00+05:45");
    addRow("west", "UTC-03:30", "2026-05-01T04:30:00-03:30");
    addRow("none", "UTC", "2026-05-01T08:00:00Z");
    addRow("rule", "EST5EDT", "2026-05-01T04:00:00-04:00");
}

void TestCliAgenda::offsetZones()
{
    QFETCH(QString, zone);
    CliRunner cli;
    cli.run({"import",
             cli.write("a.ics",
                       "BEGIN:VEVENT\r\nUID:a\r\n"
                       "DTSTART:20260501T080000Z\r\nEND:VEVENT\r\n")});
    const CliResult agenda = cli.run({"agenda", "--json", "--from", "2026-05-01", "--zone", zone});
    QTEST(toArray(agenda.out).first().toObject().value("start").toString(), "start");
}

void TestCliAgenda::text_data()
{
    addColumns<QString, QStringList, QString>("calendar", "arguments", "expected");

    addRow("overnight, trip and a meeting elsewhere", "clock-change-spring.ics",
           QStringList{"--from", "2026-03-25", "--to", "2026-03-29"},
           "2026-03-25 Wednesday\n"
           "  15:00–16:00  Call with New York [09:00 America/New_York]  · Personal\n"
           "\n"
           "2026-03-27 Friday\n"
           "  from 18:00   Trip (day 1 of 4)  · Personal\n"
           "\n"
           "2026-03-28 Saturday\n"
           "  all day      Trip (day 2 of 4)  · Personal\n"
           "  03:30–04:00  Baking  · Personal\n"
           "  from 23:00   Night watch (day 1 of 2)  · Personal\n"
           "\n"
           "2026-03-29 Sunday\n"
           "  all day      Set the clocks  · Personal\n"
           "  all day      Trip (day 3 of 4)  · Personal\n"
           "  until 05:00  Night watch (day 2 of 2)  · Personal\n"
           "  04:30–05:00  Baking  · Personal\n"
           "  09:30–10:30  Swim, Yrjönkatu  · Personal\n");
    addRow("midnight ends the day", "midnight.ics",
           QStringList{"--from", "2026-09-02", "--days", "1"},
           "2026-09-02 Wednesday\n"
           "  until 01:00  Over midnight (day 2 of 2)  · Personal\n"
           "  until 01:00  Night shift (day 2 of 2)  · Personal\n"
           "  00:00        At midnight  · Personal\n"
           "  12:00        At noon  · Personal\n"
           "  22:00–00:00  Evening  · Personal\n"
           "  from 23:00   Night shift (day 1 of 2)  · Personal\n");
    addRow("to-dos", "todos.ics", QStringList{"--from", "2026-07-01", "--to", "2026-07-03"},
           "2026-07-01 Wednesday\n"
           "  due          [x] Order chairs  · Personal\n"
           "\n"
           "2026-07-02 Thursday\n"
           "  due 12:00    [ ] Call the dentist  · Personal\n"
           "\n"
           "2026-07-03 Friday\n"
           "  due          [ ] Send the form  · Personal\n"
           "  due 16:00    [ ] Write down the hours  · Personal\n");
}

void TestCliAgenda::text()
{
    QFETCH(QString, calendar);
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    CliRunner cli;
    cli.run({"import", CliRunner::fixture(calendar)});
    const CliResult agenda = cli.run(QStringList{"agenda"} + arguments);
    QCOMPARE(agenda.error, QString());
    QCOMPARE(agenda.out, expected);
    QCOMPARE(agenda.exitCode, 0);
    // The locale of the terminal changes nothing.
    cli.environment.insert("LC_ALL", "C");
    QCOMPARE(cli.run(QStringList{"agenda"} + arguments).out, expected);
}

void TestCliAgenda::nothing()
{
    CliRunner cli;
    const CliResult agenda = cli.run({"agenda", "--from", "2026-03-25"});
    QCOMPARE(agenda.out, "Nothing from 2026-03-25 to 2026-03-31.\n");
    QCOMPARE(agenda.exitCode, 0);
    QCOMPARE(cli.run({"agenda", "--json"}).out, "[\n]\n");
}

void TestCliAgenda::hourly_data()
{
    addColumns<QString, int>("day", "count");
    addRow("an ordinary day", "2026-05-01", 24);
    addRow("the clocks go forward", "2026-03-29", 23);
    addRow("the clocks go back", "2026-10-25", 25);
}

void TestCliAgenda::hourly()
{
    QFETCH(QString, day);
    QFETCH(int, count);
    CliRunner cli;
    const QString file =
        cli.write("hourly.ics",
                  calendarOf("BEGIN:VEVENT\r\nUID:hourly\r\nDTSTAMP:20260101T000000Z\r\n"
                             "SUMMARY:Drops\r\nDTSTART;TZID=Europe/Helsinki:20260101T001500\r\n"
                             "DTEND;TZID=Europe/Helsinki:20260101T002000\r\n"
                             "RRULE:FREQ=HOURLY\r\nEND:VEVENT\r\n")
                      .toUtf8());
    cli.run({"import", file});
    const CliResult agenda = cli.run({"agenda", "--json", "--from", day, "--days", "1"});
    QSet<QDateTime> moments;
    for (const auto &entry : toArray(agenda.out)) {
        const QString start = entry.toObject().value("start").toString();
        QVERIFY2(start.startsWith(day) && start.mid(13, 3) == ":15", qPrintable(start));
        moments.insert(QDateTime::fromString(start, Qt::ISODate).toUTC());
    }
    QCOMPARE(moments.size(), count);
    QCOMPARE(toArray(agenda.out).size(), count);
}

void TestCliAgenda::tooOften()
{
    CliRunner cli;
    const QString file =
        cli.write("often.ics",
                  calendarOf("BEGIN:VEVENT\r\nUID:often\r\nDTSTAMP:20260101T000000Z\r\n"
                             "SUMMARY:Ticks\r\nDTSTART:20260101T000000Z\r\n"
                             "RRULE:FREQ=SECONDLY\r\nEND:VEVENT\r\n")
                      .toUtf8());
    cli.run({"import", file});
    const CliResult agenda = cli.run({"agenda", "--json", "--from", "2026-05-01", "--days", "1"});
    QCOMPARE(agenda.error, "daskel: agenda: 'Ticks' repeats too often to be listed whole\n");
    QCOMPARE(agenda.exitCode, 3);
    QCOMPARE(toArray(agenda.out).size(), 10000);
}

void TestCliAgenda::hiddenNotebook()
{
    CliRunner cli;
    cli.run({"notebook", "add", "Secret", "--uid", "secret", "--visible", "no"});
    cli.run({"import", "--notebook", "secret", CliRunner::fixture("midnight.ics")});
    const QStringList agenda{"agenda", "--json", "--from", "2026-09-02", "--days", "1"};
    QCOMPARE(toArray(cli.run(agenda).out).size(), 0);
    const QJsonArray all = toArray(cli.run(agenda + QStringList{"--all-notebooks"}).out);
    QCOMPARE(all.size(), 6);
    QCOMPARE(all.first().toObject().value("notebook").toString(), "secret");

    const QStringList search{"search", "night"};
    QCOMPARE(cli.run(search).out, "Nothing found.\n");
    QVERIFY(cli.run(search + QStringList{"--all-notebooks"}).out.contains("Night shift"));
    const QStringList exported{"export"};
    QVERIFY(!cli.run(exported).out.contains("Night shift"));
    QVERIFY(cli.run(exported + QStringList{"--all-notebooks"}).out.contains("Night shift"));
}

void TestCliAgenda::controlCharacters()
{
    CliRunner cli;
    const QString file =
        cli.write("escape.ics",
                  calendarOf("BEGIN:VEVENT\r\nUID:escape\r\nDTSTAMP:20260101T000000Z\r\n"
                             "SUMMARY:Red \x1b[31malert\\nsecond line\r\nLOCATION:\x1b]0;x\r\n"
                             "DTSTART:20260501T080000Z\r\nEND:VEVENT\r\n")
                      .toUtf8());
    cli.run({"import", file});
    for (const QStringList &arguments :
         {QStringList{"agenda", "--from", "2026-05-01"}, QStringList{"search", "alert"},
          QStringList{"show", "escape"}}) {
        const CliResult result = cli.run(arguments);
        QVERIFY2(result.out.contains("alert"), result.described());
        QVERIFY2(!result.out.contains(QLatin1Char('\x1b')), result.described());
    }
}

void TestCliAgenda::refusal_data()
{
    addColumns<QStringList, QString>("arguments", "message");

    const auto row = [](const char *name, const QStringList &arguments, const char *message) {
        addRow(name, arguments, QString::fromUtf8(message));
    };
    row("no such day", {"--from", "2026-02-30"},
        "--from: '2026-02-30' is not a date such as 2026-05-01");
    row("a tail after the day", {"--from", "2026-05-01x"},
        "--from: '2026-05-01x' is not a date such as 2026-05-01");
    row("other separators", {"--to", "2026/05/01"},
        "--to: '2026/05/01' is not a date such as 2026-05-01");
    row("empty date", {"--from="}, "--from: '' is not a date such as 2026-05-01");
    row("end before start", {"--from", "2026-05-02", "--to", "2026-05-01"},
        "the last day must be the first or one of the 3652 days after it");
    row("more than ten years", {"--from", "2026-05-02", "--to", "2126-05-01"},
        "the last day must be the first or one of the 3652 days after it");
    row("both ends", {"--to", "2026-05-02", "--days", "2"}, "--to and --days exclude each other");
    row("no days", {"--days", "0"}, "--days: '0' is not a number from 1 to 3653");
    row("days in words", {"--days", "two"}, "--days: 'two' is not a number from 1 to 3653");
    row("too many days", {"--days", "4000"}, "--days: '4000' is not a number from 1 to 3653");
    row("unknown zone", {"--zone", "Europe/Atlantis"},
        "--zone: there is no time zone 'Europe/Atlantis'");
    row("empty zone", {"--zone", ""}, "--zone: there is no time zone ''");
    row("a stray word", {"tomorrow"}, "'tomorrow' is too much; see 'daskel agenda --help'");
}

void TestCliAgenda::refusal()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    CliRunner cli;
    const CliResult result = cli.run(QStringList{"agenda"} + arguments);
    QCOMPARE(result.error, QStringLiteral("daskel: agenda: %1\n").arg(message));
    QCOMPARE(result.out, QString());
    QCOMPARE(result.exitCode, 2);
    QVERIFY(!QFile::exists(cli.databaseFile()));
}

QTEST_GUILESS_MAIN(TestCliAgenda)
#include "tst_cliagenda.moc"
