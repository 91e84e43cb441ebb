// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetest.h"

#include <touchcore/mbutton.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mobjectmenu.h>

#include <QAction>
#include <QPointer>

namespace
{
/// What can be tapped in the header of \a page, from the start to the end.
QList<MButton *> headerButtons(const MApplicationPage *page)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QList<MButton *> found;
    const QList<QGraphicsItem *> items = page->scene()->items();
    for (QGraphicsItem *item : items) {
        auto *button = dynamic_cast<MButton *>(item);
        if (button && button->isVisible() && page->isAncestorOf(button)
            && !page->centralWidget()->isAncestorOf(button))
            found.append(button);
    }
    std::sort(found.begin(), found.end(), [](const MButton *a, const MButton *b) {
        return a->mapToScene(0, 0).x() < b->mapToScene(0, 0).x();
    });
    return found;
}

QStringList texts(const QList<MButton *> &buttons)
{
    QStringList all;
    for (const MButton *button : buttons)
        all.append(button->text());
    return all;
}
} // namespace

class TestMApplicationPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapeModes();
    void centralWidgetFillsTheRest();
    void headerIsThereInBothOrientations();
    void headerMayBeHidden();
    void titleIsShown();
    void backButtonOnlyTells_data();
    void backButtonOnlyTells();
    void automaticEscapeGoes();
    void automaticEscapeAsksTheWindow();
    void deletedWhileGoingBack();
    void actionsAsButtonsAndMenu();
    void actionsAreFollowed();
    void actionMayRemoveItself();
    void menuHoldsTheRest();
    void longPressOpensNoMenu();
    void mirrors();
    void ownsItsModel();
};

void TestMApplicationPage::escapeModes()
{
    QCOMPARE(int(MApplicationPageModel::EscapeAuto), 0);
    QCOMPARE(int(MApplicationPageModel::EscapeBack), 1);
    QCOMPARE(int(MApplicationPageModel::EscapeClose), 2);
    MApplicationPage page;
    QCOMPARE(page.escapeMode(), MApplicationPageModel::EscapeAuto);
}

void TestMApplicationPage::centralWidgetFillsTheRest()
{
    SceneTest window;
    MApplicationPage page;
    QVERIFY(!page.centralWidget());
    page.appear(&window);
    QPointer<QGraphicsWidget> first(new QGraphicsWidget);
    page.setCentralWidget(first);
    QCOMPARE(first->geometry(), QRectF(0, 56, 480, 744));
    page.setCentralWidget(first);
    QVERIFY(first);
    page.setCentralWidget(nullptr);
    QVERIFY(!first);
}

void TestMApplicationPage::headerIsThereInBothOrientations()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    window.resize(800, 480);
    QTRY_COMPARE(page->centralWidget()->geometry(), QRectF(0, 56, 800, 424));
}

void TestMApplicationPage::headerMayBeHidden()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    page->setHeaderVisible(false);
    QVERIFY(!page->isHeaderVisible());
    QCOMPARE(page->centralWidget()->geometry(), QRectF(0, 0, 480, 800));
    QVERIFY(headerButtons(page).isEmpty());
    page->setHeaderVisible(true);
    QCOMPARE(page->centralWidget()->geometry(), QRectF(0, 56, 480, 744));
}

void TestMApplicationPage::titleIsShown()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage(QStringLiteral("November 2026"));
    page->appear(&window);
    QCOMPARE(page->title(), QStringLiteral("November 2026"));
    const auto *label =
        dynamic_cast<MLabel *>(window.scene()->itemAt(QPointF(100, 28), QTransform()));
    QVERIFY(label);
    QCOMPARE(label->text(), QStringLiteral("November 2026"));
    page->setTitle(QStringLiteral("December"));
    QCOMPARE(label->text(), QStringLiteral("December"));
}

void TestMApplicationPage::backButtonOnlyTells_data()
{
    QTest::addColumn<MApplicationPageModel::EscapeMode>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("icon");
    QTest::newRow("back") << MApplicationPageModel::EscapeBack << "Back"
                          << "back";
    QTest::newRow("close") << MApplicationPageModel::EscapeClose << "Close"
                           << "close";
}

void TestMApplicationPage::backButtonOnlyTells()
{
    QFETCH(MApplicationPageModel::EscapeMode, mode);
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->setEscapeMode(mode);
    page->appear(&window);
    QSignalSpy clicked(page, &MApplicationPage::backButtonClicked);
    MButton *button = headerButtons(page).value(0);
    QVERIFY(button);
    QTEST(button->text(), "text");
    QTEST(button->iconID(), "icon");
    QVERIFY(button->size().width() >= 48 && button->size().height() >= 48);
    window.tap(button);
    window.goBack();
    QCOMPARE(clicked.size(), 2);
    QCOMPARE(page->sceneWindowState(), MSceneWindow::Appeared);
    QVERIFY(window.isVisible());
}

void TestMApplicationPage::automaticEscapeGoes()
{
    SceneTest window;
    MApplicationPage *first = SceneTest::makePage();
    MApplicationPage *second = SceneTest::makePage();
    first->appear(&window);
    QCOMPARE(texts(headerButtons(first)), QStringList{"Close"});
    second->appear(&window);
    QCOMPARE(texts(headerButtons(second)), QStringList{"Back"});
    QSignalSpy clicked(second, &MApplicationPage::backButtonClicked);
    window.tap(headerButtons(second).first());
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(second->sceneWindowState(), MSceneWindow::Disappeared);
    QVERIFY(first->isOnDisplay());

    // The other one may come below it later.
    second->appear(&window);
    first->appear(&window);
    QCOMPARE(texts(headerButtons(first)), QStringList{"Back"});
}

void TestMApplicationPage::automaticEscapeAsksTheWindow()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    QSignalSpy asked(&window, &MWindow::closeRequested);
    window.key(Qt::Key_Escape);
    QCOMPARE(asked.size(), 1);
    QVERIFY(window.isVisible());
}

void TestMApplicationPage::deletedWhileGoingBack()
{
    SceneTest window;
    QPointer<MApplicationPage> page(SceneTest::makePage());
    page->appear(&window);
    connect(page.data(), &MApplicationPage::backButtonClicked, this,
            [&page] { delete page.data(); });
    window.key(Qt::Key_Back);
    QVERIFY(!page);
    QVERIFY(window.isVisible());
}

void TestMApplicationPage::actionsAsButtonsAndMenu()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage(QStringLiteral("Agenda"));
    page->appear(&window);
    auto *today = new QAction(QStringLiteral("Today"), page);
    page->addAction(today);
    QCOMPARE(texts(headerButtons(page)), (QStringList{"Close", "Today"}));
    QSignalSpy triggered(today, &QAction::triggered);
    window.tap(headerButtons(page).last());
    QCOMPARE(triggered.size(), 1);

    auto *search = new QAction(QStringLiteral("Search"), page);
    search->setProperty("iconID", QStringLiteral("search"));
    page->addAction(search);
    auto *settings = new QAction(QStringLiteral("Settings"), page);
    settings->setPriority(QAction::LowPriority);
    page->addAction(settings);
    QCOMPARE(texts(headerButtons(page)), (QStringList{"Close", "Today", "Search", "More actions"}));
    QCOMPARE(headerButtons(page).at(2)->iconID(), QStringLiteral("search"));

    auto *save = new QAction(QStringLiteral("Save"), page);
    save->setPriority(QAction::HighPriority);
    page->addAction(save);
    QCOMPARE(texts(headerButtons(page)), (QStringList{"Close", "Save", "Today", "More actions"}));
    const QList<MButton *> buttons = headerButtons(page);
    for (int i = 1; i < buttons.size(); ++i)
        QVERIFY(buttons.at(i)->x() >= buttons.at(i - 1)->geometry().right());
}

void TestMApplicationPage::actionsAreFollowed()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    auto *today = new QAction(QStringLiteral("Today"), page);
    page->addAction(today);
    today->setText(QStringLiteral("Now"));
    today->setEnabled(false);
    QCOMPARE(texts(headerButtons(page)), (QStringList{"Close", "Now"}));
    QVERIFY(!headerButtons(page).last()->isEnabled());
    today->setVisible(false);
    QCOMPARE(texts(headerButtons(page)), QStringList{"Close"});
    today->setVisible(true);
    QCOMPARE(texts(headerButtons(page)), (QStringList{"Close", "Now"}));
    delete today;
    QCOMPARE(texts(headerButtons(page)), QStringList{"Close"});
}

void TestMApplicationPage::actionMayRemoveItself()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    auto *once = new QAction(QStringLiteral("Once"), page);
    page->addAction(once);
    connect(once, &QAction::triggered, once, [once] { delete once; });
    window.tap(headerButtons(page).last());
    QCOMPARE(texts(headerButtons(page)), QStringList{"Close"});
}

void TestMApplicationPage::menuHoldsTheRest()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    for (const char *text : {"One", "Two", "Three", "Four"})
        page->addAction(new QAction(QLatin1String(text), page));
    QSignalSpy triggered(page->actions().at(3), &QAction::triggered);
    window.tap(headerButtons(page).last());
    auto *menu = qobject_cast<MObjectMenu *>(window.sceneManager()->topWindow());
    QVERIFY(menu);
    QVERIFY(page->rect().contains(menu->geometry()));
    window.key(Qt::Key_End);
    window.key(Qt::Key_Return);
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(window.sceneManager()->topWindow(), page);
}

void TestMApplicationPage::longPressOpensNoMenu()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    page->addAction(new QAction(QStringLiteral("Today"), page));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(200, 400));
    QCoreApplication::sendEvent(window.viewport(), &event);
    QCOMPARE(window.sceneManager()->topWindow(), page);
}

void TestMApplicationPage::mirrors()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage(QStringLiteral("Agenda"));
    page->setEscapeMode(MApplicationPageModel::EscapeBack);
    page->addAction(new QAction(QStringLiteral("Today"), page));
    page->appear(&window);
    window.setLayoutDirection(Qt::RightToLeft);
    const QList<MButton *> buttons = headerButtons(page);
    QCOMPARE(texts(buttons), (QStringList{"Today", "Back"}));
    QVERIFY(buttons.last()->geometry().right() > 460);
}

void TestMApplicationPage::ownsItsModel()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage(QStringLiteral("Agenda"));
    page->appear(&window);
    auto *model = new MApplicationPageModel;
    model->setTitle(QStringLiteral("Month"));
    page->setModel(model);
    QCOMPARE(page->title(), QStringLiteral("Month"));
    model->setHeaderVisible(false);
    QCOMPARE(page->centralWidget()->geometry(), QRectF(0, 0, 480, 800));
}

SCENE_TEST_MAIN(TestMApplicationPage)
#include "tst_mapplicationpage.moc"
