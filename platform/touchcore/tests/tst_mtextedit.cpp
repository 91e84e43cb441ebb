// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "../src/core/objectmenuhook.h"
#include "picture.h"
#include "touchscreen.h"

#include <touchcore/mpannableviewport.h>
#include <touchcore/mtextedit.h>
#include <touchcore/mtheme.h>

#include <QAction>
#include <QClipboard>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneContextMenuEvent>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QtTest>

namespace
{
/// What the last long press offered.
QStringList offered;
/// The action that the next menu takes at once.
QString taken;

bool openMenu(MWidget *widget, const QPointF &)
{
    offered.clear();
    const QList<QAction *> actions = widget->actions();
    for (QAction *action : actions) {
        if (action->isVisible())
            offered.append(action->text());
        if (action->isVisible() && action->text() == taken)
            action->trigger();
    }
    taken.clear();
    return true;
}
} // namespace

class TestMTextEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setObjectMenuOpener(openMenu); }
    void init();
    void cleanup() { m_screen.reset(); }

    void takesWhatIsTyped_data() { bothModes(); }
    void takesWhatIsTyped();
    void takesWhatAnInputMethodComposes_data() { bothModes(); }
    void takesWhatAnInputMethodComposes();
    void keepsToItsMaximumLength_data();
    void keepsToItsMaximumLength();
    void cutsNoCharacterInTwo_data() { bothModes(); }
    void cutsNoCharacterInTwo();
    void undoesAndSelects_data() { bothModes(); }
    void undoesAndSelects();
    void tellsWhenEditingIsFinished_data() { bothModes(); }
    void tellsWhenEditingIsFinished();
    void takesTheFocusWhenTapped_data() { bothModes(); }
    void takesTheFocusWhenTapped();
    void leavesTheFocusWhenPanned_data() { bothModes(); }
    void leavesTheFocusWhenPanned();
    void offersWhatCanBeDone_data();
    void offersWhatCanBeDone();
    void selectsTheWordBelowALongPress_data() { bothModes(); }
    void selectsTheWordBelowALongPress();
    void growsWithItsText();
    void hidesWhatIsSecret();
    void refusesChangesWhenReadOnly_data() { bothModes(); }
    void refusesChangesWhenReadOnly();
    void showsItsStateInTheColoursOfTheTheme();
    void promptsWhereThePageBegins();

private:
    static void bothModes();
    MTextEdit *add(MTextEdit::LineMode mode);
    void type(const char *text) { QTest::keyClicks(&m_screen->view, QString::fromLatin1(text)); }
    void longPress(const QPointF &place);

    std::unique_ptr<TouchScreen> m_screen;
};

void TestMTextEdit::bothModes()
{
    QTest::addColumn<MTextEdit::LineMode>("mode");
    QTest::newRow("one line") << MTextEdit::SingleLine;
    QTest::newRow("many lines") << MTextEdit::MultiLine;
}

void TestMTextEdit::init()
{
    m_screen = std::make_unique<TouchScreen>();
    offered.clear();
    taken.clear();
    QGuiApplication::clipboard()->clear();
}

MTextEdit *TestMTextEdit::add(MTextEdit::LineMode mode)
{
    auto *edit = new MTextEdit(mode);
    m_screen->scene.addItem(edit);
    edit->resize(300, edit->effectiveSizeHint(Qt::PreferredSize, QSizeF(300, -1)).height());
    return edit;
}

void TestMTextEdit::longPress(const QPointF &place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place.toPoint(),
                            m_screen->view.viewport()->mapToGlobal(place.toPoint()));
    QApplication::sendEvent(m_screen->view.viewport(), &event);
}

void TestMTextEdit::takesWhatIsTyped()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    QCOMPARE(edit->lineMode(), mode);
    edit->setPrompt(QStringLiteral("Title"));
    QSignalSpy changed(edit, &MTextEdit::textChanged);
    edit->setFocus();
    type("abc");
    QCOMPARE(edit->text(), QStringLiteral("abc"));
    QCOMPARE(changed.count(), 3);
    edit->setText(QStringLiteral("abc"));
    QCOMPARE(changed.count(), 3);
    edit->clear();
    QCOMPARE(edit->text(), QString());
    QCOMPARE(edit->prompt(), QStringLiteral("Title"));
}

void TestMTextEdit::takesWhatAnInputMethodComposes()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    edit->setContentHints(Qt::ImhEmailCharactersOnly);
    edit->setFocus();
    QInputMethodEvent composing(QStringLiteral("ka"), {});
    QApplication::sendEvent(&m_screen->view, &composing);
    QCOMPARE(edit->text(), QString());
    QInputMethodEvent committed;
    committed.setCommitString(QString::fromUtf8("か"));
    QApplication::sendEvent(&m_screen->view, &committed);
    QCOMPARE(edit->text(), QString::fromUtf8("か"));
    const QVariant hints = m_screen->scene.inputMethodQuery(Qt::ImHints);
    QVERIFY(hints.toInt() & Qt::ImhEmailCharactersOnly);
}

void TestMTextEdit::keepsToItsMaximumLength_data()
{
    QTest::addColumn<MTextEdit::LineMode>("mode");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("after");
    for (const auto mode : {MTextEdit::SingleLine, MTextEdit::MultiLine}) {
        const QByteArray name = mode == MTextEdit::SingleLine ? "one line" : "many lines";
        QTest::newRow((name + ", at the end").constData())
            << mode << QStringLiteral("abc") << 3 << QStringLiteral("12345")
            << QStringLiteral("abc12");
        QTest::newRow((name + ", in the middle").constData())
            << mode << QStringLiteral("abc") << 1 << QStringLiteral("12345")
            << QStringLiteral("a12bc");
        QTest::newRow((name + ", full").constData())
            << mode << QStringLiteral("abcde") << 2 << QStringLiteral("1")
            << QStringLiteral("abcde");
    }
}

void TestMTextEdit::keepsToItsMaximumLength()
{
    QFETCH(MTextEdit::LineMode, mode);
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(QString, pasted);
    QFETCH(QString, after);

    MTextEdit *edit = add(mode);
    edit->setMaximumLength(5);
    QCOMPARE(edit->maximumLength(), 5);
    edit->setText(before);
    edit->setFocus();
    edit->setCursorPosition(cursor);
    QGuiApplication::clipboard()->setText(pasted);
    edit->paste();
    QCOMPARE(edit->text(), after);
    edit->undo();
    QCOMPARE(edit->text(), before);
    edit->setText(QStringLiteral("123456789"));
    QCOMPARE(edit->text(), QStringLiteral("12345"));
    edit->setMaximumLength(3);
    QCOMPARE(edit->text(), QStringLiteral("123"));
}

void TestMTextEdit::cutsNoCharacterInTwo()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    edit->setMaximumLength(3);
    edit->setFocus();
    edit->setText(QStringLiteral("ab"));
    edit->setCursorPosition(2);
    QGuiApplication::clipboard()->setText(QString::fromUtf8("😀"));
    edit->paste();
    QCOMPARE(edit->text(), QStringLiteral("ab"));
}

void TestMTextEdit::undoesAndSelects()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    edit->setFocus();
    type("one two");
    edit->selectAll();
    QCOMPARE(edit->selectedText(), QStringLiteral("one two"));
    edit->cut();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one two"));
    QCOMPARE(edit->text(), QString());
    edit->undo();
    QCOMPARE(edit->text(), QStringLiteral("one two"));
    edit->redo();
    QCOMPARE(edit->text(), QString());
    edit->paste();
    edit->setCursorPosition(0);
    QCOMPARE(edit->cursorPosition(), 0);
    edit->setCursorPosition(100);
    QCOMPARE(edit->cursorPosition(), 7);
}

void TestMTextEdit::tellsWhenEditingIsFinished()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    MTextEdit *next = add(mode);
    next->setPos(0, 300);
    QSignalSpy finished(edit, &MTextEdit::editingFinished);
    QSignalSpy returned(edit, &MTextEdit::returnPressed);
    edit->setFocus();
    type("a");
    QTest::keyClick(&m_screen->view, Qt::Key_Return);
    const bool isSingle = mode == MTextEdit::SingleLine;
    QCOMPARE(returned.count(), isSingle ? 1 : 0);
    QCOMPARE(edit->text(), isSingle ? QStringLiteral("a") : QStringLiteral("a\n"));
    finished.clear();
    QTest::keyClick(&m_screen->view, Qt::Key_Tab);
    QCOMPARE(finished.count(), 1);
    QVERIFY(next->hasFocus());
    QCOMPARE(edit->text(), isSingle ? QStringLiteral("a") : QStringLiteral("a\n"));
}

void TestMTextEdit::takesTheFocusWhenTapped()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    edit->setText(QStringLiteral("Text"));
    QVERIFY(!edit->hasFocus());
    m_screen->tap({50, 20});
    QVERIFY(edit->hasFocus());
    edit->clearFocus();
    // The frame around the text is the field, too.
    m_screen->tap({4, 4});
    QVERIFY(edit->hasFocus());
    type("!");
    QCOMPARE(edit->text().size(), 5);
}

void TestMTextEdit::leavesTheFocusWhenPanned()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    m_screen->press({50, 20});
    QVERIFY(!edit->hasFocus());
    QGraphicsItem *grabber = m_screen->scene.mouseGrabberItem();
    QVERIFY(grabber);
    grabber->ungrabMouse();
    m_screen->release({50, 20});
    QVERIFY(!edit->hasFocus());
    // What a viewport does when it takes a touch over.
    MPannableViewport viewport;
    m_screen->scene.addItem(&viewport);
    viewport.resize(360, 600);
    auto *page = new QGraphicsWidget;
    edit->setParentItem(page);
    page->setMinimumHeight(2000);
    viewport.setWidget(page);
    TouchScreen::layOut();
    m_screen->drag(viewport.physics(), {50, 20}, {0, -100});
    QVERIFY(viewport.position().y() > 50);
    QVERIFY(!edit->hasFocus());
}

void TestMTextEdit::offersWhatCanBeDone_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<bool>("isReadOnly");
    QTest::addColumn<QLineEdit::EchoMode>("echoMode");
    QTest::addColumn<QStringList>("expected");
    const QString cut = QStringLiteral("Cut");
    const QString copy = QStringLiteral("Copy");
    const QString paste = QStringLiteral("Paste");
    const QString all = QStringLiteral("Select All");
    QTest::newRow("nothing to do")
        << QString() << QString() << false << QLineEdit::Normal << QStringList();
    QTest::newRow("an empty field")
        << QString() << QStringLiteral("x") << false << QLineEdit::Normal << QStringList{paste};
    QTest::newRow("a word of a text") << QStringLiteral("two words") << QStringLiteral("x") << false
                                      << QLineEdit::Normal << QStringList{cut, copy, paste, all};
    QTest::newRow("the only word") << QStringLiteral("word") << QString() << false
                                   << QLineEdit::Normal << QStringList{cut, copy};
    QTest::newRow("to be read only") << QStringLiteral("two words") << QStringLiteral("x") << true
                                     << QLineEdit::Normal << QStringList{copy, all};
    QTest::newRow("a secret") << QStringLiteral("two words") << QStringLiteral("x") << false
                              << QLineEdit::Password << QStringList{paste, all};
}

void TestMTextEdit::offersWhatCanBeDone()
{
    QFETCH(QString, text);
    QFETCH(QString, clipboard);
    QFETCH(bool, isReadOnly);
    QFETCH(QLineEdit::EchoMode, echoMode);
    QFETCH(QStringList, expected);

    MTextEdit *edit = add(MTextEdit::SingleLine);
    edit->setText(text);
    edit->setEchoMode(echoMode);
    edit->setReadOnly(isReadOnly);
    if (!clipboard.isEmpty())
        QGuiApplication::clipboard()->setText(clipboard);
    longPress({20, 24});
    QCOMPARE(offered, expected);
    if (expected.contains(QStringLiteral("Select All"))) {
        taken = QStringLiteral("Select All");
        longPress({20, 24});
        longPress({20, 24});
        QVERIFY(!offered.contains(QStringLiteral("Select All")));
    }
}

void TestMTextEdit::selectsTheWordBelowALongPress()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    edit->setText(QStringLiteral("first second"));
    longPress({20, 24});
    QCOMPARE(edit->selectedText(), QStringLiteral("first"));
    taken = QStringLiteral("Cut");
    longPress({20, 24});
    QCOMPARE(edit->text(), QStringLiteral(" second"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("first"));
}

void TestMTextEdit::growsWithItsText()
{
    MTextEdit *edit = add(MTextEdit::MultiLine);
    const auto height = [edit](qreal width) {
        return edit->effectiveSizeHint(Qt::PreferredSize, QSizeF(width, -1)).height();
    };
    const qreal three = height(300);
    edit->setMinimumLines(1);
    const qreal one = height(300);
    QCOMPARE(edit->minimumLines(), 1);
    QVERIFY(one >= 48 && one < three);
    edit->setText(QStringLiteral("a\nb\nc\nd\ne\nf"));
    QVERIFY(height(300) > three);
    edit->setText(QStringLiteral("word ").repeated(40));
    QVERIFY(height(150) > 1.5 * height(300));
}

void TestMTextEdit::hidesWhatIsSecret()
{
    MTextEdit *edit = add(MTextEdit::SingleLine);
    edit->setText(QStringLiteral("secret"));
    const QImage open = pictureOf(edit);
    edit->setEchoMode(QLineEdit::Password);
    const QImage hidden = pictureOf(edit);
    QVERIFY(hidden != open);
    edit->setText(QStringLiteral("abcdef"));
    QCOMPARE(pictureOf(edit), hidden);
    edit->selectAll();
    edit->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString());
}

void TestMTextEdit::refusesChangesWhenReadOnly()
{
    QFETCH(MTextEdit::LineMode, mode);

    MTextEdit *edit = add(mode);
    edit->setText(QStringLiteral("Text"));
    edit->setReadOnly(true);
    QVERIFY(edit->isReadOnly());
    edit->setFocus();
    type("x");
    QCOMPARE(edit->text(), QStringLiteral("Text"));
}

void TestMTextEdit::showsItsStateInTheColoursOfTheTheme()
{
    QVERIFY(MTheme::instance()->load(R"({"classes": {"MTextEdit": {
        "color": "#ff0000", "backgroundColor": "#ffffff", "promptColor": "#00ff00",
        "borderColor": "#ffffff", "focusBorderColor": "#0000ff",
        "error": {"borderColor": "#ff00ff", "focusBorderColor": "#0000ff"}}}})",
                                     QStringLiteral("test")));
    MTextEdit *edit = add(MTextEdit::SingleLine);
    edit->setPrompt(QStringLiteral("lllllll"));
    QVERIFY(pixelsOf(pictureOf(edit), Qt::green) > 0);
    edit->setText(QStringLiteral("lllllll"));
    QCOMPARE(pixelsOf(pictureOf(edit), Qt::green), 0);
    QVERIFY(pixelsOf(pictureOf(edit), Qt::red) > 0);
    QCOMPARE(pixelsOf(pictureOf(edit), Qt::magenta), 0);
    edit->setError(true);
    QVERIFY(pixelsOf(pictureOf(edit), Qt::magenta) > 0);
    QCOMPARE(pixelsOf(pictureOf(edit), Qt::blue), 0);
    edit->setFocus();
    QVERIFY(pixelsOf(pictureOf(edit), Qt::blue) > 0);
    edit->setError(false);
    edit->clearFocus();
    QCOMPARE(pixelsOf(pictureOf(edit), Qt::blue), 0);
}

/// Whatever the direction of the prompt's own letters and of the keyboard.
void TestMTextEdit::promptsWhereThePageBegins()
{
    QVERIFY(MTheme::instance()->load(R"({"classes": {"MTextEdit": {
        "backgroundColor": "#ffffff", "promptColor": "#00ff00", "borderColor": "#ffffff"}}})",
                                     QStringLiteral("test")));
    MTextEdit *edit = add(MTextEdit::SingleLine);
    edit->setPrompt(QStringLiteral("Title"));
    QVERIFY(inkOf(pictureOf(edit)).right() < 150);
    edit->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(inkOf(pictureOf(edit)).left() > 150);
    edit->setText(QStringLiteral("a"));
    edit->clear();
    QVERIFY(inkOf(pictureOf(edit)).left() > 150);
}

QTEST_MAIN(TestMTextEdit)
#include "tst_mtextedit.moc"
