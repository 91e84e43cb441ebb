// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "touchscreen.h"

#include <touchcore/mlabel.h>
#include <touchcore/mlistitem.h>

#include <QAction>
#include <QGraphicsSceneContextMenuEvent>
#include <QSignalSpy>
#include <QtTest>

class TestMListItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_screen.reset(); }

    void clicksWhenTappedOnWhatItShows();
    void forgetsThePress_data();
    void forgetsThePress();
    void clicksByKey();
    void tellsLongPresses();
    void showsItsState();

private:
    std::unique_ptr<TouchScreen> m_screen;
    MListItem *m_item = nullptr;
    std::unique_ptr<QSignalSpy> m_clicked;
};

void TestMListItem::init()
{
    m_screen = std::make_unique<TouchScreen>();
    m_item = new MListItem;
    m_screen->scene.addItem(m_item);
    m_item->resize(360, 56);
    auto *label = new MLabel(QStringLiteral("A row"), m_item);
    label->setGeometry(0, 0, 360, 56);
    m_clicked = std::make_unique<QSignalSpy>(m_item, &MListItem::clicked);
}

void TestMListItem::clicksWhenTappedOnWhatItShows()
{
    m_screen->press({20, 20});
    QVERIFY(m_item->isDown());
    QCOMPARE(m_item->styleContainer().mode(), QByteArray("pressed"));
    m_screen->move({20, 60});
    m_screen->release({20, 60});
    QCOMPARE(m_clicked->count(), 1);
    m_screen->pressAgain({20, 20});
    m_screen->release({20, 20});
    QCOMPARE(m_clicked->count(), 2);
}

void TestMListItem::forgetsThePress_data()
{
    QTest::addColumn<int>("why");
    QTest::newRow("the touch was taken over") << 0;
    QTest::newRow("the finger went away") << 1;
    QTest::newRow("it was disabled") << 2;
    QTest::newRow("another widget took the mouse") << 3;
}

void TestMListItem::forgetsThePress()
{
    QFETCH(int, why);

    m_screen->press({20, 20});
    MCancelEvent cancel;
    if (why == 0)
        QApplication::sendEvent(m_item, &cancel);
    else if (why == 1)
        m_screen->move({20, 200});
    else if (why == 2)
        m_item->setEnabled(false);
    else
        m_item->ungrabMouse();
    QVERIFY(!m_item->isDown());
    m_screen->release({20, 20});
    QCOMPARE(m_clicked->count(), 0);
}

void TestMListItem::clicksByKey()
{
    m_item->setFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_screen->view, Qt::Key_Space);
    QTest::keyClick(&m_screen->view, Qt::Key_Return);
    QTest::keyClick(&m_screen->view, Qt::Key_A);
    QCOMPARE(m_clicked->count(), 2);
    QTest::keyPress(&m_screen->view, Qt::Key_Space);
    m_item->clearFocus();
    QVERIFY(!m_item->isDown());
}

void TestMListItem::tellsLongPresses()
{
    QSignalSpy longTapped(m_item, &MListItem::longTapped);
    m_screen->press({20, 20});
    QGraphicsSceneContextMenuEvent menu(QEvent::GraphicsSceneContextMenu);
    menu.setScenePos({20, 20});
    menu.setReason(QGraphicsSceneContextMenuEvent::Mouse);
    m_screen->scene.sendEvent(m_item, &menu);
    QCOMPARE(longTapped.count(), 1);
    QCOMPARE(longTapped.first().first().toPointF(), QPointF(20, 20));
    m_screen->release({20, 20});
    QCOMPARE(m_clicked->count(), 0);
}

void TestMListItem::showsItsState()
{
    const auto mode = [this] { return m_item->styleContainer().mode(); };
    m_item->setSelected(true);
    QCOMPARE(mode(), QByteArray("selected"));
    m_screen->press({20, 20});
    QCOMPARE(mode(), QByteArray("pressed"));
    m_screen->release({20, 20});
    QCOMPARE(mode(), QByteArray("selected"));
    m_item->setEnabled(false);
    QCOMPARE(mode(), QByteArray("disabled"));
    m_item->setEnabled(true);
    QCOMPARE(mode(), QByteArray("selected"));
}

QTEST_MAIN(TestMListItem)
#include "tst_mlistitem.moc"
