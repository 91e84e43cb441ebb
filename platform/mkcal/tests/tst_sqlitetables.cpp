// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/connection.h"
#include "sqlite/metatable.h"
#include "sqlite/notebooktable.h"
#include "sqlite/remindertable.h"
#include "sqlite/schema.h"
#include "sqlite/statement.h"

#include <QTemporaryDir>
#include <QTimeZone>
#include <QtTest>

using namespace mKCal;

class TestSqliteTables : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void countsChangesByWriter();
    void notebooksComeBackInOrder();
    void remindersAreNotRepeated();
    void remindersKeepTheirOccurrence_data();
    void remindersKeepTheirOccurrence();

private:
    Reminder reminder(const QDateTime &time, const KDateTime &recurrenceId = KDateTime()) const;
    ReminderList all();

    QScopedPointer<QTemporaryDir> m_folder;
    Connection m_connection;
    const QDateTime m_time{QDate(2011, 5, 2), QTime(10, 0), Qt::UTC};
};

void TestSqliteTables::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_connection.open(m_folder->filePath("calendar.db")));
    QVERIFY(Schema::prepare(m_connection));
}

void TestSqliteTables::cleanup()
{
    QCOMPARE(m_connection.errorCodes(), QList<int>());
    m_connection.close();
}

void TestSqliteTables::countsChangesByWriter()
{
    MetaTable meta(m_connection);
    ChangeMark mark;
    qint64 counter = 0;
    QVERIFY(meta.bump("me", &counter));
    QCOMPARE(counter, 1);
    QVERIFY(meta.bump("you", &counter));
    QVERIFY(meta.readMark(&mark));
    QCOMPARE(mark.counter, 2);
    QCOMPARE(mark.writer, "you");
}

void TestSqliteTables::notebooksComeBackInOrder()
{
    Notebook full("z", "Työ", "d", "#123456", true, false, true, true, false);
    full.setIsHidden(true);
    full.setEventsAllowed(false);
    full.setJournalsAllowed(false);
    full.setPluginName("plugin");
    full.setAccount("account");
    full.setSyncProfile("profile");
    full.setSyncDate(m_time);
    full.setCreationDate(m_time.addMSecs(1));
    full.setModifiedDate(m_time.addSecs(1));
    full.setSharedWith({"a@b", "c@d"});
    full.setCustomProperty("key", "value");
    Notebook plain;
    plain.setUid("a");
    plain.setName("Plain");

    NotebookTable table(m_connection);
    QVERIFY(table.insert(full));
    QVERIFY(table.insert(plain));
    Notebook::List notebooks;
    QVERIFY(table.read(&notebooks));
    QCOMPARE(notebooks.size(), 2);
    QVERIFY(*notebooks.at(0) == full);
    QVERIFY(*notebooks.at(1) == plain);

    full.setName("Koti");
    full.setCustomProperty("key", QString());
    full.setCustomProperty("other", "x");
    QVERIFY(table.update(full));
    QVERIFY(table.read(&notebooks));
    QVERIFY(*notebooks.at(0) == full);

    bool exists = false;
    QVERIFY(table.exists(full.uid(), &exists) && exists);
    QVERIFY(table.remove(full.uid()));
    QVERIFY(table.exists(full.uid(), &exists) && !exists);
    Statement properties(m_connection, "SELECT count(*) FROM NotebookProps");
    QVERIFY(properties.next());
    QCOMPARE(properties.integer(0), 0);
}

Reminder TestSqliteTables::reminder(const QDateTime &time, const KDateTime &recurrenceId) const
{
    Reminder reminder;
    reminder.notebook = "nb";
    reminder.uid = "uid";
    reminder.recurrenceId = recurrenceId;
    reminder.time = time;
    return reminder;
}

ReminderList TestSqliteTables::all()
{
    ReminderList reminders;
    ReminderTable(m_connection).read(m_time.addYears(-1), m_time.addYears(1), &reminders);
    return reminders;
}

void TestSqliteTables::remindersAreNotRepeated()
{
    ReminderTable table(m_connection);
    QVERIFY(table.add(reminder(m_time.addSecs(60))));
    QVERIFY(table.add(reminder(m_time)));
    QCOMPARE(all().size(), 2);
    QCOMPARE(all().first().time, m_time);
    QVERIFY(table.setShown(all().first().id));

    // Planned anew: the one that was shown stays so, the other is replaced by a later one.
    QVERIFY(table.removePlanned("uid"));
    QVERIFY(table.add(reminder(m_time)));
    QVERIFY(table.add(reminder(m_time.addSecs(120))));
    QCOMPARE(all().size(), 2);
    QVERIFY(all().first().shown);
    QVERIFY(!all().last().shown);
    QCOMPARE(all().last().time, m_time.addSecs(120));

    ReminderList range;
    QVERIFY(table.read(m_time.addSecs(1), m_time.addSecs(120), &range));
    QVERIFY(range.isEmpty());

    QVERIFY(table.dismissShown("uid", QString()));
    QCOMPARE(all().size(), 1);
    QVERIFY(table.add(reminder(m_time)));
    QCOMPARE(all().size(), 1);
    QVERIFY(table.purge(m_time.addSecs(1)));
    QVERIFY(table.removeAll("uid"));
    QVERIFY(all().isEmpty());
}

void TestSqliteTables::remindersKeepTheirOccurrence_data()
{
    QTest::addColumn<KDateTime>("occurrence");
    const QTimeZone tokyo("Asia/Tokyo");
    QTest::newRow("none") << KDateTime();
    QTest::newRow("a zone") << KDateTime(QDateTime(QDate(2011, 5, 2), QTime(9, 0), tokyo));
    QTest::newRow("UTC") << KDateTime(m_time);
    QTest::newRow("floating") << KDateTime(QDateTime(QDate(2011, 5, 2), QTime(9, 0)));
    QTest::newRow("all-day") << KDateTime(QDate(2011, 5, 2), KDateTime::Spec::ClockTime());
}

void TestSqliteTables::remindersKeepTheirOccurrence()
{
    QFETCH(KDateTime, occurrence);
    ReminderTable table(m_connection);
    QVERIFY(table.add(reminder(m_time, occurrence)));
    QVERIFY(table.add(reminder(m_time, KDateTime(m_time.addDays(7)))));
    const ReminderList reminders = all();
    QCOMPARE(reminders.size(), 2);
    QCOMPARE(reminders.first().recurrenceId, occurrence);
    QCOMPARE(reminders.first().recurrenceId.isDateOnly(), occurrence.isDateOnly());
    QVERIFY(reminders.first().recurrenceId.timeSpec() == occurrence.timeSpec());
}

QTEST_GUILESS_MAIN(TestSqliteTables)

#include "tst_sqlitetables.moc"
