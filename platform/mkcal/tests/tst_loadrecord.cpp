// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/loadrecord.h"

#include <QtTest>

using namespace mKCal;

using Days = QVector<QPair<int, int>>;
Q_DECLARE_METATYPE(Days)

namespace
{
DateRange range(const QPair<int, int> &days)
{
    const QDate origin(2026, 1, 1);
    return {origin.addDays(days.first), origin.addDays(days.second)};
}
} // namespace

/// What a load still has to read.
class TestLoadRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingDays_data();
    void missingDays();
    void recurringAreApart();
};

void TestLoadRecord::missingDays_data()
{
    QTest::addColumn<Days>("read");
    QTest::addColumn<Days>("missing"); // of the days 10 to 20
    QTest::newRow("nothing read") << Days{} << Days{{10, 20}};
    QTest::newRow("all of it") << Days{{10, 20}} << Days{};
    QTest::newRow("more than it") << Days{{0, 100}} << Days{};
    QTest::newRow("the first day") << Days{{5, 10}} << Days{{11, 20}};
    QTest::newRow("the last day") << Days{{20, 30}} << Days{{10, 19}};
    QTest::newRow("beside it") << Days{{0, 9}, {21, 30}} << Days{{10, 20}};
    QTest::newRow("the middle") << Days{{14, 15}} << Days{{10, 13}, {16, 20}};
    QTest::newRow("two parts, the later one first")
        << Days{{17, 18}, {12, 13}} << Days{{10, 11}, {14, 16}, {19, 20}};
    QTest::newRow("touching parts") << Days{{16, 20}, {10, 12}, {13, 15}} << Days{};
    QTest::newRow("overlapping parts") << Days{{9, 14}, {12, 17}, {11, 13}} << Days{{18, 20}};
    QTest::newRow("a part that swallows others")
        << Days{{11, 12}, {14, 15}, {10, 19}} << Days{{20, 20}};
}

void TestLoadRecord::missingDays()
{
    QFETCH(Days, read);
    QFETCH(Days, missing);
    LoadRecord record;
    for (const auto &days : qAsConst(read))
        record.addDays(range(days));
    const QVector<DateRange> found = record.missingDays(range({10, 20}));
    QCOMPARE(found.size(), missing.size());
    for (int i = 0; i < found.size(); ++i) {
        QCOMPARE(found.at(i).first, range(missing.at(i)).first);
        QCOMPARE(found.at(i).last, range(missing.at(i)).last);
    }
}

void TestLoadRecord::recurringAreApart()
{
    LoadRecord record;
    record.addDays(range({10, 20}));
    QCOMPARE(record.missingRecurringDays(range({10, 20})).size(), 1);
    record.addAllRecurring();
    QVERIFY(record.missingRecurringDays(range({10, 20})).isEmpty());
    QCOMPARE(record.missingDays(range({0, 30})).size(), 2);
    record.addEverything();
    QVERIFY(record.missingDays(range({0, 30})).isEmpty());
    record.clear();
    QCOMPARE(record.missingDays(range({10, 20})).size(), 1);
}

QTEST_GUILESS_MAIN(TestLoadRecord)
#include "tst_loadrecord.moc"
