// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_SCENEDIM_H
#define TOUCHCORE_SCENEDIM_H

#include <QGraphicsObject>

class MSceneWindow;

/// What lies right below a modal scene window, over all else: it darkens what cannot be used now
/// and takes every press, wheel turn and long press.
class SceneDim : public QGraphicsObject
{
    Q_OBJECT

public:
    /// A child of the window's parent, as large as that.
    explicit SceneDim(MSceneWindow *window);

    void adaptToParent();
    /// While the window leaves, all reaches what lies below: who answers a question need not wait
    /// for it to fade.
    void setTakingAll(bool isTakingAll);
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void wheelEvent(QGraphicsSceneWheelEvent *event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;

private:
    MSceneWindow *m_window;
    QSizeF m_size;
    bool m_isTakingAll = true;
};

#endif
