// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLABEL_P_H
#define TOUCHCORE_MLABEL_P_H

#include "richtext.h"
#include "textblock.h"

class MLabel;

class MLabelPrivate
{
public:
    explicit MLabelPrivate(MLabel *label) : q(label) { }

    bool isRich() const;
    /// Lays out again with the next hint or frame.
    void invalidate();
    /// Shapes the text when that is due.
    void prepare();
    QSizeF textSize(qreal width);
    void layOut(qreal width);
    qreal textHeight() const;
    /// Where the text as laid out stands in the label.
    QPointF textPosition() const;
    QString linkAt(const QPointF &position);

    MLabel *q;
    QString text;
    Qt::TextFormat textFormat = Qt::PlainText;
    bool wordWrap = false;
    int maximumLines = 0;
    Qt::Alignment alignment = Qt::AlignLeading | Qt::AlignVCenter;
    Qt::TextElideMode textElide = Qt::ElideRight;

    bool isPrepared = false;
    TextBlock block;
    std::unique_ptr<RichText> rich; ///< instead of the block
    QString pressedLink;
};

#endif
