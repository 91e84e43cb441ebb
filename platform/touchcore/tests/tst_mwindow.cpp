// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetest.h"

#include <touchcore/mdialog.h>
#include <touchcore/mlayout.h>
#include <touchcore/mlinearlayoutpolicy.h>
#include <touchcore/msheet.h>
#include <touchcore/mtextedit.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwidget.h>

#include <QGraphicsProxyWidget>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QLineEdit>

namespace
{
/// Notes what reaches it.
class Target : public MWidget
{
public:
    explicit Target(QGraphicsItem *parent = nullptr) : MWidget(parent) { }

    int presses = 0;
    int moves = 0;
    int releases = 0;
    int cancels = 0;
    int wheels = 0;
    int menus = 0;
    bool takesMenus = true;
    QGraphicsSceneContextMenuEvent::Reason reason = QGraphicsSceneContextMenuEvent::Other;
    QPointF menuPosition;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *) override { ++presses; }
    void mouseMoveEvent(QGraphicsSceneMouseEvent *) override { ++moves; }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *) override { ++releases; }
    void cancelEvent() override { ++cancels; }
    void wheelEvent(QGraphicsSceneWheelEvent *) override { ++wheels; }
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override
    {
        ++menus;
        reason = event->reason();
        menuPosition = event->pos();
        event->setAccepted(takesMenus);
    }
};

/// A window with a page whose central widget is a Target.
class TargetTest : public SceneTest
{
public:
    TargetTest() : page(new MApplicationPage), target(new Target)
    {
        page->setHeaderVisible(false);
        page->setCentralWidget(target);
        page->appear(this);
    }

    void move(const QPoint &point)
    {
        QMouseEvent event(QEvent::MouseMove, point, viewport()->mapToGlobal(point), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport(), &event);
    }

    MApplicationPage *page;
    Target *target;
};
} // namespace

class TestMWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAView();
    void orientationGoesByShape_data();
    void orientationGoesByShape();
    void rotationTurnsContents_data();
    void rotationTurnsContents();
    void refusesOtherAngles();
    void orientationIsToldLast();
    void activeWindowTurnsTheTheme();
    void longPressBecomesAMenuEvent();
    void longPressClimbsToParents();
    void shortAndMovingPressesDoNot_data();
    void shortAndMovingPressesDoNot();
    void refusedLongPressStaysAPress();
    void menuKeyIsLeftToWidgets();
    void escapeGoesBack_data();
    void escapeGoesBack();
    void focusedWidgetTakesEscapeFirst();
    void closeIsAskedFor();
    void wheelReachesWidgets();
    void prestartedWindowsStayHidden();
    void activeWindows();
    void keyboardHides();
    void keyboardKnowsTheCursor_data();
    void keyboardKnowsTheCursor();
    void showsTheBackground();
};

void TestMWindow::isAView()
{
    SceneTest window;
    QCOMPARE(window.scene()->itemIndexMethod(), QGraphicsScene::NoIndex);
    QCOMPARE(window.scene()->sceneRect(), QRectF(0, 0, 480, 800));
    QCOMPARE(window.viewport()->size(), QSize(480, 800));
    window.resize(300, 400);
    QTRY_COMPARE(window.scene()->sceneRect(), QRectF(0, 0, 300, 400));
    QCOMPARE(window.mapToScene(QPoint(0, 0)), QPointF(0, 0));
}

void TestMWindow::orientationGoesByShape_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<M::Orientation>("orientation");
    QTest::newRow("higher than wide") << QSize(480, 800) << M::Portrait;
    QTest::newRow("wider than high") << QSize(800, 480) << M::Landscape;
    QTest::newRow("square") << QSize(500, 500) << M::Landscape;
}

void TestMWindow::orientationGoesByShape()
{
    QFETCH(QSize, size);
    SceneTest window(size);
    QTEST(window.orientation(), "orientation");
    QTEST(window.sceneManager()->orientation(), "orientation");
    QTEST(MTheme::instance()->orientation(), "orientation");
}

void TestMWindow::rotationTurnsContents_data()
{
    QTest::addColumn<int>("angle");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QPointF>("topLeft");
    QTest::newRow("upright") << 0 << QSizeF(480, 800) << QPointF(0, 0);
    QTest::newRow("right") << 90 << QSizeF(800, 480) << QPointF(480, 0);
    QTest::newRow("upside down") << 180 << QSizeF(480, 800) << QPointF(480, 800);
    QTest::newRow("left") << 270 << QSizeF(800, 480) << QPointF(0, 800);
}

void TestMWindow::rotationTurnsContents()
{
    QFETCH(int, angle);
    QFETCH(QSizeF, size);
    TargetTest window;
    QSignalSpy turned(&window, &MWindow::orientationChanged);
    window.setRotationAngle(angle);
    QCOMPARE(window.rotationAngle(), angle);
    QCOMPARE(window.target->size(), size);
    QTEST(window.target->mapToScene(0, 0), "topLeft");
    QCOMPARE(turned.size(), angle % 180 == 0 ? 0 : 1);
    window.tap(window.viewPoint(window.target, QPointF(10, 30)));
    QCOMPARE(window.target->releases, 1);
}

void TestMWindow::refusesOtherAngles()
{
    SceneTest window;
    QTest::ignoreMessage(QtWarningMsg, "MWindow: 45 is no angle that a screen is turned by.");
    window.setRotationAngle(45);
    QTest::ignoreMessage(QtWarningMsg, "MWindow: 360 is no angle that a screen is turned by.");
    window.setRotationAngle(360);
    QCOMPARE(window.rotationAngle(), 0);
}

void TestMWindow::orientationIsToldLast()
{
    TargetTest window;
    auto *layout = new MLayout;
    auto *row = new MLinearLayoutPolicy(layout, Qt::Horizontal);
    auto *column = new MLinearLayoutPolicy(layout, Qt::Vertical);
    layout->setLandscapePolicy(row);
    layout->setPortraitPolicy(column);
    window.target->setLayout(layout);
    QCOMPARE(layout->policy(), column);

    int told = 0;
    const auto check = [&](const M::Orientation &orientation) {
        ++told;
        QCOMPARE(orientation, M::Landscape);
        QCOMPARE(MTheme::instance()->orientation(), M::Landscape);
        QCOMPARE(layout->policy(), row);
        QCOMPARE(window.target->size(), QSizeF(800, 480));
    };
    connect(&window, &MWindow::orientationChanged, this, check);
    connect(window.sceneManager(), &MSceneManager::orientationChanged, this, check);
    window.resize(800, 480);
    QTRY_COMPARE(told, 2);
}

void TestMWindow::activeWindowTurnsTheTheme()
{
    SceneTest portrait;
    SceneTest landscape(QSize(800, 480));
    QVERIFY(landscape.isActive);
    QCOMPARE(MTheme::instance()->orientation(), M::Landscape);
    portrait.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&portrait));
    QCOMPARE(MTheme::instance()->orientation(), M::Portrait);
    landscape.resize(900, 480);
    QCOMPARE(MTheme::instance()->orientation(), M::Portrait);
}

void TestMWindow::longPressBecomesAMenuEvent()
{
    TargetTest window;
    Target *target = window.target;
    const QPoint place(100, 200);
    window.press(place);
    QCOMPARE(target->presses, 1);
    window.move(place + QPoint(8, 8));
    QTRY_COMPARE(target->menus, 1);
    QCOMPARE(target->reason, QGraphicsSceneContextMenuEvent::Mouse);
    QCOMPARE(target->menuPosition, QPointF(place));
    QCOMPARE(target->cancels, 1);
    QVERIFY(!window.scene()->mouseGrabberItem());

    // The rest of the touch belongs to nobody; the next one is a touch again.
    const int moves = target->moves;
    window.move(place + QPoint(0, 100));
    window.release(place);
    QCOMPARE(target->moves, moves);
    QCOMPARE(target->releases, 0);
    window.tap(place);
    QCOMPARE(target->releases, 1);
}

void TestMWindow::longPressClimbsToParents()
{
    TargetTest window;
    auto *inner = new Target(window.target);
    inner->setGeometry(50, 50, 100, 100);
    inner->takesMenus = false;
    window.press(QPoint(70, 80));
    QTRY_COMPARE(window.target->menus, 1);
    QCOMPARE(inner->menus, 1);
    QCOMPARE(inner->menuPosition, QPointF(20, 30));
    QCOMPARE(window.target->menuPosition, QPointF(70, 80));
    // The press is taken from the one that had it.
    QCOMPARE(inner->cancels, 1);
    QCOMPARE(window.target->cancels, 0);
    window.release(QPoint(70, 80));
}

void TestMWindow::shortAndMovingPressesDoNot_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("isReleased");
    QTest::newRow("released") << QPoint() << true;
    QTest::newRow("moved") << QPoint(0, 13) << false;
    QTest::newRow("moved aslant") << QPoint(9, 9) << false;
}

void TestMWindow::shortAndMovingPressesDoNot()
{
    QFETCH(QPoint, way);
    QFETCH(bool, isReleased);
    TargetTest window;
    const QPoint place(100, 100);
    window.press(place);
    if (isReleased)
        window.release(place);
    else
        window.move(place + way);
    QTimer later;
    later.setSingleShot(true);
    QSignalSpy passed(&later, &QTimer::timeout);
    later.start(600);
    QVERIFY(passed.wait());
    QCOMPARE(window.target->menus, 0);
    QCOMPARE(window.target->cancels, 0);
}

void TestMWindow::refusedLongPressStaysAPress()
{
    TargetTest window;
    window.target->takesMenus = false;
    window.press(QPoint(100, 100));
    QTRY_COMPARE(window.target->menus, 1);
    window.release(QPoint(100, 100));
    QCOMPARE(window.target->cancels, 0);
    QCOMPARE(window.target->releases, 1);
}

void TestMWindow::menuKeyIsLeftToWidgets()
{
    TargetTest window;
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(100, 100));
    QCoreApplication::sendEvent(window.viewport(), &byKey);
    QCOMPARE(window.target->menus, 0);
    QContextMenuEvent byButton(QContextMenuEvent::Mouse, QPoint(100, 100));
    QCoreApplication::sendEvent(window.viewport(), &byButton);
    QCOMPARE(window.target->menus, 1);
}

void TestMWindow::escapeGoesBack_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("escape") << int(Qt::Key_Escape);
    QTest::newRow("back") << int(Qt::Key_Back);
}

void TestMWindow::escapeGoesBack()
{
    QFETCH(int, key);
    SceneTest window;
    window.key(key);
    MApplicationPage *page = SceneTest::makePage();
    page->setEscapeMode(MApplicationPageModel::EscapeBack);
    page->appear(&window);
    MSheet sheet;
    sheet.appear(&window);
    MDialog dialog;
    dialog.appear(&window);
    QSignalSpy back(page, &MApplicationPage::backButtonClicked);

    window.key(key);
    QCOMPARE(dialog.sceneWindowState(), MSceneWindow::Disappeared);
    QCOMPARE(sheet.sceneWindowState(), MSceneWindow::Appeared);
    window.key(key);
    QCOMPARE(sheet.sceneWindowState(), MSceneWindow::Disappeared);
    QVERIFY(back.isEmpty());
    window.key(key);
    QCOMPARE(back.size(), 1);
    QCOMPARE(page->sceneWindowState(), MSceneWindow::Appeared);
}

void TestMWindow::focusedWidgetTakesEscapeFirst()
{
    class Taker : public QGraphicsWidget
    {
    public:
        int taken = 0;

    protected:
        void keyPressEvent(QKeyEvent *) override { ++taken; }
    };
    SceneTest window;
    MSheet sheet;
    auto *taker = new Taker;
    taker->setFocusPolicy(Qt::StrongFocus);
    sheet.setCentralWidget(taker);
    sheet.appear(&window);
    window.key(Qt::Key_Tab);
    window.key(Qt::Key_Escape);
    QCOMPARE(taker->taken, 1);
    QCOMPARE(sheet.sceneWindowState(), MSceneWindow::Appeared);

    // A text field has no use for it.
    auto *field = new QGraphicsProxyWidget;
    field->setWidget(new QLineEdit);
    sheet.setCentralWidget(field);
    field->setFocus();
    QVERIFY(field->hasFocus());
    window.key(Qt::Key_Escape);
    QCOMPARE(sheet.sceneWindowState(), MSceneWindow::Disappeared);
}

void TestMWindow::closeIsAskedFor()
{
    SceneTest window;
    int asked = 0;
    {
        QObject listener;
        connect(&window, &MWindow::closeRequested, &listener, [&asked] { ++asked; });
        QVERIFY(!window.close());
        QCOMPARE(asked, 1);
        QVERIFY(window.isVisible());
    }
    QVERIFY(window.close());
    QCOMPARE(asked, 1);
}

void TestMWindow::wheelReachesWidgets()
{
    TargetTest window;
    const auto turn = [&window] {
        QWheelEvent event(QPointF(100, 100), window.viewport()->mapToGlobal(QPoint(100, 100)),
                          QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window.viewport(), &event);
    };
    turn();
    QCOMPARE(window.target->wheels, 1);
    MDialog dialog;
    dialog.appear(&window);
    turn();
    QCOMPARE(window.target->wheels, 1);
}

void TestMWindow::prestartedWindowsStayHidden()
{
    QSignalSpy changed(static_cast<MApplication *>(qApp), &MApplication::prestartedChanged);
    MApplication::setPrestarted(true);
    QVERIFY(MApplication::isPrestarted());
    MWindow window;
    MWindow withdrawn;
    MWindow never;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    window.show();
    withdrawn.show();
    withdrawn.hide();
    QVERIFY(!window.isVisible());
    QVERIFY(!page->isOnDisplay());

    MApplication::setPrestarted(false);
    MApplication::setPrestarted(false);
    QVERIFY(window.isVisible());
    QVERIFY(page->isOnDisplay());
    QVERIFY(!withdrawn.isVisible());
    QVERIFY(!never.isVisible());
    QCOMPARE(changed.size(), 2);
}

void TestMWindow::activeWindows()
{
    QVERIFY(!MApplication::activeWindow());
    MWindow first;
    MWindow second;
    QCOMPARE(MApplication::activeWindow(), &first);
    second.show();
    QVERIFY(QTest::qWaitForWindowActive(&second));
    QCOMPARE(MApplication::activeWindow(), &second);
    QCOMPARE(MApplication::activeApplicationWindow(), &second);
    second.hide();
    QCOMPARE(MApplication::activeWindow(), &second);
    {
        SceneTest third;
        QCOMPARE(MApplication::activeWindow(), &third);
    }
    QCOMPARE(MApplication::activeWindow(), &second);
}

void TestMWindow::keyboardHides()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    auto *panel = new QGraphicsWidget;
    auto *field = new QGraphicsProxyWidget(panel);
    field->setWidget(new QLineEdit);
    page->setCentralWidget(panel);
    page->appear(&window);
    field->setFocus();
    QVERIFY(field->flags() & QGraphicsItem::ItemAcceptsInputMethod);
    QVERIFY(window.viewport()->testAttribute(Qt::WA_InputMethodEnabled)
            || window.testAttribute(Qt::WA_InputMethodEnabled));
    window.scene()->setFocusItem(nullptr);
    QVERIFY(!QGuiApplication::inputMethod()->isVisible());
    QVERIFY(!window.testAttribute(Qt::WA_InputMethodEnabled));
}

void TestMWindow::keyboardKnowsTheCursor_data()
{
    QTest::addColumn<int>("angle");
    QTest::newRow("upright") << 0;
    QTest::newRow("right") << 90;
    QTest::newRow("upside down") << 180;
    QTest::newRow("left") << 270;
}

/// Where it stands on the screen, so that an on-screen keyboard does not cover it.
void TestMWindow::keyboardKnowsTheCursor()
{
    QFETCH(int, angle);
    SceneTest window;
    window.setRotationAngle(angle);
    MApplicationPage *page = SceneTest::makePage();
    auto *panel = new QGraphicsWidget;
    auto *field = new MTextEdit;
    field->setParentItem(panel);
    field->setGeometry(30, 50, 200, 48);
    field->setText(QStringLiteral("Dentist"));
    page->setCentralWidget(panel);
    page->appear(&window);
    field->setFocus();
    const QPolygon place = window.mapFromScene(field->mapRectToScene(field->rect()));
    const QRectF cursor = window.inputMethodQuery(Qt::ImCursorRectangle).toRectF();
    QVERIFY(!cursor.isEmpty());
    QVERIFY(QRectF(place.boundingRect()).contains(cursor));
    QCOMPARE(window.inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("Dentist"));
}

void TestMWindow::showsTheBackground()
{
    SceneTest window;
    QCOMPARE(window.grab().toImage().pixelColor(200, 300),
             MTheme::instance()->color(QStringLiteral("background")));
    MTheme::instance()->setColorScheme(M::DarkScheme);
    QCOMPARE(window.grab().toImage().pixelColor(200, 300),
             MTheme::instance()->color(QStringLiteral("background")));
    // Also through a page that does not paint all of it.
    QVERIFY(MTheme::instance()->load(R"({"styles": {"Empty": {"backgroundColor": ""}}})",
                                     QStringLiteral("test")));
    MApplicationPage *page = SceneTest::makePage();
    page->setStyleName(QStringLiteral("Empty"));
    page->appear(&window);
    QCOMPARE(window.grab().toImage().pixelColor(200, 300),
             MTheme::instance()->color(QStringLiteral("background")));
    MTheme::instance()->setColorScheme(M::LightScheme);
}

SCENE_TEST_MAIN(TestMWindow)
#include "tst_mwindow.moc"
