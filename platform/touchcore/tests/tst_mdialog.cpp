// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scenetest.h"

#include <touchcore/mbutton.h>
#include <touchcore/mdialog.h>
#include <touchcore/mlabel.h>
#include <touchcore/mmessagebox.h>
#include <touchcore/msheet.h>

#include <QAction>
#include <QGraphicsSceneMouseEvent>
#include <QPointer>

#include <functional>

namespace
{
class Counter : public QGraphicsWidget
{
public:
    int presses = 0;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *) override { ++presses; }
};

/// Runs \a step from the event loop, so inside of whatever is executed next.
void later(QObject *context, const std::function<void()> &step)
{
    QMetaObject::invokeMethod(context, step, Qt::QueuedConnection);
}

const auto yesOrNo = MMessageBox::Yes | MMessageBox::No;
} // namespace

Q_DECLARE_METATYPE(std::function<void(MDialog *)>)

class TestMDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreFixed();
    void messageBoxAnswers_data();
    void messageBoxAnswers();
    void acceptIsAffirmative();
    void hasTitleTextAndButtons();
    void finishesOnce_data();
    void finishesOnce();
    void destroysItselfAfterTheAnswer();
    void dimTakesPresses();
    void answeredDialogDoesNotHoldUp();
    void executes();
    void executesFromATap();
    void executesNested();
    void executedDialogMayBeDeleted();
    void quitEndsExecution();
    void executionNeedsAWindow();
    void answeredBeforeItIsExecuted();
    void refusesToExecuteTwice();
    void standsInTheMiddle_data();
    void standsInTheMiddle();
    void followsTheWindow();
    void buttonsStackWhenTooWide();
    void buttonsMirror();
    void tabStaysInside();
    void enterTakesTheDefault();
    void sheetHasAHeaderWhenNeeded();
    void sheetIsCancelled();
};

void TestMDialog::valuesAreFixed()
{
    QCOMPARE(int(MMessageBox::Yes), 16384);
    QCOMPARE(int(MMessageBox::No), 65536);
    QCOMPARE(int(MMessageBox::AffirmativeResult), 1024);
    QCOMPARE(int(MSceneWindow::Appeared), 1);
    QCOMPARE(int(MDialog::Rejected), 0);
    QCOMPARE(int(MDialog::Accepted), 1);
}

void TestMDialog::messageBoxAnswers_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("yes") << int(MMessageBox::Yes) << 1024;
    QTest::newRow("ok") << int(MMessageBox::Ok) << 1024;
    QTest::newRow("no") << int(MMessageBox::No) << 65536;
    QTest::newRow("cancel") << int(MMessageBox::Cancel) << 0x400000;
    QTest::newRow("beside it") << 0 << 0;
}

void TestMDialog::messageBoxAnswers()
{
    QFETCH(int, button);
    SceneTest window;
    MMessageBox box(QStringLiteral("Title"), QStringLiteral("Text"),
                    yesOrNo | MMessageBox::Ok | MMessageBox::Cancel);
    QSignalSpy finished(&box, &MDialog::finished);
    box.appear(&window);
    if (button)
        window.tap(box.button(MMessageBox::StandardButton(button)));
    else
        window.tap(QPoint(3, 3));
    QCOMPARE(finished.size(), 1);
    QTEST(finished.first().first().toInt(), "result");
    QTEST(box.result(), "result");
    QCOMPARE(box.sceneWindowState(), MSceneWindow::Disappeared);
}

void TestMDialog::acceptIsAffirmative()
{
    SceneTest window;
    MMessageBox box(QStringLiteral("Text"), yesOrNo);
    box.appear(&window);
    box.accept();
    QCOMPARE(box.result(), 1024);
    MDialog dialog;
    dialog.appear(&window);
    dialog.accept();
    QCOMPARE(dialog.result(), 1);
}

void TestMDialog::hasTitleTextAndButtons()
{
    MMessageBox box(QStringLiteral("Title"), QStringLiteral("Text"), yesOrNo);
    QCOMPARE(box.title(), QStringLiteral("Title"));
    QCOMPARE(box.text(), QStringLiteral("Text"));
    QCOMPARE(box.buttons().size(), 2);
    QCOMPARE(box.button(MMessageBox::Yes)->text(), QStringLiteral("Yes"));
    QCOMPARE(box.button(MMessageBox::No)->text(), QStringLiteral("No"));
    QVERIFY(!box.button(MMessageBox::Ok));
    MMessageBox plain(QStringLiteral("Text"));
    QVERIFY(plain.title().isEmpty());
    QVERIFY(plain.button(MMessageBox::Ok));
    delete plain.button(MMessageBox::Ok);
    QVERIFY(plain.buttons().isEmpty());
}

void TestMDialog::finishesOnce_data()
{
    QTest::addColumn<std::function<void(MDialog *)>>("end");
    QTest::addColumn<int>("result");
    using End = std::function<void(MDialog *)>;
    QTest::newRow("done") << End([](MDialog *dialog) { dialog->done(7); }) << 7;
    QTest::newRow("rejected") << End([](MDialog *dialog) { dialog->reject(); }) << 0;
    QTest::newRow("dismissed") << End([](MDialog *dialog) { dialog->dismiss(); }) << 0;
    QTest::newRow("disappeared") << End([](MDialog *dialog) { dialog->disappear(); }) << 0;
}

void TestMDialog::finishesOnce()
{
    QFETCH(std::function<void(MDialog *)>, end);
    QFETCH(int, result);
    SceneTest window;
    MDialog dialog;
    QSignalSpy finished(&dialog, &MDialog::finished);
    dialog.done(3);
    QVERIFY(finished.isEmpty());
    for (int round = 1; round <= 2; ++round) {
        dialog.appear(&window);
        end(&dialog);
        dialog.done(5);
        QCOMPARE(finished.size(), round);
        QCOMPARE(finished.last().first().toInt(), result);
        QCOMPARE(dialog.result(), result);
    }
}

void TestMDialog::destroysItselfAfterTheAnswer()
{
    SceneTest window;
    QPointer<MMessageBox> box(new MMessageBox(QStringLiteral("Delete?"), yesOrNo));
    QSignalSpy finished(box.data(), &MDialog::finished);
    box->appear(&window, MSceneWindow::DestroyWhenDone);
    window.tap(box->button(MMessageBox::Yes));
    QCOMPARE(finished.value(0).value(0).toInt(), 1024);
    QTRY_VERIFY(!box);
}

void TestMDialog::dimTakesPresses()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    auto *counter = new Counter;
    page->setCentralWidget(counter);
    page->appear(&window);
    MDialog dialog;
    auto *field = new QGraphicsWidget;
    field->setPreferredSize(100, 100);
    dialog.setCentralWidget(field);
    dialog.appear(&window);
    window.tap(field);
    QCOMPARE(dialog.sceneWindowState(), MSceneWindow::Appeared);
    window.tap(QPoint(5, 780));
    QCOMPARE(dialog.sceneWindowState(), MSceneWindow::Disappeared);
    QCOMPARE(counter->presses, 0);
    window.tap(QPoint(5, 780));
    QCOMPARE(counter->presses, 1);
}

void TestMDialog::answeredDialogDoesNotHoldUp()
{
    SceneTest window;
    auto *page = new MApplicationPage;
    auto *button = new MButton(QStringLiteral("Next"));
    page->setCentralWidget(button);
    page->appear(&window);
    QSignalSpy clicked(button, &MButton::clicked);
    MMessageBox box(QStringLiteral("Delete?"), yesOrNo);
    box.appear(&window);
    const QPoint beside = window.viewPoint(button, {5, 5});
    window.tap(beside);
    QCOMPARE(clicked.size(), 0);
    QVERIFY(!button->hasFocus());
    QCOMPARE(box.sceneWindowState(), MSceneWindow::Disappeared);

    box.appear(&window);
    MSceneManager::setAnimationsEnabled(true);
    window.tap(box.button(MMessageBox::Yes));
    QCOMPARE(box.sceneWindowState(), MSceneWindow::Disappearing);
    window.tap(beside);
    QCOMPARE(clicked.size(), 1);

    // One that comes back takes all again.
    box.appear(&window);
    window.tap(beside);
    QCOMPARE(clicked.size(), 1);
}

void TestMDialog::executes()
{
    SceneTest window;
    MMessageBox box(QStringLiteral("Delete?"), yesOrNo);
    later(&box, [&] { window.tap(box.button(MMessageBox::Yes)); });
    QCOMPARE(box.exec(), 1024);
    // With transitions the answer does not wait for the last one to end.
    MSceneManager::setAnimationsEnabled(true);
    QSignalSpy appeared(&box, &MSceneWindow::appeared);
    connect(&box, &MSceneWindow::appeared, &box, [&] { window.tap(box.button(MMessageBox::No)); });
    QCOMPARE(box.exec(&window), 65536);
    QCOMPARE(appeared.size(), 1);
}

void TestMDialog::executesFromATap()
{
    SceneTest window;
    auto *page = new MApplicationPage;
    auto *button = new MButton(QStringLiteral("Delete"));
    page->setCentralWidget(button);
    page->appear(&window);
    MMessageBox box(QStringLiteral("Delete?"), yesOrNo);
    QVector<int> answers;
    connect(button, &MButton::clicked, &box, [&] {
        later(&box, [&] { window.tap(box.button(MMessageBox::Yes)); });
        answers.append(box.exec());
    });
    // The button is as good as before.
    window.tap(button);
    window.tap(button);
    QCOMPARE(answers, QVector<int>({1024, 1024}));
}

void TestMDialog::executesNested()
{
    SceneTest window;
    MMessageBox outer(QStringLiteral("Outer"), yesOrNo);
    int innerResult = -1;
    later(&outer, [&] {
        MMessageBox inner(QStringLiteral("Inner"), yesOrNo);
        later(&inner, [&] {
            QCOMPARE(window.sceneManager()->topWindow(), &inner);
            window.key(Qt::Key_Escape);
        });
        innerResult = inner.exec();
        QCOMPARE(outer.sceneWindowState(), MSceneWindow::Appeared);
        window.tap(outer.button(MMessageBox::Yes));
    });
    QCOMPARE(outer.exec(), 1024);
    QCOMPARE(innerResult, 0);
}

void TestMDialog::executedDialogMayBeDeleted()
{
    SceneTest window;
    auto *dialog = new MDialog;
    later(dialog, [dialog] { delete dialog; });
    QCOMPARE(dialog->exec(), 0);

    auto *inLost = new MDialog;
    auto *lost = new SceneTest;
    later(this, [lost] { delete lost; });
    QCOMPARE(inLost->exec(lost), 0);
}

void TestMDialog::quitEndsExecution()
{
    SceneTest window;
    MDialog dialog;
    QSignalSpy finished(&dialog, &MDialog::finished);
    int result = -1;
    later(this, [&] {
        later(&dialog, [] { QCoreApplication::quit(); });
        result = dialog.exec();
    });
    QCoreApplication::exec();
    QCOMPARE(result, 0);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(dialog.sceneWindowState(), MSceneWindow::Disappeared);
}

void TestMDialog::executionNeedsAWindow()
{
    MDialog dialog;
    QTest::ignoreMessage(QtWarningMsg, "MDialog cannot appear: there is no window.");
    QCOMPARE(dialog.exec(), 0);
}

void TestMDialog::answeredBeforeItIsExecuted()
{
    SceneTest window;
    MDialog dialog;
    connect(&dialog, &MSceneWindow::appeared, &dialog, &MDialog::accept);
    QCOMPARE(dialog.exec(), 1);
    QPointer<MDialog> gone(new MDialog);
    connect(gone.data(), &MSceneWindow::appearing, this, [&gone] { delete gone.data(); });
    QCOMPARE(gone->exec(), 0);
}

void TestMDialog::refusesToExecuteTwice()
{
    SceneTest window;
    MDialog dialog;
    int second = -1;
    later(&dialog, [&] {
        second = dialog.exec();
        dialog.done(9);
    });
    QCOMPARE(dialog.exec(), 9);
    QCOMPARE(second, 0);
}

void TestMDialog::standsInTheMiddle_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<qreal>("contents");
    QTest::addColumn<QRectF>("place");
    // Paddings of 24 and 16 stand above and below the contents.
    QTest::newRow("portrait") << QSize(480, 800) << 160.0 << QRectF(40, 300, 400, 200);
    QTest::newRow("landscape") << QSize(800, 480) << 160.0 << QRectF(200, 140, 400, 200);
    QTest::newRow("narrow") << QSize(360, 720) << 160.0 << QRectF(16, 260, 328, 200);
    QTest::newRow("too high") << QSize(800, 480) << 900.0 << QRectF(200, 16, 400, 448);
    QTest::newRow("odd") << QSize(481, 801) << 160.0 << QRectF(41, 301, 400, 200);
}

void TestMDialog::standsInTheMiddle()
{
    QFETCH(QSize, window);
    QFETCH(qreal, contents);
    SceneTest screen(window);
    MDialog dialog;
    auto *central = new QGraphicsWidget;
    central->setPreferredHeight(contents);
    central->setMinimumHeight(10);
    dialog.setCentralWidget(central);
    dialog.appear(&screen);
    QTEST(dialog.geometry(), "place");
}

void TestMDialog::followsTheWindow()
{
    SceneTest window;
    MMessageBox box(QStringLiteral("A text that needs several lines when it is shown on the narrow "
                                   "side of a phone, and fewer on the long one."),
                    yesOrNo);
    box.appear(&window);
    window.resize(800, 480);
    QTRY_COMPARE(box.geometry().center().toPoint(), QPoint(400, 240));
    window.resize(320, 640);
    QTRY_COMPARE(box.size().width(), 288.0);
    const qreal before = box.size().height();
    box.setText(QStringLiteral("Short."));
    QTRY_VERIFY(box.size().height() < before);
    QCOMPARE(box.geometry().center().toPoint(), QPoint(160, 320));
}

void TestMDialog::buttonsStackWhenTooWide()
{
    SceneTest window(QSize(360, 640));
    MDialog dialog;
    MButton *keep = dialog.addButton(QStringLiteral("Keep"), 1);
    MButton *remove = dialog.addButton(QStringLiteral("Delete"), 2);
    dialog.appear(&window);
    QCOMPARE(keep->geometry().top(), remove->geometry().top());
    QCOMPARE(keep->size(), remove->size());
    QVERIFY(remove->geometry().left() - keep->geometry().right() == 8);

    remove->setText(QStringLiteral("Delete this one and all that follow it"));
    const auto isBelow = [&] { return remove->geometry().top() - keep->geometry().bottom() == 8; };
    QTRY_VERIFY(isBelow());
    QCOMPARE(keep->geometry().width(), remove->geometry().width());
    const auto isInside = [&] {
        return dialog.rect().bottom()
            == dialog.mapRectFromItem(remove, remove->rect()).bottom() + 16;
    };
    QTRY_VERIFY(isInside());
}

void TestMDialog::buttonsMirror()
{
    SceneTest window;
    MMessageBox box(QStringLiteral("Delete?"), yesOrNo);
    box.appear(&window);
    QVERIFY(box.button(MMessageBox::No)->x() < box.button(MMessageBox::Yes)->x());
    window.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(box.button(MMessageBox::No)->x() > box.button(MMessageBox::Yes)->x());
}

void TestMDialog::tabStaysInside()
{
    SceneTest window;
    MApplicationPage *page = SceneTest::makePage();
    page->appear(&window);
    MMessageBox box(QStringLiteral("Delete?"), yesOrNo);
    box.appear(&window);
    for (int code : {int(Qt::Key_Tab), int(Qt::Key_Backtab)}) {
        QSet<QGraphicsItem *> visited;
        for (int i = 0; i < 5; ++i) {
            window.key(code);
            QVERIFY(window.scene()->focusItem());
            visited.insert(window.scene()->focusItem());
        }
        QCOMPARE(
            visited,
            (QSet<QGraphicsItem *>{box.button(MMessageBox::Yes), box.button(MMessageBox::No)}));
    }
    box.reject();
    window.key(Qt::Key_Tab);
    window.key(Qt::Key_Tab);
    QVERIFY(page->isAncestorOf(window.scene()->focusItem()));
}

void TestMDialog::enterTakesTheDefault()
{
    SceneTest window;
    MMessageBox box(QStringLiteral("Delete?"), yesOrNo);
    auto *field = new QGraphicsWidget;
    field->setFocusPolicy(Qt::StrongFocus);
    box.setCentralWidget(field);
    box.appear(&window);
    field->setFocus();
    window.key(Qt::Key_Return);
    QCOMPARE(box.result(), 1024);
    // A button with the focus is clicked itself.
    box.appear(&window);
    box.button(MMessageBox::No)->setFocus();
    window.key(Qt::Key_Return);
    QCOMPARE(box.result(), 65536);
}

void TestMDialog::sheetHasAHeaderWhenNeeded()
{
    SceneTest window;
    MSheet sheet;
    auto *central = new QGraphicsWidget;
    sheet.setCentralWidget(central);
    sheet.appear(&window);
    QCOMPARE(central->geometry(), QRectF(0, 0, 480, 800));
    sheet.setTitle(QStringLiteral("Edit event"));
    QCOMPARE(central->geometry(), QRectF(0, 56, 480, 744));

    QPointer<QGraphicsWidget> old(central);
    auto *other = new QGraphicsWidget;
    sheet.setCentralWidget(other);
    QVERIFY(!old);
    QCOMPARE(other->geometry(), QRectF(0, 56, 480, 744));
    QCOMPARE(sheet.centralWidget(), other);
}

void TestMDialog::sheetIsCancelled()
{
    SceneTest window;
    MSheet sheet;
    QAction cancel(QStringLiteral("Cancel"));
    QAction done(QStringLiteral("Save"));
    QSignalSpy cancelled(&cancel, &QAction::triggered);
    QSignalSpy saved(&done, &QAction::triggered);
    sheet.setCancelAction(&cancel);
    sheet.setDoneAction(&done);
    sheet.appear(&window);
    window.tap(QPoint(28, 28));
    window.key(Qt::Key_Escape);
    QCOMPARE(cancelled.size(), 2);
    window.tap(QPoint(450, 28));
    QCOMPARE(saved.size(), 1);
    // It is for those who hear of it to end the task, or not.
    QCOMPARE(sheet.sceneWindowState(), MSceneWindow::Appeared);
    cancel.setEnabled(false);
    window.tap(QPoint(28, 28));
    window.key(Qt::Key_Escape);
    QCOMPARE(cancelled.size(), 2);
    sheet.setCancelAction(nullptr);
    {
        QSignalSpy asked(&sheet, &MSheet::backRequested);
        window.key(Qt::Key_Escape);
        QCOMPARE(asked.size(), 1);
        QCOMPARE(sheet.sceneWindowState(), MSceneWindow::Appeared);
    }
    window.key(Qt::Key_Escape);
    QCOMPARE(sheet.sceneWindowState(), MSceneWindow::Disappeared);
}

SCENE_TEST_MAIN(TestMDialog)
#include "tst_mdialog.moc"
