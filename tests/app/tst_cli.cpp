// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clirunner.h"
#include "testtable.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

namespace
{
const QByteArray badCalendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:test\r\n"
                               "BEGIN:VEVENT\r\nUID:good\r\nDTSTAMP:20260101T000000Z\r\n"
                               "SUMMARY:Good\r\nDTSTART:20260501T080000Z\r\nEND:VEVENT\r\n"
                               "BEGIN:VEVENT\r\nUID:dateless\r\nDTSTAMP:20260101T000000Z\r\n"
                               "SUMMARY:Without a date\r\nEND:VEVENT\r\n"
                               "END:VCALENDAR\r\n";

QByteArray eventNamed(const char *summary)
{
    return QByteArray("BEGIN:VEVENT\r\nUID:named\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:") + summary
        + "\r\nDTSTART:20260501T080000Z\r\nEND:VEVENT\r\n";
}
} // namespace

/// How the program is called, and what goes in and out of it as iCalendar.
class TestCli : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void wrongUsage_data();
    void wrongUsage();
    void help_data();
    void help();
    void dataFolder();
    void importAgain();
    void importSkips();
    void importAlters();
    void importRefuses_data();
    void importRefuses();
    void importFromPipe();
    void fileNames();
    void roundTrip_data();
    void roundTrip();
    void exportToFile();
    void exportRefuses_data();
    void exportRefuses();
    void fullDevice_data();
    void fullDevice();
    void closedPipe();
};

void TestCli::wrongUsage_data()
{
    addColumns<QStringList, QString>("arguments", "message");
    const auto row = [](const QStringList &arguments, const char *message) {
        addRow(message, arguments, QString::fromUtf8(message));
    };
    row({}, "no command given; see 'daskel --help'");
    row({"frob"}, "there is no command 'frob'; see 'daskel --help'");
    row({"--frob"}, "unknown option 'frob'; see 'daskel --help'");
    row({"--data"}, "missing value after '--data'; see 'daskel --help'");
    row({"--data", "", "todos"},
        "todos: --data needs the name of a folder; see 'daskel todos --help'");
    row({"todos", "--frob"}, "todos: unknown option 'frob'; see 'daskel todos --help'");
    row({"todos", "--json=yes"},
        "todos: unexpected value after '--json'; see 'daskel todos --help'");
    row({"todos", "now"}, "todos: 'now' is too much; see 'daskel todos --help'");
    row({"notebooks", "now"}, "notebooks: 'now' is too much; see 'daskel notebooks --help'");
    row({"check", "now"}, "check: 'now' is too much; see 'daskel check --help'");
    row({"check", "--repair", ""}, "check: --repair needs the name of a new file");
    row({"import"}, "import: no file given; see 'daskel import --help'");
    row({"import", ""}, "import: the name of a file is empty");
    row({"export", ""}, "export: the name of the file is empty");
    row({"export", "a", "b"}, "export: 'b' is too much; see 'daskel export --help'");
    row({"show"}, "show: no UID given; see 'daskel show --help'");
    row({"search", " "}, "search: no text given");
    row({"notebook", "add"},
        "notebook: say add, edit, delete or default, and which notebook; "
        "see 'daskel notebook --help'");
}

void TestCli::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    CliRunner cli;
    const CliResult result = cli.runPlain(arguments);
    QCOMPARE(result.error, "daskel: " + message + '\n');
    QCOMPARE(result.out, QString());
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(QDir(cli.path(".local")).isEmpty(), "the person's own folder was touched");
}

void TestCli::help_data()
{
    addColumns<QStringList, QString>("arguments", "firstLine");
    const auto row = [](const QStringList &arguments, const char *firstLine) {
        addRow(firstLine, arguments, QString::fromUtf8(firstLine));
    };
    row({"--help"}, "Usage: daskel [options] COMMAND ...");
    row({"--version"}, "daskel 0.1.0");
    row({"import", "--help"}, "Usage: daskel import [options] FILE...");
    row({"export", "-h"}, "Usage: daskel export [options] [FILE]");
    row({"agenda", "--help"}, "Usage: daskel agenda [options]");
    row({"todos", "--help"}, "Usage: daskel todos [options]");
    row({"show", "--help"}, "Usage: daskel show [options] UID");
    row({"search", "--help"}, "Usage: daskel search [options] TEXT");
    row({"notebooks", "--help"}, "Usage: daskel notebooks [options]");
    row({"notebook", "--help"},
        "Usage: daskel notebook [options] add|edit|delete|default NOTEBOOK");
    row({"check", "--help"}, "Usage: daskel check [options]");
}

void TestCli::help()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, firstLine);
    const CliResult result = CliRunner().runPlain(arguments);
    QCOMPARE(result.out.section('\n', 0, 0), firstLine);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
}

void TestCli::dataFolder()
{
    CliRunner cli;
    QCOMPARE(cli.runPlain({"notebooks"}).exitCode, 0);
    QVERIFY(QFile::exists(cli.path(".local/share/daskel/calendar.db")));
    cli.environment.insert("XDG_DATA_HOME", cli.path("elsewhere"));
    QCOMPARE(cli.runPlain({"notebooks"}).exitCode, 0);
    QVERIFY(QFile::exists(cli.path("elsewhere/daskel/calendar.db")));

    // The option may stand before and after the command; the value may look like a command.
    QCOMPARE(cli.runPlain({"--data", "agenda", "agenda"}).exitCode, 0);
    QVERIFY(QFile::exists(cli.path("agenda/calendar.db")));
    QCOMPARE(cli.runPlain({"agenda", "--data", "a/b"}).exitCode, 0);
    QVERIFY(QFile::exists(cli.path("a/b/calendar.db")));

    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFile::permissions(cli.path("a/b")), owner | QFile::ExeOwner | QFile::ExeUser);
    QCOMPARE(QFile::permissions(cli.path("a/b/calendar.db")), owner);
}

void TestCli::importAgain()
{
    CliRunner cli;
    const QString file = cli.write("named.ics", eventNamed("First"));
    QCOMPARE(cli.run({"import", file}).out, "new 1, changed 0, same 0, skipped 0\n");
    QCOMPARE(cli.run({"import", file}).out, "new 0, changed 0, same 1, skipped 0\n");
    cli.write("named.ics", eventNamed("Second"));
    QCOMPARE(cli.run({"import", file}).out, "new 0, changed 1, same 0, skipped 0\n");
    QVERIFY(cli.run({"show", "named"}).out.startsWith("summary          Second\n"));
    const QStringList all = {"import", file, CliRunner::fixture("todos.ics"),
                             CliRunner::fixture("exceptions.ics")};
    QCOMPARE(cli.run(all).out, "new 17, changed 0, same 1, skipped 0\n");
    QCOMPARE(cli.run(all).out, "new 0, changed 0, same 18, skipped 0\n");
}

void TestCli::importSkips()
{
    CliRunner cli;
    cli.write("bad.ics", badCalendar);
    cli.write("empty.ics", QByteArray());
    const CliResult result = cli.run({"import", "bad.ics", "missing.ics", "empty.ics"});
    QCOMPARE(
        result.error.split('\n'),
        QStringList({"daskel: import: missing.ics: skipped: it cannot be read: "
                     "No such file or directory",
                     "daskel: import: bad.ics:10: skipped (dateless): "
                     "it has no start (DTSTART)",
                     "daskel: import: empty.ics: skipped: it is no iCalendar file", QString()}));
    QCOMPARE(result.out, "new 1, changed 0, same 0, skipped 3\n");
    QCOMPARE(result.exitCode, 3);
}

void TestCli::importAlters()
{
    CliRunner cli;
    cli.write("odd.ics",
              "BEGIN:VEVENT\r\nUID:zone\r\nDTSTART;TZID=Mars/Olympus:20260501T080000\r\n"
              "END:VEVENT\r\n"
              "BEGIN:VEVENT\r\nUID:end\r\nDTSTART:20260501T080000Z\r\n"
              "DTEND:20260501T070000Z\r\nEND:VEVENT\r\n");
    const QStringList lines{
        "daskel: import: odd.ics:1: altered (zone): its time zone is not known, "
        "its times are taken as local: Mars/Olympus",
        "daskel: import: odd.ics:5: altered (end): its end is before its start "
        "or too far away, and was left out",
        QString()};
    const CliResult first = cli.run({"import", "odd.ics"});
    QCOMPARE(first.error.split('\n'), lines);
    QCOMPARE(first.out, "new 2, changed 0, same 0, skipped 0\n");
    QCOMPARE(first.exitCode, 0);
    const CliResult again = cli.run({"import", "odd.ics"});
    QCOMPARE(again.error.split('\n'), lines);
    QCOMPARE(again.out, "new 0, changed 0, same 2, skipped 0\n");
}

void TestCli::importRefuses_data()
{
    addColumns<QStringList, QString>("arguments", "message");
    addRow("missing file", QStringList{"missing.ics"},
           "nothing was imported: no file could be read");
    addRow("folder", QStringList{"."}, "nothing was imported: no file could be read");
    addRow("unknown notebook", QStringList{"--notebook", "nix", "good.ics"},
           "there is no notebook 'nix'");
}

void TestCli::importRefuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    CliRunner cli;
    cli.write("good.ics", eventNamed("Good"));
    const CliResult result = cli.run(QStringList{"import"} + arguments);
    QVERIFY2(result.error.endsWith("daskel: import: " + message + '\n'), result.described());
    QCOMPARE(result.out, QString());
    QCOMPARE(result.exitCode, 1);
}

void TestCli::importFromPipe()
{
    CliRunner cli;
    QProcess process;
    process.setProcessEnvironment(cli.environment);
    process.start(CliRunner::program(), {"--data", cli.path("data"), "import", "/dev/stdin"});
    process.write(eventNamed("Piped"));
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(), "new 1, changed 0, same 0, skipped 0\n");
}

void TestCli::fileNames()
{
    // Names that are not ASCII, also where the locale does not tell of UTF-8.
    CliRunner cli;
    cli.environment.insert("LC_ALL", "C");
    const QString file = cli.write(QString::fromUtf8("häät.ics"), eventNamed("Häät"));
    QCOMPARE(cli.run({"import", file}).out, "new 1, changed 0, same 0, skipped 0\n");
    QCOMPARE(cli.run({"search", QString::fromUtf8("HÄÄT")}).out,
             QString::fromUtf8("2026-05-01 11:00  event    Häät  · named\n"));
    const CliResult missing = cli.run({"import", QString::fromUtf8("öö\n.ics")});
    QVERIFY2(missing.error.contains(QString::fromUtf8("öö\uFFFD.ics: skipped")),
             missing.described());
}

void TestCli::roundTrip_data()
{
    QTest::addColumn<QString>("calendar");
    const QStringList names = QDir(CliRunner::fixture(QString())).entryList({"*.ics"});
    for (const QString &name : names) {
        addRow(qPrintable(name), CliRunner::fixture(name));
    }
}

void TestCli::roundTrip()
{
    QFETCH(QString, calendar);
    CliRunner cli;
    const CliResult imported = cli.run({"import", calendar});
    const QString count = imported.out.section(' ', 1, 1).remove(',');
    QCOMPARE(cli.run({"export", cli.path("out.ics")}).exitCode, 0);
    // What was exported is what is there, and gives the same calendar elsewhere.
    QCOMPARE(cli.run({"import", cli.path("out.ics")}).out,
             "new 0, changed 0, same " + count + ", skipped 0\n");
    CliRunner other("America/New_York");
    QCOMPARE(other.run({"import", cli.path("out.ics")}).out,
             "new " + count + ", changed 0, same 0, skipped 0\n");
    other.environment.insert("TZ", "Europe/Helsinki");
    const QStringList year = {"agenda", "--json", "--from", "2026-01-01", "--to", "2026-12-31"};
    QCOMPARE(other.run(year).out, cli.run(year).out);
}

void TestCli::exportToFile()
{
    CliRunner cli;
    cli.run({"notebook", "add", "Work", "--uid", "work"});
    cli.run({"import", cli.write("a.ics", eventNamed("Mine"))});
    cli.run({"import", "--notebook", "Work", CliRunner::fixture("todos.ics")});
    cli.write("out.ics", "old content");
    const CliResult result = cli.run({"export", "--notebook", "work", "out.ics"});
    QCOMPARE(result.out + result.error, QString());
    const QByteArray exported = CliRunner::read(cli.path("out.ics"));
    QVERIFY(exported.startsWith("BEGIN:VCALENDAR\r\n"));
    QCOMPARE(exported.count("BEGIN:VTODO"), 7);
    QVERIFY(!exported.contains("Mine"));
    QCOMPARE(cli.run({"export", "--notebook", "Work"}).out.toUtf8(), exported);
    QCOMPARE(cli.run({"export", "--notebook", "nix"}).exitCode, 1);
}

void TestCli::exportRefuses_data()
{
    addColumns<QString, QString>("file", "reason");
    addRow("folder", "data", "it is a folder");
    addRow("no such folder", "none/out.ics", "No such file or directory");
    addRow("full device", "/dev/full", "No space left on device");
}

void TestCli::exportRefuses()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    CliRunner cli;
    cli.run({"import", CliRunner::fixture("todos.ics")});
    const CliResult result = cli.run({"export", file});
    QCOMPARE(result.error, QString("daskel: export: cannot write '%1': %2\n").arg(file, reason));
    QCOMPARE(result.exitCode, 1);
}

void TestCli::fullDevice_data()
{
    QTest::addColumn<QStringList>("arguments");
    addRow("agenda", QStringList{"agenda"});
    addRow("json", QStringList{"notebooks", "--json"});
    addRow("export", QStringList{"export"});
    addRow("help", QStringList{"export", "--help"});
}

void TestCli::fullDevice()
{
    QFETCH(QStringList, arguments);
    const CliResult result = CliRunner().runPlain(arguments, "/dev/full");
    QCOMPARE(result.error,
             QString("daskel: %1: cannot write to standard output: No space left on device\n")
                 .arg(arguments.first()));
    QCOMPARE(result.exitCode, 1);
}

void TestCli::closedPipe()
{
    CliRunner cli;
    cli.run({"import", CliRunner::fixture("midnight.ics")});
    // The reader takes one line of many thousands.
    QProcess shell;
    shell.setProcessEnvironment(cli.environment);
    shell.start("sh",
                {"-c", "\"$0\" --data \"$1\" agenda --from 2026-09-01 --days 3000 | head -n 1",
                 CliRunner::program(), cli.path("data")});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.readAllStandardOutput(), "2026-09-01 Tuesday\n");
    QCOMPARE(shell.readAllStandardError(), QByteArray());
}

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
