// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "privatebus.h"
#include "testtable.h"
#include "timedatedwatch.h"

#include <QSignalSpy>
#include <QTest>

using Ostra::Timed::TimedatedWatch;

class TestTimedatedWatch : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsTheZoneOnly_data();
    void tellsTheZoneOnly();
    void followsAServiceThatComesAndGoes();
    void hearsNobodyElse();
    void isSilentWithoutABus();
};

void TestTimedatedWatch::tellsTheZoneOnly_data()
{
    addColumns<QVariantMap, QStringList, QString, QStringList>("changed", "invalidated",
                                                               "interfaceName", "told");

    const QString service = QStringLiteral("org.freedesktop.timedate1");
    const QString zone = QStringLiteral("Timezone");
    const QString berlin = QStringLiteral("Europe/Berlin");
    addRow("the zone", QVariantMap{{zone, berlin}}, QStringList(), service, QStringList{berlin});
    addRow("the zone among others", QVariantMap{{zone, berlin}, {QStringLiteral("LocalRTC"), true}},
           QStringList{QStringLiteral("NTP")}, service, QStringList{berlin});
    addRow("the zone without its value", QVariantMap(), QStringList{zone}, service,
           QStringList{QString()});
    addRow("another property", QVariantMap{{QStringLiteral("NTP"), true}}, QStringList(), service,
           QStringList());
    addRow("another interface", QVariantMap{{zone, berlin}}, QStringList(),
           QStringLiteral("org.freedesktop.DBus.Peer"), QStringList());
}

void TestTimedatedWatch::tellsTheZoneOnly()
{
    QFETCH(QVariantMap, changed);
    QFETCH(QStringList, invalidated);
    QFETCH(QString, interfaceName);
    QFETCH(QStringList, told);

    const PrivateBus bus;
    FakeTimedate service(bus);
    QVERIFY(service.start());
    TimedatedWatch watch(bus.connection(QStringLiteral("watch")));
    QStringList heard;
    connect(&watch, &TimedatedWatch::timezoneAnnounced, this,
            [&heard](const QString &zone) { heard << zone; });
    service.announce(changed, invalidated, interfaceName);
    const QString last = QStringLiteral("Asia/Tokyo");
    service.announceZone(last);
    QTRY_VERIFY(heard.contains(last));
    QCOMPARE(heard, told + QStringList{last});
    QDBusConnection::disconnectFromBus(QStringLiteral("watch"));
}

void TestTimedatedWatch::followsAServiceThatComesAndGoes()
{
    const PrivateBus bus;
    TimedatedWatch watch(bus.connection(QStringLiteral("watch")));
    QSignalSpy spy(&watch, &TimedatedWatch::timezoneAnnounced);
    FakeTimedate service(bus);
    for (int round = 1; round <= 2; ++round) {
        // The service runs only while it has work: it starts, speaks and leaves at once.
        QVERIFY(service.start());
        service.announceZone(QStringLiteral("Europe/Berlin"));
        QTRY_COMPARE(spy.count(), round);
        QVERIFY(service.stop());
    }
    QDBusConnection::disconnectFromBus(QStringLiteral("watch"));
}

void TestTimedatedWatch::hearsNobodyElse()
{
    const PrivateBus bus;
    TimedatedWatch watch(bus.connection(QStringLiteral("watch")));
    QSignalSpy spy(&watch, &TimedatedWatch::timezoneAnnounced);
    FakeTimedate service(bus);
    service.announceZone(QStringLiteral("Europe/Berlin")); // from one who does not own the name
    QVERIFY(service.start());
    service.announceZone(QStringLiteral("Asia/Tokyo"));
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toString(), QStringLiteral("Asia/Tokyo"));
    QDBusConnection::disconnectFromBus(QStringLiteral("watch"));
}

void TestTimedatedWatch::isSilentWithoutABus()
{
    const QDBusConnection nowhere = QDBusConnection::connectToBus(
        QStringLiteral("unix:path=/nonexistent/bus"), QStringLiteral("nowhere"));
    QVERIFY(!nowhere.isConnected());
    static int messages = 0;
    const auto before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) { ++messages; });
    {
        const TimedatedWatch watch(nowhere);
    }
    qInstallMessageHandler(before);
    QCOMPARE(messages, 0);
}

QTEST_GUILESS_MAIN(TestTimedatedWatch)
#include "tst_timedatedwatch.moc"
