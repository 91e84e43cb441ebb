// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_FOCUSFOLLOWER_H
#define TOUCHCORE_FOCUSFOLLOWER_H

#include <QRectF>
#include <QTimer>

class MPannableViewport;
class QGraphicsItem;
class QGraphicsScene;

/// Keeps what has the keyboard's focus in the view of one viewport: a widget that the focus comes
/// to, and the cursor in a text.
class FocusFollower : public QObject
{
    Q_OBJECT

public:
    explicit FocusFollower(MPannableViewport *viewport);

    void setScene(QGraphicsScene *scene);
    /// Brings it into view, where it is in the viewport.
    void follow();
    /// A key is on its way to what has the focus, and may move its cursor.
    void expectCursor() { m_cursorCheck.start(); }

private:
    void followCursor();
    QGraphicsItem *focused() const;
    /// Of the cursor, in pixels of the viewport's widget; empty when there is none.
    QRectF cursorArea() const;

    MPannableViewport *m_viewport;
    QMetaObject::Connection m_connection;
    QTimer m_cursorCheck;
    QRectF m_cursorArea;
};

#endif
