// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetest.h"

#include <touchcore/mbanner.h>
#include <touchcore/mbutton.h>
#include <touchcore/mdialog.h>
#include <touchcore/mtheme.h>

#include <QGraphicsSceneMouseEvent>
#include <QPointer>

namespace
{
MButton *buttonOf(const MBanner *banner)
{
    const QList<QGraphicsItem *> children = banner->childItems();
    for (QGraphicsItem *child : children) {
        if (auto *button = dynamic_cast<MButton *>(child))
            return button;
    }
    return nullptr;
}

MBanner *makeBanner(const char *title, const char *action = "")
{
    auto *banner = new MBanner;
    banner->setStyleName(QStringLiteral("InformationBanner"));
    banner->setTitle(QLatin1String(title));
    banner->setActionText(QLatin1String(action));
    return banner;
}
} // namespace

class TestMBanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsAtTheLowerEdge_data();
    void standsAtTheLowerEdge();
    void growsWithItsText();
    void goesAfterItsTime_data();
    void goesAfterItsTime();
    void staysWithoutATime();
    void tapDismisses();
    void actionIsOffered();
    void leavesTheRestUsable();
    void leavesFocusAndBackAlone();
    void waitsForTheKeyboard();
    void newerTakesThePlace();
    void informationWaitsForAnAction();
    void waitingBannersMayGo();
    void appearsInAScene();
};

void TestMBanner::standsAtTheLowerEdge_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QRectF>("place");
    // In portrait it stands above the bar.
    QTest::newRow("portrait") << QSize(360, 720) << QRectF(16, 592, 328, 56);
    QTest::newRow("landscape") << QSize(800, 480) << QRectF(160, 408, 480, 56);
}

void TestMBanner::standsAtTheLowerEdge()
{
    QFETCH(QSize, window);
    SceneTest screen(window);
    MBanner *banner = makeBanner("Event deleted");
    banner->appear(&screen);
    QTEST(banner->geometry(), "place");
}

void TestMBanner::growsWithItsText()
{
    SceneTest window(QSize(360, 720));
    MBanner *banner =
        makeBanner("The event was saved in a notebook that is hidden, so you will not "
                   "see it in any of the lists until you show it.");
    banner->appear(&window);
    const QRectF before = banner->geometry();
    MTheme::instance()->setTextScale(2);
    QTRY_VERIFY(banner->size().height() > before.height());
    QCOMPARE(banner->geometry().bottom(), before.bottom());
    // Two lines, however long it is.
    QVERIFY(banner->size().height() < 120);
    MTheme::instance()->setTextScale(1);
    QTRY_COMPARE(banner->geometry(), before);
}

void TestMBanner::goesAfterItsTime_data()
{
    QTest::addColumn<int>("timeout");
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("shortest");
    QTest::newRow("its own") << 50 << "" << 50;
    QTest::newRow("its own, with an action") << 50 << "Undo" << 50;
    QTest::newRow("style's") << -1 << "" << 100;
    QTest::newRow("style's, with an action") << -1 << "Undo" << 200;
}

void TestMBanner::goesAfterItsTime()
{
    QFETCH(int, timeout);
    QFETCH(QString, action);
    QFETCH(int, shortest);
    SceneTest window;
    QVERIFY(MTheme::instance()->load(
        R"({"styles": {"Brief": {"timeout": 100, "actionTimeout": 200}}})", "test"));
    QPointer<MBanner> banner(makeBanner("Saved"));
    QCOMPARE(banner->style()->timeout(), 3000);
    QCOMPARE(banner->style()->actionTimeout(), 6000);
    banner->setStyleName(QStringLiteral("Brief"));
    banner->setActionText(action);
    banner->setTimeout(timeout);
    QSignalSpy gone(banner.data(), &MSceneWindow::disappeared);
    QElapsedTimer clock;
    clock.start();
    banner->appear(&window, MSceneWindow::DestroyWhenDone);
    QVERIFY(gone.wait());
    QVERIFY(clock.elapsed() > shortest * 9 / 10);
    QTRY_VERIFY(!banner);
}

void TestMBanner::staysWithoutATime()
{
    SceneTest window;
    MBanner *banner = makeBanner("Saved");
    banner->setTimeout(0);
    QSignalSpy gone(banner, &MSceneWindow::disappeared);
    banner->appear(&window);
    QVERIFY(!gone.wait(100));
    // A later one begins its own time.
    banner->disappear();
    banner->setTimeout(20);
    banner->appear(&window);
    QTRY_COMPARE(gone.size(), 2);
}

void TestMBanner::tapDismisses()
{
    SceneTest window;
    MBanner *banner = makeBanner("Saved");
    QSignalSpy clicked(banner, &MBanner::clicked);
    banner->appear(&window);
    window.press(window.centerOf(banner));
    window.release(QPoint(240, 100));
    QVERIFY(clicked.isEmpty());
    QCOMPARE(banner->sceneWindowState(), MSceneWindow::Appeared);
    window.tap(banner);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(banner->sceneWindowState(), MSceneWindow::Disappeared);
}

void TestMBanner::actionIsOffered()
{
    SceneTest window;
    MBanner *plain = makeBanner("Saved");
    plain->appear(&window);
    QVERIFY(!buttonOf(plain)->isVisible());
    QPointer<MBanner> banner(makeBanner("Event deleted", "Undo"));
    banner->appear(&window, MSceneWindow::DestroyWhenDone);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QSignalSpy undone(banner.data(), &MBanner::actionClicked);
    MButton *button = buttonOf(banner);
    QCOMPARE(button->text(), QStringLiteral("Undo"));
    QVERIFY(button->size().height() >= 48);
    QVERIFY(banner->rect().contains(button->geometry()));
    window.tap(button);
    QCOMPARE(undone.size(), 1);
    QTRY_VERIFY(!banner);
}

void TestMBanner::leavesTheRestUsable()
{
    class Counter : public QGraphicsWidget
    {
    public:
        int presses = 0;

    protected:
        void mousePressEvent(QGraphicsSceneMouseEvent *) override { ++presses; }
    };
    SceneTest window;
    auto *page = new MApplicationPage;
    auto *counter = new Counter;
    page->setCentralWidget(counter);
    page->appear(&window);
    MBanner *banner = makeBanner("Saved");
    banner->appear(&window);
    window.tap(QPoint(240, 300));
    // Beside it as well.
    window.tap(QPoint(4, 700));
    QCOMPARE(counter->presses, 2);
    QVERIFY(page->isOnDisplay());
    MDialog dialog;
    dialog.appear(&window);
    QVERIFY(banner->zValue() > dialog.zValue());
    window.tap(banner);
    QCOMPARE(banner->sceneWindowState(), MSceneWindow::Disappeared);
    QCOMPARE(dialog.sceneWindowState(), MSceneWindow::Appeared);
}

void TestMBanner::leavesFocusAndBackAlone()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->setEscapeMode(MApplicationPageModel::EscapeBack);
    page->appear(&window);
    page->centralWidget()->setFocus();
    MBanner *banner = makeBanner("Event deleted", "Undo");
    banner->appear(&window);
    QVERIFY(page->centralWidget()->hasFocus());
    QSignalSpy back(page, &MApplicationPage::backButtonClicked);
    window.key(Qt::Key_Escape);
    QCOMPARE(back.size(), 1);
    QCOMPARE(banner->sceneWindowState(), MSceneWindow::Appeared);

    // Its button is one more stop of the Tab key.
    QSignalSpy undone(banner, &MBanner::actionClicked);
    for (int i = 0; i < 5 && !buttonOf(banner)->hasFocus(); ++i)
        window.key(Qt::Key_Tab);
    QVERIFY(buttonOf(banner)->hasFocus());
    window.key(Qt::Key_Space);
    QCOMPARE(undone.size(), 1);
}

void TestMBanner::waitsForTheKeyboard()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    MBanner *banner = makeBanner("Event deleted", "Undo");
    banner->setTimeout(30);
    QSignalSpy gone(banner, &MSceneWindow::disappeared);
    banner->appear(&window);
    buttonOf(banner)->setFocus();
    QVERIFY(!gone.wait(150));
    page->centralWidget()->setFocus();
    QTRY_COMPARE(gone.size(), 1);
}

void TestMBanner::newerTakesThePlace()
{
    SceneTest window;
    MBanner *first = makeBanner("Saved");
    MBanner *second = makeBanner("Saved again");
    MBanner *third = makeBanner("Event deleted", "Undo");
    MBanner *fourth = makeBanner("Another event deleted", "Undo");
    QPointer<MBanner> old(first);
    first->appear(&window, MSceneWindow::DestroyWhenDone);
    for (MBanner *banner : {second, third, fourth}) {
        banner->appear(&window);
        QCOMPARE(window.sceneManager()->sceneWindows(), QList<MSceneWindow *>{banner});
    }
    QTRY_VERIFY(!old);
}

void TestMBanner::informationWaitsForAnAction()
{
    SceneTest window;
    MBanner *undo = makeBanner("Event deleted", "Undo");
    MBanner *one = makeBanner("Saved");
    MBanner *two = makeBanner("Synchronised");
    undo->appear(&window);
    one->appear(&window);
    two->appear(&window, MSceneWindow::DestroyWhenDone);
    QCOMPARE(one->sceneWindowState(), MSceneWindow::Disappeared);
    QCOMPARE(two->sceneWindowState(), MSceneWindow::Disappeared);
    undo->disappear();
    QCOMPARE(one->sceneWindowState(), MSceneWindow::Appeared);
    one->disappear();
    QCOMPARE(two->sceneWindowState(), MSceneWindow::Appeared);
    QCOMPARE(two->deletionPolicy(), MSceneWindow::DestroyWhenDone);
    two->disappear();
    QVERIFY(window.sceneManager()->sceneWindows().isEmpty());
}

void TestMBanner::waitingBannersMayGo()
{
    SceneTest window;
    MBanner *undo = makeBanner("Event deleted", "Undo");
    MBanner *withdrawn = makeBanner("Saved");
    QPointer<MBanner> done(makeBanner("Saved"));
    MBanner *deleted = makeBanner("Saved");
    MBanner *last = makeBanner("Synchronised");
    undo->appear(&window);
    for (MBanner *banner : {withdrawn, deleted, last})
        banner->appear(&window);
    done->appear(&window, MSceneWindow::DestroyWhenDone);
    withdrawn->disappear();
    done->disappear();
    QTRY_VERIFY(!done);
    delete deleted;
    delete undo;
    QCOMPARE(window.sceneManager()->sceneWindows(), QList<MSceneWindow *>{last});
}

void TestMBanner::appearsInAScene()
{
    SceneTest window;
    MBanner *banner = makeBanner("Saved");
    banner->appear(window.scene(), MSceneWindow::DestroyWhenDone);
    QCOMPARE(banner->sceneWindowState(), MSceneWindow::Appeared);
}

SCENE_TEST_MAIN(TestMBanner)
#include "tst_mbanner.moc"
