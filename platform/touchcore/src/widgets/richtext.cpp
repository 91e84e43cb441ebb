// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "richtext.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QTextBlock>
#include <QTextCursor>
#include <QtMath>

namespace
{
/// Links take their colour from the theme, not from the application's palette.
void colorLinks(QTextDocument *document, const QColor &color)
{
    QTextCharFormat link;
    link.setForeground(color);
    QTextCursor cursor(document);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (!fragment.charFormat().isAnchor())
                continue;
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(link);
        }
    }
}
} // namespace

void RichText::setText(const QString &html, const Format &format)
{
    setUndoRedoEnabled(false);
    setDocumentMargin(0);
    setDefaultFont(format.font);
    QTextOption option(QStyle::visualAlignment(format.direction, format.alignment)
                       | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(format.isWrapped ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                        : QTextOption::NoWrap);
    setDefaultTextOption(option);
    setHtml(html);
    colorLinks(this, format.linkColor);
    if (format.lineHeight > 0) {
        QTextBlockFormat lines;
        lines.setLineHeight(format.lineHeight, QTextBlockFormat::MinimumHeight);
        QTextCursor cursor(this);
        cursor.select(QTextCursor::Document);
        cursor.mergeBlockFormat(lines);
    }
}

QSizeF RichText::sizeFor(qreal width)
{
    layOut(width);
    return QSizeF(qCeil(idealWidth()), qCeil(size().height()));
}

void RichText::layOut(qreal width)
{
    if (!qFuzzyCompare(textWidth(), width))
        setTextWidth(width);
}

void RichText::draw(QPainter *painter, const QPointF &position, const QColor &color,
                    const QRectF &exposed) const
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, color);
    if (exposed.isValid())
        context.clip = exposed.translated(-position);
    painter->translate(position);
    documentLayout()->draw(painter, context);
    painter->translate(-position);
}

QString RichText::linkAt(const QPointF &position) const
{
    return documentLayout()->anchorAt(position);
}

QVariant RichText::loadResource(int type, const QUrl &)
{
    // Without a picture, Qt would look for a file of that name itself.
    if (type != ImageResource)
        return {};
    static const QImage nothing(1, 1, QImage::Format_Alpha8);
    return nothing;
}
