// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/componentreader.h"
#include "sqlite/connection.h"
#include "sqlite/schema.h"
#include "sqlite/statement.h"
#include "testtable.h"

#include <QCryptographicHash>
#include <QTemporaryDir>
#include <QtTest>

#include <sqlite3.h>
#include <thread>

using namespace mKCal;

namespace
{
constexpr auto ownerOnly =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes a database that somebody else wrote, by plain SQLite.
void writeDatabase(const QString &fileName, const QByteArray &sql)
{
    sqlite3 *database = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(fileName).constData(), &database), SQLITE_OK);
    QCOMPARE(sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(database);
}

QStringList texts(Connection &connection, const QByteArray &query)
{
    QStringList result;
    Statement statement(connection, query);
    while (statement.next())
        result.append(statement.text(0));
    return result;
}

/// What made the files of version 0, and an event in it.
QByteArray firstVersion()
{
    return contents(QStringLiteral(":/mkcal/schema/0.sql")) + R"(
INSERT INTO Notebooks VALUES ('nb', 1, 'Work', '', '#ff0000', 0, 1, 0, 0, 1, 0, 1, 1, 1,
    NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO Components(id, notebook, uid, change, type, span, start, end, until, flags,
    startWall, startTz, endWall, endTz, summary)
VALUES (1, 'nb', 'old-event', 1, 0, 0, 1304319600, 1304323200, 1304323200, 1,
    1304330400000, 'Europe/Helsinki', 1304334000000, 'Europe/Helsinki', 'Dentist');
INSERT INTO Alarm(comp, pos, type, enabled, relation, offset, text)
VALUES (1, 0, 1, 1, 1, -900, 'Leave');
PRAGMA application_id = 1685285740;)";
}

QStringList schemaOf(Connection &connection)
{
    return texts(connection, "SELECT sql FROM sqlite_master WHERE sql NOT NULL ORDER BY sql");
}
} // namespace

class TestSchema : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void makesPrivateFile();
    void firstVersionStaysAsItIs();
    void upgradesOlderVersion();
    void failedUpgradeLeavesTheFile();
    void refuses_data();
    void refuses();
    void manyProcessesMakeItAtOnce();
    void findsByIndex_data();
    void findsByIndex();

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_file;
};

void TestSchema::init()
{
    m_folder.reset(new QTemporaryDir);
    m_file = m_folder->filePath(QStringLiteral("private/calendar.db"));
}

void TestSchema::makesPrivateFile()
{
    Connection connection;
    QVERIFY(connection.open(m_file));
    QVERIFY(Schema::prepare(connection));
    QCOMPARE(Schema::version(connection), Schema::currentVersion);
    QVERIFY(Schema::prepare(connection));
    QCOMPARE(QFile::permissions(m_file), ownerOnly);
    QCOMPARE(QFile::permissions(m_file + QLatin1String("-wal")), ownerOnly);
    QCOMPARE(QFile::permissions(QFileInfo(m_file).path()),
             ownerOnly | QFile::ExeOwner | QFile::ExeUser);
    QCOMPARE(QDir(QFileInfo(m_file).path()).entryList({QStringLiteral("*.v*")}), QStringList());
}

/// Its files are out there: whatever changes is another step.
void TestSchema::firstVersionStaysAsItIs()
{
    const QByteArray script = contents(QStringLiteral(":/mkcal/schema/0.sql"));
    QCOMPARE(QCryptographicHash::hash(script, QCryptographicHash::Sha1).toHex(),
             QByteArray("d074acb2129bb699707afd75a832628da487c5fb"));
}

void TestSchema::upgradesOlderVersion()
{
    Connection connection;
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    writeDatabase(m_file, firstVersion());
    QVERIFY(connection.open(m_file));
    QVERIFY2(Schema::prepare(connection), qPrintable(connection.lastError().message));
    QCOMPARE(Schema::version(connection), Schema::currentVersion);

    Connection fresh;
    QVERIFY(fresh.open(m_folder->filePath(QStringLiteral("fresh.db"))));
    QVERIFY(Schema::prepare(fresh));
    QCOMPARE(schemaOf(connection), schemaOf(fresh));

    ComponentReader reader(connection);
    KCalCore::Incidence::Ptr read;
    QVERIFY(reader.read("state = 0", {}, [&read](const ComponentRow &row) {
        read = row.incidence;
        return true;
    }));
    QVERIFY(read);
    QCOMPARE(read->summary(), QStringLiteral("Dentist"));
    QCOMPARE(read->alarms().size(), 1);

    const QDir folder(QFileInfo(m_file).path());
    const QStringList copies = folder.entryList({QStringLiteral("calendar.db.v0-20*T*Z")});
    QCOMPARE(copies.size(), 1);
    QCOMPARE(QFile::permissions(folder.filePath(copies.first())), ownerOnly);
    Connection copy;
    QVERIFY(copy.open(folder.filePath(copies.first()), Connection::ReadOnly));
    QCOMPARE(Schema::version(copy), 0);
    QCOMPARE(texts(copy, "SELECT summary FROM Components"), QStringList{QStringLiteral("Dentist")});
}

void TestSchema::failedUpgradeLeavesTheFile()
{
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    // The step makes a table of that name.
    writeDatabase(m_file, firstVersion() + "CREATE TABLE Reminders(id INTEGER)");
    Connection connection;
    QVERIFY(connection.open(m_file));
    const QStringList before = schemaOf(connection);
    QVERIFY(!Schema::prepare(connection));
    QVERIFY(connection.lastError().message.contains(m_file));
    QVERIFY(!connection.inTransaction());
    QCOMPARE(schemaOf(connection), before);
    QCOMPARE(Schema::version(connection), 0);
}

void TestSchema::refuses_data()
{
    addColumns<QByteArray, QByteArray, int, QString>("sql", "bytes", "code", "words");

    addRow("newer version",
           QByteArray("PRAGMA journal_mode = WAL; CREATE TABLE Meta(key);"
                      " PRAGMA application_id = 1685285740;"
                      " PRAGMA user_version = 99"),
           QByteArray(), SQLITE_MISMATCH, QStringLiteral("newer version"));
    addRow("database of another program", QByteArray("CREATE TABLE songs(name)"), QByteArray(),
           SQLITE_NOTADB, QStringLiteral("not a calendar database"));
    addRow("no database", QByteArray(), QByteArray("Dear diary, ").repeated(1000), SQLITE_NOTADB,
           QStringLiteral("not a database"));
}

void TestSchema::refuses()
{
    QFETCH(QByteArray, sql);
    QFETCH(QByteArray, bytes);
    m_file = m_folder->filePath(QStringLiteral("other.db"));
    if (bytes.isEmpty()) {
        writeDatabase(m_file, sql);
    } else {
        QFile file(m_file);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    const QByteArray before = contents(m_file);
    Connection connection;
    QVERIFY(!(connection.open(m_file) && Schema::prepare(connection)));
    QTEST(connection.lastError().primary, "code");
    QFETCH(QString, words);
    QVERIFY2(connection.lastError().message.contains(words),
             qPrintable(connection.lastError().message));
    QVERIFY(connection.lastError().message.contains(m_file));
    connection.close();
    QCOMPARE(contents(m_file), before);
}

void TestSchema::manyProcessesMakeItAtOnce()
{
    constexpr int openers = 4;
    std::array<QString, openers> errors;
    std::array<std::thread, openers> threads;
    for (std::size_t i = 0; i < openers; ++i) {
        threads[i] = std::thread([this, &error = errors[i]] {
            Connection connection;
            if (!connection.open(m_file) || !Schema::prepare(connection))
                error = connection.lastError().message;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const QString &error : errors)
        QCOMPARE(error, QString());
}

void TestSchema::findsByIndex_data()
{
    addColumns<QByteArray, QString>("condition", "index");

    const auto row = [](const char *name, const char *condition, const char *index) {
        addRow(name, QByteArray(condition), QString::fromLatin1(index));
    };
    row("short ones of a range", "state = 0 AND span = 0 AND start >= ? AND start < ? AND end > ?",
        "ComponentsSpan");
    row("long ones of a range", "state = 0 AND span = 1 AND start < ? AND end > ?",
        "ComponentsSpan");
    row("series alive in a range", "state = 0 AND span = 2 AND until > ? AND start < ?",
        "ComponentsSeries");
    row("open to-dos", "state = 0 AND type = 1 AND completed = 0", "ComponentsOpen");
    row("page of completed to-dos",
        "state = 0 AND type = 1 AND completed > 0 AND completed < ? ORDER BY completed DESC LIMIT "
        "?",
        "ComponentsCompleted");
    row("journals", "state = 0 AND type = 2", "ComponentsJournal");
    row("one with its exceptions", "state = 0 AND uid = ?", "ComponentsLive");
    row("one", "state = 0 AND uid = ? AND recId = ?", "ComponentsLive");
    row("tombstones of one", "state = 1 AND uid = ? AND recId = ?", "ComponentsDeleted");
    row("deleted since", "state = 1 AND stateTime >= ?", "ComponentsDeletedTime");
    row("overwritten versions of one", "state = 2 AND uid = ?", "ComponentsOverwritten");
    row("changes since", "change > ?", "ComponentsChange");
    row("a notebook", "state = 0 AND notebook = ?", "ComponentsNotebook");
}

void TestSchema::findsByIndex()
{
    QFETCH(QByteArray, condition);
    QFETCH(QString, index);
    Connection connection;
    QVERIFY(connection.open(m_file));
    QVERIFY(Schema::prepare(connection));
    Statement plan(connection, "EXPLAIN QUERY PLAN SELECT * FROM Components WHERE " + condition);
    QVERIFY(plan.next());
    const QString words = plan.text(3);
    QVERIFY2(words.split(QLatin1Char(' ')).contains(index), qPrintable(words));
    QVERIFY2(!plan.next(), "sorted, or looked up more than once");
}

QTEST_GUILESS_MAIN(TestSchema)

#include "tst_schema.moc"
