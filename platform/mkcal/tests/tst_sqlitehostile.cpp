// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"
#include "sqlite/componentreader.h"
#include "sqlite/componentwriter.h"
#include "sqlite/connection.h"
#include "sqlite/schema.h"

#include <KCalendarCore/Recurrence>

#include <QTemporaryDir>
#include <QtTest>

using namespace KCalCore;
using namespace mKCal;

/// Rows that no calendar wrote: the reader takes what makes sense and never falls over the rest.
class TestSqliteHostile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void readsOn_data();
    void readsOn();

private:
    QTemporaryDir m_folder;
    Connection m_connection;
};

namespace
{
/// An event with rows in every child table.
Event::Ptr richEvent()
{
    Event::Ptr event = plainEvent();
    const Features features = recurrenceFeatures() + alarmFeatures() + peopleFeatures();
    for (const Feature &feature : features)
        feature.give(*event);
    event->setCategories(QStringList{QStringLiteral("Work")});
    return event;
}
} // namespace

void TestSqliteHostile::initTestCase()
{
    QVERIFY(m_connection.open(m_folder.filePath(QStringLiteral("calendar.db"))));
    QVERIFY(Schema::prepare(m_connection));
    ComponentWriter writer(m_connection);
    QVERIFY(writer.insert(*richEvent(), QStringLiteral("nb"), 1));
    const Todo::Ptr todo = plainTodo();
    todo->setUid(QStringLiteral("todo"));
    todo->setCompleted(utc(2011, 5, 3));
    todo->recurrence()->setDaily(1);
    QVERIFY(writer.insert(*todo, QStringLiteral("nb"), 1));
}

void TestSqliteHostile::readsOn_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<int>("readable");
    const auto row = [](const char *name, const char *damage, int readable = 2) {
        QTest::newRow(name) << QByteArray(damage) << readable;
    };
    row("unknown type", "UPDATE Components SET type = 7 WHERE id = 1", 1);
    row("type in words", "UPDATE Components SET type = 'lunch'");
    row("no identifier", "UPDATE Components SET uid = '' WHERE id = 1", 1);
    row("enumerations beyond their end",
        "UPDATE Components SET status = 99, secrecy = -1, transparency = 1e30");
    row("status of its own without words", "UPDATE Components SET status = 9, customStatus = NULL");
    row("huge numbers",
        "UPDATE Components SET priority = 9e18, revision = -9223372036854775808,"
        " duration = 9223372036854775807, hasDuration = 1, percentComplete = 1e300,"
        " stateTime = 'x', change = x'00'");
    row("times beyond all calendars",
        "UPDATE Components SET startWall = 9223372036854775807, endWall = -9223372036854775808,"
        " recIdWall = 1e300, dueWall = -1, created = 9223372036854775807,"
        " lastModified = -9223372036854775808, completedTime = 9e18");
    row("times in words", "UPDATE Components SET startWall = 'noon', created = 'then'");
    row("zones that are none",
        "UPDATE Components SET startTz = 'Atlantis/Capital', endTz = '+99:99', dueTz = '@'");
    row("zone with an impossible offset", "UPDATE Components SET startTz = 'Atlantis@+15:59:59'");
    row("zone of bytes", "UPDATE Components SET startTz = x'00ff00'");
    row("zone that is long", "UPDATE Components SET startTz = hex(zeroblob(100000))");
    row("place outside the world", "UPDATE Components SET latitude = 1e300, longitude = 'x'");
    row("texts that are no texts",
        "UPDATE Components SET summary = x'fffe00', description = 7, location = 1.5, url = '%%%',"
        " color = x'', organizerEmail = x'ff', notebook = x'ff'");
    row("flags without rows", "UPDATE Components SET flags = -1 WHERE id = 2");
    row("flags beyond", "UPDATE Components SET flags = 9223372036854775807");
    row("rules that are none",
        "UPDATE Rule SET period = 99, frequency = 0, count = -9223372036854775808");
    row("rule with parts beyond their range",
        "UPDATE Rule SET bySecond = '-1,61,x', byMinute = '99999999999', byHour = ',,,',"
        " byDay = 'XX,99MO,MO', byMonthDay = '0,32', byYearDay = '367', byWeekNumber = '54',"
        " byMonth = '13,0', bySetPos = '0', weekStart = 99");
    row("rule with endless lists",
        "UPDATE Rule SET bySecond = replace(hex(zeroblob(100000)), '00', '1,')");
    row("rule with texts as bytes", "UPDATE Rule SET byDay = x'ff2cff', text = x'00', count = 'x'");
    row("dates that are none", "UPDATE Dates SET wall = NULL, kind = 99");
    row("periods without an end",
        "UPDATE Dates SET endWall = NULL, duration = -9223372036854775808, kind = 2");
    row("periods that end before they begin",
        "UPDATE Dates SET kind = 2, endWall = -1, endTz = 'Z'");
    row("alarms beyond",
        "UPDATE Alarm SET type = 99, relation = 99, offset = 9e18, snooze = -9e18,"
        " repeat = -1, timeWall = 9e18, radius = 9e18");
    row("attendees beyond", "UPDATE Attendee SET role = -1, status = 9, cuType = x'ff', email = 1");
    row("properties of nobody", "UPDATE Props SET ownerPos = 99");
    row("properties of negative ones", "UPDATE Props SET ownerPos = -1, owner = 1");
    row("properties of unknown kind", "UPDATE Props SET owner = 99");
    row("properties without a name", "UPDATE Props SET name = NULL, value = NULL, kind = 0");
    row("property names that are none",
        "UPDATE Props SET name = 'X-KDE-', kind = 0, owner = 0 WHERE comp = 1");
    row("property names of bytes", "UPDATE Props SET name = x'ff00ff', kind = 0, owner = pos % 4");
    row("attachments of numbers", "UPDATE Attachment SET uri = NULL, data = 7, mimeType = x'ff'");
    row("conferences of bytes", "UPDATE Conference SET uri = x'ff', features = x'2c2c'");
}

void TestSqliteHostile::readsOn()
{
    QFETCH(QByteArray, damage);
    QFETCH(int, readable);
    const Transaction undone(m_connection);
    QVERIFY2(m_connection.execute(damage.constData()),
             qPrintable(m_connection.lastError().message));
    ComponentReader reader(m_connection);
    int rows = 0;
    QVERIFY(reader.read("1 ORDER BY id", {}, [&rows](const ComponentRow &row) {
        ++rows;
        // What was built can be worked with: looked up by its keys, copied, written again.
        ComponentKeys::of(*row.incidence);
        const Incidence::Ptr copy(row.incidence->clone());
        return copy && !row.incidence->uid().isEmpty();
    }));
    QCOMPARE(rows, readable);
}

int main(int argc, char *argv[])
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
    QCoreApplication application(argc, argv);
    TestSqliteHostile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sqlitehostile.moc"
