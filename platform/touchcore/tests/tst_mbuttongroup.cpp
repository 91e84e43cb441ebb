// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>

#include <QSignalSpy>
#include <QtTest>

class TestMButtonGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void checksOneAtATime();
    void keepsOneCheckedWhenTapped();
    void checksSeveralWhenNotExclusive();
    void takesTheCheckedOneOfNewcomers();
    void numbersItsButtons();
    void losesButtonsThatAreDeleted();

private:
    std::unique_ptr<MButtonGroup> m_group;
    QList<MButton *> m_buttons;
    std::unique_ptr<QSignalSpy> m_changes;
};

void TestMButtonGroup::init()
{
    m_group = std::make_unique<MButtonGroup>();
    m_changes = std::make_unique<QSignalSpy>(m_group.get(), &MButtonGroup::checkedIdChanged);
    for (int i = 0; i < 3; ++i) {
        m_buttons.append(new MButton(QString::number(i)));
        m_group->addButton(m_buttons.last());
    }
}

void TestMButtonGroup::cleanup()
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_group.reset();
}

void TestMButtonGroup::checksOneAtATime()
{
    QCOMPARE(m_group->checkedId(), -1);
    m_buttons[1]->setChecked(true);
    m_buttons[2]->click();
    QCOMPARE(m_group->checkedButton(), m_buttons[2]);
    QVERIFY(!m_buttons[1]->isChecked());
    m_group->setCheckedId(0);
    m_group->setCheckedId(0);
    m_group->setCheckedId(9);
    QCOMPARE(m_group->checkedButton(), nullptr);
    QList<int> told;
    for (const QList<QVariant> &change : qAsConst(*m_changes))
        told.append(change.first().toInt());
    QCOMPARE(told, (QList<int>{1, 2, 0, -1}));
}

void TestMButtonGroup::keepsOneCheckedWhenTapped()
{
    QSignalSpy clicked(m_group.get(), &MButtonGroup::buttonClicked);
    m_buttons[1]->click();
    m_buttons[1]->click();
    QVERIFY(m_buttons[1]->isChecked());
    QCOMPARE(m_changes->count(), 1);
    QCOMPARE(clicked.count(), 2);
}

void TestMButtonGroup::checksSeveralWhenNotExclusive()
{
    m_group->setExclusive(false);
    m_buttons[0]->click();
    m_buttons[2]->click();
    QVERIFY(m_buttons[0]->isChecked() && m_buttons[2]->isChecked());
    m_group->setExclusive(true);
    QVERIFY(m_buttons[0]->isChecked() && !m_buttons[2]->isChecked());
}

void TestMButtonGroup::takesTheCheckedOneOfNewcomers()
{
    m_group->setCheckedId(0);
    auto *newcomer = new MButton;
    m_buttons.append(newcomer);
    newcomer->setCheckable(true);
    newcomer->setChecked(true);
    m_group->addButton(newcomer, 7);
    QCOMPARE(m_group->checkedId(), 7);
    QVERIFY(!m_buttons[0]->isChecked());
    MButtonGroup other;
    other.addButton(newcomer);
    QCOMPARE(newcomer->group(), &other);
    QCOMPARE(m_group->checkedId(), -1);
    QCOMPARE(m_group->buttons().size(), 3);
}

void TestMButtonGroup::numbersItsButtons()
{
    MButton plain;
    MButton numbered;
    m_group->addButton(&numbered, 10);
    m_group->addButton(&plain);
    QCOMPARE(m_group->id(&plain), 11);
    QCOMPARE(m_group->button(10), &numbered);
    QCOMPARE(m_group->button(5), nullptr);
    m_group->removeButton(&numbered);
    QCOMPARE(m_group->id(&numbered), -1);
    QCOMPARE(numbered.group(), nullptr);
}

void TestMButtonGroup::losesButtonsThatAreDeleted()
{
    m_group->setCheckedId(1);
    delete m_buttons.takeAt(1);
    QCOMPARE(m_group->checkedId(), -1);
    QCOMPARE(m_group->buttons().size(), 2);
    // Who hears of it may be gone itself by then.
    QCOMPARE(m_changes->count(), 1);
    m_group.reset();
    QCOMPARE(m_buttons[0]->group(), nullptr);
    m_buttons[0]->click();
}

QTEST_MAIN(TestMButtonGroup)
#include "tst_mbuttongroup.moc"
