// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "picture.h"
#include "touchscreen.h"

#include <touchcore/mslider.h>

#include <QSignalSpy>
#include <QtTest>

class TestMSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_screen.reset(); }

    void goesWhereItIsTapped_data();
    void goesWhereItIsTapped();
    void followsTheFinger();
    void waitsUntilTheFingerSlides();
    void givesTheValueBackWhenTheTouchIsTakenOver();
    void goesByKey_data();
    void goesByKey();
    void keepsTheValueInRange();

private:
    std::unique_ptr<TouchScreen> m_screen;
    MSlider *m_slider = nullptr;
};

void TestMSlider::init()
{
    m_screen = std::make_unique<TouchScreen>();
    m_slider = new MSlider;
    m_screen->scene.addItem(m_slider);
    // The line runs between the middles of the thumb at its ends: from 10 to 210.
    m_slider->resize(220, 48);
}

void TestMSlider::goesWhereItIsTapped_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("step");
    QTest::addColumn<qreal>("x");
    QTest::addColumn<int>("value");
    QTest::newRow("the start") << Qt::LeftToRight << 1 << 10.0 << 0;
    QTest::newRow("the middle") << Qt::LeftToRight << 1 << 110.0 << 50;
    QTest::newRow("the end") << Qt::LeftToRight << 1 << 210.0 << 100;
    QTest::newRow("before the line") << Qt::LeftToRight << 1 << 2.0 << 0;
    QTest::newRow("behind the line") << Qt::LeftToRight << 1 << 218.0 << 100;
    QTest::newRow("between steps") << Qt::LeftToRight << 25 << 72.0 << 25;
    QTest::newRow("nearer to the next step") << Qt::LeftToRight << 25 << 92.0 << 50;
    QTest::newRow("a step that misses the end") << Qt::LeftToRight << 30 << 210.0 << 90;
    QTest::newRow("from the right") << Qt::RightToLeft << 1 << 60.0 << 75;
}

void TestMSlider::goesWhereItIsTapped()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, step);
    QFETCH(qreal, x);
    QFETCH(int, value);

    m_slider->setLayoutDirection(direction);
    m_slider->setStep(step);
    m_slider->setValue(40);
    QSignalSpy changed(m_slider, &MSlider::valueChanged);
    m_screen->tap({x, 24});
    QCOMPARE(m_slider->value(), value);
    QCOMPARE(changed.count(), 1);
    const auto *view = qobject_cast<MSliderView *>(m_slider->view());
    const qreal fraction = value / 100.0;
    const qreal place = direction == Qt::LeftToRight ? fraction : 1 - fraction;
    QCOMPARE(view->thumbPosition(), QPointF(10 + 200 * place, 24));
}

void TestMSlider::followsTheFinger()
{
    QSignalSpy changed(m_slider, &MSlider::valueChanged);
    m_screen->press({10, 24});
    for (int x = 20; x <= 110; x += 10)
        m_screen->move({qreal(x), 24});
    QCOMPARE(m_slider->value(), 50);
    QVERIFY(m_slider->model()->down());
    QVERIFY(changed.count() >= 8);
    // A finger may leave the line while it slides.
    m_screen->move({160, 300});
    m_screen->release({160, 300});
    QCOMPARE(m_slider->value(), 75);
    QVERIFY(!m_slider->model()->down());
}

void TestMSlider::waitsUntilTheFingerSlides()
{
    m_screen->press({110, 24});
    QCOMPARE(m_slider->value(), 0);
    m_screen->move({111, 30});
    QCOMPARE(m_slider->value(), 0);
    m_screen->move({130, 30});
    QCOMPARE(m_slider->value(), 60);
    m_screen->release({130, 30});
}

void TestMSlider::givesTheValueBackWhenTheTouchIsTakenOver()
{
    m_slider->setValue(30);
    m_screen->press({10, 24});
    m_screen->move({110, 24});
    QCOMPARE(m_slider->value(), 50);
    MCancelEvent cancel;
    QApplication::sendEvent(m_slider, &cancel);
    QCOMPARE(m_slider->value(), 30);
    m_screen->move({210, 24});
    m_screen->release({210, 24});
    QCOMPARE(m_slider->value(), 30);
}

void TestMSlider::goesByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("value");
    QTest::newRow("right") << Qt::Key_Right << Qt::LeftToRight << 52;
    QTest::newRow("left") << Qt::Key_Left << Qt::LeftToRight << 48;
    QTest::newRow("right from the right") << Qt::Key_Right << Qt::RightToLeft << 48;
    QTest::newRow("up") << Qt::Key_Up << Qt::RightToLeft << 52;
    QTest::newRow("down") << Qt::Key_Down << Qt::LeftToRight << 48;
    QTest::newRow("page up") << Qt::Key_PageUp << Qt::LeftToRight << 70;
    QTest::newRow("page down") << Qt::Key_PageDown << Qt::LeftToRight << 30;
    QTest::newRow("home") << Qt::Key_Home << Qt::LeftToRight << 0;
    QTest::newRow("end") << Qt::Key_End << Qt::LeftToRight << 100;
    QTest::newRow("a letter") << Qt::Key_A << Qt::LeftToRight << 50;
}

void TestMSlider::goesByKey()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, value);

    m_slider->setLayoutDirection(direction);
    m_slider->setStep(2);
    m_slider->setValue(50);
    m_slider->setFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_screen->view, key);
    QCOMPARE(m_slider->value(), value);
}

void TestMSlider::keepsTheValueInRange()
{
    QSignalSpy changed(m_slider, &MSlider::valueChanged);
    m_slider->setRange(10, 20);
    QCOMPARE(m_slider->value(), 10);
    m_slider->setValue(99);
    QCOMPARE(m_slider->value(), 20);
    QCOMPARE(changed.count(), 2);
    m_slider->setRange(5, 3);
    QCOMPARE(m_slider->maximum(), 5);
    QCOMPARE(m_slider->value(), 5);
    // Nothing to slide: it is drawn all the same.
    pictureOf(m_slider);
    m_screen->tap({110, 24});
    QCOMPARE(m_slider->value(), 5);
    m_slider->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    m_screen->tap({210, 24});
    QCOMPARE(m_slider->value(), std::numeric_limits<int>::max());
}

QTEST_MAIN(TestMSlider)
#include "tst_mslider.moc"
