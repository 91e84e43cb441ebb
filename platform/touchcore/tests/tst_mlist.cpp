// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "listscreen.h"

#include <touchcore/mlabel.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>
#include <QRandomGenerator>
#include <QSignalSpy>

namespace
{
const int visibleRows = 9;

qreal unequal(int number)
{
    return 24 + (number * 37) % 90;
}
} // namespace

class TestMList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesCellsForRowsInViewOnly();
    void seesEachRowOnTheWay_data();
    void seesEachRowOnTheWay();
    void scrollsTo_data();
    void scrollsTo();
    void scrollsToNothingElse();
    void followsAnyChangeOfTheModel_data();
    void followsAnyChangeOfTheModel();
    void showsChangedData();
    void cellMayChangeItsHeight();
    void measuresAgainAtAnotherWidth();
    void groupHeaderSticks_data();
    void groupHeaderSticks();
    void hasHeadersOfItsOwn();
    void makesNothingWhileHidden();
    void standsInALayout();
    void goesWithItsViewport_data();
    void goesWithItsViewport();
    void livesOnWithoutItsViewport();
    void livesWithoutAModel();
    void showsTheSelection();
    void recyclesByClass();
    void mirrorsItsCells();
};

void TestMList::makesCellsForRowsInViewOnly()
{
    ListScreen screen;
    screen.fill(500, 19);
    QCOMPARE(screen.list->size().height(), 10000.0 * 50);
    QRandomGenerator random(3);
    for (int i = 0; i < 300; ++i) {
        screen.viewport->setPosition(QPointF(0, random.bounded(500000)));
        QCOMPARE(screen.fault(), QString());
    }
    // Headers and rows are kept apart: a view may be full of rows with none of its headers.
    QVERIFY2(Row::made <= visibleRows + 4, qPrintable(QString::number(Row::made)));
}

void TestMList::seesEachRowOnTheWay_data()
{
    QTest::addColumn<qreal>("step");
    QTest::newRow("downwards") << 17.0;
    QTest::newRow("upwards, where the heights turn out late") << -17.0;
    QTest::newRow("upwards by pages") << -390.0;
}

void TestMList::seesEachRowOnTheWay()
{
    QFETCH(qreal, step);
    ListScreen screen;
    screen.fill(12, 9, unequal);
    if (step < 0)
        screen.list->scrollTo(screen.index(11, 8), MList::PositionAtBottom);
    QCOMPARE(screen.fault(), QString());
    QSet<QModelIndex> seen;
    for (int i = 0; i < 500; ++i) {
        const QModelIndex first = screen.list->firstVisibleItem();
        const QModelIndex last = screen.list->lastVisibleItem();
        const qreal firstAt = screen.seenAt(first);
        const qreal lastAt = screen.seenAt(last);
        for (const QModelIndex &index : screen.list->visibleItems())
            seen << index;
        const bool hasMoved = screen.physics()->moveBy(QPointF(0, step));
        QCOMPARE(screen.fault(), QString());
        if (!hasMoved)
            break;
        // The rows pass as the finger moves, neither is one skipped.
        const bool isEnd = screen.y() == 0 || screen.y() == screen.physics()->range().bottom();
        if (!isEnd && screen.cellAt(step < 0 ? first : last))
            QCOMPARE(screen.seenAt(step < 0 ? first : last), (step < 0 ? firstAt : lastAt) - step);
        screen.layOut();
        QCOMPARE(screen.fault(), QString());
    }
    QCOMPARE(seen.size(), screen.allRows().size());
}

void TestMList::scrollsTo_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("hint");
    QTest::addColumn<bool>("isSticky");
    // Where the row (60 high) begins, counted from the top of the view (400 high).
    QTest::addColumn<qreal>("expected");
    QTest::newRow("at the top") << 0 << 1 << false << 0.0;
    QTest::newRow("at the bottom") << 0 << 2 << false << 340.0;
    QTest::newRow("in the middle") << 99 << 3 << false << 170.0;
    QTest::newRow("in view, from above") << 0 << 0 << false << 340.0;
    QTest::newRow("in view, from below") << 99 << 0 << false << 0.0;
    QTest::newRow("at the top, below the header that sticks") << 0 << 1 << true << 60.0;
    QTest::newRow("from below, below the header that sticks") << 99 << 0 << true << 60.0;
}

void TestMList::scrollsTo()
{
    QFETCH(int, from);
    QFETCH(int, hint);
    QFETCH(bool, isSticky);
    QFETCH(qreal, expected);
    ListScreen screen;
    screen.list->setStickyHeaders(isSticky);
    screen.fill(100, 9,
                [](int number) -> qreal { return number % 10 == 5 ? 60 : 30 + number % 60; });
    // Headers are the rows with a number that ends in 0.
    for (int group = 0; group < 100; ++group)
        screen.model.item(group)->setData(60, Qt::UserRole);
    screen.list->scrollTo(screen.index(from, 0), MList::PositionAtTop);
    const QModelIndex target = screen.index(50, 4);
    screen.list->scrollTo(target, MList::ScrollHint(hint));
    QCOMPARE(screen.seenAt(target), expected);
    QCOMPARE(screen.fault(), QString());
    screen.layOut();
    QCOMPARE(screen.seenAt(target), expected);

    const qreal place = screen.y();
    screen.list->scrollTo(target);
    QCOMPARE(screen.y(), place);
}

void TestMList::scrollsToNothingElse()
{
    ListScreen screen;
    screen.fill(100, 0);
    screen.list->scrollTo(screen.index(99), MList::PositionAtTop);
    QCOMPARE(screen.y(), 100 * 50.0 - 400);
    screen.list->scrollTo(QModelIndex(), MList::PositionAtTop);
    QStandardItemModel other(5, 1);
    screen.list->scrollTo(other.index(0, 0), MList::PositionAtTop);
    QCOMPARE(screen.y(), 100 * 50.0 - 400);

    screen.flick(screen.physics(), QPointF(100, 200), QPointF(0, 100), 5);
    screen.list->scrollTo(screen.index(3), MList::PositionAtTop);
    QVERIFY(!screen.physics()->isMoving());
    QCOMPARE(screen.y(), 150.0);
}

void TestMList::followsAnyChangeOfTheModel_data()
{
    QTest::addColumn<bool>("hasGroups");
    QTest::addColumn<bool>("isSticky");
    QTest::addColumn<bool>("anchors");
    QTest::newRow("one level") << false << false << true;
    QTest::newRow("groups") << true << false << true;
    QTest::newRow("groups with headers that stick") << true << true << true;
    QTest::newRow("groups, moved by the owner") << true << false << false;
}

void TestMList::followsAnyChangeOfTheModel()
{
    QFETCH(bool, hasGroups);
    QFETCH(bool, isSticky);
    QFETCH(bool, anchors);
    ListScreen screen;
    screen.list->setStickyHeaders(isSticky);
    screen.list->setAnchorsOnInsert(anchors);
    screen.fill(8, hasGroups ? 6 : 0, unequal);
    QRandomGenerator random(11);
    for (int change = 0; change < 400; ++change) {
        QStandardItem *parent = screen.model.invisibleRootItem();
        if (hasGroups && parent->rowCount() > 0 && random.bounded(3) > 0)
            parent = parent->child(int(random.bounded(parent->rowCount())));
        const int count = parent->rowCount();
        const int at = int(random.bounded(count + 1));
        const int kind = int(random.bounded(12));
        const qreal height = unequal(int(random.bounded(99)));
        if (kind < 4)
            parent->insertRow(at,
                              ListScreen::newGroup(QStringLiteral("new%1").arg(change),
                                                   parent->parent() ? 0 : 3, unequal));
        else if (kind < 7 && at < count)
            parent->removeRows(at, 1 + int(random.bounded(qMin(4, count - at))));
        else if (kind < 9 && at < count)
            parent->child(at)->setData(height, Qt::UserRole);
        else if (kind == 9)
            parent->sortChildren(0, random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
        else
            screen.viewport->setPosition(
                QPointF(0, random.bounded(screen.physics()->range().height() + 1)));
        if (random.bounded(3) > 0) {
            screen.layOut();
            QCOMPARE(screen.fault(), QString());
            // The heights that turned out by now are told at the next turn.
            screen.layOut();
            QCOMPARE(screen.physics()->range().height(),
                     qMax(0.0, screen.list->effectiveSizeHint(Qt::PreferredSize).height() - 400));
        }
    }
    screen.model.clear();
    screen.layOut();
    QCOMPARE(screen.fault(), QString());
    QCOMPARE(screen.y(), 0.0);
    QVERIFY(!screen.list->firstVisibleItem().isValid());
}

void TestMList::showsChangedData()
{
    ListScreen screen;
    screen.fill(20, 0);
    const Row *cell = screen.cellAt(screen.index(2));
    screen.model.item(2)->setText(QStringLiteral("changed"));
    QCOMPARE(cell->text, QStringLiteral("changed"));
    screen.model.item(1)->setData(90, Qt::UserRole);
    screen.layOut();
    QCOMPARE(screen.seenAt(screen.index(2)), 140.0);
    QCOMPARE(screen.cellAt(screen.index(2)), cell);
}

void TestMList::cellMayChangeItsHeight()
{
    ListScreen screen;
    screen.fill(20, 0);
    screen.viewport->setPosition(QPointF(0, 110));
    screen.cellAt(screen.index(3))->setHeight(80);
    screen.layOut();
    QCOMPARE(screen.seenAt(screen.index(3)), 40.0);
    QCOMPARE(screen.seenAt(screen.index(4)), 120.0);
    screen.layOut();
    QCOMPARE(screen.list->size().height(), 20 * 50.0 + 30);
}

void TestMList::measuresAgainAtAnotherWidth()
{
    ListScreen screen;
    screen.fill(100, 0);
    screen.list->scrollTo(screen.index(50), MList::PositionAtTop);
    screen.viewport->resize(180, 400);
    screen.layOut();
    QCOMPARE(screen.seenAt(screen.index(50)), 0.0);
    QCOMPARE(screen.cellAt(screen.index(51))->geometry().size(), QSizeF(180, 100));
    QCOMPARE(screen.seenAt(screen.index(51)), 100.0);
}

void TestMList::groupHeaderSticks_data()
{
    QTest::addColumn<qreal>("position");
    QTest::addColumn<QList<qreal>>("headers");
    QTest::newRow("at its place") << 0.0 << QList<qreal>{0, 250};
    QTest::newRow("drawn beyond the start") << -30.0 << QList<qreal>{30, 280};
    QTest::newRow("above its place") << 120.0 << QList<qreal>{0, 130, 380};
    QTest::newRow("pushed out by the next") << 220.0 << QList<qreal>{-20, 30, 280};
    QTest::newRow("the next one's turn") << 250.0 << QList<qreal>{qQNaN(), 0, 250};
}

void TestMList::groupHeaderSticks()
{
    QFETCH(qreal, position);
    QFETCH(QList<qreal>, headers);
    ListScreen screen;
    screen.list->setStickyHeaders(true);
    screen.fill(10, 4);
    screen.physics()->pointerPress(QPointF());
    screen.physics()->pointerMove(QPointF(0, 1));
    screen.viewport->setPosition(QPointF(0, position));
    QCOMPARE(screen.fault(), QString());
    for (int group = 0; group < headers.size(); ++group)
        QCOMPARE(screen.seenAt(screen.index(group)), headers[group]);
    if (position == 120) {
        // It covers what passes below it.
        const QPointF place = screen.list->mapFromScene(10, 105);
        QCOMPARE(screen.list->indexAt(place), screen.index(0));
        QCOMPARE(screen.list->indexAt(place + QPointF(0, 50)), screen.index(0, 2));
        QVERIFY(screen.cellAt(screen.index(0))->zValue()
                > screen.cellAt(screen.index(0, 1))->zValue());
    }
}

void TestMList::hasHeadersOfItsOwn()
{
    ListScreen screen;
    screen.list->setHeaderCreator(nullptr);
    screen.fill(3, 2);
    auto *header = qobject_cast<MLabel *>(screen.list->cellAt(screen.index(1)));
    QVERIFY(header);
    QCOMPARE(header->text(), QStringLiteral("1"));
    QCOMPARE(header->styleName(), QStringLiteral("ListGroupHeader"));
    QVERIFY(header->size().height() >= 24);
    QVERIFY(MTheme::instance()->warnings().isEmpty());
}

void TestMList::makesNothingWhileHidden()
{
    ListScreen screen;
    screen.viewport->hide();
    screen.fill(100, 0);
    QCOMPARE(Row::made, 0);
    screen.viewport->show();
    screen.layOut();
    QCOMPARE(screen.fault(), QString());
}

/// A minimum of the height of all rows would make a layout resize the list from within the call
/// that tells it of the height, without an end.
void TestMList::standsInALayout()
{
    ListScreen screen;
    auto *page = new QGraphicsWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *above = new Row;
    above->setHeight(150);
    above->setMinimumHeight(150);
    above->setMaximumHeight(150);
    layout->addItem(above);
    screen.fill(1000, 0);
    screen.list->setParentItem(nullptr);
    layout->addItem(screen.list);
    screen.viewport->setWidget(page);
    screen.layOut();
    QVERIFY(screen.list->minimumHeight() < 100);
    QCOMPARE(screen.list->geometry(), QRectF(0, 150, 360, 50000));
    QCOMPARE(screen.physics()->range().height(), 50150.0 - 400);
    QCOMPARE(screen.list->visibleItems().size(), 5);
    screen.list->scrollTo(screen.index(900), MList::PositionAtTop);
    QCOMPARE(screen.seenAt(screen.index(900)), 0.0);
    QCOMPARE(screen.fault(), QString());
    screen.model.removeRows(0, 990);
    screen.layOut();
    screen.layOut();
    QCOMPARE(screen.list->geometry(), QRectF(0, 150, 360, 500));
    QCOMPARE(screen.physics()->range().height(), 250.0);
    // More room: the layout keeps the list's geometry, and yet more rows are seen.
    screen.viewport->resize(360, 550);
    QCOMPARE(screen.list->visibleItems().size(), 10);
}

void TestMList::goesWithItsViewport_data()
{
    QTest::addColumn<bool>("isInAColumn");
    QTest::newRow("as its widget") << false;
    QTest::newRow("in a column of its widget") << true;
}

/// On the way out it is a list of all its height that no viewport narrows.
void TestMList::goesWithItsViewport()
{
    QFETCH(bool, isInAColumn);
    ListScreen screen;
    screen.fill(500, 19);
    if (isInAColumn) {
        auto *column = new QGraphicsWidget;
        auto *layout = new QGraphicsLinearLayout(Qt::Vertical, column);
        auto *list = new MList;
        list->setCellCreator(new RowCreator);
        list->setHeaderCreator(new RowCreator);
        list->setShowGroups(true);
        list->setItemModel(&screen.model);
        layout->addItem(list);
        screen.viewport->setWidget(column);
        screen.layOut();
    }
    Row::made = 0;
    delete screen.viewport;
    QCOMPARE(Row::made, 0);
}

void TestMList::livesOnWithoutItsViewport()
{
    ListScreen screen;
    screen.fill(2, 9);
    screen.list->setParentItem(nullptr);
    screen.list->setGeometry(QRectF(0, 0, 360, 1000));
    screen.layOut();
    QCOMPARE(screen.list->visibleItems().size(), 20);
    delete screen.list;
}

void TestMList::livesWithoutAModel()
{
    ListScreen screen;
    QVERIFY(!screen.list->selectionModel());
    screen.list->scrollTo(QModelIndex());
    QTest::keyClick(screen.view.viewport(), Qt::Key_Tab);
    QTest::keyClick(screen.view.viewport(), Qt::Key_Down);
    QTest::keyClick(screen.view.viewport(), Qt::Key_Space);
    screen.tap(QPointF(100, 200));

    auto *model = new QStandardItemModel(50, 1);
    screen.list->setItemModel(model);
    screen.layOut();
    QCOMPARE(screen.list->visibleItems().size(), 8);
    delete model;
    QVERIFY(!screen.list->itemModel());
    QVERIFY(!screen.list->selectionModel());
    screen.layOut();
    QVERIFY(screen.list->visibleItems().isEmpty());
    QCOMPARE(screen.physics()->range().height(), 0.0);

    screen.fill(50, 0);
    screen.list->setCellCreator(nullptr);
    screen.layOut();
    QVERIFY(screen.list->childItems().isEmpty());
    screen.list->setCellCreator(new RowCreator);
    screen.layOut();
    QCOMPARE(screen.fault(), QString());
}

void TestMList::showsTheSelection()
{
    ListScreen screen;
    screen.fill(100, 0);
    screen.list->selectionModel()->select(screen.index(3), QItemSelectionModel::Select);
    QVERIFY(screen.cellAt(screen.index(3))->isSelected);
    QVERIFY(!screen.cellAt(screen.index(4))->isSelected);
    screen.list->scrollTo(screen.index(90));
    for (const QModelIndex &index : screen.list->visibleItems())
        QVERIFY(!screen.cellAt(index)->isSelected);
    screen.list->scrollTo(screen.index(0));
    QVERIFY(screen.cellAt(screen.index(3))->isSelected);
    screen.list->selectionModel()->clear();
    QVERIFY(!screen.cellAt(screen.index(3))->isSelected);
}

void TestMList::recyclesByClass()
{
    MWidgetRecycler recycler;
    auto *row = new Row;
    auto *label = new MLabel;
    recycler.recycle(row);
    recycler.recycle(label);
    QVERIFY(!row->isVisible());
    QVERIFY(!recycler.take("MWidget"));
    QCOMPARE(recycler.take("MLabel"), label);
    QVERIFY(!recycler.take("MLabel"));
    QCOMPARE(recycler.count(), 1);
    delete label;
}

void TestMList::mirrorsItsCells()
{
    ListScreen screen;
    screen.viewport->setLayoutDirection(Qt::RightToLeft);
    screen.fill(20, 0);
    QCOMPARE(screen.cellAt(screen.index(0))->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(screen.fault(), QString());
}

QTEST_MAIN(TestMList)
#include "tst_mlist.moc"
