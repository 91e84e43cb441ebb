// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/objectmenuhook.h"

#include <touchcore/mwidget.h>

#include <QAction>
#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QKeyEvent>
#include <QTest>

namespace
{
struct OpenedMenu {
    MWidget *widget = nullptr;
    QPointF position;
};
OpenedMenu openedMenu;

bool openMenu(MWidget *widget, const QPointF &position)
{
    openedMenu = {widget, position};
    return true;
}
} // namespace

/// Writes down what it hears.
class Piece : public MWidget
{
    Q_OBJECT

public:
    explicit Piece(const QString &name, QStringList *log, QGraphicsItem *parent = nullptr)
        : MWidget(parent), m_name(name), m_log(log)
    {
        resize(100, 40);
    }

    std::function<void()> onEnter;

protected:
    void enterDisplayEvent() override
    {
        m_log->append(QLatin1Char('+') + m_name);
        if (onEnter)
            onEnter();
        MWidget::enterDisplayEvent();
    }
    void exitDisplayEvent() override
    {
        m_log->append(QLatin1Char('-') + m_name);
        MWidget::exitDisplayEvent();
    }
    void cancelEvent() override { m_log->append(QLatin1Char('x') + m_name); }

private:
    QString m_name;
    QStringList *m_log;
};

/// A window with a page, on it a plain pane, and in that a row.
struct Tree {
    QStringList log;
    QGraphicsScene scene;
    Piece *page = new Piece(QStringLiteral("page"), &log);
    QGraphicsWidget *pane = new QGraphicsWidget(page);
    Piece *row = new Piece(QStringLiteral("row"), &log, pane);
    Piece *other = new Piece(QStringLiteral("other"), &log);

    Tree()
    {
        scene.addItem(page);
        scene.addItem(other);
        polish();
    }
    /// What the scene does with new items in the next pass of the event loop.
    void polish() { QCoreApplication::sendPostedEvents(&scene, QEvent::MetaCall); }
    void show(bool isShown) { MWidget::updateDisplayState(page, isShown); }

    void doAll(const QString &steps)
    {
        const QHash<QString, std::function<void()>> actions{
            {"appear", [this] { show(true); }},
            {"disappear", [this] { show(false); }},
            {"hide row", [this] { row->hide(); }},
            {"show row", [this] { row->show(); }},
            {"hide pane", [this] { pane->hide(); }},
            {"show pane", [this] { pane->show(); }},
            {"hide page", [this] { page->hide(); }},
            {"show page", [this] { page->show(); }},
            {"move row away", [this] { row->setParentItem(other); }},
            {"move row back", [this] { row->setParentItem(pane); }},
            {"take row out",
             [this] {
                 scene.removeItem(row);
                 delete row;
             }},
            {"add row",
             [this] {
                 new Piece(QStringLiteral("new"), &log, pane);
                 polish();
             }},
            {"delete row when told", [this] { page->onEnter = [this] { delete row; }; }},
            {"hide row when told", [this] { page->onEnter = [this] { row->hide(); }; }},
        };
        for (const QString &step : steps.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
            QVERIFY2(actions.contains(step), qPrintable(step));
            actions[step]();
        }
    }
};

class TestMWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setObjectMenuOpener(openMenu); }
    void init() { openedMenu = {}; }
    void tellsOfTheDisplay_data();
    void tellsOfTheDisplay();
    void signalsTheDisplay();
    void opensTheObjectMenu_data();
    void opensTheObjectMenu();
    void opensTheObjectMenuByKey_data();
    void opensTheObjectMenuByKey();
    void givesTheMenuEventToWhoHasActions();
    void hearsOfALostTouch();
};

void TestMWidget::tellsOfTheDisplay_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("log");
    const auto row = [](const char *before, const char *step, const char *log) {
        QTest::addRow("%s; %s", before, step)
            << QString::fromLatin1(before) << QString::fromLatin1(step) << QString::fromLatin1(log);
    };
    row("", "appear", "+page +row");
    row("appear", "disappear", "-page -row");
    row("appear", "appear", "");
    row("appear", "hide row", "-row");
    row("appear, hide row", "show row", "+row");
    row("hide row", "appear", "+page");
    row("", "hide row, show row", "");
    row("appear", "hide pane", "-row");
    row("appear, hide pane", "show pane", "+row");
    row("appear", "hide page", "-row -page");
    row("appear, hide page", "show page", "+page +row");
    row("appear", "move row away", "-row");
    row("appear, move row away", "move row back", "+row");
    row("appear, move row away, hide pane", "move row back", "");
    row("appear", "take row out", "-row");
    row("appear", "add row", "+new");
    row("", "add row", "");
    row("", "delete row when told, appear", "+page");
    row("", "hide row when told, appear", "+page");
}

void TestMWidget::tellsOfTheDisplay()
{
    QFETCH(QString, before);
    QFETCH(QString, step);
    Tree tree;
    tree.doAll(before);
    tree.log.clear();
    tree.doAll(step);
    QTEST(tree.log.join(QLatin1Char(' ')), "log");
}

void TestMWidget::signalsTheDisplay()
{
    Tree tree;
    QStringList said;
    connect(tree.row, &MWidget::displayEntered, this, [&said] { said.append("entered"); });
    connect(tree.row, &MWidget::displayExited, this, [&said] { said.append("exited"); });
    QVERIFY(!tree.row->isOnDisplay());
    tree.show(true);
    QVERIFY(tree.row->isOnDisplay());
    tree.show(false);
    QVERIFY(!tree.row->isOnDisplay());
    QCOMPARE(said, QStringList({"entered", "exited"}));
}

void TestMWidget::opensTheObjectMenu_data()
{
    QTest::addColumn<int>("actions");
    QTest::addColumn<bool>("areVisible");
    QTest::addColumn<bool>("opens");
    QTest::newRow("no actions") << 0 << true << false;
    QTest::newRow("hidden actions") << 2 << false << false;
    QTest::newRow("actions") << 2 << true << true;
}

void TestMWidget::opensTheObjectMenu()
{
    QFETCH(int, actions);
    QFETCH(bool, areVisible);
    QFETCH(bool, opens);
    Tree tree;
    for (int i = 0; i < actions; ++i) {
        auto *action = new QAction(tree.row);
        action->setVisible(areVisible);
        tree.row->addAction(action);
    }
    QCOMPARE(tree.row->openObjectMenu({3, 4}), opens);
    QCOMPARE(openedMenu.widget, opens ? tree.row : nullptr);
    if (opens)
        QCOMPARE(openedMenu.position, QPointF(3, 4));
}

void TestMWidget::opensTheObjectMenuByKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("opens");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("menu key") << int(Qt::Key_Menu) << none << true;
    QTest::newRow("shift and F10") << int(Qt::Key_F10) << shift << true;
    QTest::newRow("F10 alone") << int(Qt::Key_F10) << none << false;
    QTest::newRow("a letter") << int(Qt::Key_M) << none << false;
}

void TestMWidget::opensTheObjectMenuByKey()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(bool, opens);
    Tree tree;
    tree.row->addAction(new QAction(tree.row));
    tree.row->setPos(10, 20);
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    tree.scene.sendEvent(tree.row, &event);
    QCOMPARE(event.isAccepted(), opens);
    QCOMPARE(openedMenu.widget, opens ? tree.row : nullptr);
    if (opens)
        QCOMPARE(openedMenu.position, QPointF(60, 40));
}

void TestMWidget::givesTheMenuEventToWhoHasActions()
{
    Tree tree;
    tree.page->addAction(new QAction(tree.page));
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    event.setScenePos({5, 6});
    event.setAccepted(false);
    QCoreApplication::sendEvent(&tree.scene, &event);
    QCOMPARE(openedMenu.widget, tree.page);
    QCOMPARE(openedMenu.position, QPointF(5, 6));
}

void TestMWidget::hearsOfALostTouch()
{
    Tree tree;
    MCancelEvent event;
    QVERIFY(tree.scene.sendEvent(tree.row, &event));
    QCOMPARE(tree.log, QStringList{QStringLiteral("xrow")});
}

QTEST_MAIN(TestMWidget)
#include "tst_mwidget.moc"
