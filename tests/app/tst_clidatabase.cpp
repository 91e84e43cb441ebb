// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clirunner.h"
#include "testtable.h"

#include <QDir>
#include <QtTest>

#include <sqlite3.h>

namespace
{
constexpr int pageSize = 4096;

QByteArray manyEvents(int count)
{
    QByteArray calendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:test\r\n";
    for (int i = 0; i < count; ++i) {
        calendar += "BEGIN:VEVENT\r\nUID:many-" + QByteArray::number(i)
            + "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:Event " + QByteArray::number(i)
            + "\r\nDESCRIPTION:" + QByteArray(200, 'x')
            + "\r\nDTSTART:20260501T080000Z\r\nDTEND:20260501T090000Z\r\nEND:VEVENT\r\n";
    }
    return calendar + "END:VCALENDAR\r\n";
}

/// Another program that has the database to itself.
class Lock
{
public:
    explicit Lock(const QString &fileName)
    {
        sqlite3_open(fileName.toUtf8().constData(), &m_database);
        m_code = sqlite3_exec(m_database, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    }
    ~Lock() { sqlite3_close(m_database); }
    Q_DISABLE_COPY(Lock)
    bool isHeld() const { return m_code == SQLITE_OK; }

private:
    sqlite3 *m_database = nullptr;
    int m_code = SQLITE_ERROR;
};
} // namespace

/// What the program does with database files that are damaged, foreign or in use.
class TestCliDatabase : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void check();
    void checkWithoutDatabase();
    void unusable_data();
    void unusable();
    void locked();
    void damaged();
    void cutOff();
    void manyAtOnce();
};

void TestCliDatabase::check()
{
    CliRunner cli;
    cli.run({"import", CliRunner::fixture("todos.ics"), CliRunner::fixture("all-day.ics")});
    const QByteArray before = CliRunner::read(cli.databaseFile());
    const CliResult result = cli.run({"check"});
    QVERIFY2(result.out.contains("notebooks             2\n"
                                 "events                9\n"
                                 "to-dos                7\n"
                                 "journals              0\n"
                                 "deleted, kept         0\n"),
             result.described());
    QVERIFY(result.out.endsWith("The database is in order.\n"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(CliRunner::read(cli.databaseFile()), before);
}

void TestCliDatabase::checkWithoutDatabase()
{
    CliRunner cli;
    const CliResult result = cli.run({"check"});
    QCOMPARE(result.error,
             QString("daskel: check: there is no database file '%1'\n").arg(cli.databaseFile()));
    QCOMPARE(result.exitCode, 1);
    QVERIFY(!QFile::exists(cli.path("data")));
}

void TestCliDatabase::unusable_data()
{
    addColumns<QString, QString>("place", "message");
    addRow("not a database", "calendar.db", "%1/calendar.db: file is not a database");
    addRow("a folder in its place", "calendar.db/", "'%1/calendar.db' is a folder");
    addRow("a file in the folder's place", "", "cannot make the folder '%1'");
}

void TestCliDatabase::unusable()
{
    QFETCH(QString, place);
    QFETCH(QString, message);
    const QByteArray content(2000, 'n');
    for (const QStringList &arguments :
         {QStringList{"agenda"}, QStringList{"todos"}, QStringList{"notebooks"},
          QStringList{"export"}, QStringList{"search", "x"}, QStringList{"show", "x"},
          QStringList{"notebook", "add", "x"},
          QStringList{"import", CliRunner::fixture("todos.ics")}}) {
        CliRunner cli;
        if (place.endsWith('/')) {
            QDir(cli.path({})).mkpath("data/" + place);
        } else if (place.isEmpty()) {
            cli.write("data", content);
        } else {
            QDir(cli.path({})).mkpath("data");
            cli.write("data/" + place, content);
        }
        const CliResult result = cli.run(arguments);
        QVERIFY2(result.error.startsWith("daskel: " + arguments.first() + ": cannot")
                     && result.error.contains(message.arg(cli.path("data")))
                     && result.error.count('\n') == 1,
                 result.described());
        QCOMPARE(result.out, QString());
        QCOMPARE(result.exitCode, 1);
        if (!place.endsWith('/')) {
            QCOMPARE(CliRunner::read(cli.path(place.isEmpty() ? "data" : "data/" + place)),
                     content);
        }
    }
}

void TestCliDatabase::locked()
{
    CliRunner cli;
    cli.run({"import", CliRunner::fixture("todos.ics")});
    const Lock lock(cli.databaseFile());
    QVERIFY(lock.isHeld());
    const CliResult result = cli.run({"notebook", "add", "Work"});
    QCOMPARE(result.error,
             QString("daskel: notebook: %1: database is locked\n").arg(cli.databaseFile()));
    QCOMPARE(result.exitCode, 1);
    // Who only reads is not kept waiting for nothing.
    QVERIFY(cli.run({"todos"}).out.contains("Call the dentist"));
}

void TestCliDatabase::damaged()
{
    CliRunner cli;
    cli.write("many.ics", manyEvents(2000));
    QCOMPARE(cli.run({"import", "many.ics"}).exitCode, 0);
    QByteArray content = CliRunner::read(cli.databaseFile());
    const int middle = content.size() / pageSize / 3 * pageSize;
    content.replace(middle, 4 * pageSize, QByteArray(4 * pageSize, '\xa5'));
    cli.write("data/calendar.db", content);

    const CliResult found = cli.run({"check"});
    QVERIFY2(found.error.contains("daskel: check: ") && found.error.count('\n') <= 21,
             found.described());
    QVERIFY(found.out.contains("The database is damaged"));
    QCOMPARE(found.exitCode, 1);

    const CliResult nowhere = cli.run({"check", "--repair", "saved/calendar.db"});
    QVERIFY2(nowhere.exitCode == 1 && nowhere.error.contains("there is no folder"),
             nowhere.described());
    QVERIFY(QDir(cli.path({})).mkdir("saved"));
    const CliResult saved = cli.run({"check", "--repair", cli.path("saved/calendar.db")});
    QVERIFY2(saved.exitCode == 3 && saved.error.contains("lost"), saved.described());
    QCOMPARE(CliRunner::read(cli.databaseFile()), content);
    const CliResult whole = cli.runPlain({"--data", cli.path("saved"), "check"});
    QVERIFY2(whole.exitCode == 0, whole.described());
    const CliResult rest = cli.runPlain({"--data", cli.path("saved"), "search", "Event"});
    QVERIFY2(rest.out.count('\n') > 1800, rest.described());
    QVERIFY(rest.out.contains(QString::fromUtf8(" · many-1999\n")));

    const CliResult again = cli.run({"check", "--repair", cli.path("saved/calendar.db")});
    QVERIFY2(again.exitCode == 1 && again.error.contains("already a file of that name"),
             again.described());
}

void TestCliDatabase::cutOff()
{
    CliRunner cli;
    cli.write("many.ics", manyEvents(2000));
    QCOMPARE(cli.run({"import", "many.ics"}).exitCode, 0);
    const QByteArray content = CliRunner::read(cli.databaseFile()).left(25 * pageSize);
    cli.write("data/calendar.db", content);
    const CliResult agenda = cli.run({"agenda", "--from", "2026-05-01"});
    QVERIFY2(
        agenda.exitCode == 1
            && agenda.error.contains(cli.databaseFile() + ": database disk image is malformed"),
        agenda.described());
    QCOMPARE(cli.run({"check"}).exitCode, 1);
    const CliResult saved = cli.run({"check", "--repair", cli.path("saved.db")});
    QVERIFY2(saved.exitCode == 3 && !saved.error.isEmpty(), saved.described());
    QCOMPARE(CliRunner::read(cli.databaseFile()), content);
}

void TestCliDatabase::manyAtOnce()
{
    CliRunner cli;
    cli.write("many.ics", manyEvents(10000));
    QCOMPARE(cli.run({"import", "many.ics"}).out, "new 10000, changed 0, same 0, skipped 0\n");
    QCOMPARE(cli.run({"import", "many.ics"}).out, "new 0, changed 0, same 10000, skipped 0\n");
    const CliResult day = cli.run({"agenda", "--from", "2026-05-01", "--days", "1"});
    QCOMPARE(day.out.count('\n'), 10001);
    QCOMPARE(cli.run({"export"}).out.count("BEGIN:VEVENT"), 10000);
}

QTEST_GUILESS_MAIN(TestCliDatabase)
#include "tst_clidatabase.moc"
