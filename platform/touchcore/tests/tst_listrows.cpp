// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "list/listrows.h"

#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QTest>

/// The sequence of rows after any changes of the model is that of the model read anew.
class TestListRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheModel_data();
    void followsTheModel();
    void keepsMeasuredHeights();
    void findsRowsByPlace();
};

namespace
{
const qreal cellHeight = 50;
const qreal headerHeight = 30;

QList<QStandardItem *> newItems(int count, int depth)
{
    QList<QStandardItem *> items;
    for (int i = 0; i < count; ++i) {
        items << new QStandardItem;
        if (depth > 0)
            items.last()->appendRows(newItems(i, depth - 1));
    }
    return items;
}

void follow(ListRows *rows, QStandardItemModel *model)
{
    rows->setModel(model);
    rows->setEstimates(cellHeight, headerHeight);
    rows->rebuild();
    QObject::connect(
        model, &QStandardItemModel::rowsInserted, model,
        [rows](const QModelIndex &p, int first, int last) { rows->insert(p, first, last); });
    QObject::connect(
        model, &QStandardItemModel::rowsRemoved, model,
        [rows](const QModelIndex &p, int first, int last) { rows->remove(p, first, last); });
}
} // namespace

void TestListRows::followsTheModel_data()
{
    QTest::addColumn<bool>("hasGroups");
    QTest::newRow("one level; deeper ones do not matter") << false;
    QTest::newRow("groups") << true;
}

void TestListRows::followsTheModel()
{
    QFETCH(bool, hasGroups);
    QRandomGenerator random(7);
    QStandardItemModel model;
    model.invisibleRootItem()->appendRows(newItems(3, 2));
    ListRows rows;
    rows.setHasGroups(hasGroups);
    follow(&rows, &model);

    for (int change = 0; change < 300; ++change) {
        QStandardItem *parent = model.invisibleRootItem();
        for (quint32 level = random.bounded(3U); level > 0 && parent->rowCount() > 0; --level)
            parent = parent->child(int(random.bounded(parent->rowCount())));
        const int at = int(random.bounded(parent->rowCount() + 1));
        const int room = parent->rowCount() - at;
        if (random.bounded(2) && room > 0)
            parent->removeRows(at, 1 + int(random.bounded(room)));
        else
            parent->insertRows(at, newItems(int(random.bounded(4)), 2));

        ListRows anew;
        anew.setModel(&model);
        anew.setHasGroups(hasGroups);
        anew.setEstimates(cellHeight, headerHeight);
        anew.rebuild();
        QCOMPARE(rows.count(), anew.count());
        QCOMPARE(rows.heights.total(), anew.heights.total());
        for (int row = 0; row < rows.count(); ++row) {
            const QModelIndex index = rows.index(row);
            QCOMPARE(index, anew.index(row));
            QCOMPARE(rows.row(index), row);
            QCOMPARE(rows.isHeader(row), hasGroups && !index.parent().isValid());
            const bool isHeader = rows.isHeader(row);
            QCOMPARE(rows.heights.height(row), isHeader ? headerHeight : cellHeight);
            if (hasGroups) {
                const QModelIndex header = isHeader ? index : index.parent();
                QCOMPARE(rows.index(rows.headerOf(row)), header);
                QCOMPARE(rows.index(rows.nextHeader(row)), header.siblingAtRow(header.row() + 1));
            }
        }
    }
    QCOMPARE(rows.row(QStandardItemModel(1, 1).index(0, 0)), -1);
    QCOMPARE(rows.row(QModelIndex()), -1);
}

void TestListRows::keepsMeasuredHeights()
{
    QStandardItemModel model(5, 1);
    ListRows rows;
    follow(&rows, &model);
    QVERIFY(rows.heights.measure(2, 80));
    QVERIFY(!rows.heights.measure(3, 50));
    QCOMPARE(rows.heights.top(4), 50.0 + 50 + 80 + 50);
    model.insertRows(0, 2);
    model.removeRows(3, 1);
    QVERIFY(rows.heights.isMeasured(3));
    QCOMPARE(rows.heights.height(3), 80.0);
    QCOMPARE(rows.heights.top(3), 150.0);
    QVERIFY(!rows.heights.isMeasured(0));

    rows.heights.forget(0, rows.count());
    QVERIFY(!rows.heights.isMeasured(3));
    QCOMPARE(rows.heights.height(3), 80.0);
}

void TestListRows::findsRowsByPlace()
{
    RowHeights heights;
    QCOMPARE(heights.rowAt(10), -1);
    heights.insert(0, 3, 50);
    heights.measure(1, 0);
    QCOMPARE(heights.rowAt(-5), 0);
    QCOMPARE(heights.rowAt(49), 0);
    QCOMPARE(heights.rowAt(50), 2);
    QCOMPARE(heights.rowAt(5000), 2);
}

QTEST_GUILESS_MAIN(TestListRows)
#include "tst_listrows.moc"
