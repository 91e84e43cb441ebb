// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "textblock.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QtMath>

#include <limits>

namespace
{
/// Wider than any screen, and within the fixed-point numbers of the text engine.
const qreal unboundedWidth = 1000000;
const int unlimited = std::numeric_limits<int>::max();

bool isLineBreak(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\r')
        || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

QString withBreaks(QString text, QChar replacement)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar &character : text) {
        if (isLineBreak(character))
            character = replacement;
        else if (character == QLatin1Char('\t'))
            character = QLatin1Char(' ');
    }
    return text;
}
} // namespace

void TextBlock::setText(const QString &text, const Format &format)
{
    m_format = format;
    m_text = withBreaks(text, format.isWrapped ? QChar(QChar::LineSeparator) : QLatin1Char(' '));
    m_natural = QSizeF();
    m_measured = QSizeF();
    m_width = -1;
    m_lastLine.reset();
    m_isElided = false;
    prepare(&m_lines, m_text);
}

void TextBlock::prepare(QTextLayout *layout, const QString &text) const
{
    layout->setFont(m_format.font);
    layout->setText(text);
    layout->setCacheEnabled(true);
    // The widget's direction aligns, the text's own direction orders its words.
    QTextOption option(QStyle::visualAlignment(m_format.direction, m_format.alignment)
                       | Qt::AlignAbsolute);
    option.setTextDirection(m_text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(m_format.isWrapped ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                          : QTextOption::NoWrap);
    layout->setTextOption(option);
}

qreal TextBlock::lineHeight() const
{
    return qCeil(m_format.lineHeight > 0 ? m_format.lineHeight
                                         : QFontMetricsF(m_format.font).height());
}

int TextBlock::lineLimit() const
{
    if (!m_format.isWrapped)
        return 1;
    return m_format.maximumLines > 0 ? m_format.maximumLines : unlimited;
}

int TextBlock::breakLines(QTextLayout *layout, qreal width, int limit, int firstBox) const
{
    const QFontMetricsF metrics(m_format.font);
    const qreal boxHeight = lineHeight();
    const qreal baseline = (boxHeight - metrics.height()) / 2 + metrics.ascent();
    int count = 0;
    layout->beginLayout();
    while (count < limit) {
        QTextLine line = layout->createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        const qreal y = qRound((firstBox + count) * boxHeight + baseline) - line.ascent();
        line.setPosition(QPointF(0, y));
        ++count;
    }
    layout->endLayout();
    return count;
}

QSizeF TextBlock::size(qreal width) const
{
    if (!m_natural.isValid()) {
        const int count = qMax(1, breakLines(&m_lines, unboundedWidth, lineLimit()));
        m_width = -1;
        qreal widest = 0;
        for (int i = 0; i < m_lines.lineCount(); ++i)
            widest = qMax(widest, m_lines.lineAt(i).naturalTextWidth());
        m_natural = QSizeF(qCeil(widest), count * lineHeight());
    }
    if (width < 0 || !m_format.isWrapped || m_natural.width() <= width)
        return m_natural;
    if (!qFuzzyCompare(1 + m_measured.width(), 1 + width)) {
        const int count = qMax(1, breakLines(&m_lines, width, lineLimit()));
        m_width = -1;
        m_measured = QSizeF(width, count * lineHeight());
    }
    return m_measured;
}

void TextBlock::layOut(qreal width)
{
    if (qFuzzyCompare(1 + m_width, 1 + width))
        return;
    m_width = width;
    m_lastLine.reset();
    const int count = breakLines(&m_lines, width, lineLimit());
    m_height = qMax(1, count) * lineHeight();
    const QTextLine last = count > 0 ? m_lines.lineAt(count - 1) : QTextLine();
    m_isElided = last.isValid()
        && (last.textStart() + last.textLength() < m_text.size()
            || qCeil(last.naturalTextWidth()) > qCeil(width));
    if (m_isElided && m_format.elide != Qt::ElideNone)
        shortenLastLine(count, width);
}

void TextBlock::shortenLastLine(int boxes, qreal width)
{
    const int start = m_lines.lineAt(boxes - 1).textStart();
    breakLines(&m_lines, width, boxes - 1);
    const QString rest = withBreaks(m_text.mid(start), QLatin1Char(' '));
    m_lastLine = std::make_unique<QTextLayout>();
    prepare(m_lastLine.get(),
            QFontMetricsF(m_format.font).elidedText(rest, m_format.elide, qFloor(width)));
    breakLines(m_lastLine.get(), width, 1, boxes - 1);
}

void TextBlock::draw(QPainter *painter, const QPointF &position, const QRectF &exposed) const
{
    m_lines.draw(painter, position, {}, exposed);
    if (m_lastLine)
        m_lastLine->draw(painter, position, {}, exposed);
}
