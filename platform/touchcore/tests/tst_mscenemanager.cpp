// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetest.h"

#include <touchcore/mdialog.h>
#include <touchcore/msheet.h>
#include <touchcore/mtheme.h>

#include <QPointer>

namespace
{
using Windows = QList<MSceneWindow *>;

/// Keeps what a scene window tells, in its order.
class Diary : public QObject
{
public:
    explicit Diary(MSceneWindow *window)
    {
        const auto note = [this, window](const char *word) {
            entries.append(
                QStringLiteral("%1:%2").arg(QLatin1String(word)).arg(window->sceneWindowState()));
        };
        connect(window, &MSceneWindow::appearing, this, [note] { note("appearing"); });
        connect(window, &MSceneWindow::appeared, this, [note] { note("appeared"); });
        connect(window, &MSceneWindow::disappearing, this, [note] { note("disappearing"); });
        connect(window, &MSceneWindow::disappeared, this, [note] { note("disappeared"); });
    }

    QStringList taken()
    {
        QStringList all;
        all.swap(entries);
        return all;
    }
    QStringList entries;
};
} // namespace

class TestMSceneManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsStatesInOrder();
    void animates();
    void comesBackHalfWay();
    void slidesFromTheEnd_data();
    void slidesFromTheEnd();
    void onlyFadesWithReducedMotion();
    void deletes_data();
    void deletes();
    void deletesWhatIsDismissedLater();
    void coveredPagesLeaveTheDisplay();
    void hiddenWindowsShowNothing();
    void sheetsCover();
    void stacksByKind();
    void coveredPageComesToTheTop();
    void followsHistory();
    void historyReplacedBackwards();
    void historyReplacedForwards();
    void dismissedPageRevealsHistory();
    void windowsDeletedOutside();
    void deletedBySignals_data();
    void deletedBySignals();
    void turnedRoundBySignals();
    void movesBetweenWindows();
    void appearsInTheScene();
    void focusComesBack();
    void focusIsShownToTheKeyboard();
    void placesChangedContents();
};

void TestMSceneManager::tellsStatesInOrder()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    Diary diary(page);
    QCOMPARE(page->sceneWindowState(), MSceneWindow::Disappeared);
    QVERIFY(!page->sceneManager());
    page->disappear();
    window.sceneManager()->appearSceneWindow(page);
    QCOMPARE(diary.taken(), (QStringList{"appearing:2", "appeared:1"}));
    QCOMPARE(page->geometry(), QRectF(0, 0, 480, 800));
    QCOMPARE(page->sceneManager(), window.sceneManager());

    page->appear(&window);
    QVERIFY(diary.taken().isEmpty());
    page->disappear();
    QCOMPARE(diary.taken(), (QStringList{"disappearing:3", "disappeared:0"}));
    QVERIFY(!page->isVisible());
    page->disappear();
    QVERIFY(diary.taken().isEmpty());
}

void TestMSceneManager::animates()
{
    SceneTest window;
    MSceneManager::setAnimationsEnabled(true);
    MApplicationPage *page = SceneTest::makePage();
    QSignalSpy appeared(page, &MSceneWindow::appeared);
    QSignalSpy disappeared(page, &MSceneWindow::disappeared);
    page->appear(&window);
    QCOMPARE(page->sceneWindowState(), MSceneWindow::Appearing);
    QCOMPARE(page->pos(), QPointF(480, 0));
    QVERIFY(appeared.wait());
    QCOMPARE(page->pos(), QPointF(0, 0));
    page->dismiss();
    QCOMPARE(page->sceneWindowState(), MSceneWindow::Disappearing);
    QVERIFY(page->isOnDisplay());
    QVERIFY(disappeared.wait());
    QVERIFY(!page->isOnDisplay());

    // The calls that say so do not wait, not even for a transition that runs.
    page->appear(&window);
    window.sceneManager()->appearSceneWindowNow(page);
    QCOMPARE(page->sceneWindowState(), MSceneWindow::Appeared);
    QCOMPARE(page->pos(), QPointF(0, 0));
    window.sceneManager()->dismissSceneWindow(page);
    window.sceneManager()->dismissSceneWindowNow(page);
    QCOMPARE(page->sceneWindowState(), MSceneWindow::Disappeared);
    window.sceneManager()->appearSceneWindowNow(page);
    QCOMPARE(page->sceneWindowState(), MSceneWindow::Appeared);
}

void TestMSceneManager::comesBackHalfWay()
{
    SceneTest window;
    auto *dialog = new MDialog;
    dialog->appear(&window);
    MSceneManager::setAnimationsEnabled(true);
    QSignalSpy gone(dialog, &MSceneWindow::disappeared);
    QSignalSpy back(dialog, &MSceneWindow::appeared);
    dialog->disappear();
    QTRY_VERIFY(dialog->opacity() < 1);
    const qreal before = dialog->opacity();
    dialog->appear(&window);
    QCOMPARE(dialog->opacity(), before);
    QVERIFY(back.wait());
    QCOMPARE(dialog->opacity(), 1.0);
    QCOMPARE(dialog->scale(), 1.0);
    QVERIFY(gone.isEmpty());
}

void TestMSceneManager::slidesFromTheEnd_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<qreal>("start");
    QTest::newRow("left to right") << Qt::LeftToRight << 480.0;
    QTest::newRow("right to left") << Qt::RightToLeft << -480.0;
}

void TestMSceneManager::slidesFromTheEnd()
{
    QFETCH(Qt::LayoutDirection, direction);
    SceneTest window;
    window.setLayoutDirection(direction);
    MSceneManager::setAnimationsEnabled(true);
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    QTEST(page->x(), "start");
}

void TestMSceneManager::onlyFadesWithReducedMotion()
{
    SceneTest window;
    MSceneManager::setAnimationsEnabled(true);
    MTheme::instance()->setMotionReduced(true);
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    QCOMPARE(page->pos(), QPointF(0, 0));
    QCOMPARE(page->opacity(), 0.0);
    auto *dialog = new MDialog;
    dialog->appear(&window);
    QCOMPARE(dialog->scale(), 1.0);
    MTheme::instance()->setMotionReduced(false);
}

void TestMSceneManager::deletes_data()
{
    QTest::addColumn<MSceneWindow::DeletionPolicy>("policy");
    QTest::addColumn<bool>("isDismissed");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("kept") << MSceneWindow::KeepWhenDone << true << false;
    QTest::newRow("done") << MSceneWindow::DestroyWhenDone << false << true;
    QTest::newRow("done by dismissal") << MSceneWindow::DestroyWhenDone << true << true;
    QTest::newRow("only disappeared") << MSceneWindow::DestroyWhenDismissed << false << false;
    QTest::newRow("dismissed") << MSceneWindow::DestroyWhenDismissed << true << true;
}

void TestMSceneManager::deletes()
{
    QFETCH(MSceneWindow::DeletionPolicy, policy);
    QFETCH(bool, isDismissed);
    QFETCH(bool, isDeleted);
    SceneTest window;
    QPointer<MSceneWindow> page(SceneTest::makePage());
    page->appear(&window, policy);
    QCOMPARE(page->deletionPolicy(), policy);
    if (isDismissed)
        page->dismiss();
    else
        page->disappear();
    QVERIFY(page);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(page.isNull(), isDeleted);
}

void TestMSceneManager::deletesWhatIsDismissedLater()
{
    SceneTest window;
    QPointer<MSceneWindow> sheet(new MSheet);
    sheet->appear(&window, MSceneWindow::DestroyWhenDismissed);
    sheet->disappear();
    sheet->dismiss();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!sheet);
}

void TestMSceneManager::coveredPagesLeaveTheDisplay()
{
    SceneTest window;
    MApplicationPage *below = SceneTest::makePage();
    MApplicationPage *above = SceneTest::makePage();
    QSignalSpy entered(below, &MWidget::displayEntered);
    QSignalSpy left(below, &MWidget::displayExited);
    below->appear(&window);
    QCOMPARE(entered.size(), 1);
    above->appear(&window);
    QCOMPARE(left.size(), 1);
    QCOMPARE(below->sceneWindowState(), MSceneWindow::Appeared);
    QVERIFY(!below->isVisible());

    auto *dialog = new MDialog;
    dialog->appear(&window);
    QVERIFY(above->isOnDisplay());
    dialog->reject();
    above->dismiss();
    QCOMPARE(entered.size(), 2);
    QVERIFY(below->isOnDisplay());
    QVERIFY(!above->isOnDisplay());
}

void TestMSceneManager::hiddenWindowsShowNothing()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    window.hide();
    QVERIFY(!page->isOnDisplay());
    window.show();
    QVERIFY(page->isOnDisplay());
    window.showMinimized();
    QTRY_VERIFY(!page->isOnDisplay());
    window.showNormal();
    QTRY_VERIFY(page->isOnDisplay());
}

void TestMSceneManager::sheetsCover()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    MSheet sheet;
    sheet.appear(&window);
    QCOMPARE(sheet.geometry(), page->geometry());
    QVERIFY(!page->isVisible());

    // In a window much wider than the sheet the page stays in view.
    window.resize(1000, 700);
    QTRY_COMPARE(sheet.geometry(), QRectF(140, 24, 720, 652));
    QVERIFY(page->isOnDisplay());
}

void TestMSceneManager::stacksByKind()
{
    SceneTest window;
    MApplicationPage *first = SceneTest::makePage();
    MDialog dialog;
    MSheet sheet;
    MApplicationPage *second = SceneTest::makePage();
    first->appear(&window);
    dialog.appear(&window);
    sheet.appear(&window);
    second->appear(&window);
    MSceneManager *manager = window.sceneManager();
    QCOMPARE(manager->sceneWindows(), (Windows{first, second, &dialog, &sheet}));
    QCOMPARE(manager->topWindow(), &sheet);
    QVERIFY(dialog.zValue() > second->zValue());
    QVERIFY(sheet.zValue() > dialog.zValue());
}

void TestMSceneManager::coveredPageComesToTheTop()
{
    SceneTest window;
    MApplicationPage *first = SceneTest::makePage();
    MApplicationPage *second = SceneTest::makePage();
    first->appear(&window);
    second->appear(&window);
    Diary diary(first);
    first->appear(&window);
    QCOMPARE(diary.taken(), (QStringList{"appearing:2", "appeared:1"}));
    QVERIFY(first->isVisible());
    QVERIFY(!second->isVisible());
    QCOMPARE(window.sceneManager()->pageHistory(), (Windows{second, first}));
}

void TestMSceneManager::followsHistory()
{
    SceneTest window;
    MSceneManager *manager = window.sceneManager();
    MApplicationPage *first = SceneTest::makePage();
    MSheet sheet;
    MDialog dialog;
    first->appear(&window);
    sheet.appear(&window);
    dialog.appear(&window);
    QCOMPARE(manager->pageHistory(), (Windows{first, &sheet}));
    sheet.disappear();
    QCOMPARE(manager->pageHistory(), (Windows{first}));
    delete first;
    QVERIFY(manager->pageHistory().isEmpty());
}

void TestMSceneManager::historyReplacedBackwards()
{
    SceneTest window;
    MSceneManager *manager = window.sceneManager();
    MApplicationPage *pages[3];
    for (MApplicationPage *&page : pages) {
        page = SceneTest::makePage();
        page->appear(&window);
    }
    manager->setPageHistory({pages[0]});
    QCOMPARE(pages[2]->sceneWindowState(), MSceneWindow::Appeared);

    // The page in view goes as one goes back; the one between, unseen, at once.
    MSceneManager::setAnimationsEnabled(true);
    QSignalSpy gone(pages[2], &MSceneWindow::disappeared);
    pages[0]->appear(&window);
    QCOMPARE(pages[2]->sceneWindowState(), MSceneWindow::Disappearing);
    QCOMPARE(pages[1]->sceneWindowState(), MSceneWindow::Disappeared);
    QVERIFY(pages[0]->isOnDisplay());
    QVERIFY(gone.wait());
    QCOMPARE(manager->sceneWindows(), (Windows{pages[0]}));
}

void TestMSceneManager::historyReplacedForwards()
{
    SceneTest window;
    MSceneManager *manager = window.sceneManager();
    MApplicationPage *old = SceneTest::makePage();
    MApplicationPage *other = SceneTest::makePage();
    old->appear(&window);
    manager->setPageHistory({other});
    MSceneManager::setAnimationsEnabled(true);
    QSignalSpy appeared(other, &MSceneWindow::appeared);
    other->appear(&window);
    QCOMPARE(old->sceneWindowState(), MSceneWindow::Appeared);
    QVERIFY(appeared.wait());
    QCOMPARE(old->sceneWindowState(), MSceneWindow::Disappeared);
    QCOMPARE(manager->pageHistory(), (Windows{other}));
}

void TestMSceneManager::dismissedPageRevealsHistory()
{
    SceneTest window;
    MSceneManager *manager = window.sceneManager();
    MApplicationPage *first = SceneTest::makePage();
    MApplicationPage *second = SceneTest::makePage();
    second->appear(&window);
    manager->setPageHistory({first, second});
    MSceneManager::setAnimationsEnabled(true);
    second->dismiss();
    QCOMPARE(first->sceneWindowState(), MSceneWindow::Appeared);
    QVERIFY(second->zValue() > first->zValue());

    // Whoever only makes it disappear wants nothing in its place.
    MSceneManager::setAnimationsEnabled(false);
    manager->setPageHistory({second, first});
    first->disappear();
    QVERIFY(second->sceneWindowState() != MSceneWindow::Appeared);
}

void TestMSceneManager::windowsDeletedOutside()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    auto *dialog = new MDialog;
    dialog->appear(&window);
    delete dialog;
    QCOMPARE(window.sceneManager()->topWindow(), page);
    QCOMPARE(window.scene()->items(QPointF(5, 400)).size(), 3);
    MSceneManager::setAnimationsEnabled(true);
    auto *sheet = new MSheet;
    sheet->appear(&window);
    delete sheet;
    QCOMPARE(window.sceneManager()->sceneWindows(), (Windows{page}));

    // What is shown goes with its window, also while it moves.
    auto *gone = new SceneTest;
    MSceneManager::setAnimationsEnabled(true);
    QPointer<MSceneWindow> late(new MSheet);
    late->appear(gone);
    delete gone;
    QVERIFY(!late);
}

void TestMSceneManager::deletedBySignals_data()
{
    QTest::addColumn<bool>("isAnimated");
    QTest::newRow("at once") << false;
    QTest::newRow("animated") << true;
}

void TestMSceneManager::deletedBySignals()
{
    QFETCH(bool, isAnimated);
    SceneTest window;
    MSceneManager::setAnimationsEnabled(isAnimated);
    using Signal = void (MSceneWindow::*)();
    for (Signal signal : {&MSceneWindow::appearing, &MSceneWindow::appeared,
                          &MSceneWindow::disappearing, &MSceneWindow::disappeared}) {
        QPointer<MDialog> dialog(new MDialog);
        connect(dialog.data(), &MSceneWindow::appeared, dialog.data(), &MSceneWindow::disappear);
        connect(dialog.data(), signal, this, [&dialog] { delete dialog.data(); });
        dialog->appear(&window);
        QTRY_VERIFY(!dialog);
    }
    QVERIFY(window.sceneManager()->sceneWindows().isEmpty());
}

void TestMSceneManager::turnedRoundBySignals()
{
    SceneTest window;
    MSceneManager::setAnimationsEnabled(true);
    auto *dialog = new MDialog;
    int turns = 0;
    connect(dialog, &MSceneWindow::disappeared, this, [&] {
        if (++turns < 3)
            dialog->appear(&window);
    });
    connect(dialog, &MSceneWindow::appeared, dialog, &MSceneWindow::disappear);
    dialog->appear(&window);
    QTRY_COMPARE(turns, 3);
    QCOMPARE(dialog->sceneWindowState(), MSceneWindow::Disappeared);
}

void TestMSceneManager::movesBetweenWindows()
{
    SceneTest one;
    SceneTest two;
    MSheet sheet;
    sheet.appear(&one);
    sheet.appear(&two);
    QVERIFY(one.sceneManager()->sceneWindows().isEmpty());
    QCOMPARE(two.sceneManager()->topWindow(), &sheet);
    QCOMPARE(sheet.scene(), two.scene());
}

void TestMSceneManager::appearsInTheScene()
{
    auto *dialog = new MDialog;
    QTest::ignoreMessage(QtWarningMsg, "MDialog cannot appear: there is no window.");
    dialog->appear();
    SceneTest window;
    dialog->appear(window.scene(), MSceneWindow::KeepWhenDone);
    QCOMPARE(dialog->sceneManager(), window.sceneManager());
    dialog->disappear();
    dialog->appear();
    QCOMPARE(dialog->sceneWindowState(), MSceneWindow::Appeared);
}

void TestMSceneManager::focusComesBack()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    window.tap(page->centralWidget());
    QVERIFY(page->centralWidget()->hasFocus());

    auto *dialog = new MDialog;
    auto *field = new QGraphicsWidget;
    field->setFocusPolicy(Qt::StrongFocus);
    field->setPreferredSize(100, 100);
    dialog->setCentralWidget(field);
    dialog->appear(&window);
    QVERIFY(dialog->hasFocus());
    window.tap(field);
    QVERIFY(field->hasFocus());
    dialog->reject();
    QVERIFY(page->centralWidget()->hasFocus());

    MApplicationPage *other = SceneTest::makePage();
    other->appear(&window);
    QVERIFY(other->hasFocus());
    other->dismiss();
    QVERIFY(page->centralWidget()->hasFocus());
}

void TestMSceneManager::focusIsShownToTheKeyboard()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    window.key(Qt::Key_Tab);
    QVERIFY(window.isKeyboardInUse());
    qRegisterMetaType<Qt::FocusReason>();
    QSignalSpy focus(window.scene(), &QGraphicsScene::focusItemChanged);
    auto *dialog = new MDialog;
    auto *field = new QGraphicsWidget;
    field->setFocusPolicy(Qt::StrongFocus);
    dialog->setCentralWidget(field);
    dialog->appear(&window);
    QVERIFY(field->hasFocus());
    QCOMPARE(focus.last().at(2).value<Qt::FocusReason>(), Qt::TabFocusReason);
    window.tap(QPoint(2, 2));
    QVERIFY(!window.isKeyboardInUse());
    QVERIFY(focus.last().at(2).value<Qt::FocusReason>() != Qt::TabFocusReason);
}

void TestMSceneManager::placesChangedContents()
{
    SceneTest window;
    auto *dialog = new MDialog;
    dialog->appear(&window);
    const qreal before = dialog->size().height();
    auto *high = new QGraphicsWidget;
    high->setPreferredHeight(300);
    dialog->setCentralWidget(high);
    QTRY_COMPARE(dialog->size().height(), before + 300);
    QCOMPARE(dialog->geometry().center().toPoint(), QPoint(240, 400));
}

SCENE_TEST_MAIN(TestMSceneManager)
#include "tst_mscenemanager.moc"
