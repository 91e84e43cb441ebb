// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_LONGPRESS_H
#define TOUCHCORE_LONGPRESS_H

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

class QGraphicsItem;
class QGraphicsView;
class QMouseEvent;

/// Makes long presses of presses that stay: after 500 milliseconds within 12 pixels what is pressed
/// gets a context menu event, from the topmost item towards its parents until one takes it. Then
/// the press is cancelled, and the view keeps the rest of the touch to itself.
class LongPress : public QObject
{
    Q_OBJECT

public:
    explicit LongPress(QGraphicsView *view);

    void press(const QMouseEvent &event);
    /// These answer whether the event belongs to a touch that has become a long press: nobody else
    /// must get it.
    bool move(const QMouseEvent &event);
    bool release();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    bool sendContextMenuEvent() const;
    void cancelPress() const;

    QGraphicsView *m_view;
    QBasicTimer m_timer;
    QPoint m_position;
    QPoint m_screenPosition;
    bool m_isTaken = false;
};

#endif
