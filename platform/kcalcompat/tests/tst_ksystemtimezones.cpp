// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "systemzone.h"

#include <kcalcompat/kdatetime.h>
#include <kcalcompat/ksystemtimezones.h>

#include <QtTest>

#include <ctime>
#include <thread>
#include <vector>

namespace
{
int hourInC(const KDateTime &moment)
{
    const time_t seconds = moment.toSecsSinceEpoch();
    std::tm local = {};
    localtime_r(&seconds, &local);
    return local.tm_hour;
}
} // namespace

class TestKSystemTimeZones : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void localZoneIsReadAgainWhenToldSo();
    void everySettingIsOneClock_data();
    void everySettingIsOneClock();
    void standInGoesWithItsSetting();
    void namedZones_data();
    void namedZones();
    void threadsShareTheZones();
};

void TestKSystemTimeZones::localZoneIsReadAgainWhenToldSo()
{
    const SystemZone helsinki("Europe/Helsinki");
    const KDateTime noon(QDate(2011, 7, 1), QTime(12, 0));
    QCOMPARE(KSystemTimeZones::local().id(), QByteArray("Europe/Helsinki"));
    QCOMPARE(hourInC(noon), 12);

    qputenv("TZ", "America/New_York");
    QCOMPARE(KSystemTimeZones::local().id(), QByteArray("Europe/Helsinki"));
    KSystemTimeZones().configChanged();
    QCOMPARE(hourInC(noon), 5);
    QCOMPARE(KSystemTimeZones::local().id(), QByteArray("America/New_York"));

    // A value made before keeps its moment.
    QCOMPARE(noon.toUtc().time(), QTime(9, 0));
    QCOMPARE(noon.toLocalZone().time(), QTime(5, 0));
    QCOMPARE(noon.toClockTime().time(), QTime(5, 0));
    QCOMPARE(KDateTime::Spec::ClockTime().timeZone().id(), QByteArray("America/New_York"));

    qputenv("TZ", "Asia/Tokyo");
    KSystemTimeZones::cleanup();
    QCOMPARE(KSystemTimeZones::local().id(), QByteArray("Asia/Tokyo"));
}

void TestKSystemTimeZones::everySettingIsOneClock_data()
{
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<int>("winter"); // minutes east of Greenwich
    QTest::addColumn<int>("summer");
    const auto row = [](const char *setting, int winter, int summer) {
        QTest::newRow(setting) << QByteArray(setting) << winter << summer;
    };
    row("Europe/Helsinki", 120, 180);
    row(":Europe/Helsinki", 120, 180);
    row("/usr/share/zoneinfo/Europe/Helsinki", 120, 180);
    row("Australia/Lord_Howe", 660, 630);
    row("Etc/GMT+5", -300, -300);
    row("UTC", 0, 0);
    row("UTC0", 0, 0);
    row("UTC-5", 300, 300);
    row("UTC+3", -180, -180);
    row("UTC+3:30", -210, -210);
    row("UTC-05:45", 345, 345);
    row("<+0330>-3:30", 210, 210);
    row("EET-2EEST", 120, 180);
    row("EET-2EEST,M3.5.0/3,M10.5.0/4", 120, 180);
    row("EET-2EEST-3,M3.5.0/3,M10.5.0/4", 120, 180);
    row("AEST-10AEDT,M10.1.0,M4.1.0/3", 660, 600);
    // The C library shows UTC for what it does not know.
    row("Mars/Olympus", 0, 0);
}

void TestKSystemTimeZones::everySettingIsOneClock()
{
    QFETCH(QByteArray, setting);
    QFETCH(int, winter);
    QFETCH(int, summer);
    const SystemZone zone(setting);
    // Told once more, for the stand-in of the first time is no setting.
    KSystemTimeZones().configChanged();
    const QTimeZone local = KSystemTimeZones::local();
    QVERIFY(QTimeZone::systemTimeZone() == local);
    const QPair<QDate, int> days[] = {{QDate(2026, 1, 10), winter}, {QDate(2026, 7, 10), summer}};
    for (const auto &day : days) {
        const QTime time(9, 30);
        const QDateTime moment = QDateTime(day.first, time, Qt::UTC).addSecs(-day.second * 60);
        QCOMPARE(QDateTime(day.first, time), moment);
        QCOMPARE(QDateTime(day.first, time, local), moment);
        QCOMPARE(local.offsetFromUtc(moment), day.second * 60);
        QCOMPARE(KDateTime(day.first, time).utcOffset(), day.second * 60);
        QCOMPARE(KDateTime(day.first, time, KDateTime::Spec::ClockTime()).toUtc(),
                 KDateTime(moment));
    }
    // The hours of the changes are those of the setting.
    if (setting.endsWith(",M3.5.0/3,M10.5.0/4")) {
        const QDateTime change(QDate(2026, 3, 29), QTime(1, 0), Qt::UTC);
        QCOMPARE(local.offsetFromUtc(change.addSecs(-1)), 7200);
        QCOMPARE(local.offsetFromUtc(change), 10800);
    }
}

void TestKSystemTimeZones::standInGoesWithItsSetting()
{
    const SystemZone rule("EET-2EEST");
    QVERIFY(qgetenv("TZ") != "EET-2EEST");
    qputenv("TZ", "Asia/Tokyo");
    KSystemTimeZones().configChanged();
    QCOMPARE(qgetenv("TZ"), QByteArray("Asia/Tokyo"));
    QCOMPARE(KSystemTimeZones::local().id(), QByteArray("Asia/Tokyo"));
}

void TestKSystemTimeZones::namedZones_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<int>("offset");
    constexpr int none = -1;
    QTest::newRow("a city") << QByteArray("Asia/Kolkata") << 19800;
    QTest::newRow("UTC") << QByteArray("UTC") << 0;
    QTest::newRow("a fixed offset") << QByteArray("UTC+05:45") << 20700;
    QTest::newRow("no name is not the system's zone") << QByteArray() << none;
    QTest::newRow("unknown") << QByteArray("Europe/Atlantis") << none;
    QTest::newRow("a path") << QByteArray("/etc/passwd") << none;
}

void TestKSystemTimeZones::namedZones()
{
    QFETCH(QByteArray, id);
    QFETCH(int, offset);
    // Asked for twice: the second answer comes from the kept zones.
    for (int i = 0; i < 2; ++i) {
        const QTimeZone zone = KSystemTimeZones::zone(id);
        QCOMPARE(zone.isValid(), offset >= 0);
        if (zone.isValid())
            QCOMPARE(zone.offsetFromUtc(QDateTime({2011, 7, 1}, {12, 0}, Qt::UTC)), offset);
    }
}

void TestKSystemTimeZones::threadsShareTheZones()
{
    const SystemZone helsinki("Europe/Helsinki");
    constexpr int threadCount = 4;
    constexpr int rounds = 200;
    const QByteArrayList ids = {"Europe/Helsinki", "Asia/Beirut", "Pacific/Apia"};
    std::vector<int> right(threadCount, 0);
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int &count : right) {
        threads.emplace_back([&count, &ids] {
            for (int i = 0; i < rounds; ++i) {
                const QByteArray &id = ids.at(i % ids.size());
                const KDateTime noon(QDate(2011, 7, 1), QTime(12, 0));
                if (KSystemTimeZones::zone(id).id() == id && noon.toUtc().time() == QTime(9, 0))
                    ++count;
                if (i % 10 == 0)
                    KSystemTimeZones().configChanged();
                if (i % 25 == 0)
                    KSystemTimeZones::cleanup();
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(right, std::vector<int>(threadCount, rounds));
}

QTEST_GUILESS_MAIN(TestKSystemTimeZones)
#include "tst_ksystemtimezones.moc"
