// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "assertions.h"
#include "incidences.h"
#include "testtable.h"

#include <daskel/noteloader.h>

namespace
{
class EmptyLoader : public AbstractNoteLoader
{
public:
    void load() override { }
    void loadEarlier() override { }
    void loadLater() override { }
};

class WritingBackend : public AbstractNoteLoaderBackend
{
public:
    virtual ~WritingBackend() = default;
    void addGroupHeader(const QString &, int, const QDateTime &) override { }
    void addIncidence(const QString &groupName, QDateTime *start, QDateTime *end,
                      const QSharedPointer<KCalCore::Incidence> &incidence, bool atFront) override
    {
        calls << QStringLiteral("%1 %2 %3 %4 %5")
                     .arg(groupName, start ? start->toString(Qt::ISODate) : QStringLiteral("-"),
                          end ? end->toString(Qt::ISODate) : QStringLiteral("-"),
                          incidence ? incidence->uid() : QStringLiteral("-"))
                     .arg(atFront);
    }

    QStringList calls;
};
} // namespace

class TestNoteLoader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsEmpty();
    void handsOverAndCounts();
    void asserts_data();
    void asserts();
};

void TestNoteLoader::startsEmpty()
{
    EmptyLoader loader;
    QCOMPARE(loader.batchSize(), 15);
    QCOMPARE(loader.incidenceCount(), 0);
    QVERIFY(!loader.storage());
    QVERIFY(!loader.calendar());
    loader.setBatchSize(1);
    QCOMPARE(loader.batchSize(), 1);
    const auto calendar = mKCal::ExtendedCalendar::Ptr::create(QTimeZone::utc());
    loader.setCalendar(calendar);
    QCOMPARE(loader.calendar(), calendar);
}

void TestNoteLoader::handsOverAndCounts()
{
    EmptyLoader loader;
    WritingBackend replaced;
    WritingBackend backend;
    loader.setBackend(&replaced);
    loader.setBackend(&backend);
    QCOMPARE(loader.backend(), &backend);
    QDateTime start = localTime("2011-03-10T09:00");
    QDateTime end = localTime("2011-03-10T10:00");
    loader.addIncidence(QStringLiteral("day"), &start, &end, makeEvent("a", start, end), false);
    loader.addIncidence(QString(), nullptr, &end, makeEvent("b", start, end), true);
    loader.addIncidence(QStringLiteral("day"), &start, nullptr, {}, false);
    QCOMPARE(backend.calls,
             QStringList({QStringLiteral("day 2011-03-10T09:00:00 2011-03-10T10:00:00 a 0"),
                          QStringLiteral(" - 2011-03-10T10:00:00 b 1"),
                          QStringLiteral("day 2011-03-10T09:00:00 - - 0")}));
    QCOMPARE(replaced.calls, QStringList());
    QCOMPARE(loader.incidenceCount(), 2);
    loader.resetIncidenceCount();
    QCOMPARE(loader.incidenceCount(), 0);
    QCOMPARE(backend.calls.size(), 3);
}

void TestNoteLoader::asserts_data()
{
    addColumns<QByteArray>("text");
    addRow("--batch-of-nothing", QByteArray("\"value > 0\" in file noteloader, line 62"));
    addRow("--no-backend", QByteArray("\"d->backend\" in file noteloader, line 55"));
}

void TestNoteLoader::asserts()
{
    QFETCH(QByteArray, text);
    verifyAssertion(QLatin1String(QTest::currentDataTag()), text);
}

namespace
{
/// Whether the program was started only to do something wrong.
bool isDoneWrong(const QByteArray &what)
{
    EmptyLoader loader;
    if (what == "--batch-of-nothing")
        loader.setBatchSize(0);
    else if (what == "--no-backend")
        loader.addIncidence(QString(), nullptr, nullptr, {}, false);
    else
        return false;
    return true;
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 2 && isDoneWrong(argv[1]))
        return 0;
    TestNoteLoader test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_noteloader.moc"
