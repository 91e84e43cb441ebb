// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <systemtime/timed.h>
#include <systemtime/timesource.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <utility>

using Ostra::Timed::Interface;
using Ostra::Timed::TimeSource;
using Ostra::Timed::WallClock::Info;

namespace
{
/// Somebody who wants to know, with slots that fit and slots that do not.
class Listener : public QObject
{
    Q_OBJECT
public:
    int calls = 0;

public Q_SLOTS:
    void onSettings(const Ostra::Timed::WallClock::Info &info, bool timeChanged)
    {
        Q_UNUSED(info)
        Q_UNUSED(timeChanged)
        ++calls;
    }
    void onInfo(const Ostra::Timed::WallClock::Info &info)
    {
        Q_UNUSED(info)
        ++calls;
    }
    void onAnything() { ++calls; }
    void onSeconds(int seconds)
    {
        Q_UNUSED(seconds)
        ++calls;
    }
};

constexpr qint64 zone = 0; // in the lists of changes below: a change of zone
} // namespace

class TestTimed : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { TimeSource::setFactory({}); }

    void tellsChangesOfOneTurnOnce_data();
    void tellsChangesOfOneTurnOnce();
    void tellsEachTurnByItself();
    void connectsSlotsThatFit_data();
    void connectsSlotsThatFit();
    void listensToTheSourceOfTheFactory();
    void forgetsWhatItsSourceSaidLast();
};

void TestTimed::tellsChangesOfOneTurnOnce_data()
{
    QTest::addColumn<QList<qint64>>("changes");
    QTest::addColumn<int>("notices");
    QTest::addColumn<qint64>("clockDiff");

    QTest::newRow("an hour forward") << QList<qint64>{3600} << 1 << qint64(3600);
    QTest::newRow("a day back") << QList<qint64>{-86400} << 1 << qint64(86400);
    QTest::newRow("another zone") << QList<qint64>{zone} << 1 << qint64(0);
    QTest::newRow("zone by file and by bus") << QList<qint64>{zone, zone} << 1 << qint64(0);
    QTest::newRow("arrival: zone and clock")
        << QList<qint64>{zone, -7200, zone} << 1 << qint64(7200);
    QTest::newRow("two steps forward") << QList<qint64>{60, 3} << 1 << qint64(63);
    QTest::newRow("set and set back") << QList<qint64>{500, -500} << 0 << qint64(0);
    QTest::newRow("set and set back in another zone")
        << QList<qint64>{500, zone, -500} << 1 << qint64(0);
}

void TestTimed::tellsChangesOfOneTurnOnce()
{
    QFETCH(QList<qint64>, changes);
    QFETCH(int, notices);
    QFETCH(qint64, clockDiff);

    auto owned = std::make_unique<TimeSource>();
    TimeSource *source = owned.get();
    Interface timed(std::move(owned));
    QSignalSpy spy(&timed, &Interface::settingsChanged);
    for (const qint64 change : changes) {
        if (change == zone)
            Q_EMIT source->zoneChanged();
        else
            Q_EMIT source->clockJumped(change);
    }

    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), notices);
    if (notices == 1) {
        QCOMPARE(spy.first().first().value<Info>().clockDiff(), clockDiff);
        QCOMPARE(spy.first().last().toBool(), clockDiff != 0);
    }
}

void TestTimed::tellsEachTurnByItself()
{
    auto owned = std::make_unique<TimeSource>();
    TimeSource *source = owned.get();
    Interface timed(std::move(owned));
    QSignalSpy spy(&timed, &Interface::settingsChanged);

    Q_EMIT source->clockJumped(100);
    QTRY_COMPARE(spy.count(), 1);
    Q_EMIT source->zoneChanged();
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy.last().first().value<Info>().clockDiff(), 0);
    QCOMPARE(spy.last().last().toBool(), false);
}

void TestTimed::connectsSlotsThatFit_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<bool>("fits");

    QTest::newRow("both arguments")
        << QByteArray(SLOT(onSettings(const Ostra::Timed::WallClock::Info &, bool))) << true;
    QTest::newRow("the first argument")
        << QByteArray(SLOT(onInfo(const Ostra::Timed::WallClock::Info &))) << true;
    QTest::newRow("no argument") << QByteArray(SLOT(onAnything())) << true;
    QTest::newRow("another argument") << QByteArray(SLOT(onSeconds(int))) << false;
    QTest::newRow("no such slot") << QByteArray(SLOT(onNothing())) << false;
    QTest::newRow("a name without SLOT()") << QByteArray("onAnything()") << false;
}

void TestTimed::connectsSlotsThatFit()
{
    QFETCH(QByteArray, slot);
    QFETCH(bool, fits);

    auto owned = std::make_unique<TimeSource>();
    TimeSource *source = owned.get();
    Interface timed(std::move(owned));
    Listener listener;
    QCOMPARE(timed.settings_changed_connect(&listener, slot.constData()), fits);
    Q_EMIT source->zoneChanged();
    QCoreApplication::processEvents();
    QCOMPARE(listener.calls, fits ? 1 : 0);
}

void TestTimed::listensToTheSourceOfTheFactory()
{
    TimeSource *source = nullptr;
    TimeSource::setFactory([&source] {
        auto made = std::make_unique<TimeSource>();
        source = made.get();
        return made;
    });
    Interface timed;
    QSignalSpy spy(&timed, &Interface::settingsChanged);
    QVERIFY(source != nullptr);
    Q_EMIT source->clockJumped(-5);
    QTRY_COMPARE(spy.count(), 1);

    TimeSource::setFactory({});
    const auto system = TimeSource::make();
    QVERIFY(system != nullptr);
    QVERIFY(QByteArray(system->metaObject()->className()).endsWith("SystemTimeSource"));
}

void TestTimed::forgetsWhatItsSourceSaidLast()
{
    auto owned = std::make_unique<TimeSource>();
    TimeSource *source = owned.get();
    Listener listener;
    {
        Interface timed(std::move(owned));
        QVERIFY(!timed.settings_changed_connect(nullptr, SLOT(onAnything())));
        QVERIFY(timed.settings_changed_connect(&listener, SLOT(onAnything())));
        Q_EMIT source->zoneChanged();
    }
    QCoreApplication::processEvents();
    QCOMPARE(listener.calls, 0);
}

QTEST_GUILESS_MAIN(TestTimed)
#include "tst_timed.moc"
