// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_RICHTEXT_H
#define TOUCHCORE_RICHTEXT_H

#include <QColor>
#include <QTextDocument>

/// The document of a label's rich text. It loads nothing: the text may come from a stranger.
class RichText : public QTextDocument
{
public:
    struct Format {
        QFont font;
        QColor linkColor;
        qreal lineHeight = 0; ///< in pixels; 0 goes by the font
        bool isWrapped = false;
        Qt::Alignment alignment = Qt::AlignLeading;
        Qt::LayoutDirection direction = Qt::LeftToRight;
    };

    void setText(const QString &html, const Format &format);
    QSizeF sizeFor(qreal width);
    void layOut(qreal width);
    void draw(QPainter *painter, const QPointF &position, const QColor &color,
              const QRectF &exposed) const;
    /// Empty where there is no link.
    QString linkAt(const QPointF &position) const;

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};

#endif
