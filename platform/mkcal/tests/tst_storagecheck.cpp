// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"
#include "sqlite/componentwriter.h"
#include "sqlite/connection.h"
#include "sqlite/metatable.h"
#include "sqlite/notebooktable.h"
#include "sqlite/schema.h"

#include <mkcal/storagecheck.h>

#include <KCalendarCore/Recurrence>

#include <QTemporaryDir>
#include <QtTest>

using namespace KCalCore;
using namespace mKCal;

namespace
{
constexpr int events = 300;
constexpr int pageSize = 4096;

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void overwrite(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QString problems(const CheckReport &report)
{
    return report.error + report.problems.join(QLatin1Char('\n'));
}
} // namespace

class TestStorageCheck : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void countsWhatIsThere();
    void findsFaults_data();
    void findsFaults();
    void cannotLookAt_data();
    void cannotLookAt();
    void repairNeedsItsFolder();
    void repairsWholeFileCompletely();
    void repairsDamagedFile_data();
    void repairsDamagedFile();
    void neverOverwrites();

private:
    void fill();
    void change(const char *sql);
    /// The page that holds the row of that identifier in the table Components.
    int pageOfRow(int id);

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_file;
    QString m_target;
};

void TestStorageCheck::init()
{
    m_folder.reset(new QTemporaryDir);
    m_file = m_folder->filePath(QStringLiteral("calendar.db"));
    m_target = m_folder->filePath(QStringLiteral("saved.db"));
    fill();
}

void TestStorageCheck::fill()
{
    Connection connection;
    QVERIFY(connection.open(m_file));
    QVERIFY(Schema::prepare(connection));
    Notebook notebook;
    notebook.setUid(QStringLiteral("nb"));
    notebook.setName(QStringLiteral("Work"));
    QVERIFY(NotebookTable(connection).insert(notebook));
    QVERIFY(MetaTable(connection).setDefaultNotebook(notebook.uid()));
    ComponentWriter writer(connection);
    Transaction transaction(connection);
    for (int i = 0; i < events; ++i) {
        const Event::Ptr event = plainEvent();
        event->setUid(QStringLiteral("event-%1").arg(i));
        event->setSummary(QStringLiteral("Event %1").arg(i), false);
        event->setDescription(QStringLiteral("lorem ipsum ").repeated(20), false);
        event->newAlarm()->setDisplayAlarm(QStringLiteral("Wake up"));
        QVERIFY(writer.insert(*event, notebook.uid(), i + 1));
    }
    const Event::Ptr series = plainEvent();
    series->setUid(QStringLiteral("series"));
    series->recurrence()->setDaily(1);
    QVERIFY(writer.insert(*series, notebook.uid(), 400));
    const Event::Ptr exception = plainEvent();
    exception->setUid(series->uid());
    exception->setRecurrenceId(helsinki(2011, 5, 9));
    QVERIFY(writer.insert(*exception, notebook.uid(), 400));
    QVERIFY(writer.insert(*plainTodo(), notebook.uid(), 401));
    const Journal::Ptr journal = plainJournal();
    journal->setUid(QStringLiteral("journal"));
    QVERIFY(writer.insert(*journal, notebook.uid(), 402));
    QVERIFY(writer.insertRetired(*plainEvent(), notebook.uid(), 403, false, 1000));
    QVERIFY(writer.insertRetired(*plainEvent(), notebook.uid(), 404, true, 1000));
    QVERIFY(transaction.commit());
}

void TestStorageCheck::change(const char *sql)
{
    Connection connection;
    QVERIFY(connection.open(m_file));
    QVERIFY2(connection.execute("PRAGMA foreign_keys = OFF") && connection.execute(sql),
             qPrintable(connection.lastError().message));
}

void TestStorageCheck::countsWhatIsThere()
{
    change("INSERT INTO Reminders(notebook, uid, alarm, time) VALUES ('nb', 'series', 0, 1)");
    const QByteArray before = contents(m_file);
    const CheckReport report = checkDatabase(m_file);
    QCOMPARE(problems(report), QString());
    QVERIFY(report.readable);
    QVERIFY(report.intact);
    QCOMPARE(report.schemaVersion, Schema::currentVersion);
    QCOMPARE(report.notebooks, 1);
    QCOMPARE(report.events, events + 2);
    QCOMPARE(report.todos, 1);
    QCOMPARE(report.journals, 1);
    QCOMPARE(report.deleted, 1);
    QCOMPARE(report.overwritten, 1);
    QCOMPARE(report.reminders, 1);
    QCOMPARE(contents(m_file), before);
}

void TestStorageCheck::findsFaults_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const char *damage, const char *words) {
        QTest::newRow(name) << QByteArray(damage) << QString::fromLatin1(words);
    };
    row("children of nobody",
        "INSERT INTO Attendee(comp, pos, role, status, rsvp) VALUES (9999, 0, 0, 0, 0)",
        "Attendee: 1 rows belong to no component");
    row("children that nobody asks for", "UPDATE Components SET flags = 0 WHERE id <= 3",
        "Alarm: 3 rows that their component does not know of");
    row("unknown notebook", "UPDATE Components SET notebook = 'gone' WHERE id IN (1, 2)",
        "2 components are in the unknown notebook \"gone\"");
    row("exception of a deleted series",
        "UPDATE Components SET state = 1 WHERE uid = 'series' AND recId = ''",
        "is left of a series that was deleted");
    row("wrong key", "UPDATE Components SET start = 0 WHERE id = 7",
        "row 7 (event-6): would not be found by its time");
    row("wrong identifier of an occurrence",
        "UPDATE Components SET recId = '20010101' WHERE recId <> ''",
        "would not be found by its time");
    row("unreadable zone", "UPDATE Components SET startTz = 'Atlantis' WHERE id = 7",
        "row 7 (event-6): 1 values cannot be read");
    row("unreadable row", "UPDATE Components SET type = 9 WHERE id = 7", "1 rows cannot be read");
}

void TestStorageCheck::findsFaults()
{
    QFETCH(QByteArray, damage);
    QFETCH(QString, words);
    change(damage.constData());
    const CheckReport report = checkDatabase(m_file);
    QVERIFY(report.readable);
    QVERIFY(!report.intact);
    QVERIFY2(problems(report).contains(words), qPrintable(problems(report)));

    const CheckReport repaired = repairDatabase(m_file, m_target);
    QCOMPARE(repaired.error, QString());
    QVERIFY(repaired.events >= events);
}

void TestStorageCheck::cannotLookAt_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("words");
    QTest::newRow("no database") << QByteArray("Dear diary").repeated(500) << "not a database";
    QTest::newRow("empty file") << QByteArray() << "not a calendar database";
}

void TestStorageCheck::cannotLookAt()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, words);
    m_file = m_folder->filePath(QStringLiteral("other.db"));
    overwrite(m_file, bytes);
    for (const CheckReport &report : {checkDatabase(m_file), repairDatabase(m_file, m_target)}) {
        QVERIFY(!report.readable);
        QVERIFY(!report.intact);
        QVERIFY2(report.error.contains(words) && report.error.contains(m_file),
                 qPrintable(report.error));
    }
    QVERIFY(!QFile::exists(m_target));
    QCOMPARE(contents(m_file), bytes);
    QVERIFY(!checkDatabase(m_folder->filePath(QStringLiteral("none.db"))).error.isEmpty());
}

void TestStorageCheck::repairNeedsItsFolder()
{
    const QString folder = m_folder->filePath(QStringLiteral("none"));
    const CheckReport report = repairDatabase(m_file, folder + QStringLiteral("/rescued.db"));
    QCOMPARE(report.error, QStringLiteral("%1/rescued.db: there is no folder \"%1\"").arg(folder));
    QVERIFY(!QFile::exists(folder));
}

void TestStorageCheck::repairsWholeFileCompletely()
{
    const CheckReport report = repairDatabase(m_file, m_target);
    QCOMPARE(problems(report), QString());
    QVERIFY(report.intact);
    QCOMPARE(report.events, events + 2);
    QCOMPARE(report.todos, 1);
    QCOMPARE(report.deleted, 1);
    QCOMPARE(report.overwritten, 1);
    Connection saved;
    QVERIFY(saved.open(m_target));
    QCOMPARE(MetaTable(saved).defaultNotebook(), QStringLiteral("nb"));
    Notebook::List notebooks;
    QVERIFY(NotebookTable(saved).read(&notebooks));
    QCOMPARE(notebooks.first()->name(), QStringLiteral("Work"));
    ChangeMark mark;
    QVERIFY(MetaTable(saved).readMark(&mark));
    QCOMPARE(mark.counter, 404);
}

int TestStorageCheck::pageOfRow(int id)
{
    // A row's text stands on its page as it is.
    const QByteArray text = "Event " + QByteArray::number(id - 1) + "lorem";
    return contents(m_file).indexOf(text) / pageSize;
}

void TestStorageCheck::repairsDamagedFile_data()
{
    QTest::addColumn<QVector<int>>("damagedRows");
    QTest::addColumn<int>("lostPages");
    QTest::newRow("garbage in the middle") << QVector<int>{150} << 0;
    QTest::newRow("garbage in two places") << QVector<int>{60, 240} << 0;
    QTest::newRow("garbage at the end") << QVector<int>{300} << 0;
    QTest::newRow("cut off") << QVector<int>() << 3;
}

void TestStorageCheck::repairsDamagedFile()
{
    QFETCH(QVector<int>, damagedRows);
    QFETCH(int, lostPages);
    QByteArray bytes = contents(m_file);
    for (const int id : qAsConst(damagedRows)) {
        QVERIFY(pageOfRow(id) > 0);
        bytes.replace(pageOfRow(id) * pageSize, pageSize, QByteArray(pageSize, '\x5a'));
    }
    bytes.chop(lostPages * pageSize);
    overwrite(m_file, bytes);

    const CheckReport found = checkDatabase(m_file);
    QVERIFY2(found.readable, qPrintable(found.error));
    QVERIFY(!found.intact);
    const CheckReport report = repairDatabase(m_file, m_target);
    QCOMPARE(report.error, QString());
    QVERIFY(!report.problems.isEmpty());
    QVERIFY2(report.events > events - 60, qPrintable(QString::number(report.events)));
    QVERIFY(report.events < events + 2 || lostPages > 0);
    QCOMPARE(contents(m_file), bytes);

    const CheckReport again = checkDatabase(m_target);
    QCOMPARE(problems(again), QString());
    QVERIFY(again.intact);
}

void TestStorageCheck::neverOverwrites()
{
    overwrite(m_target, "mine");
    const CheckReport report = repairDatabase(m_file, m_target);
    QVERIFY(report.error.contains(m_target));
    QCOMPARE(contents(m_target), QByteArray("mine"));
}

QTEST_GUILESS_MAIN(TestStorageCheck)

#include "tst_storagecheck.moc"
