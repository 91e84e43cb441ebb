// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "roundtripfeatures.h"
#include "sqlite/componentreader.h"
#include "sqlite/componentwriter.h"
#include "sqlite/connection.h"
#include "sqlite/schema.h"

#include <mkcal/incidencecomparison.h>

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace KCalCore;
using namespace mKCal;

namespace
{
/// What KCalendarCore makes of it, on which our own comparison has no say: without the moment of
/// writing and the places in memory that stand in for identifiers. A copy is written, since writing
/// changes some to-dos, and in a calendar: a single incidence is never freed after it was written.
QString asText(const Incidence &incidence)
{
    const MemoryCalendar::Ptr calendar(new MemoryCalendar(QTimeZone::utc()));
    calendar->addIncidence(Incidence::Ptr(incidence.clone()));
    QString text = ICalFormat().toString(calendar);
    text.remove("\r\n ");
    return text.remove(QRegularExpression("DTSTAMP:\\w+|X-UID=\\d+"));
}
} // namespace

/// Everything that leaves the calendar comes back equal, through a connection of another's.
class TestRoundTrip : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void comesBack_data();
    void comesBack();
    void volatilePropertiesStayInMemory();

private:
    void store(const Incidence &incidence);
    Incidence::Ptr load();

    QTemporaryDir m_folder;
    Connection m_writing;
    Connection m_reading;
};

void TestRoundTrip::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

void TestRoundTrip::init()
{
    const QString file = m_folder.filePath(QStringLiteral("calendar.db"));
    QVERIFY2(m_writing.open(file), qPrintable(m_writing.lastError().message));
    QVERIFY2(Schema::prepare(m_writing), qPrintable(m_writing.lastError().message));
    // What a power cut would leave is not looked at here.
    QVERIFY(m_writing.execute("PRAGMA synchronous = OFF"));
    QVERIFY2(m_reading.open(file), qPrintable(m_reading.lastError().message));
}

void TestRoundTrip::cleanup()
{
    QVERIFY(m_writing.execute("DELETE FROM Components"));
    m_writing.close();
    m_reading.close();
}

void TestRoundTrip::store(const Incidence &incidence)
{
    ComponentWriter writer(m_writing);
    const QString notebook = QStringLiteral("notebook");
    Transaction transaction(m_writing);
    QVERIFY(transaction.isActive());
    StoredComponent stored;
    // A recurrence identifier tells rows apart: whatever is there is what is replaced.
    for (const QString &recId :
         {QString(), QStringLiteral("20110501"), QStringLiteral("20110501T070000Z")}) {
        if (stored.id == 0)
            QVERIFY(writer.find(incidence.uid(), recId, &stored));
    }
    if (stored.id == 0)
        QVERIFY(writer.insert(incidence, notebook, 1));
    else
        QVERIFY(writer.update(stored, incidence, notebook, 2));
    QVERIFY(transaction.commit());
}

Incidence::Ptr TestRoundTrip::load()
{
    Incidence::Ptr loaded;
    int rows = 0;
    ComponentReader reader(m_reading);
    const bool answered = reader.read("state = 0", {}, [&](const ComponentRow &row) {
        loaded = row.incidence;
        ++rows;
        return true;
    });
    return answered && rows == 1 && reader.faults() == 0 ? loaded : Incidence::Ptr();
}

void TestRoundTrip::comesBack_data()
{
    QTest::addColumn<Feature>("feature");
    const Features features = timeFeatures() + textFeatures() + recurrenceFeatures()
        + alarmFeatures() + peopleFeatures() + todoAndJournalFeatures();
    for (const Feature &feature : features)
        QTest::newRow(feature.name.constData()) << feature;
}

void TestRoundTrip::comesBack()
{
    QFETCH(Feature, feature);
    const Incidence &plain = *feature.plain;
    const Incidence::Ptr rich(plain.clone());
    feature.give(*rich);
    const bool compared = feature.name != "created" && feature.name != "last modified";
    QCOMPARE(differences(plain, *rich).isEmpty(), !compared);
    QCOMPARE(sameContent(plain, *rich), !compared);

    store(*rich);
    const Incidence::Ptr loaded = load();
    QVERIFY(loaded);
    QCOMPARE(differences(*rich, *loaded), QStringList());
    QVERIFY(sameContent(*rich, *loaded));
    QCOMPARE(asText(*loaded), asText(*rich));
    QCOMPARE(loaded->created(), rich->created());
    QCOMPARE(loaded->lastModified(), rich->lastModified());
    QVERIFY(loaded->dirtyFields().isEmpty());

    // Nothing of it is left once it is taken away, and it can be given to what is there.
    store(plain);
    QCOMPARE(differences(plain, *load()), QStringList());
    store(*rich);
    QCOMPARE(differences(*rich, *load()), QStringList());
}

void TestRoundTrip::volatilePropertiesStayInMemory()
{
    const Event::Ptr event = plainEvent();
    event->setCustomProperty("VOLATILE", "KEY", QStringLiteral("v"));
    QVERIFY(!event->customProperties().isEmpty());
    store(*event);
    QVERIFY(load()->customProperties().isEmpty());
    QCOMPARE(differences(*event, *load()), QStringList());
}

int main(int argc, char *argv[])
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
    QCoreApplication application(argc, argv);
    TestRoundTrip test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_roundtrip.moc"
