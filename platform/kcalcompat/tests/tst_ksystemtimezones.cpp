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
    void unreadableSettingStillGivesAnOffset();
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

void TestKSystemTimeZones::unreadableSettingStillGivesAnOffset()
{
    const SystemZone rule("EET-2EEST,M3.5.0/3,M10.5.0/4");
    QVERIFY(!QTimeZone::systemTimeZone().isValid());
    QVERIFY(KSystemTimeZones::local().isValid());
    // The zone has one offset alone, while a local time knows summer and winter.
    const KDateTime summer(QDate(2011, 7, 1), QTime(12, 0));
    const KDateTime winter(QDate(2011, 1, 1), QTime(12, 0));
    QVERIFY(summer.isLocalZone());
    QCOMPARE(summer.utcOffset(), 3 * 3600);
    QCOMPARE(winter.utcOffset(), 2 * 3600);
    QCOMPARE(KDateTime(QDate(2011, 3, 27), QTime(3, 30)).time(), QTime(4, 30));
    QCOMPARE(summer.toString(), QStringLiteral("2011-07-01T12:00:00+03:00"));
    QCOMPARE(summer.toUtc().toLocalZone().time(), QTime(12, 0));
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
