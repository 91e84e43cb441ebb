// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_TESTS_TOUCHSCREEN_H
#define TOUCHCORE_TESTS_TOUCHSCREEN_H

#include <touchcore/mphysics2dpanning.h>
#include <touchcore/mwidget.h>

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

/// A window of 360 by 600 pixels with a scene in it, and a finger. Positions are those of the
/// scene, which are also the window's.
class TouchScreen
{
public:
    TouchScreen()
    {
        scene.setItemIndexMethod(QGraphicsScene::NoIndex);
        scene.setSceneRect(0, 0, 360, 600);
        view.setFrameStyle(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setScene(&scene);
        view.resize(360, 600);
        view.show();
        QApplication::setActiveWindow(&view);
        view.setFocus();
    }

    void press(const QPointF &place) { send(QEvent::MouseButtonPress, place, Qt::LeftButton); }
    void pressAgain(const QPointF &place)
    {
        send(QEvent::MouseButtonDblClick, place, Qt::LeftButton);
    }
    void move(const QPointF &place) { send(QEvent::MouseMove, place, Qt::NoButton); }
    void release(const QPointF &place) { send(QEvent::MouseButtonRelease, place, Qt::LeftButton); }

    void tap(const QPointF &place)
    {
        press(place);
        release(place);
    }

    /// Draws a finger along \a way in steps of a frame; it stays down.
    void draw(MPhysics2DPanning *physics, const QPointF &start, const QPointF &way, int frames)
    {
        press(start);
        for (int frame = 1; frame <= frames; ++frame) {
            physics->advance(0.016);
            move(start + way * frame / frames);
        }
    }

    void flick(MPhysics2DPanning *physics, const QPointF &start, const QPointF &way, int frames)
    {
        draw(physics, start, way, frames);
        release(start + way);
    }

    /// Draws it, and keeps it still before it leaves.
    void drag(MPhysics2DPanning *physics, const QPointF &start, const QPointF &way)
    {
        draw(physics, start, way, 10);
        physics->advance(0.2);
        release(start + way);
    }

    bool wheel(const QPointF &place, const QPoint &angle, const QPoint &pixels = QPoint())
    {
        QWheelEvent event(place, view.viewport()->mapToGlobal(place.toPoint()), pixels, angle,
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
        return event.isAccepted();
    }

    /// What the scene has to lay out, now.
    static void layOut() { QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); }

    static void comeToRest(MPhysics2DPanning *physics)
    {
        for (int frame = 0; frame < 600 && physics->isMoving(); ++frame)
            physics->advance(0.016);
    }

    QGraphicsScene scene;
    QGraphicsView view;

private:
    void send(QEvent::Type type, const QPointF &place, Qt::MouseButton button)
    {
        m_isDown = type == QEvent::MouseButtonRelease ? false : m_isDown || button != Qt::NoButton;
        const Qt::MouseButtons buttons = m_isDown ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, place, place, view.viewport()->mapToGlobal(place.toPoint()), button,
                          buttons, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &event);
    }

    bool m_isDown = false;
};

/// A widget that writes down what becomes of a touch.
class Touchable : public MWidget
{
public:
    explicit Touchable(QGraphicsItem *parent = nullptr) : MWidget(parent) { }

    QStringList touches;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *) override
    {
        touches << QStringLiteral("press");
    }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *) override
    {
        touches << QStringLiteral("release");
    }
    void cancelEvent() override { touches << QStringLiteral("cancel"); }
};

#endif
