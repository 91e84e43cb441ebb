// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendar/dateindex.h"

#include <KCalendarCore/Event>

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

using mKCal::DateIndex;
using mKCal::Msecs;
using mKCal::TimeSpan;

namespace
{
constexpr Msecs hour = 3600000;

DateIndex::Entry entry(const QString &uid, Msecs start, Msecs end)
{
    DateIndex::Entry entry;
    entry.first = {start, end};
    entry.until = end;
    entry.uid = uid;
    entry.incidence.reset(new KCalCore::Event);
    entry.incidence->setUid(uid);
    return entry;
}

QStringList found(const DateIndex &index, Msecs from, Msecs to)
{
    QStringList uids;
    index.visit({{from, to}, {from, to}},
                [&uids](const DateIndex::Entry &entry) { uids.append(entry.uid); });
    return uids;
}
} // namespace

class TestDateIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wallAndMoment();
    void undatedComesLast();
    void sameAsSearchingAll();
};

void TestDateIndex::wallAndMoment()
{
    DateIndex index;
    DateIndex::Entry wall = entry("wall", 100 * hour, 124 * hour);
    wall.isWallBound = true;
    index.insert(wall);
    index.insert(entry("moment", 100 * hour, 124 * hour));
    QStringList uids;
    // The days of a zone ten hours to the west.
    index.visit({{134 * hour, 158 * hour}, {124 * hour - 1, 148 * hour}},
                [&uids](const DateIndex::Entry &entry) { uids.append(entry.uid); });
    QCOMPARE(uids, QStringList("wall"));
}

void TestDateIndex::undatedComesLast()
{
    DateIndex index;
    DateIndex::Entry undated = entry("a", 0, 0);
    undated.isDated = false;
    index.insert(undated);
    index.insert(entry("b", 5, 6));
    QCOMPARE(found(index, -10, 10), QStringList("b"));
    QStringList all;
    index.visitAll([&all](const DateIndex::Entry &entry) { all.append(entry.uid); });
    QCOMPARE(all, QStringList({"b", "a"}));
}

void TestDateIndex::sameAsSearchingAll()
{
    QRandomGenerator random(7);
    DateIndex index;
    QVector<DateIndex::Entry> entries;
    for (int i = 0; i < 400; ++i) {
        const Msecs start = random.bounded(1000) * hour;
        DateIndex::Entry made = entry(QString::number(random.bounded(50)), start,
                                      start + random.bounded(i % 3 == 0 ? 200 : 20) * hour);
        made.recurrenceId = i;
        made.recurs = i % 5 == 0;
        made.until = i % 10 == 0 ? DateIndex::endless : made.first.end;
        entries.append(made);
        index.insert(made);
    }
    for (int i = 0; i < 100; ++i) {
        entries[i].first = {i * hour, (i + 1) * hour};
        entries[i].until = entries[i].first.end;
        index.insert(entries[i]);
        index.remove(entries.takeLast().incidence.data());
    }
    std::sort(entries.begin(), entries.end());
    for (Msecs from = -50 * hour; from < 1100 * hour; from += 31 * hour) {
        const Msecs to = from + 24 * hour;
        QStringList expected;
        for (const DateIndex::Entry &each : qAsConst(entries)) {
            if (TimeSpan{each.first.start, each.until}.overlaps(from, to)) {
                expected.append(each.uid);
            }
        }
        QCOMPARE(found(index, from, to), expected);
    }
}

QTEST_GUILESS_MAIN(TestDateIndex)
#include "tst_dateindex.moc"
