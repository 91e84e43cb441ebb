// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "picture.h"
#include "touchscreen.h"

#include <touchcore/mprogressindicator.h>
#include <touchcore/mtheme.h>

#include <QtTest>

class TestMProgressIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void fillsAsFarAsItHasCome_data();
    void fillsAsFarAsItHasCome();
    void movesOnlyWhileItIsSeen_data();
    void movesOnlyWhileItIsSeen();
    void fadesWhereNothingMayMove_data() { movesOnlyWhileItIsSeen_data(); }
    void fadesWhereNothingMayMove();
    void keepsTheValueInRange();

private:
    std::unique_ptr<TouchScreen> m_screen;
    MProgressIndicator *m_indicator = nullptr;
};

void TestMProgressIndicator::initTestCase()
{
    QVERIFY(MTheme::instance()->load(R"({"classes": {"MProgressIndicator": {
        "color": "#000000", "trackColor": "#ffffff", "thickness": 4}}})",
                                     QStringLiteral("test")));
}

void TestMProgressIndicator::init()
{
    m_screen = std::make_unique<TouchScreen>();
    m_indicator = new MProgressIndicator;
    m_screen->scene.addItem(m_indicator);
    m_indicator->resize(200, 40);
}

void TestMProgressIndicator::cleanup()
{
    MTheme::instance()->setMotionReduced(false);
    m_screen.reset();
}

void TestMProgressIndicator::fillsAsFarAsItHasCome_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("filled");
    QTest::newRow("nothing") << 0 << Qt::LeftToRight << QRect();
    QTest::newRow("half") << 50 << Qt::LeftToRight << QRect(0, 18, 100, 4);
    QTest::newRow("all") << 100 << Qt::LeftToRight << QRect(0, 18, 200, 4);
    QTest::newRow("a quarter from the right") << 25 << Qt::RightToLeft << QRect(150, 18, 50, 4);
}

void TestMProgressIndicator::fillsAsFarAsItHasCome()
{
    QFETCH(int, value);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, filled);

    m_indicator->setLayoutDirection(direction);
    m_indicator->setValue(value);
    QCOMPARE(inkOf(pictureOf(m_indicator)), filled);
    m_indicator->setViewType(QStringLiteral("spinner"));
    QCOMPARE(inkOf(pictureOf(m_indicator)).isEmpty(), filled.isEmpty());
}

void TestMProgressIndicator::movesOnlyWhileItIsSeen_data()
{
    QTest::addColumn<QString>("viewType");
    QTest::newRow("bar") << QString();
    QTest::newRow("spinner") << QStringLiteral("spinner");
}

void TestMProgressIndicator::movesOnlyWhileItIsSeen()
{
    QFETCH(QString, viewType);

    m_indicator->setViewType(viewType);
    const auto *view = qobject_cast<MProgressIndicatorView *>(m_indicator->view());
    QVERIFY(view);
    MWidget::updateDisplayState(m_indicator, true);
    QVERIFY(!view->isMoving());
    m_indicator->setUnknownDuration(true);
    QVERIFY(view->isMoving());
    const QImage before = pictureOf(m_indicator);
    QTRY_VERIFY(pictureOf(m_indicator) != before);
    m_indicator->hide();
    QVERIFY(!view->isMoving());
    m_indicator->show();
    QVERIFY(view->isMoving());
    MWidget::updateDisplayState(m_indicator, false);
    QVERIFY(!view->isMoving());
    MWidget::updateDisplayState(m_indicator, true);
    m_indicator->setUnknownDuration(false);
    QVERIFY(!view->isMoving());
}

void TestMProgressIndicator::fadesWhereNothingMayMove()
{
    QFETCH(QString, viewType);

    MTheme::instance()->setMotionReduced(true);
    m_indicator->setViewType(viewType);
    m_indicator->setUnknownDuration(true);
    const QImage before = pictureOf(m_indicator);
    MWidget::updateDisplayState(m_indicator, true);
    QTRY_VERIFY(pictureOf(m_indicator) != before);
    QCOMPARE(inkOf(pictureOf(m_indicator)), inkOf(before));
}

void TestMProgressIndicator::keepsTheValueInRange()
{
    m_indicator->setRange(10, 20);
    QCOMPARE(m_indicator->value(), 10);
    QCOMPARE(m_indicator->fraction(), 0.0);
    m_indicator->setValue(99);
    QCOMPARE(m_indicator->fraction(), 1.0);
    m_indicator->setRange(3, 3);
    QCOMPARE(m_indicator->fraction(), 1.0);
}

QTEST_MAIN(TestMProgressIndicator)
#include "tst_mprogressindicator.moc"
