// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakekernelclock.h"
#include "privatebus.h"
#include "systemtimesource.h"
#include "zonefolder.h"

#include <systemtime/timed.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <utility>

using Ostra::Timed::Interface;
using Ostra::Timed::SystemTimeSource;
using Ostra::Timed::TimeSource;
using Ostra::Timed::WallClock::Info;

/// The three watches together, up to the notice that a program hears.
class TestSystemTimeSource : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void tellsOneChangeOnce();
    void believesTheServiceWhenTheFilesAreHidden();
    void tellsAClockThatJumps();
    void connectsToTheBusFromTheEventLoopOnly();

private:
    void waitUntilTheServiceIsHeard();

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FakeTimedate> m_service;
    std::unique_ptr<ZoneFolder> m_folder;
    std::unique_ptr<Interface> m_timed;
    FakeKernelClock *m_clock = nullptr;
    bool m_connected = false;
};

void TestSystemTimeSource::init()
{
    m_bus = std::make_unique<PrivateBus>();
    m_service = std::make_unique<FakeTimedate>(*m_bus);
    QVERIFY(m_service->start());
    m_folder = std::make_unique<ZoneFolder>();
    auto clock = std::make_unique<FakeKernelClock>();
    m_clock = clock.get();
    m_connected = false;
    const auto connectToBus = [this] {
        m_connected = true;
        return m_bus->connection(QStringLiteral("source"));
    };
    m_timed = std::make_unique<Interface>(
        std::make_unique<SystemTimeSource>(std::move(clock), m_folder->files(), connectToBus));
}

void TestSystemTimeSource::cleanup()
{
    m_timed.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("source"));
    m_service.reset();
    m_folder.reset();
    m_bus.reset();
}

void TestSystemTimeSource::waitUntilTheServiceIsHeard()
{
    QTRY_VERIFY(m_connected);
}

void TestSystemTimeSource::tellsOneChangeOnce()
{
    waitUntilTheServiceIsHeard();
    QSignalSpy spy(m_timed.get(), &Interface::settingsChanged);
    int told = 0;
    for (const char *city : {"Berlin", "Mariehamn", "Berlin"}) {
        m_folder->choose(city);
        m_service->announceZone(QStringLiteral("Europe/%1").arg(QLatin1String(city)));
        ++told;
        QTRY_COMPARE(spy.count(), told);
    }
    // Longer than the files need to settle: the other source has spoken too.
    QVERIFY(!spy.wait(150));
}

void TestSystemTimeSource::believesTheServiceWhenTheFilesAreHidden()
{
    waitUntilTheServiceIsHeard();
    QSignalSpy spy(m_timed.get(), &Interface::settingsChanged);
    int told = 0;
    for (const char *zone : {"Asia/Tokyo", "Asia/Seoul", "Asia/Tokyo", "Europe/Helsinki"}) {
        m_service->announceZone(QLatin1String(zone));
        ++told;
        QTRY_COMPARE(spy.count(), told);
    }
}

void TestSystemTimeSource::tellsAClockThatJumps()
{
    QSignalSpy spy(m_timed.get(), &Interface::settingsChanged);
    m_clock->setBy(std::chrono::hours(-2));
    QVERIFY(spy.wait());
    QCOMPARE(spy.first().first().value<Info>().clockDiff(), 7200);
    QCOMPARE(spy.first().last().toBool(), true);
}

void TestSystemTimeSource::connectsToTheBusFromTheEventLoopOnly()
{
    QVERIFY(!m_connected);
    waitUntilTheServiceIsHeard();
}

QTEST_GUILESS_MAIN(TestSystemTimeSource)
#include "tst_systemtimesource.moc"
