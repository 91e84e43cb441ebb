// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_TEXTBLOCK_H
#define TOUCHCORE_TEXTBLOCK_H

#include <QFont>
#include <QSizeF>
#include <QString>
#include <QTextLayout>

#include <memory>

class QPainter;
class QRectF;

/// A plain text, shaped and broken into lines once and drawn often.
///
/// Each line runs in the direction of the text, and stands in its box as the alignment and the
/// layout direction of the widget say.
class TextBlock
{
public:
    struct Format {
        QFont font;
        /// From one line to the next, in pixels; 0 goes by the font.
        qreal lineHeight = 0;
        bool isWrapped = false;
        /// Of a wrapped text; 0 is no limit.
        int maximumLines = 0;
        Qt::TextElideMode elide = Qt::ElideRight;
        /// Leading or trailing, left or right, or centred.
        Qt::Alignment alignment = Qt::AlignLeading;
        Qt::LayoutDirection direction = Qt::LeftToRight;
    };

    void setText(const QString &text, const Format &format);
    /// What the text takes: as wide as it gets, or when \a width is 0 or more, broken for it. Whole
    /// pixels.
    QSizeF size(qreal width = -1) const;
    /// Breaks the text for this width. Does nothing when it is broken for it already.
    void layOut(qreal width);
    /// Of the text as laid out.
    bool isElided() const { return m_isElided; }
    qreal height() const { return m_height; }

    /// Draws what is laid out, its top left corner at \a position, in the painter's pen. Lines
    /// outside \a exposed, when it is valid, are left out.
    void draw(QPainter *painter, const QPointF &position, const QRectF &exposed = QRectF()) const;

private:
    qreal lineHeight() const;
    void prepare(QTextLayout *layout, const QString &text) const;
    /// Makes up to \a limit lines, the first one in the box \a firstBox counted from 0. Answers how
    /// many it made.
    int breakLines(QTextLayout *layout, qreal width, int limit, int firstBox = 0) const;
    void shortenLastLine(int boxes, qreal width);
    int lineLimit() const;

    Format m_format;
    QString m_text;
    // Measuring breaks the lines for other widths: what it shapes is what is drawn later.
    mutable QTextLayout m_lines;
    mutable QSizeF m_natural; ///< on one line, or with the line breaks of the text
    mutable QSizeF m_measured; ///< the width last asked for with its height
    mutable qreal m_width = -1; ///< what m_lines is broken for
    std::unique_ptr<QTextLayout> m_lastLine; ///< below m_lines, when the text is shortened
    qreal m_height = 0;
    bool m_isElided = false;
};

#endif
