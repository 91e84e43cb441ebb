// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "touchscreen.h"

#include <touchcore/mbutton.h>
#include <touchcore/mwidgetview.h>

#include <QAction>
#include <QSignalSpy>
#include <QTouchDevice>
#include <QtTest>

namespace
{
const QPointF inside(60, 24);
/// A little outside: a thick finger is still meant.
const QPointF beside(60, 70);
const QPointF outside(60, 200);
} // namespace

class TestMButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_screen.reset(); }

    void clicksWhenTapped_data();
    void clicksWhenTapped();
    void showsThatItIsPressedAtOnce();
    void clicksByTouch();
    void clicksByKey_data();
    void clicksByKey();
    void forgetsThePress_data();
    void forgetsThePress();
    void togglesWhenCheckable();
    void tellsStatesSetByTheProgram();
    void mayBeDeletedByItsClick();
    void clicksOnceForEachQuickTap();
    void ignoresTheSecondaryButton();

private:
    /// What it told since the last look, in order.
    QStringList told();
    void watch(MButton *button);

    std::unique_ptr<TouchScreen> m_screen;
    MButton *m_button = nullptr;
    QStringList m_told;
};

void TestMButton::init()
{
    m_screen = std::make_unique<TouchScreen>();
    m_button = new MButton(QStringLiteral("Save"));
    m_screen->scene.addItem(m_button);
    m_button->resize(120, 48);
    m_told.clear();
    watch(m_button);
}

void TestMButton::watch(MButton *button)
{
    connect(button, &MButton::pressed, this, [this] { m_told << QStringLiteral("pressed"); });
    connect(button, &MButton::released, this, [this] { m_told << QStringLiteral("released"); });
    connect(button, &MButton::toggled, this, [this](bool isChecked) {
        m_told << (isChecked ? QStringLiteral("on") : QStringLiteral("off"));
    });
    connect(button, &MButton::clicked, this, [this](bool isChecked) {
        m_told << (isChecked ? QStringLiteral("clicked on") : QStringLiteral("clicked"));
    });
}

QStringList TestMButton::told()
{
    QStringList list;
    list.swap(m_told);
    return list;
}

void TestMButton::clicksWhenTapped_data()
{
    QTest::addColumn<QVector<QPointF>>("way");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<bool>("isClicked");
    QTest::newRow("a tap") << QVector<QPointF>{} << inside << true;
    QTest::newRow("a finger that rolls a little") << QVector<QPointF>{beside} << beside << true;
    QTest::newRow("a finger that goes away") << QVector<QPointF>{outside} << outside << false;
    QTest::newRow("a finger that comes back")
        << QVector<QPointF>{outside, inside} << inside << true;
}

void TestMButton::clicksWhenTapped()
{
    QFETCH(QVector<QPointF>, way);
    QFETCH(QPointF, end);
    QFETCH(bool, isClicked);

    m_screen->press(inside);
    for (const QPointF &place : qAsConst(way))
        m_screen->move(place);
    QCOMPARE(m_button->isDown(), isClicked);
    m_screen->release(end);
    QVERIFY(!m_button->isDown());
    QStringList expected{QStringLiteral("pressed"), QStringLiteral("released")};
    if (isClicked)
        expected << QStringLiteral("clicked");
    QCOMPARE(told(), expected);
}

void TestMButton::showsThatItIsPressedAtOnce()
{
    const QImage before = m_screen->view.grab().toImage();
    m_screen->press(inside);
    QVERIFY(m_screen->view.grab().toImage() != before);
    m_screen->release(outside);
    QCOMPARE(m_screen->view.grab().toImage(), before);
}

void TestMButton::clicksByTouch()
{
    static QTouchDevice *device = QTest::createTouchDevice();
    m_screen->view.viewport()->setAttribute(Qt::WA_AcceptTouchEvents);
    QTest::touchEvent(&m_screen->view, device).press(0, inside.toPoint(), &m_screen->view);
    QVERIFY(m_button->isDown());
    QTest::touchEvent(&m_screen->view, device).release(0, inside.toPoint(), &m_screen->view);
    QCOMPARE(told(),
             (QStringList{QStringLiteral("pressed"), QStringLiteral("released"),
                          QStringLiteral("clicked")}));
}

void TestMButton::clicksByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("isClicked");
    QTest::newRow("space") << Qt::Key_Space << true;
    QTest::newRow("return") << Qt::Key_Return << true;
    QTest::newRow("enter") << Qt::Key_Enter << true;
    QTest::newRow("a letter") << Qt::Key_A << false;
}

void TestMButton::clicksByKey()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, isClicked);

    m_button->setFocus(Qt::TabFocusReason);
    QTest::keyPress(&m_screen->view, key);
    QCOMPARE(m_button->isDown(), isClicked);
    // A key that is held repeats; that is one click.
    QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&m_screen->view, &repeated);
    QKeyEvent repeatedRelease(QEvent::KeyRelease, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&m_screen->view, &repeatedRelease);
    QCOMPARE(m_button->isDown(), isClicked);
    QTest::keyRelease(&m_screen->view, key);
    QCOMPARE(told().count(QStringLiteral("clicked")), isClicked ? 1 : 0);
}

void TestMButton::forgetsThePress_data()
{
    QTest::addColumn<int>("why");
    QTest::newRow("the touch was taken over") << 0;
    QTest::newRow("it was disabled") << 1;
    QTest::newRow("it was hidden") << 2;
    QTest::newRow("another widget took the mouse") << 3;
    QTest::newRow("the focus went away") << 4;
}

void TestMButton::forgetsThePress()
{
    QFETCH(int, why);

    MButton other;
    m_screen->scene.addItem(&other);
    m_screen->press(inside);
    QVERIFY(m_button->isDown());
    MCancelEvent cancel;
    switch (why) {
    case 0:
        QApplication::sendEvent(m_button, &cancel);
        break;
    case 1:
        m_button->setEnabled(false);
        break;
    case 2:
        m_button->hide();
        break;
    case 3:
        m_button->ungrabMouse();
        break;
    default:
        m_button->setFocus();
        other.setFocus();
        break;
    }
    QVERIFY(!m_button->isDown());
    m_screen->move(inside);
    QVERIFY(!m_button->isDown());
    m_screen->release(inside);
    QCOMPARE(told(), (QStringList{QStringLiteral("pressed"), QStringLiteral("released")}));
}

void TestMButton::togglesWhenCheckable()
{
    m_screen->tap(inside);
    QVERIFY(!m_button->isChecked());
    told();
    m_button->setCheckable(true);
    m_screen->tap(inside);
    QVERIFY(m_button->isChecked());
    QCOMPARE(told(),
             (QStringList{QStringLiteral("pressed"), QStringLiteral("released"),
                          QStringLiteral("on"), QStringLiteral("clicked on")}));
    m_screen->tap(inside);
    QCOMPARE(told(),
             (QStringList{QStringLiteral("pressed"), QStringLiteral("released"),
                          QStringLiteral("off"), QStringLiteral("clicked")}));
}

void TestMButton::tellsStatesSetByTheProgram()
{
    m_button->setChecked(true);
    QVERIFY(!m_button->isChecked());
    m_button->setCheckable(true);
    m_button->setChecked(true);
    m_button->setChecked(true);
    m_button->toggle();
    m_button->setChecked(true);
    m_button->setCheckable(false);
    QCOMPARE(told(),
             (QStringList{QStringLiteral("on"), QStringLiteral("off"), QStringLiteral("on"),
                          QStringLiteral("off")}));
    m_button->setEnabled(false);
    m_button->click();
    QCOMPARE(told(), QStringList());
}

void TestMButton::mayBeDeletedByItsClick()
{
    for (const bool atRelease : {true, false}) {
        const QPointer<MButton> button(new MButton(QStringLiteral("Delete")));
        m_screen->scene.addItem(button);
        button->setPos(0, 300);
        button->resize(120, 48);
        const auto go = [button] { delete button.data(); };
        if (atRelease)
            connect(button, &MButton::released, this, go);
        else
            connect(button, &MButton::clicked, this, go);
        button->setFocus();
        QTest::keyClick(&m_screen->view, Qt::Key_Space);
        QVERIFY(!button);
    }
}

void TestMButton::clicksOnceForEachQuickTap()
{
    m_screen->tap(inside);
    m_screen->pressAgain(inside);
    m_screen->release(inside);
    QCOMPARE(told().count(QStringLiteral("clicked")), 2);
}

void TestMButton::ignoresTheSecondaryButton()
{
    QTest::mouseClick(m_screen->view.viewport(), Qt::RightButton, Qt::NoModifier, inside.toPoint());
    QCOMPARE(told(), QStringList());
}

QTEST_MAIN(TestMButton)
#include "tst_mbutton.moc"
