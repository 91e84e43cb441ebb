// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_FOCUSRING_H
#define TOUCHCORE_FOCUSRING_H

#include <QGraphicsObject>

class QGraphicsWidget;

/// The ring around the widget that has the keyboard's focus. A child of that widget: it is clipped
/// where the widget is, moves with it and goes with it.
class FocusRing : public QGraphicsObject
{
    Q_OBJECT

public:
    /// \a offset: pixels outside the widget's rectangle, below 0 inside it.
    FocusRing(QGraphicsWidget *widget, int offset);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QGraphicsWidget *m_widget;
    qreal m_offset;
};

#endif
