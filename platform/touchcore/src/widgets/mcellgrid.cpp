// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placing.h"
#include "press.h"

#include <touchcore/mcellgrid.h>

#include <QAccessible>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStaticText>
#include <QStyle>
#include <QtMath>

class MCellGridPrivate
{
public:
    explicit MCellGridPrivate(MCellGrid *grid, int columnCount)
        : q(grid), columns(qMax(1, columnCount))
    {
    }

    int rows() const { return (cells.size() + columns - 1) / columns; }
    qreal headingHeight() const { return headings.isEmpty() ? 0 : q->style()->headingHeight(); }
    /// The cell in \a column from the start and \a row, or with row -1 the heading.
    QRectF place(int column, int row) const;
    void setPressed(int index);
    void prepareTexts();
    void drawCell(QPainter *painter, int index) const;
    void drawPatch(QPainter *painter, const QRectF &cell, const QBrush &fill,
                   const QPen &outline) const;
    static void drawText(QPainter *painter, const QStaticText &text, const QRectF &rect);

    MCellGrid *q;
    int columns;
    QStringList headings;
    QVector<MCellGrid::Cell> cells;
    QVector<QStaticText> texts; ///< of the headings, then of the cells
    int chosen = -1;
    int pressed = -1;
};

QRectF MCellGridPrivate::place(int column, int row) const
{
    const QRectF room = q->contentsRectangle();
    const int count = qMax(1, rows());
    const auto across = [&](int i) { return room.left() + qRound(room.width() * i / columns); };
    const qreal top = room.top() + headingHeight();
    const auto down = [&](int i) { return top + qRound((room.bottom() - top) * i / count); };
    const QRectF cell = row < 0
        ? QRectF(QPointF(across(column), room.top()), QPointF(across(column + 1), top))
        : QRectF(QPointF(across(column), down(row)), QPointF(across(column + 1), down(row + 1)));
    if (q->layoutDirection() == Qt::LeftToRight)
        return cell;
    return cell.translated(room.left() + room.right() - cell.left() - cell.right(), 0);
}

void MCellGridPrivate::setPressed(int index)
{
    if (pressed == index)
        return;
    pressed = index;
    q->update();
}

void MCellGridPrivate::prepareTexts()
{
    if (!texts.isEmpty())
        return;
    const auto add = [this](const QString &text, const QFont &font) {
        QStaticText prepared(text);
        prepared.setTextFormat(Qt::PlainText);
        prepared.prepare(QTransform(), font);
        texts.append(prepared);
    };
    for (const QString &heading : qAsConst(headings))
        add(heading, q->style()->headingFont());
    for (const MCellGrid::Cell &cell : qAsConst(cells))
        add(cell.text, q->style()->font());
}

void MCellGridPrivate::drawText(QPainter *painter, const QStaticText &text, const QRectF &rect)
{
    painter->drawStaticText(centered(text.size(), rect).topLeft(), text);
}

void MCellGridPrivate::drawPatch(QPainter *painter, const QRectF &cell, const QBrush &fill,
                                 const QPen &outline) const
{
    const MCellGridStyle *style = q->style();
    const qreal height = qMin<qreal>(style->patchSize(), cell.height());
    const qreal width = style->isPatchWide() ? cell.width() - (cell.height() - height)
                                             : qMin<qreal>(height, cell.width());
    const qreal inset = outline.style() == Qt::NoPen ? 0 : outline.widthF() / 2;
    painter->setPen(outline);
    painter->setBrush(fill);
    painter->drawRoundedRect(centered({width, height}, cell).adjusted(inset, inset, -inset, -inset),
                             style->patchRadius(), style->patchRadius());
}

void MCellGridPrivate::drawCell(QPainter *painter, int index) const
{
    const MCellGridStyle *style = q->style();
    const MCellGrid::Cell &cell = cells[index];
    const QRectF rect = place(index % columns, index / columns);
    QColor color = cell.isDimmed ? style->dimmedColor() : style->color();
    if (index == chosen) {
        drawPatch(painter, rect, style->chosenColor(), Qt::NoPen);
        color = style->chosenTextColor();
    } else if (!cell.isEnabled || !q->isEnabled()) {
        color = style->disabledColor();
    } else if (cell.isMarked) {
        color = style->markedColor();
        drawPatch(painter, rect, Qt::NoBrush, QPen(color, 2));
    }
    if (index == pressed)
        drawPatch(painter, rect, style->pressedColor(), Qt::NoPen);
    painter->setPen(color);
    drawText(painter, texts[headings.size() + index], rect);
}

MCellGrid::MCellGrid(int columns, QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MCellGridPrivate>(this, columns))
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

MCellGrid::~MCellGrid() = default;

int MCellGrid::columns() const
{
    return d->columns;
}

void MCellGrid::setColumns(int columns)
{
    d->columns = qMax(1, columns);
    updateGeometry();
    update();
}

QStringList MCellGrid::headings() const
{
    return d->headings;
}

void MCellGrid::setHeadings(const QStringList &headings)
{
    d->headings = headings;
    d->texts.clear();
    updateGeometry();
    update();
}

QVector<MCellGrid::Cell> MCellGrid::cells() const
{
    return d->cells;
}

void MCellGrid::setCells(const QVector<Cell> &cells)
{
    d->cells = cells;
    d->texts.clear();
    d->pressed = -1;
    if (d->chosen >= cells.size())
        d->chosen = -1;
    updateGeometry();
    update();
}

int MCellGrid::chosen() const
{
    return d->chosen;
}

void MCellGrid::setChosen(int index)
{
    const int chosen = index >= 0 && index < d->cells.size() ? index : -1;
    if (d->chosen == chosen)
        return;
    d->chosen = chosen;
    update();
    if (chosen >= 0 && hasFocus()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(chosen);
        QAccessible::updateAccessibility(&event);
    }
}

QRectF MCellGrid::cellRect(int index) const
{
    if (index < 0 || index >= d->cells.size())
        return {};
    return d->place(index % d->columns, index / d->columns);
}

int MCellGrid::cellAt(const QPointF &position) const
{
    for (int i = 0; i < d->cells.size(); ++i) {
        if (cellRect(i).contains(position))
            return i;
    }
    return -1;
}

int MCellGrid::cellsOf(const QKeyEvent &event) const
{
    const int forward = layoutDirection() == Qt::LeftToRight ? 1 : -1;
    switch (event.key()) {
    case Qt::Key_Right:
        return forward;
    case Qt::Key_Left:
        return -forward;
    case Qt::Key_Down:
        return d->columns;
    case Qt::Key_Up:
        return -d->columns;
    default:
        return 0;
    }
}

void MCellGrid::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    MStylableWidget::paint(painter, option, widget);
    d->prepareTexts();
    painter->save();
    painter->setFont(style()->headingFont());
    painter->setPen(style()->headingColor());
    for (int i = 0; i < qMin(d->columns, d->headings.size()); ++i)
        MCellGridPrivate::drawText(painter, d->texts[i], d->place(i, -1));
    painter->setFont(style()->font());
    painter->setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < d->cells.size(); ++i)
        d->drawCell(painter, i);
    painter->restore();
}

void MCellGrid::applyStyle()
{
    d->texts.clear();
    MStylableWidget::applyStyle();
}

QSizeF MCellGrid::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF styled = MStylableWidget::sizeHint(which, constraint);
    if (which != Qt::MinimumSize && which != Qt::PreferredSize)
        return styled;
    const QMarginsF around = style()->margins() + style()->paddings();
    return {d->columns * style()->cellSize().width() + around.left() + around.right(),
            d->headingHeight() + d->rows() * style()->cellSize().height() + around.top()
                + around.bottom()};
}

void MCellGrid::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const int index = cellAt(event->pos());
    event->setAccepted(event->button() == Qt::LeftButton && index >= 0
                       && d->cells[index].isEnabled);
    if (event->isAccepted())
        d->setPressed(index);
}

void MCellGrid::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    mousePressEvent(event);
}

void MCellGrid::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (d->pressed >= 0 && cellAt(event->pos()) != d->pressed)
        d->setPressed(-1);
}

void MCellGrid::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    const int index = d->pressed;
    d->setPressed(-1);
    if (index >= 0)
        Q_EMIT cellClicked(index);
}

void MCellGrid::keyPressEvent(QKeyEvent *event)
{
    const int next = d->chosen + cellsOf(*event);
    if (isTapKey(*event) && !event->isAutoRepeat() && d->chosen >= 0)
        Q_EMIT cellClicked(d->chosen);
    else if (next != d->chosen && next >= 0 && next < d->cells.size() && d->cells[next].isEnabled)
        Q_EMIT cellReached(next);
    else
        MStylableWidget::keyPressEvent(event);
}

void MCellGrid::ungrabMouseEvent(QEvent *event)
{
    d->setPressed(-1);
    MStylableWidget::ungrabMouseEvent(event);
}

void MCellGrid::cancelEvent()
{
    d->setPressed(-1);
}
