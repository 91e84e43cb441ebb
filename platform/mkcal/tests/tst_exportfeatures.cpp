// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "exchange/incidenceimport.h"
#include "memorybulkwriter.h"
#include "roundtripfeatures.h"

#include <mkcal/calendarexporter.h>
#include <mkcal/incidencecomparison.h>

#include <QBuffer>
#include <QtTest>

#include <ctime>

using namespace mKCal;

namespace
{
/// What does not come back as it was: RFC 5545 has no place for it, or has one form for several of
/// ours, or ICalFormat leaves it out and nobody has missed it.
const QSet<QByteArray> &altered()
{
    static const QSet<QByteArray> names = {
        // Times: whole seconds of four-digit years, dates without zones, offsets as zones.
        "milliseconds",
        "start in the far future",
        "all-day in a zone",
        "all-day in UTC",
        "start in a zone named UTC",
        "start at a fixed offset",
        "start at an offset with seconds",
        "start in a zone that only its calendar knows",
        "first of the hours that the clock change repeats",
        "second of the hours that the clock change repeats",
        // Rules: UNTIL as UTC or date, parts in the order of the writer.
        "every day until",
        "all-day series",
        "weekly with a week that starts on Sunday",
        "rule with its own text",
        "rule that starts elsewhere",
        // Texts: lines end with LF.
        "description of many lines",
        "text that holds a null character",
        "empty custom property",
        // Of this device alone.
        "only here",
        "read-only",
        // People: an identifier is an address in memory most of the time.
        "attendee with an identifier",
        "attendee of a kind of somebody's own",
        "attendee with a property",
        "organizer without an address",
        "conferences",
        "attachment that is no clean base64",
        // Alarms: moments as UTC.
        "alarm at a moment",
        "alarm with a snooze but no repetition",
        "alarm near a place",
        "alarm with properties",
        // To-dos: being done is said in one way, DUE stands for DURATION.
        "completed at a moment",
        "completed by its status",
        "recurring to-do that is all done",
        "recurring to-do without a start",
        "to-do with a length",
    };
    return names;
}
} // namespace

/// Every feature of an incidence comes back from an iCalendar file.
class ExportFeaturesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void feature_data();
    void feature();
};

void ExportFeaturesTest::initTestCase()
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
}

void ExportFeaturesTest::feature_data()
{
    QTest::addColumn<Feature>("feature");
    const Features features = timeFeatures() + textFeatures() + recurrenceFeatures()
        + peopleFeatures() + alarmFeatures() + todoAndJournalFeatures();
    for (const Feature &feature : features) {
        QTest::newRow(feature.name.constData()) << feature;
    }
}

void ExportFeaturesTest::feature()
{
    QFETCH(Feature, feature);
    const KCalCore::Incidence::Ptr incidence(feature.plain->clone());
    feature.give(*incidence);
    const auto alarms = incidence->alarms();
    for (const auto &alarm : alarms) {
        // The text of an alarm says first what it does.
        if (alarm->type() == KCalCore::Alarm::Invalid) {
            alarm->setType(KCalCore::Alarm::Display);
        }
    }
    const KCalCore::Incidence::Ptr before(incidence->clone());

    QBuffer file;
    file.open(QIODevice::ReadWrite);
    QVERIFY(CalendarExporter().write({incidence}, &file));
    QCOMPARE(differences(*before, *incidence), QStringList());

    MemoryBulkWriter writer;
    const ImportReport report = importBytes(file.data(), &writer);
    if (!report.skipped.isEmpty()) {
        QVERIFY2(altered().contains(feature.name), file.data().constData());
        return;
    }
    QCOMPARE(writer.incidences().size(), 1);
    const KCalCore::Incidence::Ptr after = writer.incidences().constFirst();
    const QStringList differing = differences(*before, *after);
    const bool isKept = differing.isEmpty();
    QVERIFY2(isKept != altered().contains(feature.name),
             qPrintable(differing.join(QStringLiteral(", ")) + QLatin1Char('\n')
                        + QString::fromUtf8(file.data())));
}

QTEST_GUILESS_MAIN(ExportFeaturesTest)
#include "tst_exportfeatures.moc"
