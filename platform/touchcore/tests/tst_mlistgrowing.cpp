// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "listscreen.h"

#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>

#include <QGraphicsLinearLayout>
#include <QSignalSpy>

namespace
{
qreal unequal(int number)
{
    return 24 + (number * 37) % 90;
}

/// A list that loads more rows where a pan ends, and moves its viewport itself when rows came in
/// above: by the growth of its height, before it takes its geometry.
class GrowingList : public MList
{
    Q_OBJECT

public:
    GrowingList()
    {
        setAnchorsOnInsert(false);
        connect(this, &MList::panningStopped, this, &GrowingList::growAtTheTop);
    }

    void setGeometry(const QRectF &rect) override
    {
        if (m_haveRowsComeAbove) {
            m_haveRowsComeAbove = false;
            growths << rect.height() - size().height();
            viewport->setPosition(viewport->position() + QPointF(0, growths.last()));
        }
        MList::setGeometry(rect);
    }

    MPannableViewport *viewport = nullptr;
    QList<qreal> growths;

private:
    void growAtTheTop()
    {
        if (viewport->position().y() > 0)
            return;
        auto *model = static_cast<QStandardItemModel *>(itemModel());
        // As from storage: the header first, then its rows.
        for (int group = 0; group < 5; ++group) {
            const QString name = QStringLiteral("earlier%1").arg(model->rowCount());
            model->insertRow(0, ListScreen::newRow(name, 70));
            for (int row = 0; row < 6; ++row)
                model->item(0)->insertRow(row, ListScreen::newRow(name, unequal(row)));
        }
        m_haveRowsComeAbove = true;
    }

    bool m_haveRowsComeAbove = false;
};

using Around = QGraphicsWidget *(*)(MList *);

QGraphicsWidget *alone(MList *list)
{
    return list;
}

QGraphicsWidget *inALayout(MList *list)
{
    auto *page = new QGraphicsWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addItem(list);
    return page;
}

QGraphicsWidget *inALayoutWithPolicies(MList *list)
{
    auto *page = new MWidget;
    auto *layout = new MLayout(page);
    auto *policy = new MLinearLayoutPolicy(layout, Qt::Vertical);
    policy->addItem(list);
    layout->setPolicy(policy);
    return page;
}

QGraphicsWidget *inLayoutsInLayouts(MList *list)
{
    auto *page = new QGraphicsWidget;
    auto *layout = new QGraphicsLinearLayout(Qt::Vertical, page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addItem(inALayout(list));
    return page;
}
} // namespace

Q_DECLARE_METATYPE(Around)

class TestMListGrowing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsInViewStay_data();
    void rowsInViewStay();
    void rowsInViewStayWhileItMoves();
    void firstRowsStartAtTheTop();
    void ownerKeepsRowsInPlace_data();
    void ownerKeepsRowsInPlace();
    void everyPictureOnTheWayIsRight();
    void growsByWheelAndKey_data();
    void growsByWheelAndKey();
};

void TestMListGrowing::rowsInViewStay_data()
{
    QTest::addColumn<Around>("around");
    QTest::addColumn<qreal>("position");
    const std::pair<const char *, Around> surroundings[] = {
        {"alone", alone},
        {"in a layout", inALayout},
        {"in a layout with policies", inALayoutWithPolicies},
        {"in layouts in layouts", inLayoutsInLayouts},
    };
    for (const auto &[name, around] : surroundings) {
        QTest::addRow("%s, at the top", name) << around << 0.0;
        QTest::addRow("%s, between", name) << around << 777.0;
        QTest::addRow("%s, at the end", name) << around << 1e9;
    }
}

void TestMListGrowing::rowsInViewStay()
{
    QFETCH(Around, around);
    QFETCH(qreal, position);
    ListScreen screen;
    if (around != alone)
        screen.viewport->setWidget(around(new MList));
    if (around != alone) {
        screen.list = nullptr;
        for (QGraphicsItem *item : screen.scene.items()) {
            if (auto *list = qobject_cast<MList *>(item->toGraphicsObject()))
                screen.list = list;
        }
        screen.list->setCellCreator(new RowCreator);
        screen.list->setHeaderCreator(new RowCreator);
    }
    screen.fill(20, 6, unequal);
    for (int i = 0; i < 3; ++i) {
        screen.viewport->setPosition(QPointF(0, position));
        screen.layOut();
    }
    const QPersistentModelIndex seen = screen.list->firstVisibleItem();
    const Row *cell = screen.cellAt(seen);
    const qreal place = screen.seenAt(seen);

    int number = 5;
    screen.model.insertRow(0, ListScreen::newGroup(QStringLiteral("a"), 30, unequal, &number));
    screen.model.insertRow(0, ListScreen::newRow(QStringLiteral("b")));
    screen.layOut();
    QCOMPARE(screen.seenAt(seen), place);
    QCOMPARE(screen.cellAt(seen), cell);
    QCOMPARE(screen.fault(), QString());
    screen.layOut();
    QCOMPARE(screen.seenAt(seen), place);

    screen.model.removeRow(1);
    screen.layOut();
    screen.layOut();
    QCOMPARE(screen.seenAt(seen), place);
    QCOMPARE(screen.fault(), QString());
}

void TestMListGrowing::rowsInViewStayWhileItMoves()
{
    const auto rowsSeenAfter = [](bool grows) {
        ListScreen screen;
        screen.fill(40, 9, unequal);
        screen.viewport->setPosition(QPointF(0, 3000));
        screen.flick(screen.physics(), QPointF(100, 150), QPointF(0, 120), 6);
        QList<qreal> speeds;
        for (int frame = 0; frame < 90; ++frame) {
            if (grows && frame % 30 == 20)
                screen.model.insertRow(0, ListScreen::newGroup(QStringLiteral("new"), 50, unequal));
            screen.layOut();
            const QPersistentModelIndex seen = screen.list->visibleItems().value(3);
            const qreal place = screen.seenAt(seen);
            screen.physics()->advance(0.016);
            speeds << screen.seenAt(seen) - place;
        }
        return qMakePair(speeds, screen.list->firstVisibleItem().data().toString());
    };
    const auto expected = rowsSeenAfter(false);
    QVERIFY(expected.first.first() > 5);
    QCOMPARE(rowsSeenAfter(true), expected);
}

void TestMListGrowing::firstRowsStartAtTheTop()
{
    ListScreen screen;
    screen.fill(0, 0);
    screen.list->setShowGroups(true);
    screen.model.appendRow(ListScreen::newGroup(QStringLiteral("a"), 30));
    screen.model.insertRow(0, ListScreen::newGroup(QStringLiteral("b"), 30));
    screen.layOut();
    QCOMPARE(screen.y(), 0.0);
    QCOMPARE(screen.fault(), QString());
}

void TestMListGrowing::ownerKeepsRowsInPlace_data()
{
    QTest::addColumn<Around>("around");
    QTest::newRow("alone") << Around(alone);
    QTest::newRow("in a layout") << Around(inALayout);
    QTest::newRow("in a layout with policies") << Around(inALayoutWithPolicies);
    QTest::newRow("in layouts in layouts") << Around(inLayoutsInLayouts);
}

void TestMListGrowing::ownerKeepsRowsInPlace()
{
    QFETCH(Around, around);
    auto *list = new GrowingList;
    ListScreen screen(list);
    list->viewport = screen.viewport;
    if (around != alone) {
        list->setParentItem(nullptr);
        screen.viewport->setWidget(around(list));
    }
    screen.fill(10, 6, unequal);
    screen.layOut();
    for (int time = 1; time <= 3; ++time) {
        screen.viewport->setPosition(QPointF(0, 60));
        const QPersistentModelIndex first = screen.index(0);
        screen.flick(screen.physics(), QPointF(100, 200), QPointF(0, 150), 5);
        while (screen.physics()->isMoving())
            screen.physics()->advance(0.016);
        QCOMPARE(screen.seenAt(first), 0.0);
        const Row *cell = screen.cellAt(first);
        QCOMPARE(screen.model.rowCount(), 10 + 5 * time);

        screen.layOut();
        QCOMPARE(list->growths.size(), time);
        QCOMPARE(list->growths.last(), 35 * 50.0);
        QCOMPARE(screen.y(), 35 * 50.0);
        QCOMPARE(screen.seenAt(first), 0.0);
        QCOMPARE(screen.cellAt(first), cell);
        QCOMPARE(screen.fault(), QString());
        screen.layOut();
        QCOMPARE(screen.seenAt(first), 0.0);

        // The new rows turn out higher or lower than they counted: nothing leaps.
        while (screen.y() > 100) {
            const QPersistentModelIndex seen = screen.list->firstVisibleItem();
            const qreal place = screen.seenAt(seen);
            screen.physics()->moveBy(QPointF(0, -23));
            QCOMPARE(screen.seenAt(seen), place + 23);
            screen.layOut();
            QCOMPARE(screen.seenAt(seen), place + 23);
            QCOMPARE(screen.fault(), QString());
        }
        screen.physics()->stop();
        QCOMPARE(list->growths.size(), time);
    }
}

/// Also the one that is drawn between the growth and its layout.
void TestMListGrowing::everyPictureOnTheWayIsRight()
{
    auto *list = new GrowingList;
    ListScreen screen(list);
    list->viewport = screen.viewport;
    screen.fill(10, 6);
    const auto places = [&] {
        QList<qreal> seen;
        for (int row = 0; row < 6; ++row)
            seen << screen.seenAt(screen.index(screen.model.rowCount() - 10, row));
        return seen;
    };
    const QList<qreal> expected = places();
    screen.drag(screen.physics(), QPointF(100, 200), QPointF(0, 30));
    TouchScreen::comeToRest(screen.physics());
    QCOMPARE(screen.model.rowCount(), 15);
    QCOMPARE(places(), expected);
    screen.layOut();
    QCOMPARE(places(), expected);
}

void TestMListGrowing::growsByWheelAndKey_data()
{
    QTest::addColumn<bool>("byWheel");
    QTest::newRow("wheel") << true;
    QTest::newRow("key") << false;
}

void TestMListGrowing::growsByWheelAndKey()
{
    QFETCH(bool, byWheel);
    auto *list = new GrowingList;
    ListScreen screen(list);
    list->viewport = screen.viewport;
    screen.fill(10, 6);
    QTest::keyClick(screen.view.viewport(), Qt::Key_Tab);
    if (byWheel)
        screen.wheel(QPointF(100, 200), QPoint(0, 120));
    else
        QTest::keyClick(screen.view.viewport(), Qt::Key_Up);
    TouchScreen::comeToRest(screen.physics());
    QCOMPARE(screen.model.rowCount(), 15);
}

QTEST_MAIN(TestMListGrowing)
#include "tst_mlistgrowing.moc"
