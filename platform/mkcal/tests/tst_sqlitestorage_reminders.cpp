// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

using namespace mKCal;
using namespace Make;

using Edit = std::function<void(OpenStorage &)>;
Q_DECLARE_METATYPE(Edit)

namespace
{
template <typename Pointer> Pointer withAlarm(const Pointer &incidence, int minutesBefore = 15)
{
    const KCalCore::Alarm::Ptr alarm = incidence->newAlarm();
    alarm->setDisplayAlarm(QStringLiteral("Now"));
    alarm->setStartOffset(KCalCore::Duration(-60 * minutesBefore));
    alarm->setEnabled(true);
    return incidence;
}
} // namespace

/// The rows that the process that shows reminders reads; when alarms ring is tested with the
/// planner.
class TestStorageReminders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<StorageFixture>(); }
    void cleanup() { m_fixture.reset(); }
    void savePlansWhatChanged_data();
    void savePlansWhatChanged();
    void planningAgainRepeatsNothing();
    void openingExtendsTheHorizonOfSeries();
    void openingDoesNotWaitForTheHorizon_data();
    void openingDoesNotWaitForTheHorizon();
    void openedIncidenceIsDismissed();
    void importedAlarmsArePlanned();
    void importKeepsRemindersOfTheFamily();
    void resetPlansGivenIncidencesOnly();
    void failedSavePlansNothing();

private:
    /// "dd.MM. hh:mm" in UTC of what rings within a year.
    QStringList times(OpenStorage &opened) const
    {
        QStringList times;
        for (const auto &reminder :
             opened.storage->reminders(m_fixture->now, m_fixture->now.addYears(1)))
            times.append(reminder.time.toString(QStringLiteral("dd.MM. hh:mm")));
        return times;
    }
    std::unique_ptr<StorageFixture> m_fixture;
};

void TestStorageReminders::savePlansWhatChanged_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QStringList>("times");
    const QStringList series{"11.03. 06:45", "12.03. 06:45", "13.03. 06:45"};
    const QString single("20.03. 06:45");
    QTest::newRow("nothing") << Edit([](OpenStorage &) {}) << (series + QStringList{single});
    QTest::newRow("moved") << Edit([](OpenStorage &s) {
        s.incidence("single")->setDtStart(at(2026, 3, 21, 9));
    }) << (series + QStringList{"21.03. 06:45"});
    QTest::newRow("alarm taken away")
        << Edit([](OpenStorage &s) { s.incidence("single")->clearAlarms(); }) << series;
    QTest::newRow("alarm disabled")
        << Edit([](OpenStorage &s) { s.incidence("single")->alarms().first()->setEnabled(false); })
        << series;
    QTest::newRow("single deleted")
        << Edit([](OpenStorage &s) { s.calendar->deleteIncidence(s.incidence("single")); })
        << series;
    QTest::newRow("series deleted")
        << Edit([](OpenStorage &s) { s.calendar->deleteIncidence(s.incidence("series")); })
        << QStringList{single};
    QTest::newRow("exception with an alarm of its own") << Edit([](OpenStorage &s) {
        s.calendar->addIncidence(withAlarm(
            exception(s.incidence("series"), at(2026, 3, 12, 9), at(2026, 3, 12, 18)), 60));
    }) << QStringList{"11.03. 06:45", "12.03. 15:00", "13.03. 06:45", single};
    QTest::newRow("occurrence excluded") << Edit([](OpenStorage &s) {
        const auto edited = s.incidence("series");
        edited->startUpdates();
        edited->recurrence()->addExDateTime(at(2026, 3, 11, 9));
        edited->endUpdates();
    }) << QStringList{"12.03. 06:45", "13.03. 06:45", single};
    QTest::newRow("a single one far away") << Edit([](OpenStorage &s) {
        s.calendar->addIncidence(withAlarm(meeting("far", at(2026, 12, 1, 9))));
    }) << (series + QStringList{single, "01.12. 06:45"});
}

void TestStorageReminders::savePlansWhatChanged()
{
    QFETCH(Edit, edit);
    QFETCH(QStringList, times);
    QVERIFY(m_fixture->store({withAlarm(meeting("single", at(2026, 3, 20, 9))),
                              withAlarm(daily("series", at(2026, 3, 9, 9), 5))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load());
    edit(*opened);
    QVERIFY(opened->storage->save());
    QCOMPARE(this->times(*opened), times);
    // Another process sees the same, and planning everything anew changes nothing.
    const auto other = m_fixture->open();
    QCOMPARE(this->times(*other), times);
    KCalCore::Incidence::List all;
    QVERIFY(other->storage->allIncidences(&all));
    QVERIFY(other->storage->resetAlarms(all));
    QCOMPARE(this->times(*other), times);
}

void TestStorageReminders::planningAgainRepeatsNothing()
{
    QVERIFY(m_fixture->store({withAlarm(daily("series", at(2026, 3, 9, 9), 5))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load());
    const ReminderList planned =
        opened->storage->reminders(m_fixture->now, m_fixture->now.addDays(10));
    QCOMPARE(planned.size(), 3);
    QCOMPARE(planned.first().uid, QStringLiteral("series"));
    QCOMPARE(planned.first().notebook, QStringLiteral("work"));
    QCOMPARE(planned.first().recurrenceId.dateTime(), at(2026, 3, 11, 9));
    QVERIFY(opened->storage->setReminderShown(planned.at(0).id));
    QVERIFY(opened->storage->setReminderDismissed(planned.at(1).id));
    QVERIFY(opened->storage->resetAlarms(opened->calendar->rawIncidences()));
    opened->incidence("series")->setSummary("renamed", false);
    QVERIFY(opened->storage->save());
    const ReminderList again =
        opened->storage->reminders(m_fixture->now, m_fixture->now.addDays(10));
    QCOMPARE(again.size(), 2);
    QCOMPARE(again.at(0).id, planned.at(0).id);
    QVERIFY(again.at(0).shown);
    QVERIFY(!again.at(1).shown);
}

void TestStorageReminders::openingExtendsTheHorizonOfSeries()
{
    QVERIFY(m_fixture->store({withAlarm(daily("series", at(2026, 3, 9, 9), -1))}));
    const auto lastPlanned = [this] {
        const auto opened = m_fixture->open();
        return opened->storage->reminders(m_fixture->now, m_fixture->now.addYears(1)).last().time;
    };
    const QDateTime horizon = m_fixture->now.addDays(60);
    QVERIFY(lastPlanned() < horizon && lastPlanned() > horizon.addDays(-2));
    m_fixture->now = m_fixture->now.addDays(30);
    QVERIFY(lastPlanned() < horizon.addDays(30) && lastPlanned() > horizon.addDays(28));
    const auto opened = m_fixture->open();
    QCOMPARE(opened->storage->reminders(m_fixture->now, horizon.addDays(30)).size(), 60);
}

void TestStorageReminders::openingDoesNotWaitForTheHorizon_data()
{
    QTest::addColumn<bool>("savesItself");
    QTest::newRow("the next save makes up for it") << true;
    QTest::newRow("the save of another does") << false;
}

void TestStorageReminders::openingDoesNotWaitForTheHorizon()
{
    QFETCH(bool, savesItself);
    QVERIFY(m_fixture->store({withAlarm(daily("series", at(2026, 3, 9, 9), -1))}));
    const auto other = m_fixture->open();
    m_fixture->now = m_fixture->now.addDays(30);
    std::unique_ptr<OpenStorage> opened;
    {
        Connection writing;
        QVERIFY(writing.open(m_fixture->fileName()));
        const Transaction lock(writing);
        QVERIFY(lock.isActive());
        QElapsedTimer waiting;
        waiting.start();
        opened = m_fixture->open();
        QVERIFY(!waiting.hasExpired(3000));
        QVERIFY(opened->isOpen);
        QCOMPARE(opened->storage->errorCode(), 0);
        QCOMPARE(times(*opened).size(), 30);
    }
    OpenStorage &saving = savesItself ? *opened : *other;
    saving.calendar->addIncidence(meeting("new", at(2026, 4, 20, 9)));
    QVERIFY(saving.storage->save());
    QTRY_COMPARE(times(*opened).size(), 60);
}

void TestStorageReminders::openedIncidenceIsDismissed()
{
    QVERIFY(m_fixture->store({withAlarm(meeting("single", at(2026, 3, 20, 9)))}));
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->load());
    QVERIFY(opened->storage->notifyOpened(opened->incidence("single")));
    const ReminderList planned =
        opened->storage->reminders(m_fixture->now, m_fixture->now.addDays(30));
    QCOMPARE(planned.size(), 1); // what was not shown yet will be
    QVERIFY(opened->storage->setReminderShown(planned.first().id));
    QVERIFY(opened->storage->notifyOpened(opened->incidence("single")));
    QVERIFY(times(*opened).isEmpty());
    QVERIFY(!opened->storage->notifyOpened({}));
}

void TestStorageReminders::importedAlarmsArePlanned()
{
    const auto opened = m_fixture->open();
    const auto series = withAlarm(daily("series", at(2026, 3, 9, 9), 5));
    {
        const auto writer = opened->storage->bulkWriter();
        QVERIFY(writer->write(withAlarm(meeting("single", at(2026, 3, 20, 9))), "work"));
        QVERIFY(writer->write(exception(series, at(2026, 3, 12, 9), at(2026, 3, 12, 18)), "work"));
        QVERIFY(writer->write(series, "work"));
        QVERIFY(writer->commit());
    }
    QCOMPARE(times(*opened), QStringList({"11.03. 06:45", "13.03. 06:45", "20.03. 06:45"}));
    const auto writer = opened->storage->bulkWriter();
    QVERIFY(writer->remove("series", KDateTime()));
    QVERIFY(writer->commit());
    QCOMPARE(times(*opened), QStringList{"20.03. 06:45"});
}

void TestStorageReminders::importKeepsRemindersOfTheFamily()
{
    const auto opened = m_fixture->open();
    const auto series = daily("meeting", at(2026, 3, 9, 9), 5);
    const auto write = [&](const KCalCore::Incidence::Ptr &incidence) {
        const auto writer = opened->storage->bulkWriter();
        return writer->write(withAlarm(incidence), "work") && writer->commit();
    };
    QVERIFY(write(exception(series, at(2026, 3, 12, 9), at(2026, 3, 12, 18))));
    // What the exception belonged to does not recur any more.
    QVERIFY(write(meeting("meeting", at(2026, 3, 20, 9))));
    QCOMPARE(times(*opened), QStringList({"12.03. 15:45", "20.03. 06:45"}));
}

void TestStorageReminders::resetPlansGivenIncidencesOnly()
{
    const auto opened = m_fixture->open();
    QVERIFY(opened->storage->resetAlarms({}));
    // Not stored: nothing may ring for it.
    QVERIFY(opened->storage->resetAlarms({withAlarm(meeting("stranger", at(2026, 3, 20, 9)))}));
    QVERIFY(times(*opened).isEmpty());
}

void TestStorageReminders::failedSavePlansNothing()
{
    const auto opened = m_fixture->open();
    opened->calendar->addIncidence(withAlarm(meeting("single", at(2026, 3, 20, 9))));
    QVERIFY(QFile::rename(m_fixture->fileName(), m_fixture->folder.filePath("aside.db")));
    QVERIFY(!opened->storage->save());
    QVERIFY(times(*opened).isEmpty());
}

STORAGE_TEST_MAIN(TestStorageReminders)
#include "tst_sqlitestorage_reminders.moc"
