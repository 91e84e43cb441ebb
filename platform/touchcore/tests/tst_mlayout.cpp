// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "layout/layoutorientation.h"

#include <touchcore/mgridlayoutpolicy.h>
#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QGraphicsWidget>
#include <QtTest>

namespace
{
/// A widget of a given preferred size that counts how often it is hidden.
class Box : public QGraphicsWidget
{
public:
    explicit Box(qreal width, qreal height = 20) : m_preferred(width, height)
    {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    }

    void setPreferred(const QSizeF &size)
    {
        m_preferred = size;
        updateGeometry();
    }
    int timesHidden = 0;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override
    {
        if (which == Qt::MinimumSize)
            return {0, 0};
        return which == Qt::PreferredSize ? m_preferred
                                          : QGraphicsWidget::sizeHint(which, constraint);
    }
    void hideEvent(QHideEvent *) override { ++timesHidden; }

private:
    QSizeF m_preferred;
};

/// A text-like item: the narrower, the higher, with a constant area.
class Paragraph : public QGraphicsWidget
{
public:
    Paragraph()
    {
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override
    {
        if (which == Qt::MaximumSize)
            return QGraphicsWidget::sizeHint(which, constraint);
        const qreal width = constraint.width() > 0 ? constraint.width() : 100;
        return {which == Qt::MinimumSize ? 10 : width, 2000 / width};
    }
};

const qreal side = 300;

/// A shown panel with an MLayout of two boxes that are in a row and in a column.
struct Panel {
    Panel()
        : widget(new QGraphicsWidget), layout(new MLayout), first(new Box(60)), second(new Box(40))
    {
        scene.addItem(widget);
        widget->setLayout(layout);
        widget->resize(side, side);
        row = new MLinearLayoutPolicy(layout, Qt::Horizontal);
        column = new MLinearLayoutPolicy(layout, Qt::Vertical);
        for (MLinearLayoutPolicy *policy : {row, column}) {
            policy->addItem(first);
            policy->addItem(second);
        }
        row->activate();
        settle();
    }

    static void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); }

    QGraphicsScene scene;
    QGraphicsWidget *widget;
    MLayout *layout;
    MLinearLayoutPolicy *row;
    MLinearLayoutPolicy *column;
    Box *first;
    Box *second;
};
} // namespace

class TestMLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void oneItemStandsInSeveralPolicies();
    void nullAndSamePolicyChangeNothing();
    void orientationChoosesThePolicy();
    void onlyWhatTheLayoutHidIsShownAgain();
    void hiddenItemsGiveUpTheirPlace();
    void insertsAmongStretches();
    void newSizeHintsAreLaidOut();
    void heightFollowsWidth();
    void mirrorsRightToLeft();
    void removedItemsLeave();
    void destroyedItemsAndPolicies();
    void anotherLayoutTakesAnItem();
    void replacedLayoutShowsItsItems();
    void nestedLayouts();
    void gridCells();
    void gridRefusesTakenCells();
};

void TestMLayout::init()
{
    MTheme::instance()->setOrientation(M::Portrait);
    setLayoutOrientation(M::Portrait);
}

void TestMLayout::oneItemStandsInSeveralPolicies()
{
    Panel panel;
    QCOMPARE(panel.layout->count(), 2);
    QCOMPARE(panel.first->geometry(), QRectF(0, 0, side * 0.6, side));
    QCOMPARE(panel.second->geometry(), QRectF(side * 0.6, 0, side * 0.4, side));

    panel.column->activate();
    panel.settle();
    QCOMPARE(panel.first->geometry(), QRectF(0, 0, side, side / 2));
    QCOMPARE(panel.second->geometry(), QRectF(0, side / 2, side, side / 2));
    QVERIFY(panel.row->contains(panel.first));

    panel.row->setSpacing(10);
    panel.row->setContentsMargins(5, 6, 7, 8);
    panel.layout->setContentsMargins(1, 2, 3, 4);
    panel.row->activate();
    panel.settle();
    QCOMPARE(panel.first->geometry().topLeft(), QPointF(6, 8));
    QCOMPARE(panel.second->geometry().bottomRight(), QPointF(side - 10, side - 12));
    QCOMPARE(panel.second->geometry().left() - panel.first->geometry().right(), 10.0);
    QCOMPARE(panel.first->timesHidden, 0);
}

void TestMLayout::nullAndSamePolicyChangeNothing()
{
    Panel panel;
    const QRectF before = panel.second->geometry();
    panel.layout->setPolicy(nullptr);
    QCOMPARE(panel.layout->policy(), panel.row);
    panel.layout->setPolicy(panel.row);
    // Nothing was asked for: no layout request waits.
    panel.first->setGeometry(1, 2, 3, 4);
    panel.settle();
    QCOMPARE(panel.first->geometry(), QRectF(1, 2, 3, 4));
    QCOMPARE(panel.second->geometry(), before);
}

void TestMLayout::orientationChoosesThePolicy()
{
    Panel panel;
    panel.layout->setLandscapePolicy(panel.row);
    panel.layout->setPortraitPolicy(panel.column);
    QCOMPARE(panel.layout->policy(), panel.column);
    setLayoutOrientation(M::Landscape);
    QCOMPARE(panel.layout->policy(), panel.row);

    // A layout with one of the two keeps what it has when the other would be wanted.
    panel.layout->setPortraitPolicy(nullptr);
    setLayoutOrientation(M::Portrait);
    QCOMPARE(panel.layout->policy(), panel.row);
}

void TestMLayout::onlyWhatTheLayoutHidIsShownAgain()
{
    Panel panel;
    auto *label = new Box(10);
    MLinearLayoutPolicy empty(panel.layout, Qt::Vertical);
    empty.addItem(label);
    QVERIFY(!label->isVisible());
    panel.second->hide();

    empty.activate();
    QVERIFY(label->isVisible());
    QVERIFY(!panel.first->isVisible());
    panel.row->activate();
    QVERIFY(panel.first->isVisible());
    QVERIFY(!panel.second->isVisible());
    QVERIFY(!label->isVisible());
}

void TestMLayout::hiddenItemsGiveUpTheirPlace()
{
    Panel panel;
    panel.second->hide();
    panel.settle();
    QCOMPARE(panel.first->geometry(), QRectF(0, 0, side, side));
    panel.second->show();
    panel.settle();
    QCOMPARE(panel.first->geometry().width(), side * 0.6);
}

void TestMLayout::insertsAmongStretches()
{
    Panel panel;
    panel.row->insertStretch(0);
    auto *third = new Box(20);
    panel.row->insertItem(2, third);
    panel.settle();
    QCOMPARE(panel.row->items(),
             (QVector<QGraphicsLayoutItem *>{panel.first, third, panel.second}));
    QCOMPARE(panel.row->indexOf(third), 1);
    QCOMPARE(panel.row->itemAt(2), panel.second);
    QVERIFY(!panel.row->itemAt(3));
    QCOMPARE(panel.first->geometry().left(), side - 120);
    QCOMPARE(third->geometry().left(), side - 60);

    panel.row->setStretchFactor(third, 1);
    panel.row->setAlignment(panel.first, Qt::AlignVCenter);
    panel.first->setMaximumHeight(20);
    panel.settle();
    QVERIFY(third->geometry().width() > 20);
    QCOMPARE(panel.first->geometry().top(), (side - 20) / 2);

    // A second time changes nothing.
    panel.row->insertItem(0, third);
    QCOMPARE(panel.row->indexOf(third), 1);
}

void TestMLayout::newSizeHintsAreLaidOut()
{
    Panel panel;
    QCOMPARE(panel.layout->effectiveSizeHint(Qt::PreferredSize), QSizeF(100, 20));
    panel.first->setPreferred({110, 30});
    QCOMPARE(panel.layout->effectiveSizeHint(Qt::PreferredSize), QSizeF(150, 30));
    panel.settle();
    QCOMPARE(panel.first->geometry().width(), 220.0);
}

void TestMLayout::heightFollowsWidth()
{
    Panel panel;
    auto *paragraph = new Paragraph;
    panel.column->addItem(paragraph);
    panel.column->activate();
    QCOMPARE(panel.layout->effectiveSizeHint(Qt::PreferredSize, QSizeF(50, -1)).height(), 80.0);
    panel.layout->setContentsMargins(5, 0, 5, 0);
    QCOMPARE(panel.layout->effectiveSizeHint(Qt::PreferredSize, QSizeF(50, -1)).height(), 90.0);
}

void TestMLayout::mirrorsRightToLeft()
{
    Panel panel;
    panel.widget->setLayoutDirection(Qt::RightToLeft);
    panel.settle();
    QCOMPARE(panel.first->geometry().right(), side);
    QCOMPARE(panel.second->geometry().left(), 0.0);
}

void TestMLayout::removedItemsLeave()
{
    Panel panel;
    panel.row->removeItem(panel.second);
    QVERIFY(!panel.second->isVisible());
    QCOMPARE(panel.layout->count(), 2);

    panel.column->removeItem(panel.second);
    QVERIFY(panel.second->isVisible());
    QVERIFY(!panel.second->parentLayoutItem());
    QCOMPARE(panel.layout->count(), 1);
    panel.settle();
    QCOMPARE(panel.first->geometry(), QRectF(0, 0, side, side));

    panel.layout->removeAt(0);
    QCOMPARE(panel.layout->count(), 0);
    QCOMPARE(panel.row->count(), 0);
    panel.layout->removeAt(0);
    panel.row->removeItem(panel.first);
}

void TestMLayout::destroyedItemsAndPolicies()
{
    Panel panel;
    auto *label = new Box(10);
    auto *lone = new MLinearLayoutPolicy(panel.layout, Qt::Vertical);
    lone->addItem(label);
    delete label;
    QCOMPARE(panel.layout->count(), 2);
    delete panel.second;
    QCOMPARE(panel.row->count(), 1);
    panel.settle();
    QCOMPARE(panel.first->geometry().width(), side);

    // Without its policy in force the arrangement stays, and another one can follow.
    delete panel.row;
    QVERIFY(!panel.layout->policy());
    panel.widget->resize(side * 2, side);
    QCOMPARE(panel.first->geometry().width(), side);
    panel.column->activate();
    panel.settle();
    QCOMPARE(panel.first->geometry().width(), side * 2);
}

void TestMLayout::anotherLayoutTakesAnItem()
{
    Panel panel;
    auto *other = new QGraphicsWidget;
    panel.scene.addItem(other);
    auto *taker = new QGraphicsLinearLayout(other);
    taker->addItem(panel.first);
    QCOMPARE(panel.layout->count(), 1);
    QVERIFY(!panel.row->contains(panel.first));
    QCOMPARE(panel.first->parentItem(), other);
    panel.row->addItem(panel.first);
    QCOMPARE(taker->count(), 0);
    QCOMPARE(panel.first->parentItem(), panel.widget);
}

void TestMLayout::replacedLayoutShowsItsItems()
{
    Panel panel;
    auto *label = new Box(10);
    auto *lone = new MLinearLayoutPolicy(panel.layout, Qt::Vertical);
    lone->addItem(label);
    QVERIFY(!label->isVisible());
    panel.widget->setLayout(new QGraphicsLinearLayout);
    QVERIFY(label->isVisible());
    QVERIFY(!label->parentLayoutItem());
}

void TestMLayout::nestedLayouts()
{
    Panel panel;
    auto *inner = new MLayout;
    auto *innerRow = new MLinearLayoutPolicy(inner, Qt::Horizontal);
    auto *third = new Box(30);
    innerRow->addItem(third);
    innerRow->activate();
    panel.row->addItem(inner);
    panel.settle();
    QCOMPARE(third->parentItem(), panel.widget);
    QCOMPARE(third->geometry().topLeft(), panel.second->geometry().topRight());
    QCOMPARE(third->geometry().bottomRight(), QPointF(side, side));
    third->setPreferred({100, 20});
    QCOMPARE(panel.layout->effectiveSizeHint(Qt::PreferredSize), QSizeF(200, 20));
}

void TestMLayout::gridCells()
{
    Panel panel;
    auto *grid = new MGridLayoutPolicy(panel.layout);
    auto *wide = new Box(100);
    grid->addItem(panel.first, 0, 0);
    grid->addItem(panel.second, 0, 1);
    grid->addItem(wide, 1, 0, 1, 2);
    grid->setSpacing(4);
    grid->setColumnFixedWidth(0, 50);
    grid->setRowFixedHeight(0, 40);
    grid->activate();
    panel.settle();
    QCOMPARE(panel.first->geometry(), QRectF(0, 0, 50, 40));
    QCOMPARE(panel.second->geometry(), QRectF(54, 0, side - 54, 40));
    QCOMPARE(wide->geometry(), QRectF(0, 44, side, side - 44));
    QCOMPARE(grid->rowCount(), 2);
    QCOMPARE(grid->columnCount(), 2);
    QCOMPARE(grid->itemAtCell(1, 1), wide);
    QVERIFY(!grid->itemAtCell(2, 0));

    grid->removeItem(wide);
    QVERIFY(!grid->itemAtCell(1, 1));
    QVERIFY(!wide->parentLayoutItem());
    delete wide;
    grid->addItem(panel.first, 3, 3);
    QCOMPARE(grid->itemAtCell(0, 0), panel.first);

    panel.row->activate();
    panel.settle();
    QCOMPARE(panel.first->geometry().width(), side * 0.6);
}

void TestMLayout::gridRefusesTakenCells()
{
    Panel panel;
    auto *grid = new MGridLayoutPolicy(panel.layout);
    grid->addItem(panel.first, 0, 0);
    QTest::ignoreMessage(QtWarningMsg, "MGridLayoutPolicy: the cell 0, 0 cannot take an item.");
    grid->addItem(panel.second, 0, 0);
    QTest::ignoreMessage(QtWarningMsg, "MGridLayoutPolicy: the cell 1, 0 cannot take an item.");
    grid->addItem(panel.second, 1, 0, 0, 1);
    QCOMPARE(grid->count(), 1);
}

QTEST_MAIN(TestMLayout)
#include "tst_mlayout.moc"
