// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"
#include "sqlite/componentreader.h"
#include "sqlite/componentwriter.h"
#include "sqlite/connection.h"
#include "sqlite/schema.h"
#include "testtable.h"

#include <KCalendarCore/Recurrence>

#include <QTemporaryDir>
#include <QtTest>

using namespace KCalCore;
using namespace mKCal;

Q_DECLARE_METATYPE(mKCal::ComponentKeys)

namespace
{
const QString notebook = "nb";
constexpr qint64 day = 86400;

qint64 seconds(const QDateTime &dateTime)
{
    return dateTime.toSecsSinceEpoch();
}

ComponentKeys keys(int span, const QDateTime &start, const QDateTime &end)
{
    ComponentKeys keys;
    keys.span = span;
    keys.hasStart = true;
    keys.start = seconds(start);
    keys.end = seconds(end);
    keys.until = keys.end;
    return keys;
}

Event::Ptr eventAt(const QDateTime &start, const QDateTime &end, bool allDay = false)
{
    Event::Ptr event = plainEvent();
    event->setDtStart(start);
    event->setDtEnd(end);
    event->setAllDay(allDay);
    return event;
}

Event::Ptr eventOf(const QString &uid)
{
    Event::Ptr event = plainEvent();
    event->setUid(uid);
    const Alarm::Ptr alarm = event->newAlarm();
    alarm->setDisplayAlarm("Wake up");
    event->addAttendee(Attendee("Anna", "a@b"));
    return event;
}

void row(const char *name, const std::function<void(Event &)> &edit, qint64 earliest, qint64 latest)
{
    const Event::Ptr event = plainEvent();
    edit(*event);
    addRow(name, event.staticCast<Incidence>(), earliest, latest);
}

std::function<void(Event &)> daily(int count)
{
    return [count](Event &event) {
        event.recurrence()->setDaily(1);
        event.recurrence()->setDuration(count);
    };
}

std::function<void(Event &)> insteadOf(const QDateTime &occurrence, bool andLater = false)
{
    return [occurrence, andLater](Event &event) {
        event.setRecurrenceId(occurrence);
        event.setThisAndFuture(andLater);
    };
}

void untilJune(Event &event)
{
    event.recurrence()->setDaily(1);
    event.recurrence()->setEndDateTime(helsinki(2011, 6, 1));
}

void on30February(Event &event)
{
    auto *rule = new RecurrenceRule;
    rule->setRecurrenceType(RecurrenceRule::rYearly);
    rule->setFrequency(1);
    rule->setStartDt(event.dtStart());
    rule->setByMonths({2});
    rule->setByMonthDays({30});
    rule->setDuration(5);
    event.recurrence()->addRRule(rule);
}

void manyTimesInMay(Event &event)
{
    event.recurrence()->setDaily(1);
    event.recurrence()->setDuration(20000);
    event.recurrence()->defaultRRule()->setByMonths({5});
}

void onDatesOnBothSides(Event &event)
{
    event.recurrence()->setRDateTimes({helsinki(2010, 1, 1), helsinki(2012, 1, 1)});
}

void inALongPeriod(Event &event)
{
    event.recurrence()->addRDateTimePeriod(Period(helsinki(2011, 6, 1), helsinki(2011, 8, 1)));
}
} // namespace

class TestSqliteComponents : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void computesKeys_data();
    void computesKeys();
    void boundsSeries_data();
    void boundsSeries();
    void identifiesOccurrences_data();
    void identifiesOccurrences();
    void purgesByTimeAndNotebook();
    void readsInOrderUntilStopped();

private:
    QVector<ComponentRow> rows(const QByteArray &condition, const SqlValues &values = {});
    StoredComponent find(const QString &uid)
    {
        StoredComponent stored;
        m_writer->find(uid, QString(), &stored);
        return stored;
    }

    QScopedPointer<QTemporaryDir> m_folder;
    Connection m_connection;
    std::unique_ptr<ComponentWriter> m_writer;
};

void TestSqliteComponents::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_connection.open(m_folder->filePath("calendar.db")));
    QVERIFY(Schema::prepare(m_connection));
    // What a power cut would leave is not looked at here.
    QVERIFY(m_connection.execute("PRAGMA synchronous = OFF"));
    m_writer = std::make_unique<ComponentWriter>(m_connection);
}

void TestSqliteComponents::cleanup()
{
    m_writer.reset();
    m_connection.close();
}

QVector<ComponentRow> TestSqliteComponents::rows(const QByteArray &condition,
                                                 const SqlValues &values)
{
    QVector<ComponentRow> rows;
    ComponentReader reader(m_connection);
    reader.read(condition, values, [&rows](const ComponentRow &row) {
        rows.append(row);
        return true;
    });
    return rows;
}

void TestSqliteComponents::computesKeys_data()
{
    addColumns<Incidence::Ptr, ComponentKeys>("incidence", "expected");
    const auto row = [](const char *name, const Incidence::Ptr &incidence, ComponentKeys expected) {
        expected.type = incidence->type();
        addRow(name, incidence, expected);
    };
    const QDateTime ten = helsinki(2011, 5, 2, 10);
    row("an hour", eventAt(ten, ten.addSecs(3600)),
        keys(ComponentKeys::Short, ten, ten.addSecs(3600)));
    row("no time at all", eventAt(ten, ten), keys(ComponentKeys::Short, ten, ten.addSecs(1)));
    row("exactly two days", eventAt(ten, ten.addDays(2)),
        keys(ComponentKeys::Short, ten, ten.addDays(2)));
    row("longer", eventAt(ten, ten.addDays(2).addSecs(1)),
        keys(ComponentKeys::Long, ten, ten.addDays(2).addSecs(1)));
    row("all-day by its date", eventAt(floating(2011, 5, 2), floating(2011, 5, 3), true),
        keys(ComponentKeys::Short, utc(2011, 5, 2, 0), utc(2011, 5, 3, 0)));
    row("all-day in a zone by its date",
        eventAt(helsinki(2011, 5, 2, 0), helsinki(2011, 5, 3, 0), true),
        keys(ComponentKeys::Short, utc(2011, 5, 2, 0), utc(2011, 5, 3, 0)));
    row("floating by its clock", eventAt(floating(2011, 5, 2, 10), floating(2011, 5, 2, 11)),
        keys(ComponentKeys::Short, utc(2011, 5, 2, 10), utc(2011, 5, 2, 11)));

    const Todo::Ptr due = plainTodo();
    due->setDtStart(QDateTime());
    row("to-do that is due", due,
        keys(ComponentKeys::Short, due->dtDue(true), due->dtDue(true).addSecs(1)));
    const Todo::Ptr backwards = plainTodo();
    backwards->setDtDue(ten.addDays(-1), true);
    row("to-do that is due before it starts", backwards,
        keys(ComponentKeys::Short, ten.addDays(-1), ten.addSecs(1)));
    const Todo::Ptr done = plainTodo();
    done->setCompleted(utc(2011, 5, 3));
    ComponentKeys doneKeys = keys(ComponentKeys::Short, ten, ten.addDays(1));
    doneKeys.completed = seconds(utc(2011, 5, 3));
    row("completed to-do", done, doneKeys);
    const Todo::Ptr doneSometime = plainTodo();
    doneSometime->setStatus(Incidence::StatusCompleted);
    doneKeys.completed = 1;
    row("to-do that was completed sometime", doneSometime, doneKeys);
    const Todo::Ptr timeless = plainTodo();
    timeless->setDtStart(QDateTime());
    timeless->setDtDue(QDateTime(), true);
    row("to-do without dates", timeless, ComponentKeys());
}

void TestSqliteComponents::computesKeys()
{
    QFETCH(Incidence::Ptr, incidence);
    QFETCH(ComponentKeys, expected);
    const ComponentKeys computed = ComponentKeys::of(*incidence);
    QCOMPARE(computed.type, expected.type);
    QCOMPARE(computed.span, expected.span);
    QCOMPARE(computed.hasStart, expected.hasStart);
    QCOMPARE(computed.start, expected.start);
    QCOMPARE(computed.end, expected.end);
    QCOMPARE(computed.until, expected.until);
    QCOMPARE(computed.completed, expected.completed);
}

void TestSqliteComponents::boundsSeries_data()
{
    addColumns<Incidence::Ptr, qint64, qint64>("incidence", "earliest", "latest");
    const qint64 start = seconds(helsinki(2011, 5, 2, 10));
    const qint64 january = seconds(helsinki(2011, 1, 1));
    row("for ever", daily(-1), start, ComponentKeys::endless);
    row("ten times", daily(10), start, start + 9 * day + 3600);
    row("until", untilJune, start, seconds(helsinki(2011, 6, 1)) + 3600);
    row("many times", daily(20000), start, seconds(helsinki(2066, 2, 1, 11)));
    row("too often to be counted", manyTimesInMay, start, ComponentKeys::endless);
    row("never", on30February, start, ComponentKeys::endless);
    row("single dates on both sides", onDatesOnBothSides, seconds(helsinki(2010, 1, 1)),
        seconds(helsinki(2012, 1, 1)) + 3600);
    row("long period", inALongPeriod, start, seconds(helsinki(2011, 8, 1)));
    row("exception that was moved back", insteadOf(helsinki(2011, 9, 1)), start,
        seconds(helsinki(2011, 9, 1)) + 3600);
    row("exception that was moved on", insteadOf(helsinki(2011, 1, 1)), january, start + 3600);
    row("exception for all that follow", insteadOf(helsinki(2011, 1, 1), true), january,
        ComponentKeys::endless);
}

/// The bounds may be wider than what occurs, by the width of a zone, but never narrower.
void TestSqliteComponents::boundsSeries()
{
    QFETCH(Incidence::Ptr, incidence);
    QFETCH(qint64, earliest);
    QFETCH(qint64, latest);
    const ComponentKeys computed = ComponentKeys::of(*incidence);
    QCOMPARE(computed.span, int(ComponentKeys::Recurring));
    QCOMPARE(computed.start, earliest);
    QVERIFY2(computed.until >= latest, qPrintable(QString::number(computed.until - latest)));
    QVERIFY2(computed.until - latest <= day, qPrintable(QString::number(computed.until - latest)));
}

void TestSqliteComponents::identifiesOccurrences_data()
{
    addColumns<QDateTime, bool, QString>("recurrenceId", "allDay", "text");
    addRow("series", QDateTime(), false, "");
    addRow("a zone", helsinki(2011, 5, 2, 1), false, "20110501T220000Z");
    addRow("UTC", utc(2011, 5, 2, 1), false, "20110502T010000Z");
    addRow("milliseconds", utc(2011, 5, 2, 1).addMSecs(999), false, "20110502T010000Z");
    addRow("floating", floating(2011, 5, 2, 9), false, "20110502T090000");
    addRow("all-day", floating(2011, 5, 2), true, "20110502");
    addRow("all-day in a zone", helsinki(2011, 5, 2, 0), true, "20110502");
    addRow("all-day exception of a timed series", helsinki(2011, 5, 2, 1), true,
           "20110501T220000Z");
    addRow("timed exception of an all-day series", floating(2011, 5, 2), false, "20110502");
}

void TestSqliteComponents::identifiesOccurrences()
{
    QFETCH(QDateTime, recurrenceId);
    QFETCH(bool, allDay);
    QTEST(recIdText(recurrenceId, allDay), "text");
    KDateTime same;
    if (recurrenceId.isValid())
        same = KDateTime(recurrenceId);
    same.setDateOnly(allDay && recurrenceId.time() == QTime(0, 0));
    QTEST(recIdText(same), "text");
}

void TestSqliteComponents::purgesByTimeAndNotebook()
{
    const QString other = "other";
    for (const char *uid : {"a", "b", "c"})
        QVERIFY(m_writer->insert(*eventOf(uid), *uid == 'c' ? other : notebook, 1));
    QVERIFY(!m_writer->insert(*eventOf("a"), notebook, 2)); // one of them lives
    QVERIFY(m_writer->retire(find("a"), false, 2, 1000));
    QVERIFY(m_writer->retire(find("b"), true, 2, 2000));
    QVERIFY(m_writer->retireNotebook(other, 2, 1000));
    QCOMPARE(rows("state <> 0").size(), 3);
    QVERIFY(m_writer->purge(1500, notebook));
    QCOMPARE(rows("state <> 0").size(), 2);
    QVERIFY(m_writer->purge(1500, QString()));
    QCOMPARE(rows("state <> 0").size(), 1);
    Statement alarms(m_connection, "SELECT count(*) FROM Alarm");
    QVERIFY(alarms.next());
    QCOMPARE(alarms.integer(0), 1);
}

void TestSqliteComponents::readsInOrderUntilStopped()
{
    for (int i = 0; i < 5; ++i)
        QVERIFY(m_writer->insert(*eventOf(QString::number(i)), notebook, i));
    QStringList uids;
    ComponentReader reader(m_connection);
    const auto firstTwo = [&uids](const ComponentRow &row) {
        uids.append(row.incidence->uid());
        return uids.size() < 2;
    };
    QVERIFY(reader.read("state = 0 ORDER BY change DESC", {}, firstTwo));
    QCOMPARE(uids, QStringList({"4", "3"}));
    // Another reader may ask the same while this one is at it.
    int pairs = 0;
    QVERIFY(reader.read("state = 0", {}, [&](const ComponentRow &) {
        pairs += rows("state = 0").size();
        return true;
    }));
    QCOMPARE(pairs, 25);
    // Nothing is held open: the write-ahead log can be emptied.
    Statement checkpoint(m_connection, "PRAGMA wal_checkpoint(TRUNCATE)");
    QVERIFY(checkpoint.next());
    QCOMPARE(checkpoint.integer(0), 0);
    QVERIFY(!reader.read("nonsense", {}, firstTwo));
}

int main(int argc, char *argv[])
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
    QCoreApplication application(argc, argv);
    TestSqliteComponents test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sqlitecomponents.moc"
