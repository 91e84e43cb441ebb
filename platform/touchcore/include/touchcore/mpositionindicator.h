// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MPOSITIONINDICATOR_H
#define TOUCHCORE_MPOSITIONINDICATOR_H

#include <touchcore/mpositionindicatorstyle.h>
#include <touchcore/mstylablewidget.h>

class MPositionIndicatorPrivate;

/// Thin bars along the edges of a viewport that tell which part of the content is seen. They appear
/// while it moves and fade away when it rests; they take no touches.
///
/// Owned by its viewport, over whose whole area it lies.
class MPositionIndicator : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MPositionIndicatorStyle)

public:
    explicit MPositionIndicator(QGraphicsItem *parent = nullptr);
    ~MPositionIndicator() override;

    /// Which of the positions of \a range the content has. Another position shows the bars; another
    /// range alone does not.
    void setExtent(const QRectF &range, const QPointF &position);

    /// The vertical bar (at the end of the reading direction) or the horizontal one, in pixels of
    /// the indicator; empty where nothing can be panned.
    QRectF barRect(Qt::Orientation orientation) const;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

private:
    std::unique_ptr<MPositionIndicatorPrivate> d;
};

#endif
