// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clockwatch.h"
#include "fakekernelclock.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <utility>

using Ostra::Timed::ClockWatch;
using Ostra::Timed::KernelClock;
using namespace std::chrono_literals;

using Jumps = QList<std::chrono::milliseconds>;
using Seconds = QList<qint64>;
Q_DECLARE_METATYPE(Jumps)

class TestClockWatch : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsJumpsInWholeSeconds_data();
    void tellsJumpsInWholeSeconds();
    void seesAJumpThatHappensWhileArming();
    void tellsOfWaking();
    void ignoresAFalseAlarm();
    void isSilentWhereTheKernelRefuses();
    void staysSilentOnTheRealClock();
};

void TestClockWatch::tellsJumpsInWholeSeconds_data()
{
    QTest::addColumn<Jumps>("jumps");
    QTest::addColumn<Seconds>("told");

    QTest::newRow("an hour forward") << Jumps{1h} << Seconds{3600};
    QTest::newRow("a day back") << Jumps{-24h} << Seconds{-86400};
    QTest::newRow("rounded down") << Jumps{1400ms} << Seconds{1};
    QTest::newRow("rounded up") << Jumps{-1600ms} << Seconds{-2};
    QTest::newRow("too small to tell") << Jumps{400ms} << Seconds{};
    QTest::newRow("small ones add up") << Jumps{400ms, 400ms, 400ms} << Seconds{1};
    QTest::newRow("the rounding is made up for") << Jumps{600ms, -600ms} << Seconds{1, -1};
    QTest::newRow("decades, from a dead battery")
        << Jumps{24h * 365 * 40} << Seconds{86400LL * 365 * 40};
}

void TestClockWatch::tellsJumpsInWholeSeconds()
{
    QFETCH(Jumps, jumps);
    QFETCH(Seconds, told);

    auto *const clock = new FakeKernelClock;
    ClockWatch watch{std::unique_ptr<KernelClock>(clock)};
    Seconds heard;
    connect(&watch, &ClockWatch::jumped, this, [&heard](qint64 by) { heard << by; });
    for (const auto jump : jumps) {
        const int armed = clock->timesArmed;
        clock->setBy(jump);
        QTRY_COMPARE(clock->timesArmed, armed + 1);
    }
    QCOMPARE(heard, told);
}

void TestClockWatch::seesAJumpThatHappensWhileArming()
{
    auto *const clock = new FakeKernelClock;
    ClockWatch watch{std::unique_ptr<KernelClock>(clock)};
    QSignalSpy spy(&watch, &ClockWatch::jumped);
    clock->jumpWhileArming = 20s;
    clock->setBy(10s);
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toLongLong(), 30);
}

void TestClockWatch::tellsOfWaking()
{
    auto *const clock = new FakeKernelClock;
    ClockWatch watch{std::unique_ptr<KernelClock>(clock)};
    QSignalSpy jumped(&watch, &ClockWatch::jumped);
    QSignalSpy resumed(&watch, &ClockWatch::resumed);
    clock->sleepFor(8h);
    QTRY_COMPARE(resumed.count(), 1);
    clock->setBy(5s);
    QTRY_COMPARE(jumped.count(), 1);
    QCOMPARE(resumed.count(), 1);
}

void TestClockWatch::ignoresAFalseAlarm()
{
    auto *const clock = new FakeKernelClock;
    ClockWatch watch{std::unique_ptr<KernelClock>(clock)};
    QSignalSpy spy(&watch, &ClockWatch::jumped);
    clock->falseAlarm = true;
    clock->setBy(0s);
    QCoreApplication::processEvents();
    clock->falseAlarm = false;
    clock->setBy(2s);
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toLongLong(), 2);
}

void TestClockWatch::isSilentWhereTheKernelRefuses()
{
    auto clock = std::make_unique<FakeKernelClock>();
    clock->refusesToOpen = true;
    QTest::ignoreMessage(QtWarningMsg, "The clock cannot be watched: Too many open files");
    const ClockWatch watch(std::move(clock));
}

void TestClockWatch::staysSilentOnTheRealClock()
{
    KernelClock kernel;
    const int descriptor = kernel.open();
    QVERIFY(descriptor >= 0);
    QVERIFY(kernel.arm(descriptor));
    QVERIFY(!kernel.takeNotice(descriptor)); // armed, and nobody has set the clock
    ::close(descriptor);
    // The wall clock is decades ahead of the boot, and in step with it.
    const auto ahead = kernel.aheadOfBoot();
    QVERIFY(ahead > 24h * 365 * 30);
    QVERIFY(std::chrono::abs(kernel.aheadOfBoot() - ahead) < 100ms);

    ClockWatch watch(std::make_unique<KernelClock>());
    QSignalSpy spy(&watch, &ClockWatch::jumped);
    QVERIFY(!spy.wait(200));
}

QTEST_GUILESS_MAIN(TestClockWatch)
#include "tst_clockwatch.moc"
