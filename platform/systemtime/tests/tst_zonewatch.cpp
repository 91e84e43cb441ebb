// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "zonefolder.h"
#include "zonewatch.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>

using Ostra::Timed::ZoneWatch;

using Step = std::function<void(const ZoneFolder &)>;
Q_DECLARE_METATYPE(Step)

class TestZoneWatch : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void seesEachKindOfChange_data();
    void seesEachKindOfChange();
    void keepsWatchingAfterwards();
    void isSilentAboutWhatChangesNothing_data();
    void isSilentAboutWhatChangesNothing();
    void waitsForAZoneToAppear();
};

namespace
{
/// Replaces the link by a copy, as some installers do.
void copyZone(const ZoneFolder &folder)
{
    ZoneFolder::remove(folder.localtime());
    ZoneFolder::write(folder.localtime(), "rules of Helsinki");
}

void nothing(const ZoneFolder &) { }
} // namespace

void TestZoneWatch::seesEachKindOfChange_data()
{
    QTest::addColumn<Step>("before");
    QTest::addColumn<Step>("change");
    QTest::addColumn<QString>("name");

    const Step asItIs = nothing;
    const Step copied = copyZone;
    QTest::newRow("a new link renamed over the old one")
        << asItIs << Step([](const ZoneFolder &folder) { folder.choose("Berlin"); })
        << QStringLiteral("Europe/Berlin");
    QTest::newRow("the link removed and made anew") << asItIs << Step([](const ZoneFolder &folder) {
        ZoneFolder::remove(folder.localtime());
        ZoneFolder::link(folder.zoneinfo("Berlin"), folder.localtime());
    }) << QStringLiteral("Europe/Berlin");
    QTest::newRow("another name for the same rules")
        << asItIs << Step([](const ZoneFolder &folder) { folder.choose("Mariehamn"); })
        << QStringLiteral("Europe/Mariehamn");
    QTest::newRow("new rules renamed into the zone database")
        << asItIs << Step([](const ZoneFolder &folder) {
               const QString upgrade = folder.zoneinfo("Helsinki.dpkg-new");
               ZoneFolder::write(upgrade, "rules of next year");
               ZoneFolder::rename(upgrade, folder.zoneinfo("Helsinki"));
           })
        << QStringLiteral("Europe/Helsinki");
    QTest::newRow("a copy rewritten in place") << copied << Step([](const ZoneFolder &folder) {
        ZoneFolder::write(folder.localtime(), "rules of Berlin");
    }) << QStringLiteral("Europe/Helsinki");
    QTest::newRow("a copy and the name, one after the other")
        << copied << Step([](const ZoneFolder &folder) {
               ZoneFolder::write(folder.localtime(), "rules of Berlin");
               ZoneFolder::write(folder.timezone(), "Europe/Berlin\n");
           })
        << QStringLiteral("Europe/Berlin");
    QTest::newRow("a copy replaced by a renamed one")
        << copied << Step([](const ZoneFolder &folder) {
               ZoneFolder::write(folder.localtime() + QStringLiteral("~"), "rules of Berlin");
               ZoneFolder::rename(folder.localtime() + QStringLiteral("~"), folder.localtime());
           })
        << QStringLiteral("Europe/Helsinki");
    QTest::newRow("the zone removed")
        << asItIs << Step([](const ZoneFolder &folder) { ZoneFolder::remove(folder.localtime()); })
        << QStringLiteral("Europe/Helsinki");
}

void TestZoneWatch::seesEachKindOfChange()
{
    QFETCH(Step, before);
    QFETCH(Step, change);
    QFETCH(QString, name);

    const ZoneFolder folder;
    before(folder);
    ZoneWatch watch(folder.files());
    QSignalSpy spy(&watch, &ZoneWatch::changed);
    QCOMPARE(watch.zoneName(), QStringLiteral("Europe/Helsinki"));
    change(folder);
    QVERIFY(spy.wait());
    QCOMPARE(watch.zoneName(), name);
    watch.check();
    QCOMPARE(spy.count(), 1);
}

void TestZoneWatch::keepsWatchingAfterwards()
{
    const ZoneFolder folder;
    ZoneWatch watch(folder.files());
    QSignalSpy spy(&watch, &ZoneWatch::changed);
    int seen = 0;
    for (const char *city : {"Berlin", "Helsinki", "Mariehamn"}) {
        folder.choose(city);
        QTRY_COMPARE(spy.count(), seen + 1);
        ZoneFolder::write(folder.zoneinfo(city), "rules of next year");
        QTRY_COMPARE(spy.count(), seen + 2);
        seen += 2;
    }
}

void TestZoneWatch::isSilentAboutWhatChangesNothing_data()
{
    QTest::addColumn<Step>("change");

    QTest::newRow("the same zone chosen again")
        << Step([](const ZoneFolder &folder) { folder.choose("Helsinki"); });
    QTest::newRow("the name's file, which the link outweighs") << Step(
        [](const ZoneFolder &folder) { ZoneFolder::write(folder.timezone(), "Europe/Berlin\n"); });
    QTest::newRow("a neighbour in the folder") << Step([](const ZoneFolder &folder) {
        ZoneFolder::write(folder.timezone() + QStringLiteral("-neighbour"), "host");
    });
    QTest::newRow("there and back") << Step([](const ZoneFolder &folder) {
        folder.choose("Berlin");
        folder.choose("Helsinki");
    });
}

void TestZoneWatch::isSilentAboutWhatChangesNothing()
{
    QFETCH(Step, change);

    const ZoneFolder folder;
    ZoneWatch watch(folder.files());
    QSignalSpy spy(&watch, &ZoneWatch::changed);
    change(folder);
    QVERIFY(!spy.wait(150));
}

void TestZoneWatch::waitsForAZoneToAppear()
{
    const ZoneFolder folder;
    ZoneFolder::remove(folder.localtime());
    ZoneFolder::remove(folder.timezone());
    ZoneWatch watch(folder.files());
    QSignalSpy spy(&watch, &ZoneWatch::changed);
    QVERIFY(watch.zoneName().isEmpty());
    folder.choose("Berlin");
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(watch.zoneName(), QStringLiteral("Europe/Berlin"));
}

QTEST_GUILESS_MAIN(TestZoneWatch)
#include "tst_zonewatch.moc"
