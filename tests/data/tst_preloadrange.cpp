// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidences.h"
#include "preloadrange_p.h"

#include <QtTest>

/// What the calendar preloads on a given day.
class PreloadRangeTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void range_data();
    void range();
};

void PreloadRangeTest::range_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QDate>("start");
    QTest::addColumn<QDate>("end");

    const struct {
        const char *name;
        const char *today;
        const char *start;
        const char *end;
    } rows[] = {
        {"in the middle of a month", "2011-03-10", "2011-02-23", "2011-04-21"},
        {"first of a month", "2011-05-01", "2011-04-23", "2011-06-21"},
        {"a week after the 23rd of the month before", "2011-05-31", "2011-04-23", "2011-06-28"},
        {"the four weeks reach further than the 21st", "2011-04-24", "2011-03-23", "2011-05-22"},
        {"the four weeks end on the 21st", "2011-04-23", "2011-03-23", "2011-05-21"},
        {"January keeps January: the week before", "2011-01-15", "2011-01-08", "2011-02-21"},
        {"New Year", "2011-01-01", "2010-12-25", "2011-02-21"},
        {"end of January", "2011-01-31", "2011-01-23", "2011-02-28"},
        {"30 January: the week before and the 23rd meet", "2011-01-30", "2011-01-23", "2011-02-27"},
        {"February looks back to January", "2011-02-01", "2011-01-23", "2011-03-21"},
        {"leap day", "2012-02-29", "2012-01-23", "2012-03-28"},
        {"four weeks over a leap day", "2012-02-25", "2012-01-23", "2012-03-24"},
        {"four weeks over the end of a common February", "2011-02-25", "2011-01-23", "2011-03-25"},
        {"November ends in December", "2011-11-30", "2011-10-23", "2011-12-28"},
        {"December ends in the next year", "2011-12-20", "2011-11-23", "2012-01-21"},
        {"New Year's Eve", "2011-12-31", "2011-11-23", "2012-01-28"},
    };
    for (const auto &row : rows) {
        QTest::newRow(row.name) << isoDate(row.today) << isoDate(row.start) << isoDate(row.end);
    }
}

void PreloadRangeTest::range()
{
    QFETCH(QDate, today);
    const Daskel::DateRange range = Daskel::calendarPreloadRange(today);
    QTEST(range.start, "start");
    QTEST(range.end, "end");
}

QTEST_GUILESS_MAIN(PreloadRangeTest)
#include "tst_preloadrange.moc"
