// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mphysics2dpanning.h>

#include <QAbstractEventDispatcher>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

class TestMPhysics2DPanning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void followsTheFinger_data();
    void followsTheFinger();
    void slowsDownExponentially();
    void goesTheSameWayAtAnyRate_data();
    void goesTheSameWayAtAnyRate();
    void comesBackWithoutSwinging();
    void doesNotRunOnAfterAPause();
    void flickIsBounded();
    void tellsWhenAPanBeginsAndEnds();
    void pressStopsIt();
    void setPositionKeepsTheMovement_data();
    void setPositionKeepsTheMovement();
    void rangeBoundsWhatRests();
    void pushesAddUpAndEnd_data();
    void pushesAddUpAndEnd();
    void pushAgainstAnEdgeIsToldToo();
    void pansOnlyItsDirections();
    void stopsInsideItsRange();
    void survivesListenersThatStopIt();
    void timerRunsOnlyWhileItMoves();

private:
    void flick(qreal distance);
    void rest();
    qreal y() const { return m_physics->position().y(); }

    std::unique_ptr<MPhysics2DPanning> m_physics;
    std::unique_ptr<QSignalSpy> m_started;
    std::unique_ptr<QSignalSpy> m_stopped;
};

void TestMPhysics2DPanning::init()
{
    m_physics = std::make_unique<MPhysics2DPanning>();
    m_physics->setRange(QRectF(0, 0, 0, 10000));
    m_physics->setPosition(QPointF(0, 5000));
    m_physics->advance(0);
    m_started = std::make_unique<QSignalSpy>(m_physics.get(), &MPhysics2DPanning::panningStarted);
    m_stopped = std::make_unique<QSignalSpy>(m_physics.get(), &MPhysics2DPanning::panningStopped);
}

void TestMPhysics2DPanning::cleanup()
{
    m_started.reset();
    m_stopped.reset();
    m_physics.reset();
}

/// A finger that draws the content on by \a distance within 50 ms.
void TestMPhysics2DPanning::flick(qreal distance)
{
    m_physics->pointerPress(QPointF(0, 0));
    for (int i = 1; i <= 5; ++i) {
        m_physics->advance(0.01);
        m_physics->pointerMove(QPointF(0, -distance * i / 5));
    }
    m_physics->pointerRelease();
}

void TestMPhysics2DPanning::rest()
{
    for (int i = 0; i < 1000 && m_physics->isMoving(); ++i)
        m_physics->advance(0.01);
}

void TestMPhysics2DPanning::followsTheFinger_data()
{
    QTest::addColumn<qreal>("start");
    QTest::addColumn<qreal>("way");
    QTest::addColumn<qreal>("expected");
    QTest::newRow("inside") << 5000.0 << -70.0 << 5070.0;
    QTest::newRow("beyond the end it gives way by a third") << 9970.0 << -90.0 << 10020.0;
    QTest::newRow("beyond the start") << 0.0 << 30.0 << -10.0;
}

void TestMPhysics2DPanning::followsTheFinger()
{
    QFETCH(qreal, start);
    QFETCH(qreal, way);
    QFETCH(qreal, expected);
    m_physics->setPosition(QPointF(0, start));
    m_physics->pointerMove(QPointF(0, 99));
    QCOMPARE(y(), start);
    m_physics->pointerPress(QPointF(0, 0));
    m_physics->pointerMove(QPointF(0, way / 2));
    m_physics->pointerMove(QPointF(0, way));
    QCOMPARE(y(), expected);
    m_physics->pointerMove(QPointF(0, 0));
    QCOMPARE(y(), start);
}

void TestMPhysics2DPanning::slowsDownExponentially()
{
    flick(50);
    const qreal speed = m_physics->velocity().y();
    QCOMPARE(speed, 1000.0);
    const qreal start = y();
    m_physics->advance(0.325);
    QCOMPARE(m_physics->velocity().y(), speed * std::exp(-1));
    QCOMPARE(y(), start + speed * 0.325 * (1 - std::exp(-1)));
}

void TestMPhysics2DPanning::goesTheSameWayAtAnyRate_data()
{
    QTest::addColumn<qreal>("start");
    QTest::addColumn<qreal>("distance");
    QTest::newRow("inside") << 5000.0 << 60.0;
    QTest::newRow("over the end") << 9800.0 << 60.0;
    QTest::newRow("over the start") << 100.0 << -40.0;
    QTest::newRow("from beyond the end back inside") << 10040.0 << -100.0;
}

void TestMPhysics2DPanning::goesTheSameWayAtAnyRate()
{
    QFETCH(qreal, start);
    QFETCH(qreal, distance);
    const auto positionsAt = [&](int parts) {
        init();
        m_physics->pointerPress(QPointF());
        m_physics->pointerMove(QPointF(0, 1));
        m_physics->setPosition(QPointF(0, start));
        flick(distance);
        QList<int> positions;
        for (int i = 0; i < 40; ++i) {
            for (int part = 0; part < parts; ++part)
                m_physics->advance(0.03 / parts);
            positions << qRound(y());
        }
        return positions;
    };
    const QList<int> expected = positionsAt(1);
    QCOMPARE(positionsAt(3), expected);
    QCOMPARE(positionsAt(10), expected);
}

void TestMPhysics2DPanning::comesBackWithoutSwinging()
{
    m_physics->setPosition(QPointF(0, 9990));
    flick(100);
    qreal furthest = y();
    qreal last = y();
    bool isReturning = false;
    while (m_physics->isMoving()) {
        m_physics->advance(0.016);
        isReturning = isReturning || y() < last;
        QVERIFY(!isReturning || y() <= last);
        QVERIFY(y() >= 10000);
        furthest = qMax(furthest, last = y());
    }
    QVERIFY(furthest > 10020);
    QVERIFY(furthest < 10120);
    QCOMPARE(y(), 10000.0);
}

void TestMPhysics2DPanning::doesNotRunOnAfterAPause()
{
    m_physics->pointerPress(QPointF());
    m_physics->advance(0.02);
    m_physics->pointerMove(QPointF(0, -50));
    m_physics->advance(0.2);
    m_physics->pointerRelease();
    QCOMPARE(y(), 5050.0);
    QVERIFY(!m_physics->isMoving());
    QCOMPARE(m_stopped->count(), 1);
}

void TestMPhysics2DPanning::flickIsBounded()
{
    m_physics->pointerPress(QPointF());
    m_physics->advance(0.001);
    m_physics->pointerMove(QPointF(0, -500));
    m_physics->pointerRelease();
    QCOMPARE(m_physics->velocity().y(), 8000.0);
}

void TestMPhysics2DPanning::tellsWhenAPanBeginsAndEnds()
{
    m_physics->pointerPress(QPointF());
    m_physics->pointerRelease();
    QCOMPARE(m_started->count(), 0);

    flick(50);
    QCOMPARE(m_started->count(), 1);
    QCOMPARE(m_stopped->count(), 0);
    QVERIFY(m_physics->isMoving());
    rest();
    QCOMPARE(m_started->count(), 1);
    QCOMPARE(m_stopped->count(), 1);
}

void TestMPhysics2DPanning::pressStopsIt()
{
    flick(50);
    m_physics->advance(0.1);
    m_physics->pointerPress(QPointF());
    const qreal held = y();
    m_physics->advance(0.1);
    QCOMPARE(y(), held);
    QCOMPARE(m_stopped->count(), 0);
    m_physics->pointerRelease();
    QCOMPARE(m_stopped->count(), 1);
    QCOMPARE(y(), held);
}

void TestMPhysics2DPanning::setPositionKeepsTheMovement_data()
{
    QTest::addColumn<QString>("movement");
    QTest::newRow("flick") << "flick";
    QTest::newRow("finger") << "finger";
    QTest::newRow("glide") << "glide";
}

/// 1,000 pixels of content come in above: all goes on as it would have without them.
void TestMPhysics2DPanning::setPositionKeepsTheMovement()
{
    QFETCH(QString, movement);
    const auto positionAfter = [&](qreal grown) {
        init();
        if (movement == QLatin1String("flick"))
            flick(60);
        else if (movement == QLatin1String("glide"))
            m_physics->glideBy(QPointF(0, 300));
        else
            m_physics->pointerPress(QPointF());
        m_physics->advance(0.05);
        m_physics->setRange(QRectF(0, 0, 0, 10000 + grown));
        m_physics->setPosition(m_physics->position() + QPointF(0, grown));
        m_physics->pointerMove(QPointF(0, -40));
        for (int i = 0; i < 60; ++i)
            m_physics->advance(0.016);
        return y();
    };
    const qreal without = positionAfter(0);
    QVERIFY(without > 5030);
    QCOMPARE(positionAfter(1000), without + 1000);
}

void TestMPhysics2DPanning::rangeBoundsWhatRests()
{
    m_physics->setRange(QRectF(0, 0, 0, 4000));
    QCOMPARE(y(), 4000.0);
    m_physics->setPosition(QPointF(0, 9000));
    QCOMPARE(y(), 4000.0);
    m_physics->setRange(QRectF(0, 0, 0, -100));
    QCOMPARE(y(), 0.0);

    init();
    flick(50);
    m_physics->setRange(QRectF(0, 0, 0, 4000));
    QVERIFY2(y() > 4900, "what moves is pulled back, it does not leap");
    rest();
    QCOMPARE(y(), 4000.0);
}

void TestMPhysics2DPanning::pushesAddUpAndEnd_data()
{
    QTest::addColumn<bool>("isGlide");
    QTest::newRow("at once") << false;
    QTest::newRow("gliding") << true;
}

void TestMPhysics2DPanning::pushesAddUpAndEnd()
{
    QFETCH(bool, isGlide);
    const auto push = [&](qreal distance) {
        return isGlide ? m_physics->glideBy(QPointF(0, distance))
                       : m_physics->moveBy(QPointF(0, distance));
    };
    QVERIFY(push(100));
    QCOMPARE(y(), isGlide ? 5000.0 : 5100.0);
    m_physics->advance(0.1);
    QVERIFY(push(60));
    m_physics->advance(0.1);
    QCOMPARE(m_stopped->count(), 0);
    rest();
    QCOMPARE(y(), 5160.0);
    QCOMPARE(m_started->count(), 1);
    QCOMPARE(m_stopped->count(), 1);

    QVERIFY(push(1e6));
    rest();
    QCOMPARE(y(), 10000.0);

    m_physics->pointerPress(QPointF());
    QVERIFY(!push(-50));
    QCOMPARE(y(), 10000.0);
}

/// So a list that grows at its end when a pan ends there also grows by wheel and keyboard.
void TestMPhysics2DPanning::pushAgainstAnEdgeIsToldToo()
{
    m_physics->setPosition(QPointF(0, 10000));
    QVERIFY(!m_physics->moveBy(QPointF(0, 50)));
    QCOMPARE(m_started->count(), 1);
    rest();
    QCOMPARE(m_stopped->count(), 1);
    QCOMPARE(y(), 10000.0);
}

void TestMPhysics2DPanning::pansOnlyItsDirections()
{
    m_physics->setRange(QRectF(0, 0, 500, 10000));
    m_physics->setDirections(Qt::Horizontal);
    m_physics->pointerPress(QPointF());
    m_physics->advance(0.01);
    m_physics->pointerMove(QPointF(-40, -40));
    m_physics->pointerRelease();
    QCOMPARE(m_physics->position(), QPointF(40, 5000));
    QCOMPARE(m_physics->velocity().y(), 0.0);
    rest();
    QCOMPARE(y(), 5000.0);
}

void TestMPhysics2DPanning::stopsInsideItsRange()
{
    flick(50);
    m_physics->stop();
    QCOMPARE(m_stopped->count(), 1);
    QCOMPARE(y(), 5050.0);

    m_physics->setPosition(QPointF(0, 10000));
    m_physics->pointerPress(QPointF());
    m_physics->pointerMove(QPointF(0, -90));
    m_physics->stop();
    QCOMPARE(y(), 10030.0);
    m_physics->pointerRelease();
    m_physics->stop();
    QCOMPARE(y(), 10000.0);
    QCOMPARE(m_stopped->count(), 2);
}

void TestMPhysics2DPanning::survivesListenersThatStopIt()
{
    connect(m_physics.get(), &MPhysics2DPanning::positionChanged, this, [this] {
        if (y() > 5100)
            m_physics->stop();
    });
    flick(90);
    rest();
    QVERIFY(y() < 5200);
    QCOMPARE(m_stopped->count(), 1);
}

void TestMPhysics2DPanning::timerRunsOnlyWhileItMoves()
{
    MPhysics2DPanning physics;
    physics.setRange(QRectF(0, 0, 0, 100));
    QSignalSpy moved(&physics, &MPhysics2DPanning::positionChanged);
    QSignalSpy stopped(&physics, &MPhysics2DPanning::panningStopped);
    physics.glideBy(QPointF(0, 30));
    QVERIFY(stopped.wait());
    QVERIFY(moved.count() > 2);
    QCOMPARE(physics.position().y(), 30.0);
    QVERIFY(QCoreApplication::eventDispatcher()->registeredTimers(&physics).isEmpty());
}

QTEST_GUILESS_MAIN(TestMPhysics2DPanning)
#include "tst_mphysics2dpanning.moc"
