// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/dskmphysics2dpanning.h>

#include <QTest>

class TestDskMPhysics2DPanning : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsBeforeTheMovementGoesOn();
};

/// Whoever hears of it sees the finger's position, not one that it glides to.
void TestDskMPhysics2DPanning::tellsBeforeTheMovementGoesOn()
{
    DskMPhysics2DPanning physics;
    physics.setRange(QRectF(0, 0, 0, 1000));
    QStringList told;
    connect(&physics, &DskMPhysics2DPanning::pointerReleased, this,
            [&] { told << QStringLiteral("released"); });
    connect(&physics, &MPhysics2DPanning::panningStopped, this,
            [&] { told << QStringLiteral("stopped"); });
    physics.advance(0);
    physics.pointerPress(QPointF(0, 500));
    physics.advance(0.016);
    physics.pointerMove(QPointF(0, 400));
    physics.advance(1);
    QCOMPARE(told, QStringList());
    MPhysics2DPanning *base = &physics;
    base->pointerRelease();
    for (int frame = 0; frame < 600 && physics.isMoving(); ++frame)
        physics.advance(0.016);
    QCOMPARE(told, (QStringList{QStringLiteral("released"), QStringLiteral("stopped")}));
}

QTEST_GUILESS_MAIN(TestDskMPhysics2DPanning)
#include "tst_dskmphysics2dpanning.moc"
