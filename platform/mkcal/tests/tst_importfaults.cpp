// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "exchange/incidenceimport.h"
#include "memorybulkwriter.h"

#include <mkcal/calendarexporter.h>

#include <KCalendarCore/Event>

#include <QBuffer>
#include <QtTest>

#include <ctime>

using namespace mKCal;

namespace
{
QByteArray eventText(const QByteArray &uid, const QByteArray &lines = QByteArray())
{
    return "BEGIN:VEVENT\r\nUID:" + uid + "\r\nDTSTART:20260401T100000Z\r\n" + lines
        + "END:VEVENT\r\n";
}

QByteArray calendar(const QByteArray &components)
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + components + "END:VCALENDAR\r\n";
}

/// 600 events, more than are read at a time.
QByteArray manyEvents()
{
    QByteArray text;
    for (int i = 0; i < 600; ++i) {
        text += eventText(QByteArray::number(i));
    }
    return text;
}
} // namespace

/// Imports that go wrong, or meet what is there already.
class ImportFaultsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void badComponentAmongMany();
    void databaseRefuses();
    void givenUp_data();
    void givenUp();
    void missingFile();
    void noFileAtAll();
    void versionsInSeveralFiles();
    void notebooks();
    void objection();
    void changedComponent();
    void exportChangesNothingHere();
    void dayWithoutMidnight();
};

void ImportFaultsTest::initTestCase()
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
}

void ImportFaultsTest::badComponentAmongMany()
{
    const QByteArray bad = "BEGIN:VEVENT\r\nUID:bad\r\nSUMMARY:no start\r\nEND:VEVENT\r\n";
    const QByteArray same = eventText("1", "RECURRENCE-ID:20260401T100000Z\r\nSUMMARY:one\r\n")
        + eventText("1", "RECURRENCE-ID:20260402T100000Z\r\n");
    MemoryBulkWriter writer;
    const ImportReport report = importBytes(calendar(manyEvents() + bad + same), &writer);
    QCOMPARE(report.created, 602);
    QCOMPARE(report.skipped.size(), 1);
    QCOMPARE(report.skipped.first().uid, QStringLiteral("bad"));
    QCOMPARE(report.skipped.first().line, 2 + 600 * 4 + 1);
}

void ImportFaultsTest::databaseRefuses()
{
    MemoryBulkWriter writer;
    writer.failing = true;
    const ImportReport report = importBytes(calendar(eventText("a")), &writer);
    QCOMPARE(report.error, QStringLiteral("disk full"));
}

void ImportFaultsTest::givenUp_data()
{
    QTest::addColumn<int>("calls");
    QTest::newRow("before anything is read") << 0;
    QTest::newRow("in the middle") << 2;
    QTest::newRow("at the end") << 3;
}

void ImportFaultsTest::givenUp()
{
    QFETCH(int, calls);
    QByteArray bytes = calendar(manyEvents());
    QBuffer buffer(&bytes);
    MemoryBulkWriter writer;
    ImportReport report;
    IncidenceImport import(&writer, QString(), &report);
    qint64 last = 0;
    bool isAscending = true;
    import.setProgress([&](qint64 done, qint64 total) {
        isAscending = isAscending && done >= last && done <= total && total == bytes.size();
    last = done;
    return calls-- > 0;
});
QVERIFY(!import.run({{QStringLiteral("a.ics"), &buffer}}));
QVERIFY(isAscending);
QVERIFY(!report.error.isEmpty());
}

void ImportFaultsTest::missingFile()
{
    QTemporaryDir folder;
    QFile missing(folder.filePath(QStringLiteral("missing.ics")));
    QByteArray bytes = calendar(eventText("a"));
    QByteArray nothing = "<html></html>";
    QBuffer good(&bytes);
    QBuffer page(&nothing);
    MemoryBulkWriter writer;
    ImportReport report;
    IncidenceImport import(&writer, QString(), &report);
    QVERIFY(import.run({{QStringLiteral("missing"), &missing},
                        {QStringLiteral("page"), &page},
                        {QStringLiteral("good"), &good}}));
    QCOMPARE(report.created, 1);
    QCOMPARE(report.skipped.size(), 2);
    QCOMPARE(report.skipped.at(0).file, QStringLiteral("missing"));
    QCOMPARE(report.skipped.at(1).file, QStringLiteral("page"));
    QCOMPARE(report.skipped.at(1).line, 0);
}

void ImportFaultsTest::noFileAtAll()
{
    QFile missing(QStringLiteral("/nonexistent/missing.ics"));
    MemoryBulkWriter writer;
    ImportReport report;
    IncidenceImport import(&writer, QString(), &report);
    QVERIFY(!import.run({{QStringLiteral("missing"), &missing}}));
    QVERIFY(!report.error.isEmpty());
}

/// The newest version wins wherever it stands, also when the files are imported once more.
void ImportFaultsTest::versionsInSeveralFiles()
{
    QByteArray newer = calendar(eventText("a", "SEQUENCE:3\r\nSUMMARY:third\r\n"));
    QByteArray older = calendar(eventText("a", "SEQUENCE:2\r\nSUMMARY:second\r\n"));
    MemoryBulkWriter writer;
    for (int round = 0; round < 2; ++round) {
        QBuffer first(&newer);
        QBuffer second(&older);
        ImportReport report;
        IncidenceImport import(&writer, QString(), &report);
        QVERIFY(
            import.run({{QStringLiteral("newer"), &first}, {QStringLiteral("older"), &second}}));
        QCOMPARE(report.created, round == 0 ? 1 : 0);
        QCOMPARE(report.changed, 0);
        QCOMPARE(report.skipped.size(), 1);
        QCOMPARE(report.skipped.first().file, QStringLiteral("older"));
    }
    QCOMPARE(writer.incidences().constFirst()->summary(), QStringLiteral("third"));
    QCOMPARE(writer.written, 1);
}

void ImportFaultsTest::notebooks()
{
    MemoryBulkWriter writer;
    importBytes(calendar(eventText("old")), &writer);
    writer.write(writer.incidences().constFirst(), QStringLiteral("home"));
    QByteArray bytes = calendar(eventText("old", "SUMMARY:changed\r\n") + eventText("new"));
    QBuffer buffer(&bytes);
    ImportReport report;
    IncidenceImport import(&writer, QStringLiteral("target"), &report);
    QVERIFY(import.run({{QString(), &buffer}}));
    QCOMPARE(writer.notebook(QStringLiteral("old")), QStringLiteral("home"));
    QCOMPARE(writer.notebook(QStringLiteral("new")), QStringLiteral("target"));
}

void ImportFaultsTest::objection()
{
    QByteArray bytes = calendar(eventText("event") + "BEGIN:VTODO\r\nUID:todo\r\nEND:VTODO\r\n");
    QBuffer buffer(&bytes);
    MemoryBulkWriter writer;
    ImportReport report;
    IncidenceImport import(&writer, QStringLiteral("target"), &report);
    import.setObjection([](const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid) {
        const bool isAllowed = incidence->type() == KCalCore::IncidenceBase::TypeTodo;
    return isAllowed ? QString() : notebookUid + QStringLiteral(" takes none");
});
QVERIFY(import.run({{QString(), &buffer}}));
QCOMPARE(report.created, 1);
QCOMPARE(report.skipped.size(), 1);
QCOMPARE(report.skipped.first().uid, QStringLiteral("event"));
QCOMPARE(report.skipped.first().reason, QStringLiteral("target takes none"));
}

void ImportFaultsTest::changedComponent()
{
    MemoryBulkWriter writer;
    importBytes(calendar(eventText("a") + eventText("b")), &writer);
    const ImportReport report =
        importBytes(calendar(eventText("a", "LOCATION:Elsewhere\r\n") + eventText("b")), &writer);
    QCOMPARE(report.changed, 1);
    QCOMPARE(report.same, 1);
    QCOMPARE(writer.incidences().constFirst()->location(), QStringLiteral("Elsewhere"));
}

/// What a file cannot hold stays when an export of the same calendar is imported.
void ImportFaultsTest::exportChangesNothingHere()
{
    const KCalCore::Event::Ptr event(new KCalCore::Event);
    const QDateTime start(QDate(2026, 4, 1), QTime(10, 0, 0, 123), Qt::UTC);
    event->setUid(QStringLiteral("a"));
    event->setDtStart(start);
    event->setLastModified(start);
    MemoryBulkWriter writer;
    writer.write(event, QString());
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    QVERIFY(CalendarExporter().write(writer.incidences(), &file));
    const ImportReport report = importBytes(file.data(), &writer);
    QCOMPARE(report.same, 1);
    QCOMPARE(writer.incidences().constFirst()->dtStart(), start);
}

/// In Beirut the clocks go from midnight to one o'clock: that day is a day as well.
void ImportFaultsTest::dayWithoutMidnight()
{
    qputenv("TZ", "Asia/Beirut");
    tzset();
    const QByteArray text =
        calendar("BEGIN:VEVENT\r\nUID:a\r\nDTSTART;VALUE=DATE:20110327\r\n"
                 "DTEND;VALUE=DATE:20110328\r\nRRULE:FREQ=YEARLY;UNTIL=20140327\r\n"
                 "END:VEVENT\r\n"
                 "BEGIN:VEVENT\r\nUID:b\r\nDTSTART;VALUE=DATE:20110320\r\n"
                 "RRULE:FREQ=WEEKLY;COUNT=4\r\nEND:VEVENT\r\n"
                 "BEGIN:VEVENT\r\nUID:b\r\nRECURRENCE-ID;VALUE=DATE:20110327\r\n"
                 "DTSTART;VALUE=DATE:20110328\r\nEND:VEVENT\r\n");
    MemoryBulkWriter writer;
    const ImportReport report = importBytes(text, &writer);
    initTestCase();
    QCOMPARE(report.created, 3);
    const auto incidences = writer.incidences();
    const auto first = incidences.at(0).dynamicCast<KCalCore::Event>();
    QCOMPARE(first->dtStart().date(), QDate(2011, 3, 27));
    QCOMPARE(first->dtEnd().date(), QDate(2011, 3, 28));
    QCOMPARE(first->recurrence()->rRules().first()->endDt().date(), QDate(2014, 3, 27));
    QCOMPARE(incidences.at(2)->recurrenceId().date(), QDate(2011, 3, 27));
}

QTEST_GUILESS_MAIN(ImportFaultsTest)
#include "tst_importfaults.moc"
