// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CLICKABLELABEL_H
#define DASKEL_CLICKABLELABEL_H

#include <touchcore/mlabel.h>

/// A label that can be tapped.
class ClickableLabel : public MLabel
{
    Q_OBJECT

public:
    explicit ClickableLabel(QGraphicsItem *parent = nullptr);
    explicit ClickableLabel(const QString &text, QGraphicsItem *parent = nullptr);

Q_SIGNALS:
    /// The finger that came down on the label left, wherever it was then.
    void clicked();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
};

#endif
