// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/connection.h"
#include "sqlite/statement.h"
#include "testtable.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sqlite3.h>

using namespace mKCal;

class TestSqliteConnection : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void bindsAndReads_data();
    void bindsAndReads();
    void transactionIsUndoneUnlessCommitted();
    void lockedDatabase();
    void fullDisk();
    void readsWithoutWriting();

private:
    int rows(Connection &connection);

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_file;
    Connection m_connection;
};

void TestSqliteConnection::init()
{
    m_folder.reset(new QTemporaryDir);
    m_file = m_folder->filePath(QStringLiteral("calendar.db"));
    QVERIFY(m_connection.open(m_file));
    QVERIFY(m_connection.execute("CREATE TABLE T(value)"));
    m_connection.clearErrors();
}

void TestSqliteConnection::cleanup()
{
    m_connection.close();
}

int TestSqliteConnection::rows(Connection &connection)
{
    Statement count(connection, "SELECT count(*) FROM T");
    return count.next() ? count.smallInteger(0) : -1;
}

Q_DECLARE_METATYPE(mKCal::SqlValue)

void TestSqliteConnection::bindsAndReads_data()
{
    addColumns<SqlValue, QString>("value", "type");
    addRow("null", SqlValue(), "null");
    addRow("null text", SqlValue(QString()), "null");
    addRow("empty text", SqlValue(QStringLiteral("")), "text");
    addRow("text", SqlValue(QStringLiteral("ä 🎂")), "text");
    addRow("integer", SqlValue(std::numeric_limits<qint64>::min()), "integer");
    addRow("real", SqlValue(0.1), "real");
    addRow("bytes", SqlValue(QByteArray("\0\xff", 2)), "blob");
    addRow("no bytes", SqlValue(QByteArray("")), "blob");
}

void TestSqliteConnection::bindsAndReads()
{
    QFETCH(SqlValue, value);
    Statement insert(m_connection, "INSERT INTO T VALUES (?)");
    insert.bindAll({value});
    QVERIFY(insert.run());
    QCOMPARE(m_connection.changes(), 1);
    Statement select(m_connection, "SELECT value, typeof(value) FROM T");
    QVERIFY(select.next());
    QTEST(select.text(1), "type");
    if (std::holds_alternative<QString>(value)) {
        QCOMPARE(select.text(0), std::get<QString>(value));
        QCOMPARE(select.text(0).isNull(), std::get<QString>(value).isNull());
    } else if (std::holds_alternative<QByteArray>(value)) {
        QCOMPARE(select.bytes(0), std::get<QByteArray>(value));
        QVERIFY(select.isBlob(0));
    } else if (std::holds_alternative<qint64>(value)) {
        QCOMPARE(select.integer(0), std::get<qint64>(value));
        QCOMPARE(select.smallInteger(0), std::numeric_limits<int>::min());
    } else if (std::holds_alternative<double>(value)) {
        QCOMPARE(select.real(0), std::get<double>(value));
    } else {
        QVERIFY(select.isNull(0));
    }
}

void TestSqliteConnection::transactionIsUndoneUnlessCommitted()
{
    {
        Transaction transaction(m_connection);
        QVERIFY(transaction.isActive());
        QVERIFY(m_connection.execute("INSERT INTO T VALUES (1)"));
    }
    QCOMPARE(rows(m_connection), 0);
    Transaction transaction(m_connection);
    QVERIFY(m_connection.execute("INSERT INTO T VALUES (1)"));
    QVERIFY(transaction.commit());
    QVERIFY(!m_connection.inTransaction());
    QCOMPARE(rows(m_connection), 1);
}

void TestSqliteConnection::lockedDatabase()
{
    Connection other;
    QVERIFY(other.open(m_file));
    const Transaction theirs(other);
    QVERIFY(theirs.isActive());
    sqlite3_busy_timeout(m_connection.handle(), 0);
    Transaction ours(m_connection);
    QVERIFY(!ours.isActive());
    QVERIFY(!ours.commit());
    QCOMPARE(m_connection.errorCodes(), QList<int>{SQLITE_BUSY});
}

void TestSqliteConnection::fullDisk()
{
    QVERIFY(m_connection.execute("PRAGMA max_page_count = 20"));
    Statement insert(m_connection, "INSERT INTO T VALUES (?)");
    {
        Transaction transaction(m_connection);
        bool written = true;
        for (int i = 0; written && i < 100; ++i) {
            insert.bind(1, QByteArray(4000, 'x'));
            written = insert.run();
        }
        QVERIFY(!written);
        QCOMPARE(insert.code() & 0xff, SQLITE_FULL);
        QVERIFY(!m_connection.lastError().message.isEmpty());
    }
    QVERIFY(!m_connection.inTransaction());
    QCOMPARE(m_connection.errorCodes(), QList<int>{SQLITE_FULL});
    QCOMPARE(rows(m_connection), 0);
    // The same statement works again once there is room.
    QVERIFY(m_connection.execute("PRAGMA max_page_count = 1000"));
    QVERIFY(insert.run());
    QVERIFY(!insert.failed());
}

void TestSqliteConnection::readsWithoutWriting()
{
    QVERIFY(m_connection.execute("INSERT INTO T VALUES (1)"));
    Connection reading;
    QVERIFY(reading.open(m_file, Connection::ReadOnly));
    QCOMPARE(rows(reading), 1);
    QVERIFY(!reading.execute("INSERT INTO T VALUES (2)"));
    QCOMPARE(reading.lastError().primary, SQLITE_READONLY);
    reading.close();
    QVERIFY(!reading.execute("SELECT 1"));
    QVERIFY(!Statement(reading, "SELECT 1").run());
}

QTEST_GUILESS_MAIN(TestSqliteConnection)

#include "tst_sqliteconnection.moc"
