// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"

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
    void onSettings(const Ostra::Timed::WallClock::Info &, bool) { ++calls; }
    void onInfo(const Ostra::Timed::WallClock::Info &) { ++calls; }
    void onAnything() { ++calls; }
    void onSeconds(int) { ++calls; }
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
    addColumns<QList<qint64>, int, qint64>("changes", "notices", "clockDiff");

    addRow("an hour forward", QList<qint64>{3600}, 1, qint64(3600));
    addRow("a day back", QList<qint64>{-86400}, 1, qint64(86400));
    addRow("another zone", QList<qint64>{zone}, 1, qint64(0));
    addRow("zone by file and by bus", QList<qint64>{zone, zone}, 1, qint64(0));
    addRow("arrival: zone and clock", QList<qint64>{zone, -7200, zone}, 1, qint64(7200));
    addRow("two steps forward", QList<qint64>{60, 3}, 1, qint64(63));
    addRow("set and set back", QList<qint64>{500, -500}, 0, qint64(0));
    addRow("set and set back in another zone", QList<qint64>{500, zone, -500}, 1, qint64(0));
}

void TestTimed::tellsChangesOfOneTurnOnce()
{
    QFETCH(QList<qint64>, changes);
    QFETCH(int, notices);
    QFETCH(qint64, clockDiff);

    auto *const source = new TimeSource;
    Interface timed{std::unique_ptr<TimeSource>(source)};
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
    auto *const source = new TimeSource;
    Interface timed{std::unique_ptr<TimeSource>(source)};
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
    addColumns<QByteArray, bool>("slot", "fits");

    addRow("both arguments",
           QByteArray(SLOT(onSettings(const Ostra::Timed::WallClock::Info &, bool))), true);
    addRow("the first argument", QByteArray(SLOT(onInfo(const Ostra::Timed::WallClock::Info &))),
           true);
    addRow("no argument", QByteArray(SLOT(onAnything())), true);
    addRow("another argument", QByteArray(SLOT(onSeconds(int))), false);
    addRow("no such slot", QByteArray(SLOT(onNothing())), false);
    addRow("a name without SLOT()", QByteArray("onAnything()"), false);
}

void TestTimed::connectsSlotsThatFit()
{
    QFETCH(QByteArray, slot);
    QFETCH(bool, fits);

    auto *const source = new TimeSource;
    Interface timed{std::unique_ptr<TimeSource>(source)};
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
