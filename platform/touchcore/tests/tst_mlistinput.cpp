// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "listscreen.h"

#include <touchcore/mlistitem.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QSignalSpy>

namespace
{
/// Cells that take touches themselves, with a place inside that takes its own.
class ItemCreator : public MAbstractCellCreator<MListItem>
{
public:
    MWidget *createCell(const QModelIndex &index, MWidgetRecycler &recycler) const override
    {
        auto *item = static_cast<MListItem *>(MAbstractCellCreator::createCell(index, recycler));
        if (item->childItems().isEmpty()) {
            auto *inner = new Touchable(item);
            inner->setGeometry(300, 0, 60, 50);
            QObject::connect(item, &MListItem::clicked, item,
                             [this, item] { clicked << item->objectName(); });
        }
        return item;
    }
    void updateCell(const QModelIndex &index, MWidget *cell) const override
    {
        cell->setObjectName(index.data().toString());
    }
    QSizeF cellSize() const override { return {100, 56}; }

    mutable QStringList clicked;
};
} // namespace

class TestMListInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tapsReachTheirRow_data();
    void tapsReachTheirRow();
    void tapSelects_data();
    void tapSelects();
    void onlySelectableRowsAreSelected();
    void tapMayTakeTheListAway();
    void touchOnAMovingListIsNoTap();
    void longPressGoesToTheRow();

    void keysMoveTheCurrentRow_data();
    void keysMoveTheCurrentRow();
    void keysMoveBelowAHeaderThatSticks();
    void keyTapsTheCurrentRow();
    void keyOpensTheMenu();
    void focusIsSeen();
    void keysPanAndAreToldAsAPan();

private:
    ItemCreator *showItems();
    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_screen->view.viewport(), Qt::Key(code), modifiers);
    }
    QString current() const
    {
        return m_screen->list->selectionModel()->currentIndex().data().toString();
    }
    QStringList clicked() const;

    std::unique_ptr<ListScreen> m_screen;
    std::unique_ptr<QSignalSpy> m_clicked;
};

void TestMListInput::init()
{
    m_screen = std::make_unique<ListScreen>();
    m_clicked = std::make_unique<QSignalSpy>(m_screen->list, &MList::itemClicked);
}

void TestMListInput::cleanup()
{
    m_clicked.reset();
    m_screen.reset();
}

ItemCreator *TestMListInput::showItems()
{
    auto *creator = new ItemCreator;
    m_screen->list->setCellCreator(creator);
    m_screen->fill(100, 0);
    return creator;
}

QStringList TestMListInput::clicked() const
{
    QCoreApplication::processEvents();
    QStringList rows;
    for (const QVariantList &arguments : *m_clicked)
        rows << arguments.first().toModelIndex().data().toString();
    return rows;
}

void TestMListInput::tapsReachTheirRow_data()
{
    QTest::addColumn<bool>("takesTouches");
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<QStringList>("expected");
    const QStringList none;
    const QStringList third{QStringLiteral("2")};
    const QPointF onThird(100, 100 + 2.5 * 56);
    QTest::newRow("cell without touches") << false << QPointF(100, 225) << QPointF() << third;
    QTest::newRow("cell with touches") << true << onThird << QPointF() << third;
    QTest::newRow("trembling") << true << onThird << QPointF(5, 11) << third;
    QTest::newRow("a pan is no tap") << true << onThird << QPointF(0, -13) << none;
    QTest::newRow("nor one over a plain cell") << false << onThird << QPointF(0, -40) << none;
    QTest::newRow("to the side") << false << onThird << QPointF(100, 0) << third;
    QTest::newRow("a button in the cell") << true << onThird + QPointF(230, 0) << QPointF() << none;
    QTest::newRow("out of the window") << true << onThird << QPointF(-200, 0) << none;
}

void TestMListInput::tapsReachTheirRow()
{
    QFETCH(bool, takesTouches);
    QFETCH(QPointF, place);
    QFETCH(QPointF, way);
    QFETCH(QStringList, expected);
    ItemCreator *items = takesTouches ? showItems() : nullptr;
    if (!takesTouches)
        m_screen->fill(100, 0);
    m_screen->drag(m_screen->physics(), place, way);
    QCOMPARE(clicked(), expected);
    if (items)
        QCOMPARE(items->clicked, expected);

    m_screen->pressAgain(place);
    m_screen->release(place);
    QCOMPARE(clicked().size(), expected.size() + (place.x() > 300 ? 0 : 1));
}

void TestMListInput::tapSelects_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << 0 << QList<int>{1} << QStringList{};
    QTest::newRow("one") << 1 << QList<int>{1, 2} << QStringList{"0.1"};
    QTest::newRow("one, again") << 1 << QList<int>{1, 1} << QStringList{"0.0"};
    QTest::newRow("several") << 2 << QList<int>{1, 3} << QStringList{"0.0", "0.2"};
    QTest::newRow("several, one no longer") << 2 << QList<int>{1, 3, 1} << QStringList{"0.2"};
    QTest::newRow("headers are not selected") << 2 << QList<int>{0} << QStringList{};
}

void TestMListInput::tapSelects()
{
    QFETCH(int, mode);
    QFETCH(QList<int>, rows);
    QFETCH(QStringList, expected);
    m_screen->fill(10, 10);
    m_screen->list->setSelectionMode(MList::SelectionMode(mode));
    for (const int row : rows) {
        m_screen->tap(QPointF(100, 125 + 50 * row));
        QCoreApplication::processEvents();
    }
    QCOMPARE(m_clicked->count(), rows.size());
    QStringList selected;
    for (const QModelIndex &index : m_screen->list->selectionModel()->selectedIndexes())
        selected << index.data().toString();
    selected.sort();
    QCOMPARE(selected, expected);
}

void TestMListInput::onlySelectableRowsAreSelected()
{
    m_screen->fill(10, 0);
    m_screen->list->setSelectionMode(MList::SingleSelection);
    m_screen->model.item(1)->setSelectable(false);
    m_screen->tap(QPointF(100, 125));
    QCOMPARE(clicked().size(), 1);
    m_screen->tap(QPointF(100, 175));
    QCOMPARE(clicked().size(), 2);
    QVERIFY(m_screen->list->selectionModel()->isSelected(m_screen->index(0)));
}

/// A dialog, the row's removal, the whole page's end: all may come of a tap.
void TestMListInput::tapMayTakeTheListAway()
{
    showItems();
    connect(m_screen->list, &MList::itemClicked, this, [this](const QModelIndex &index) {
        m_screen->model.removeRow(index.row());
        m_screen->viewport->setWidget(nullptr);
        m_screen->list = nullptr;
    });
    m_screen->tap(QPointF(100, 130));
    QTRY_VERIFY(!m_screen->list);
    QCOMPARE(m_screen->model.rowCount(), 99);

    init();
    showItems();
    m_screen->tap(QPointF(100, 130));
    m_screen->model.removeRow(0);
    QVERIFY(clicked().isEmpty());
}

void TestMListInput::touchOnAMovingListIsNoTap()
{
    const ItemCreator *items = showItems();
    m_screen->flick(m_screen->physics(), QPointF(100, 400), QPointF(0, -120), 5);
    m_screen->physics()->advance(0.05);
    m_screen->tap(QPointF(100, 300));
    QVERIFY(clicked().isEmpty());
    QVERIFY(items->clicked.isEmpty());
    m_screen->tap(QPointF(100, 300));
    QCOMPARE(clicked().size(), 1);
    QCOMPARE(items->clicked.size(), 1);
}

void TestMListInput::longPressGoesToTheRow()
{
    showItems();
    QSignalSpy pressed(m_screen->list, &MList::itemLongPressed);
    const QPoint place(100, 130);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                            m_screen->view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(m_screen->view.viewport(), &event);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(pressed.first().first().toModelIndex(), m_screen->index(0));
    QCOMPARE(pressed.first().last().toPointF(), QPointF(100, 130));
    QVERIFY(event.isAccepted());
}

void TestMListInput::keysMoveTheCurrentRow_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("expected");
    const int up = Qt::Key_Up;
    const int down = Qt::Key_Down;
    QTest::newRow("the first when the focus comes") << QList<int>{} << "0.0";
    QTest::newRow("down") << QList<int>{down, down} << "0.2";
    QTest::newRow("over a header") << QList<int>{down, down, down, down} << "1.0";
    QTest::newRow("and back") << QList<int>{down, down, down, down, up} << "0.3";
    QTest::newRow("not beyond the first") << QList<int>{up, up} << "0.0";
    QTest::newRow("a page down") << QList<int>{Qt::Key_PageDown} << "1.3";
    QTest::newRow("a page down and up") << QList<int>{Qt::Key_PageDown, Qt::Key_PageUp} << "0.0";
    QTest::newRow("the last") << QList<int>{Qt::Key_End} << "99.3";
    QTest::newRow("not beyond it") << QList<int>{Qt::Key_End, down, Qt::Key_PageDown} << "99.3";
    QTest::newRow("a page above it") << QList<int>{Qt::Key_End, Qt::Key_PageUp} << "98.0";
    QTest::newRow("the first again") << QList<int>{Qt::Key_End, Qt::Key_Home} << "0.0";
}

void TestMListInput::keysMoveTheCurrentRow()
{
    QFETCH(QList<int>, keys);
    QFETCH(QString, expected);
    m_screen->fill(100, 4, [](int number) { return number % 5 ? 50.0 : 30.0; });
    key(Qt::Key_Tab);
    QVERIFY(m_screen->list->hasFocus());
    for (const int code : keys) {
        key(code);
        const QModelIndex index = m_screen->list->selectionModel()->currentIndex();
        const qreal place = m_screen->seenAt(index);
        QVERIFY2(place >= 0 && place <= 350, qPrintable(current()));
        QCOMPARE(m_screen->fault(), QString());
    }
    QCOMPARE(current(), expected);
    QVERIFY(!m_screen->list->selectionModel()->hasSelection());
}

void TestMListInput::keysMoveBelowAHeaderThatSticks()
{
    m_screen->list->setStickyHeaders(true);
    m_screen->fill(5, 30);
    key(Qt::Key_Tab);
    for (int i = 0; i < 20; ++i)
        key(Qt::Key_Down);
    for (int i = 0; i < 15; ++i)
        key(Qt::Key_Up);
    QCOMPARE(current(), QStringLiteral("0.5"));
    QCOMPARE(m_screen->seenAt(m_screen->index(0, 5)), 50.0);
}

void TestMListInput::keyTapsTheCurrentRow()
{
    const ItemCreator *items = showItems();
    m_screen->list->setSelectionMode(MList::SingleSelection);
    key(Qt::Key_Tab);
    key(Qt::Key_Down);
    QTest::keyPress(m_screen->view.viewport(), Qt::Key_Space);
    auto *cell = static_cast<MListItem *>(m_screen->list->cellAt(m_screen->index(1)));
    QVERIFY(cell->isDown());
    QTest::keyRelease(m_screen->view.viewport(), Qt::Key_Space);
    QVERIFY(!cell->isDown());
    QCOMPARE(clicked(), QStringList{"1"});
    QCOMPARE(items->clicked, QStringList{"1"});
    QVERIFY(cell->isSelected());

    // Out of view: it comes back first.
    m_screen->viewport->setPosition(QPointF(0, 3000));
    key(Qt::Key_Return);
    QCOMPARE(clicked().size(), 2);
    QVERIFY(m_screen->list->cellAt(m_screen->index(1)));

    // The row goes away below the key.
    QTest::keyPress(m_screen->view.viewport(), Qt::Key_Space);
    m_screen->model.removeRows(0, 50);
    m_screen->layOut();
    QTest::keyRelease(m_screen->view.viewport(), Qt::Key_Space);
    QCOMPARE(clicked().size(), 2);
    QCOMPARE(items->clicked.size(), 2);
}

void TestMListInput::keyOpensTheMenu()
{
    m_screen->fill(100, 0);
    QSignalSpy pressed(m_screen->list, &MList::itemLongPressed);
    key(Qt::Key_Tab);
    key(Qt::Key_Down);
    key(Qt::Key_Menu);
    key(Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(pressed.count(), 2);
    QCOMPARE(pressed.first().first().toModelIndex(), m_screen->index(1));
    QCOMPARE(pressed.first().last().toPointF(), QPointF(180, 175));
    key(Qt::Key_F5);
    QCOMPARE(pressed.count(), 2);
}

void TestMListInput::focusIsSeen()
{
    showItems();
    const auto ringOf = [this](int row) {
        const MWidget *cell = m_screen->list->cellAt(m_screen->index(row));
        int rings = 0;
        const QList<QGraphicsItem *> children =
            cell ? cell->childItems() : QList<QGraphicsItem *>();
        for (const QGraphicsItem *child : children)
            rings += child->toGraphicsObject()->inherits("FocusRing") ? 1 : 0;
        return rings;
    };
    m_screen->tap(QPointF(100, 130));
    QVERIFY(m_screen->list->hasFocus());
    QCoreApplication::processEvents();
    QCOMPARE(ringOf(0), 0);

    // Its rows are one stop: Tab goes on to what is beside the list.
    auto *beside = new Touchable;
    beside->setFocusPolicy(Qt::StrongFocus);
    m_screen->scene.addItem(beside);
    key(Qt::Key_Tab);
    QVERIFY(beside->hasFocus());
    key(Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(ringOf(0), 1);
    key(Qt::Key_Down);
    QCOMPARE(ringOf(0), 0);
    QCOMPARE(ringOf(1), 1);

    m_screen->viewport->setPosition(QPointF(0, 2000));
    for (const QModelIndex &index : m_screen->list->visibleItems())
        QCOMPARE(ringOf(index.row()), 0);
    m_screen->viewport->setPosition(QPointF(0, 0));
    QCOMPARE(ringOf(1), 1);
    m_screen->scene.clearFocus();
    QCOMPARE(ringOf(1), 0);
}

void TestMListInput::keysPanAndAreToldAsAPan()
{
    m_screen->fill(100, 0);
    key(Qt::Key_Tab);
    QSignalSpy started(m_screen->list, &MList::panningStarted);
    QSignalSpy stopped(m_screen->list, &MList::panningStopped);
    key(Qt::Key_End);
    QCOMPARE(m_screen->y(), 100 * 50.0 - 400);
    QCOMPARE(started.count(), 1);
    TouchScreen::comeToRest(m_screen->physics());
    QCOMPARE(stopped.count(), 1);
    key(Qt::Key_Down);
    TouchScreen::comeToRest(m_screen->physics());
    QCOMPARE(stopped.count(), 2);
}

QTEST_MAIN(TestMListInput)
#include "tst_mlistinput.moc"
