// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <systemtime/qmtime.h>
#include <systemtime/timesource.h>

#include <QTest>

#include <memory>
#include <utility>

using Ostra::Timed::TimeSource;
using Tarvo::QmTime;

namespace
{
enum class News { Clock, Zone, Resume };
using NewsOfOneTurn = QList<News>;
} // namespace
Q_DECLARE_METATYPE(NewsOfOneTurn)

class TestQmTime : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsEachTurnOnce_data();
    void tellsEachTurnOnce();
};

void TestQmTime::tellsEachTurnOnce_data()
{
    QTest::addColumn<NewsOfOneTurn>("news");
    QTest::addColumn<Tarvo::QmTimeWhatChanged>("told");

    QTest::newRow("clock") << NewsOfOneTurn{News::Clock} << Tarvo::QmTimeTimeChanged;
    QTest::newRow("zone") << NewsOfOneTurn{News::Zone} << Tarvo::QmTimeOnlySettingsChanged;
    QTest::newRow("waking") << NewsOfOneTurn{News::Resume} << Tarvo::QmTimeTimeChanged;
    QTest::newRow("zone, then clock")
        << NewsOfOneTurn{News::Zone, News::Clock} << Tarvo::QmTimeTimeChanged;
    QTest::newRow("waking in another zone")
        << NewsOfOneTurn{News::Resume, News::Zone, News::Zone} << Tarvo::QmTimeTimeChanged;
}

void TestQmTime::tellsEachTurnOnce()
{
    QFETCH(NewsOfOneTurn, news);
    auto owned = std::make_unique<TimeSource>();
    TimeSource *source = owned.get();
    QmTime time(std::move(owned));
    QList<Tarvo::QmTimeWhatChanged> heard;
    connect(&time, &QmTime::timeOrSettingsChanged, this,
            [&heard](Tarvo::QmTimeWhatChanged what) { heard << what; });
    // Twice: what was told once does not colour the next notice.
    for (int turn = 1; turn <= 2; ++turn) {
        for (const News item : news) {
            if (item == News::Clock)
                Q_EMIT source->clockJumped(60);
            else if (item == News::Zone)
                Q_EMIT source->zoneChanged();
            else
                Q_EMIT source->resumed();
        }
        QTRY_COMPARE(heard.size(), turn);
        QTEST(heard.last(), "told");
    }
    Q_EMIT source->zoneChanged();
    QTRY_COMPARE(heard.size(), 3);
    QCOMPARE(heard.last(), Tarvo::QmTimeOnlySettingsChanged);
}

QTEST_GUILESS_MAIN(TestQmTime)
#include "tst_qmtime.moc"
