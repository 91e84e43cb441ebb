// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"
#include "testtable.h"

#include <mkcal/calendarimporter.h>
#include <mkcal/incidencecomparison.h>

#include <QBuffer>

using namespace mKCal;
using namespace Make;

class TestBulkWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void findsWhatIsStoredAndWritten();
    void nothingIsStoredBeforeTheCommit();
    void commitBringsTheCalendarUpToDate();
    void unsavedChangesStay();
    void notebooksOfWritten_data();
    void notebooksOfWritten();
    void timesOfImported_data();
    void timesOfImported();
    void removedSeriesTakesItsExceptions();
    void oneAtATime();
    void refusedWhileClosed();

private:
    std::unique_ptr<StorageFixture> m_fixture;
    std::unique_ptr<OpenStorage> m_opened;
};

void TestBulkWriter::init()
{
    m_fixture = std::make_unique<StorageFixture>();
    const auto series = daily("series", at(2026, 3, 1, 9), 10);
    QVERIFY(m_fixture->store({meeting("stored", at(2026, 3, 10, 9)), series,
                              exception(series, at(2026, 3, 4, 9), at(2026, 3, 4, 12))}));
    m_opened = m_fixture->open();
}

void TestBulkWriter::cleanup()
{
    m_opened.reset();
    m_fixture.reset();
}

void TestBulkWriter::findsWhatIsStoredAndWritten()
{
    const auto writer = m_opened->storage->bulkWriter();
    QVERIFY(writer);
    QVERIFY(writer->find("stored", KDateTime()));
    QVERIFY(writer->find("series", KDateTime(at(2026, 3, 4, 9))));
    QVERIFY(!writer->find("series", KDateTime(at(2026, 3, 5, 9))));
    QVERIFY(!writer->find("new", KDateTime()));
    QCOMPARE(writer->notebook("stored"), QStringLiteral("work"));
    QVERIFY(writer->notebook("new").isEmpty());
    const auto added = meeting("new", at(2026, 3, 11, 9));
    QVERIFY(writer->write(added, "work"));
    QCOMPARE(differences(*added, *writer->find("new", KDateTime())), QStringList());
    QVERIFY(writer->remove("new", KDateTime()));
    QVERIFY(!writer->find("new", KDateTime()));
    QVERIFY(writer->errorMessage().isEmpty());
}

void TestBulkWriter::nothingIsStoredBeforeTheCommit()
{
    {
        const auto writer = m_opened->storage->bulkWriter();
        QVERIFY(writer->write(meeting("new", at(2026, 3, 11, 9)), "work"));
        QVERIFY(writer->remove("stored", KDateTime()));
        // A load in the meantime sees what is stored.
        QVERIFY(m_opened->storage->load());
        QVERIFY(m_opened->incidence("stored"));
        QVERIFY(!m_opened->incidence("new"));
    }
    QCOMPARE(m_opened->notices.modified, 0);
    QVERIFY(m_opened->storage->save());
    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load());
    QCOMPARE(reader->uids(), QStringList({"series", "series/20260304", "stored"}));
}

void TestBulkWriter::commitBringsTheCalendarUpToDate()
{
    QVERIFY(m_opened->storage->load(QDate(2026, 3, 10), QDate(2026, 3, 12)));
    const auto held = m_opened->incidence("stored");
    const auto writer = m_opened->storage->bulkWriter();
    const auto changed = meeting("stored", at(2026, 3, 10, 9));
    changed->setSummary("changed", false);
    QVERIFY(writer->write(changed, "work"));
    QVERIFY(writer->write(meeting("new", at(2026, 3, 11, 9)), "work"));
    QVERIFY(writer->write(meeting("elsewhere", at(2026, 8, 11, 9)), "work"));
    QVERIFY(writer->commit());
    QCOMPARE(m_opened->notices.modified, 1);
    QCOMPARE(m_opened->uids(), QStringList({"new", "stored"}));
    QCOMPARE(held->summary(), QStringLiteral("changed"));
    QVERIFY(!m_opened->storage->hasUnsavedChanges());
    QVERIFY(!writer->write(meeting("late", at(2026, 3, 11, 9)), "work"));
    // Its own commit does not come back as a foreign one.
    const auto other = m_fixture->open();
    QVERIFY(other->storage->load());
    other->incidence("new")->setSummary("theirs", false);
    QVERIFY(other->storage->save());
    QTRY_COMPARE(m_opened->incidence("new")->summary(), QStringLiteral("theirs"));
    QCOMPARE(m_opened->notices.modified, 2);
}

void TestBulkWriter::unsavedChangesStay()
{
    QVERIFY(m_opened->storage->load());
    m_opened->incidence("stored")->setSummary("mine", false);
    const auto imported = meeting("stored", at(2026, 3, 10, 9));
    imported->setSummary("imported", false);
    const auto writer = m_opened->storage->bulkWriter();
    QVERIFY(writer->write(imported, "work"));
    QVERIFY(writer->commit());
    QCOMPARE(m_opened->incidence("stored")->summary(), QStringLiteral("mine"));
    QVERIFY(m_opened->storage->save());
    KCalCore::Incidence::List overwritten;
    QVERIFY(m_opened->storage->overwrittenIncidences(&overwritten, "stored"));
    QCOMPARE(overwritten.size(), 1);
    QCOMPARE(overwritten.first()->summary(), QStringLiteral("imported"));
}

void TestBulkWriter::notebooksOfWritten_data()
{
    addColumns<QString, QString, QString>("uid", "asked", "got");
    addRow("new", "new", "home", "home");
    addRow("stored ones stay", "stored", "home", "work");
    addRow("unknown notebook", "new", "nowhere", "");
    addRow("no notebook", "new", "", "");
}

void TestBulkWriter::notebooksOfWritten()
{
    QFETCH(QString, uid);
    QFETCH(QString, asked);
    QFETCH(QString, got);
    QVERIFY(m_opened->storage->addNotebook(notebook("home"), false));
    const auto writer = m_opened->storage->bulkWriter();
    QCOMPARE(writer->write(meeting(uid, at(2026, 3, 10)), asked), !got.isEmpty());
    QCOMPARE(writer->errorMessage().isEmpty(), !got.isEmpty());
    QCOMPARE(writer->notebook(uid), got);
    // A notebook that is not known does not spoil the rest.
    QVERIFY(writer->write(meeting("rest", at(2026, 3, 10)), "home"));
    QVERIFY(writer->commit());
}

void TestBulkWriter::timesOfImported_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second"); // a day later
    QTest::addColumn<int>("changed");
    QTest::addColumn<QDateTime>("created");
    QTest::addColumn<QDateTime>("modified");
    const QByteArray times = "CREATED:20190101T100000Z\r\nLAST-MODIFIED:20190202T110000Z\r\n";
    const QByteArray later = "CREATED:20190101T100000Z\r\nLAST-MODIFIED:20190303T120000Z\r\n";
    const QByteArray change = "SUMMARY:changed\r\n";
    const QDateTime fileCreated(QDate(2019, 1, 1), QTime(10, 0), Qt::UTC);
    const QDateTime fileModified(QDate(2019, 2, 2), QTime(11, 0), Qt::UTC);
    const QDateTime fileModifiedLater(QDate(2019, 3, 3), QTime(12, 0), Qt::UTC);
    const QDateTime now(QDate(2026, 3, 10), QTime(12, 0), Qt::UTC);
    const QDateTime tomorrow = now.addDays(1);

    addRow("in the file", times, times, 0, fileCreated, fileModified);
    addRow("in the file, then a change", times, later + change, 1, fileCreated, fileModifiedLater);
    // Whatever the file says, the other processes are told.
    addRow("in the file, then an older one", later, times + change, 1, fileCreated, fileModified);
    addRow("not in the file", QByteArray(), QByteArray(), 0, now, now);
    addRow("not in the file, then a change", QByteArray(), change, 1, now, tomorrow);
    addRow("no longer in the file", times, change, 1, fileCreated, tomorrow);
}

void TestBulkWriter::timesOfImported()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(int, changed);
    const auto import = [this](const QByteArray &lines) {
        QBuffer file;
        file.setData("BEGIN:VEVENT\r\nUID:imported\r\nDTSTART:20260310T090000Z\r\n" + lines
                     + "END:VEVENT\r\n");
        ImportReport report;
        CalendarImporter(m_opened->storage).importDevice(&file, QString(), &report);
        return report;
    };
    QCOMPARE(import(first).created, 1);
    const auto other = m_fixture->open();
    QVERIFY(other->storage->load("imported"));
    m_fixture->now = m_fixture->now.addDays(1);
    const ImportReport report = import(second);
    QCOMPARE(report.changed, changed);
    QCOMPARE(report.same, 1 - changed);

    const auto reader = m_fixture->open();
    QVERIFY(reader->storage->load("imported"));
    QTEST(reader->incidence("imported")->created(), "created");
    QTEST(reader->incidence("imported")->lastModified(), "modified");
    QTRY_COMPARE(other->incidence("imported")->lastModified(),
                 reader->incidence("imported")->lastModified());
    QCOMPARE(other->incidence("imported")->summary(), reader->incidence("imported")->summary());
}

void TestBulkWriter::removedSeriesTakesItsExceptions()
{
    QVERIFY(m_opened->storage->load());
    const auto writer = m_opened->storage->bulkWriter();
    QVERIFY(writer->remove("series", KDateTime()));
    QVERIFY(writer->commit());
    QCOMPARE(m_opened->uids(), QStringList{"stored"});
    QVERIFY(m_opened->storage->undelete("series"));
    QCOMPARE(m_opened->uids(), QStringList({"series", "series/20260304", "stored"}));
}

void TestBulkWriter::oneAtATime()
{
    auto writer = m_opened->storage->bulkWriter();
    QVERIFY(writer);
    QVERIFY(!m_opened->storage->bulkWriter());
    QVERIFY(m_opened->storage->errorMessage().contains(m_fixture->fileName()));
    QVERIFY(!m_opened->storage->updateNotebook(notebook("work", "Renamed")));
    writer.reset();
    QVERIFY(m_opened->storage->bulkWriter());
    QVERIFY(m_opened->storage->updateNotebook(notebook("work", "Renamed")));
}

void TestBulkWriter::refusedWhileClosed()
{
    QVERIFY(m_opened->storage->close());
    QVERIFY(!m_opened->storage->bulkWriter());
    QVERIFY(m_opened->storage->errorMessage().contains(m_fixture->fileName()));
}

STORAGE_TEST_MAIN(TestBulkWriter)
#include "tst_bulkwriter.moc"
