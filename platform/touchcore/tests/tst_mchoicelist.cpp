// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "touchscreen.h"

#include <touchcore/mbutton.h>
#include <touchcore/mchoicelist.h>

#include <QGraphicsLayout>
#include <QSignalSpy>
#include <QtTest>

class TestMChoiceList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_screen.reset(); }

    void choosesWhatIsTapped();
    void choosesByTheProgram();
    void goesFromRowToRowByKey();
    void keepsTheChoiceWhenAnswersChange();

private:
    QPointF row(int index) const { return {100, 28.0 + 56 * index}; }

    std::unique_ptr<TouchScreen> m_screen;
    MChoiceList *m_list = nullptr;
};

void TestMChoiceList::init()
{
    m_screen = std::make_unique<TouchScreen>();
    m_list = new MChoiceList;
    m_screen->scene.addItem(m_list);
    m_list->setChoices(
        {QStringLiteral("Never"), QStringLiteral("Every day"), QStringLiteral("Every week")});
    m_list->resize(360, 3 * 56);
    TouchScreen::layOut();
}

void TestMChoiceList::choosesWhatIsTapped()
{
    QSignalSpy changed(m_list, &MChoiceList::currentIndexChanged);
    QSignalSpy activated(m_list, &MChoiceList::activated);
    m_screen->tap(row(2));
    QCOMPARE(m_list->currentIndex(), 2);
    m_screen->tap(row(2));
    QCOMPARE(m_list->currentIndex(), 2);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(activated.count(), 2);
    QCOMPARE(activated.last().first().toInt(), 2);
}

void TestMChoiceList::choosesByTheProgram()
{
    QSignalSpy activated(m_list, &MChoiceList::activated);
    m_list->setCurrentIndex(1);
    QCOMPARE(m_list->currentIndex(), 1);
    m_list->setCurrentIndex(3);
    QCOMPARE(m_list->currentIndex(), -1);
    QCOMPARE(activated.count(), 0);
}

void TestMChoiceList::goesFromRowToRowByKey()
{
    QTest::keyClick(&m_screen->view, Qt::Key_Tab);
    QTest::keyClick(&m_screen->view, Qt::Key_Up);
    QTest::keyClick(&m_screen->view, Qt::Key_Space);
    QCOMPARE(m_list->currentIndex(), 0);
    QTest::keyClick(&m_screen->view, Qt::Key_Down);
    QTest::keyClick(&m_screen->view, Qt::Key_Space);
    QCOMPARE(m_list->currentIndex(), 1);
    QTest::keyClick(&m_screen->view, Qt::Key_End);
    QTest::keyClick(&m_screen->view, Qt::Key_Down);
    QTest::keyClick(&m_screen->view, Qt::Key_Space);
    QCOMPARE(m_list->currentIndex(), 2);
    QTest::keyClick(&m_screen->view, Qt::Key_Home);
    QTest::keyClick(&m_screen->view, Qt::Key_Return);
    QCOMPARE(m_list->currentIndex(), 0);
}

void TestMChoiceList::keepsTheChoiceWhenAnswersChange()
{
    m_list->setCurrentIndex(1);
    const QStringList more{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                           QStringLiteral("d")};
    m_list->setChoices(more);
    QCOMPARE(m_list->choices(), more);
    QCOMPARE(m_list->currentIndex(), 1);
    m_list->setChoices({QStringLiteral("a")});
    QCOMPARE(m_list->currentIndex(), -1);
    m_list->setChoices(more);
    m_list->setCurrentIndex(3);
    QCOMPARE(m_list->currentIndex(), 3);
}

QTEST_MAIN(TestMChoiceList)
#include "tst_mchoicelist.moc"
