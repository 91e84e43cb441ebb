// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetest.h"

#include <touchcore/mlabel.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mobjectmenu.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwidget.h>

#include <QAction>
#include <QPointer>

namespace
{
/// A window with a page of one widget that has some actions.
class MenuTest : public SceneTest
{
public:
    explicit MenuTest(const QSize &size = QSize(480, 800), int actions = 3)
        : SceneTest(size), page(new MApplicationPage), widget(new MWidget)
    {
        page->setHeaderVisible(false);
        widget->setFocusPolicy(Qt::StrongFocus);
        page->setCentralWidget(widget);
        page->appear(this);
        for (int i = 0; i < actions; ++i)
            widget->addAction(new QAction(QStringLiteral("Action %1").arg(i), widget));
    }

    MObjectMenu *openAt(const QPointF &position)
    {
        widget->openObjectMenu(position);
        return menu();
    }
    MObjectMenu *menu() const
    {
        auto *top = qobject_cast<MObjectMenu *>(sceneManager()->topWindow());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        return top;
    }
    /// From the top.
    QList<MListItem *> rows() const
    {
        QList<MListItem *> found;
        const QList<QGraphicsItem *> items = scene()->items();
        for (QGraphicsItem *item : items) {
            auto *row = dynamic_cast<MListItem *>(item);
            if (row && row->isVisible())
                found.append(row);
        }
        std::sort(found.begin(), found.end(), [](const MListItem *a, const MListItem *b) {
            return a->scenePos().y() < b->scenePos().y();
        });
        return found;
    }
    static QString textOf(const MListItem *row)
    {
        const QList<QGraphicsItem *> children = row->childItems();
        for (QGraphicsItem *child : children) {
            if (const auto *label = dynamic_cast<MLabel *>(child))
                return label->text();
        }
        return {};
    }
    int focusedRow() const
    {
        const QList<MListItem *> all = rows();
        for (int i = 0; i < all.size(); ++i) {
            if (all.at(i)->hasFocus())
                return i;
        }
        return -1;
    }

    MApplicationPage *page;
    MWidget *widget;
};
} // namespace

class TestMObjectMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensByLongPress();
    void opensByTheMenuKey();
    void offersVisibleActionsOnly();
    void standsByTheFinger_data();
    void standsByTheFinger();
    void staysInAWindowThatShrinks();
    void standsByTheFingerOfATurnedWindow();
    void scrollsWhenTooHigh();
    void rowsAreLargeEnough();
    void tapTriggers();
    void actionMayDeleteItsWidget();
    void closesWithoutTriggering_data();
    void closesWithoutTriggering();
    void arrowsWalk();
    void followsItsActions();
    void closesWithItsWidget();
    void needsAWindow();
};

void TestMObjectMenu::opensByLongPress()
{
    MenuTest window;
    window.press(QPoint(200, 300));
    QTRY_VERIFY(window.menu());
    // The finger is still down, on the dim: its release is nobody's.
    window.release(QPoint(200, 300));
    QVERIFY(window.menu());
    QCOMPARE(window.rows().size(), 3);
}

void TestMObjectMenu::opensByTheMenuKey()
{
    MenuTest window;
    window.widget->setFocus();
    window.key(Qt::Key_Menu);
    QVERIFY(window.menu());
    QCOMPARE(window.focusedRow(), 0);
    window.key(Qt::Key_Escape);
    QVERIFY(!window.menu());
    QVERIFY(window.widget->hasFocus());
    window.key(Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(window.menu());
}

void TestMObjectMenu::offersVisibleActionsOnly()
{
    MenuTest window;
    window.widget->actions().at(1)->setVisible(false);
    window.openAt(QPointF(100, 100));
    QCOMPARE(window.rows().size(), 2);
    QCOMPARE(MenuTest::textOf(window.rows().at(1)), QStringLiteral("Action 2"));
    window.key(Qt::Key_Escape);
    for (QAction *action : window.widget->actions())
        action->setVisible(false);
    QVERIFY(!window.widget->openObjectMenu(QPointF(100, 100)));
    QVERIFY(!window.menu());
}

void TestMObjectMenu::standsByTheFinger_data()
{
    QTest::addColumn<QPointF>("finger");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QPointF>("corner");
    // Three rows of 48, paddings of 8 above and below, 200 wide; 8 from finger and edges.
    QTest::newRow("room below") << QPointF(100, 100) << Qt::LeftToRight << QPointF(108, 108);
    QTest::newRow("no room below") << QPointF(100, 780) << Qt::LeftToRight << QPointF(108, 612);
    QTest::newRow("no room beside") << QPointF(470, 100) << Qt::LeftToRight << QPointF(272, 108);
    QTest::newRow("corner") << QPointF(479, 799) << Qt::LeftToRight << QPointF(272, 631);
    QTest::newRow("right to left") << QPointF(300, 100) << Qt::RightToLeft << QPointF(92, 108);
    QTest::newRow("right to left, no room")
        << QPointF(50, 100) << Qt::RightToLeft << QPointF(8, 108);
}

void TestMObjectMenu::standsByTheFinger()
{
    QFETCH(QPointF, finger);
    QFETCH(Qt::LayoutDirection, direction);
    MenuTest window;
    window.setLayoutDirection(direction);
    const MObjectMenu *menu = window.openAt(finger);
    QVERIFY(menu);
    QCOMPARE(menu->size(), QSizeF(200, 160));
    QTEST(menu->pos(), "corner");
}

void TestMObjectMenu::staysInAWindowThatShrinks()
{
    MenuTest window;
    const MObjectMenu *menu = window.openAt(QPointF(470, 790));
    window.resize(400, 300);
    const QRectF room(8, 8, 384, 284);
    QTRY_VERIFY(room.contains(menu->geometry()));
}

void TestMObjectMenu::standsByTheFingerOfATurnedWindow()
{
    MenuTest window;
    window.setRotationAngle(90);
    const QPointF finger = window.widget->mapToScene(QPointF(300, 100));
    QCOMPARE(window.openAt(finger)->pos(), QPointF(308, 108));
}

void TestMObjectMenu::scrollsWhenTooHigh()
{
    MenuTest window(QSize(800, 480), 20);
    const MObjectMenu *menu = window.openAt(QPointF(100, 400));
    QCOMPARE(menu->geometry().top(), 8.0);
    QCOMPARE(menu->geometry().bottom(), 472.0);
    // The last row comes into view with the focus.
    window.key(Qt::Key_End);
    const MListItem *last = window.rows().last();
    QVERIFY(last->hasFocus());
    const auto isInView = [&] {
        return menu->rect().contains(menu->mapRectFromItem(last, last->rect()));
    };
    QTRY_VERIFY(isInView());
}

void TestMObjectMenu::rowsAreLargeEnough()
{
    MenuTest window;
    window.widget->actions().first()->setText(
        QStringLiteral("A very long name for something that can be done with it"));
    window.widget->actions().first()->setProperty("iconID", QStringLiteral("delete"));
    auto *separator = new QAction(window.widget);
    separator->setSeparator(true);
    window.widget->insertAction(window.widget->actions().at(1), separator);
    const MObjectMenu *menu = window.openAt(QPointF(100, 100));
    QCOMPARE(menu->size().width(), 320.0);
    const QList<MListItem *> rows = window.rows();
    for (const MListItem *row : rows) {
        QVERIFY(row->size().height() >= 48);
        QCOMPARE(row->size().width(), menu->size().width());
    }
    QVERIFY(rows.at(1)->scenePos().y() > rows.at(0)->scenePos().y() + 48);
}

void TestMObjectMenu::tapTriggers()
{
    MenuTest window;
    QAction *action = window.widget->actions().at(1);
    bool wasGone = false;
    connect(action, &QAction::triggered, this, [&] { wasGone = !window.menu(); });
    QPointer<MObjectMenu> menu(window.openAt(QPointF(100, 100)));
    window.tap(window.rows().at(1));
    QVERIFY(wasGone);
    QTRY_VERIFY(!menu);
    action->setEnabled(false);
    wasGone = false;
    window.openAt(QPointF(100, 100));
    window.tap(window.rows().at(1));
    QVERIFY(!wasGone);
}

void TestMObjectMenu::actionMayDeleteItsWidget()
{
    MenuTest window;
    QPointer<MWidget> widget(window.widget);
    connect(window.widget->actions().first(), &QAction::triggered, this,
            [&window] { window.page->setCentralWidget(nullptr); });
    window.openAt(QPointF(100, 100));
    window.tap(window.rows().first());
    QVERIFY(!widget);
}

void TestMObjectMenu::closesWithoutTriggering_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("escape") << int(Qt::Key_Escape);
    QTest::newRow("back") << int(Qt::Key_Back);
    QTest::newRow("press beside it") << 0;
}

void TestMObjectMenu::closesWithoutTriggering()
{
    QFETCH(int, key);
    MenuTest window;
    QPointer<MObjectMenu> menu(window.openAt(QPointF(100, 100)));
    if (key)
        window.key(key);
    else
        window.press(QPoint(20, 700));
    QVERIFY(!window.menu());
    QTRY_VERIFY(!menu);
}

void TestMObjectMenu::arrowsWalk()
{
    MenuTest window;
    window.openAt(QPointF(100, 100));
    window.rows().at(1)->setEnabled(false);
    QCOMPARE(window.focusedRow(), -1);
    const QList<QPair<int, int>> steps{{Qt::Key_Down, 0}, {Qt::Key_Down, 2},   {Qt::Key_Down, 0},
                                       {Qt::Key_Up, 2},   {Qt::Key_Home, 0},   {Qt::Key_End, 2},
                                       {Qt::Key_Tab, 0},  {Qt::Key_Backtab, 2}};
    for (const QPair<int, int> &step : steps) {
        window.key(step.first);
        QCOMPARE(window.focusedRow(), step.second);
    }
    QSignalSpy triggered(window.widget->actions().at(2), &QAction::triggered);
    window.key(Qt::Key_Return);
    QCOMPARE(triggered.size(), 1);
}

void TestMObjectMenu::followsItsActions()
{
    MenuTest window;
    const MObjectMenu *menu = window.openAt(QPointF(100, 100));
    QAction *first = window.widget->actions().first();
    first->setText(QStringLiteral("Renamed"));
    QCOMPARE(MenuTest::textOf(window.rows().first()), QStringLiteral("Renamed"));
    first->setVisible(false);
    QCOMPARE(window.rows().size(), 2);
    QTRY_COMPARE(menu->size().height(), 112.0);
    delete window.widget->actions().at(1);
    QCOMPARE(window.rows().size(), 1);
    QTRY_COMPARE(menu->size().height(), 64.0);
}

void TestMObjectMenu::closesWithItsWidget()
{
    MenuTest window;
    window.openAt(QPointF(100, 100));
    window.page->setCentralWidget(nullptr);
    QVERIFY(!window.menu());
}

void TestMObjectMenu::needsAWindow()
{
    MenuTest window;
    MWidget outside;
    outside.addAction(new QAction(QStringLiteral("Action"), &outside));
    QVERIFY(!outside.openObjectMenu(QPointF()));
    QGraphicsScene scene;
    QGraphicsView plain(&scene);
    scene.addItem(&outside);
    QVERIFY(!outside.openObjectMenu(QPointF()));
    scene.removeItem(&outside);
}

SCENE_TEST_MAIN(TestMObjectMenu)
#include "tst_mobjectmenu.moc"
