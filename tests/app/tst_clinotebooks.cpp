// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clirunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace
{
const char *const personal = "11111111-2222-3333-4444-555555555555";
const char *const notes = "66666666-7777-8888-9999-000000000000";

QJsonArray toArray(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).array();
}

QStringList values(const QString &json, const QString &key)
{
    QStringList list;
    const QJsonArray array = toArray(json);
    for (const auto &value : array) {
        list.append(value.toObject().value(key).toString());
    }
    return list;
}
} // namespace

/// Notebooks, and what is told of single items.
class TestCliNotebooks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fresh();
    void addAndEdit();
    void sameName();
    void defaultAndDelete();
    void refusal_data();
    void refusal();
    void todos();
    void show();
    void showText();
    void lonelyException();
    void search();
};

void TestCliNotebooks::fresh()
{
    CliRunner cli;
    QCOMPARE(cli.run({"notebooks"}).out,
             QString("%1  #63B33B  Personal (default)\n%2  #63B33B  Notes (not in lists)\n")
                 .arg(personal, notes));
    cli.environment.insert("LC_ALL", "C");
    QCOMPARE(values(cli.run({"notebooks", "--json"}).out, "name"),
             QStringList({"Personal", "Notes"}));
}

void TestCliNotebooks::addAndEdit()
{
    CliRunner cli;
    const QString uid = cli.run({"notebook", "add", QString::fromUtf8("Työ")}).out.trimmed();
    QVERIFY(uid.size() > 10);
    QCOMPARE(cli.run({"notebook", "edit", uid, "--name", "Work", "--color", "#12aBcD", "--visible",
                      "no", "--read-only", "yes", "--description", "Until five"})
                 .exitCode,
             0);
    const QJsonObject edited = toArray(cli.run({"notebooks", "--json"}).out).at(2).toObject();
    QCOMPARE(edited,
             QJsonObject({{"uid", uid},
                          {"name", "Work"},
                          {"description", "Until five"},
                          {"color", "#12aBcD"},
                          {"default", false},
                          {"visible", false},
                          {"hidden", false},
                          {"readOnly", true},
                          {"events", true},
                          {"todos", true},
                          {"journals", true}}));
    QVERIFY(cli.run({"notebooks"}).out.contains("Work (not visible, read-only)\n"));

    const CliResult imported =
        cli.run({"import", "--notebook", "Work", CliRunner::fixture("zones.ics")});
    QVERIFY2(imported.error.contains("(early): its notebook 'Work' takes no events"),
             imported.described());
    QCOMPARE(imported.exitCode, 3);
    // By name; an empty description is one.
    QCOMPARE(cli.run({"notebook", "edit", "Work", "--description", ""}).exitCode, 0);
    QCOMPARE(values(cli.run({"notebooks", "--json"}).out, "description").at(2), QString());
}

void TestCliNotebooks::sameName()
{
    CliRunner cli;
    cli.run({"notebook", "add", "Club", "--uid", "first"});
    cli.run({"notebook", "add", "Club", "--uid", "second"});
    const CliResult result = cli.run({"notebook", "default", "Club"});
    QCOMPARE(result.error,
             "daskel: notebook: 2 notebooks are named 'Club', give the UID of one: "
             "first, second\n");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(cli.run({"notebook", "default", "second"}).exitCode, 0);
    const CliResult again = cli.run({"notebook", "add", "Other", "--uid", "first"});
    QCOMPARE(again.error,
             QString("daskel: notebook: %1: the notebook \"first\" exists already\n")
                 .arg(cli.databaseFile()));
    QCOMPARE(again.exitCode, 1);
}

void TestCliNotebooks::defaultAndDelete()
{
    CliRunner cli;
    cli.run({"notebook", "add", "Work", "--uid", "work"});
    cli.run({"notebook", "default", "Work"});
    cli.run({"import", CliRunner::fixture("zones.ics")});
    const QStringList agenda = {"agenda", "--json", "--from", "2026-08-10", "--days", "1"};
    QVERIFY(values(cli.run(agenda).out, "notebook").contains("work"));
    QCOMPARE(cli.run({"notebook", "delete", "work"}).exitCode, 0);
    QCOMPARE(toArray(cli.run(agenda).out).size(), 0);
    QVERIFY(cli.run({"notebooks"})
                .out.startsWith(QString("%1  #63B33B  Personal (default)").arg(personal)));
    QVERIFY(cli.run({"check"}).out.contains("deleted, kept         6\n"));
}

void TestCliNotebooks::refusal_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("exitCode");
    const auto row = [](const QStringList &arguments, const char *message, int exitCode) {
        QTest::newRow(message) << arguments << QString::fromUtf8(message) << exitCode;
    };
    row({"frob", "x"}, "'frob' is none of add, edit, delete and default", 2);
    row({"add", " "}, "add: the notebook's name is empty", 2);
    row({"add", "A", "--name", "B"}, "add: --name does not belong here", 2);
    row({"add", "A", "--uid", ""}, "add: --uid is empty", 2);
    row({"delete", "Personal", "--color", "#000000"}, "delete: --color does not belong here", 2);
    row({"edit", "Personal"},
        "edit: nothing to change; give one of "
        "--name, --color, --description, --visible, --read-only",
        2);
    row({"edit", "Personal", "--name", ""}, "edit: --name is empty", 2);
    row({"edit", "Personal", "--color", "red"}, "--color: 'red' is not a colour such as #63B33B",
        2);
    row({"edit", "Personal", "--visible", "maybe"}, "--visible: 'maybe' is neither yes nor no", 2);
    row({"edit", "nix", "--name", "A"}, "there is no notebook 'nix'", 1);
    row({"delete", "nix"}, "there is no notebook 'nix'", 1);
    row({"default", "personal"}, "there is no notebook 'personal'", 1);
}

void TestCliNotebooks::refusal()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    QFETCH(int, exitCode);
    CliRunner cli;
    const QString before = cli.run({"notebooks", "--json"}).out;
    const CliResult result = cli.run(QStringList{"notebook"} + arguments);
    QCOMPARE(result.error, QString("daskel: notebook: %1\n").arg(message));
    QCOMPARE(result.out, QString());
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(cli.run({"notebooks", "--json"}).out, before);
}

void TestCliNotebooks::todos()
{
    CliRunner cli;
    QCOMPARE(cli.run({"todos"}).out, "Nothing to do.\n");
    cli.write("years.ics",
              "BEGIN:VTODO\r\nUID:old\r\nSUMMARY:Long ago\r\nDUE:20010203T040506Z\r\nEND:VTODO\r\n"
              "BEGIN:VTODO\r\nUID:far\r\nSUMMARY:One day\r\nDUE;VALUE=DATE:29991231\r\n"
              "END:VTODO\r\n"
              "BEGIN:VTODO\r\nUID:free\r\nEND:VTODO\r\n"
              "BEGIN:VTODO\r\nUID:done\r\nSUMMARY:Done\r\nDUE;VALUE=DATE:20010203\r\n"
              "STATUS:COMPLETED\r\nCOMPLETED:20010204T000000Z\r\nEND:VTODO\r\n"
              "BEGIN:VEVENT\r\nUID:event\r\nSUMMARY:No to-do\r\nDTSTART:20010203T040506Z\r\n"
              "END:VEVENT\r\n");
    QCOMPARE(cli.run({"import", "years.ics"}).exitCode, 0);
    const QString open = "[ ] 2001-02-03 06:05  Long ago (overdue)\n"
                         "[ ] 2999-12-31        One day\n"
                         "[ ]                   (no title)\n";
    QCOMPARE(cli.run({"todos"}).out, open);
    QCOMPARE(cli.run({"todos", "--all"}).out, open + "[x] 2001-02-03        Done\n");
    QCOMPARE(values(cli.run({"todos", "--json"}).out, "due"),
             QStringList({"2001-02-03T04:05:06Z", "2999-12-31", QString()}));
    QCOMPARE(values(cli.run({"todos", "--all", "--json"}).out, "uid"),
             QStringList({"old", "far", "free", "done"}));
    cli.run({"notebook", "edit", "Personal", "--visible", "no"});
    QCOMPARE(cli.run({"todos"}).out, "Nothing to do.\n");
    QCOMPARE(cli.run({"todos", "--all-notebooks"}).out, open);
}

void TestCliNotebooks::show()
{
    CliRunner cli;
    cli.run({"import", CliRunner::fixture("exceptions.ics")});
    const QJsonArray meeting = toArray(cli.run({"show", "meeting", "--json"}).out);
    QCOMPARE(meeting.size(), 4);
    const QJsonObject series = meeting.first().toObject();
    QCOMPARE(series.value("recurrenceId"), QJsonValue());
    QCOMPARE(series.value("start").toString(), "2026-06-01T10:00:00+03:00");
    QCOMPARE(series.value("zone").toString(), "Europe/Helsinki");
    QCOMPARE(series.value("rules").toArray(), QJsonArray({"RRULE:FREQ=WEEKLY;COUNT=6"}));
    QCOMPARE(series.value("excludedDates").toArray(), QJsonArray({"2026-06-22T10:00:00+03:00"}));
    QCOMPARE(values(cli.run({"show", "meeting", "--json"}).out, "recurrenceId").mid(1),
             QStringList({"2026-06-08T10:00:00+03:00", "2026-06-15T10:00:00+03:00",
                          "2026-06-29T10:00:00+03:00"}));
    const QJsonObject market = toArray(cli.run({"show", "market", "--json"}).out).at(1).toObject();
    QCOMPARE(market.value("recurrenceId").toString(), "2026-06-10");
    QCOMPARE(market.value("end").toString(), "2026-06-12");
    // People are told the last day.
    QVERIFY(cli.run({"show", "market"}).out.contains("end              2026-06-11\n"));
    QCOMPARE(market.value("zone"), QJsonValue());

    const CliResult missing = cli.run({"show", "nix"});
    QCOMPARE(missing.error, "daskel: show: there is no item with the UID 'nix'\n");
    QCOMPARE(missing.exitCode, 1);
}

void TestCliNotebooks::showText()
{
    CliRunner cli;
    cli.write("rich.ics",
              "BEGIN:VEVENT\r\nUID:rich\r\nSUMMARY:Dinner\r\nDTSTART:20260501T160000Z\r\n"
              "DTEND:20260501T180000Z\r\nLOCATION:Ravintola\r\nCATEGORIES:Food,Friends\r\n"
              "DESCRIPTION:Bring wine\\nand bread\r\nPRIORITY:2\r\nSTATUS:TENTATIVE\r\n"
              "ORGANIZER;CN=Aino:mailto:aino@example.com\r\n"
              "ATTENDEE;CN=Onni:mailto:onni@example.com\r\n"
              "ATTENDEE:mailto:elli@example.com\r\n"
              "BEGIN:VALARM\r\nACTION:DISPLAY\r\nDESCRIPTION:x\r\nTRIGGER:-PT1H30M\r\n"
              "END:VALARM\r\n"
              "BEGIN:VALARM\r\nACTION:DISPLAY\r\nDESCRIPTION:x\r\nTRIGGER;RELATED=END:PT0S\r\n"
              "END:VALARM\r\nEND:VEVENT\r\n");
    cli.run({"import", "rich.ics"});
    const QString text = cli.run({"show", "rich"}).out;
    QCOMPARE(text.left(text.indexOf("lastModified")),
             QString("summary          Dinner\n"
                     "type             event\n"
                     "start            2026-05-01T16:00:00Z\n"
                     "end              2026-05-01T18:00:00Z\n"
                     "zone             UTC\n"
                     "allDay           no\n"
                     "location         Ravintola\n"
                     "status           tentative\n"
                     "priority         2\n"
                     "alarms           1 h 30 min before the start; at the end\n"
                     "organizer        Aino <aino@example.com>\n"
                     "attendees        Onni <onni@example.com>; elli@example.com\n"
                     "categories       Food; Friends\n"
                     "description      Bring wine\n"
                     "                 and bread\n"
                     "notebook         Personal\n"
                     "uid              rich\n"));
}

void TestCliNotebooks::lonelyException()
{
    // An invitation to one meeting of somebody else's series.
    CliRunner cli;
    cli.write("lonely.ics",
              "BEGIN:VEVENT\r\nUID:lonely\r\nSUMMARY:Guest\r\nRECURRENCE-ID:20260501T160000Z\r\n"
              "DTSTART:20260501T170000Z\r\nDTEND:20260501T180000Z\r\nEND:VEVENT\r\n");
    cli.run({"import", "lonely.ics"});
    QCOMPARE(values(cli.run({"show", "lonely", "--json"}).out, "recurrenceId"),
             QStringList({"2026-05-01T16:00:00Z"}));
    QCOMPARE(values(cli.run({"agenda", "--json", "--from", "2026-05-01"}).out, "start"),
             QStringList({"2026-05-01T20:00:00+03:00"}));
}

void TestCliNotebooks::search()
{
    CliRunner cli;
    cli.run({"import", CliRunner::fixture("clock-change-spring.ics")});
    QCOMPARE(cli.run({"search", "YRJÖNKATU"}).out,
             QString::fromUtf8("2026-03-22 09:30  event    Swim  · swim\n"));
    QCOMPARE(cli.run({"search", "new", "york"}).out,
             QString::fromUtf8("2026-03-25 15:00  event    Call with New York  · call\n"));
    QCOMPARE(values(cli.run({"search", "n", "--json"}).out, "uid").first(), "watch");
    const CliResult nothing = cli.run({"search", "xyzzy"});
    QCOMPARE(nothing.out, "Nothing found.\n");
    QCOMPARE(nothing.exitCode, 0);
    QCOMPARE(cli.run({"search", "%"}).out, "Nothing found.\n");
}

QTEST_GUILESS_MAIN(TestCliNotebooks)
#include "tst_clinotebooks.moc"
