// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "exchange/incidenceimport.h"
#include "memorybulkwriter.h"

#include <kcalcompat/clock.h>
#include <mkcal/calendarexporter.h>
#include <mkcal/calendarimporter.h>
#include <mkcal/incidencecomparison.h>
#include <mkcal/sqlitestorage.h>

#include <QBuffer>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

#include <ctime>

using namespace mKCal;

namespace
{
ImportReport importFile(const QString &fileName, BulkWriter *writer)
{
    ImportReport report;
    QFile file(fileName);
    IncidenceImport import(writer, QString(), &report);
    import.run({{ fileName, &file }});
    return report;
}

void setZone(const QByteArray &zone)
{
    qputenv("TZ", zone);
    tzset();
}

QString withTwoWholes(int a, int b)
{
    return QString::number(a) + QLatin1Char('/') + QString::number(b);
}
} // namespace

/// Every calendar file, of whatever kind, can be imported again without changing anything, and
/// comes back from an export as it was. The folders to go through: the own fixtures, or the one
/// that the variable CALENDAR_FOLDER names.
class ImportRepeatedTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void again_data();
    void again();
    void storedAgain_data() { again_data(); }
    void storedAgain();
};

void ImportRepeatedTest::again_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QByteArray>("zone");
    const QString folder = qEnvironmentVariable("CALENDAR_FOLDER", QStringLiteral(ICS_FIXTURES));
    QStringList files;
    QDirIterator all(folder, {QStringLiteral("*.ics")}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        files.append(all.next());
    }
    QVERIFY2(!files.isEmpty(), qPrintable(folder));
    files.sort();
    for (const QString &fileName : qAsConst(files)) {
        for (const char *zone : {"Europe/Helsinki", "America/New_York"}) {
            const QString name = QDir(folder).relativeFilePath(fileName);
            QTest::addRow("%s in %s", qPrintable(name), zone) << fileName << QByteArray(zone);
        }
    }
}

void ImportRepeatedTest::again()
{
    QFETCH(QString, fileName);
    QFETCH(QByteArray, zone);
    setZone(zone);

    MemoryBulkWriter first;
    const ImportReport report = importFile(fileName, &first);
    const int taken = report.created + report.changed;
    const ImportReport repeated = importFile(fileName, &first);
    QCOMPARE(withTwoWholes(repeated.created, repeated.changed), withTwoWholes(0, 0));
    QCOMPARE(repeated.same, report.same + taken);
    QCOMPARE(repeated.skipped.size(), report.skipped.size());

    QBuffer exported;
    exported.open(QIODevice::ReadWrite);
    QVERIFY(CalendarExporter().write(first.incidences(), &exported));
    MemoryBulkWriter second;
    const ImportReport back = importBytes(exported.data(), &second);
    QVERIFY2(back.skipped.isEmpty(), qPrintable(back.skipped.value(0).reason));
    const auto before = first.incidences();
    const auto after = second.incidences();
    QCOMPARE(after.size(), before.size());
    for (int i = 0; i < before.size(); ++i) {
        const QStringList differ = differences(*before.at(i), *after.at(i));
        QVERIFY2(differ.isEmpty(),
                 qPrintable(before.at(i)->uid() + QStringLiteral(": ")
                            + differ.join(QStringLiteral(", ")) + QLatin1Char('\n')
                            + QString::fromUtf8(exported.data())));
    }
}

/// The same through a database, a day later: nothing may hang on what is only held in memory or on
/// the moment of the import.
void ImportRepeatedTest::storedAgain()
{
    QFETCH(QString, fileName);
    QFETCH(QByteArray, zone);
    setZone(zone);
    const QTemporaryDir folder;
    const ExtendedCalendar::Ptr calendar(new ExtendedCalendar(QTimeZone(zone)));
    const QSharedPointer<SqliteStorage> storage(
        new SqliteStorage(calendar, folder.filePath(QStringLiteral("calendar.db"))));
    QVERIFY(storage->open());
    const auto notebook = Notebook::Ptr::create();
    QVERIFY(storage->addNotebook(notebook, false) && storage->setDefaultNotebook(notebook));

    QDateTime now(QDate(2026, 3, 10), QTime(12, 0), Qt::UTC);
    KCalCompat::Clock::setSource([&now] { return now; });
    ImportReport report;
    ImportReport repeated;
    CalendarImporter(storage).importFiles({fileName}, &report);
    now = now.addDays(1);
    CalendarImporter(storage).importFiles({fileName}, &repeated);
    KCalCompat::Clock::setSource({});
    QCOMPARE(withTwoWholes(repeated.created, repeated.changed), withTwoWholes(0, 0));
    QCOMPARE(repeated.same, report.same + report.created);
}

QTEST_GUILESS_MAIN(ImportRepeatedTest)
#include "tst_importrepeated.moc"
