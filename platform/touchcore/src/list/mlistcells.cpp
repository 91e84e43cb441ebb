// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/focusring.h"
#include "mlist_p.h"

#include <touchcore/mpannableviewport.h>

#include <QGraphicsScene>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>

namespace
{
/// Moving the viewport or telling it of a height may ask for the layout again; once is the rule.
const int mostPasses = 5;

MPannableViewport *viewportAround(const QGraphicsWidget *widget)
{
    for (QGraphicsWidget *above = widget->parentWidget(); above; above = above->parentWidget()) {
        if (auto *viewport = qobject_cast<MPannableViewport *>(above))
            return viewport;
    }
    return nullptr;
}
} // namespace

void MListPrivate::followViewport()
{
    MPannableViewport *around = viewportAround(q);
    if (around == viewport)
        return;
    if (!around) {
        // Mostly because both are being deleted: without a viewport all rows would be made for it.
        hasLeftViewport = true;
        requestLayout();
    }
    viewport = around;
    viewportContext = std::make_unique<QObject>();
    if (!viewport)
        return;
    QObject *context = viewportContext.get();
    using Viewport = MPannableViewport;
    QObject::connect(viewport, &Viewport::positionChanged, context, [this] { layOut(); });
    QObject::connect(viewport, &Viewport::geometryChanged, context, [this] { layOut(); });
    QObject::connect(viewport, &Viewport::panningStarted, context,
                     [this] { Q_EMIT q->panningStarted(); });
    QObject::connect(viewport, &Viewport::panningStopped, context,
                     [this] { Q_EMIT q->panningStopped(); });
}

QRectF MListPrivate::seen() const
{
    return viewport ? q->mapRectFromItem(viewport, viewport->rect()) : q->rect();
}

void MListPrivate::layOut()
{
    if (isLayingOut) {
        isLayoutOutdated = true;
        return;
    }
    followViewport();
    if (hasLeftViewport || !q->scene() || !q->isVisible() || !cellCreator || q->size().isEmpty()
        || seen().isEmpty())
        return;
    const QScopedValueRollback<bool> guard(isLayingOut, true);
    int passes = 0;
    do {
        isLayoutOutdated = false;
        layOutOnce();
    } while (isLayoutOutdated && ++passes < mostPasses);
    updateFocusRing();
}

void MListPrivate::layOutOnce()
{
    if (rows.count() == 0)
        return;
    const QRectF view = seen();
    const Anchor anchor = anchorIn(view);
    haveRowsChanged = false;
    const auto aimedTop = [&] { return rows.heights.top(anchor.row) + anchor.offset; };
    do {
        recycleOutside(aimedTop(), aimedTop() + view.height());
    } while (makeCells(aimedTop(), aimedTop() + view.height()));
    const qreal top = aimedTop();
    placeCells(top);
    if (toldHeight != rows.heights.total()) {
        tellHeight();
        // Rows that come in later are then all that the next growth consists of.
        if (viewport)
            viewport->updateExtent();
    }
    if (viewport && top != view.top())
        viewport->setPosition(viewport->position() + QPointF(0, top - view.top()));
}

void MListPrivate::relocateCells()
{
    for (ListCell &cell : cells) {
        cell.row = rows.row(cell.index);
        if (cell.row < 0)
            recycle(cell);
    }
    cells.erase(std::remove_if(cells.begin(), cells.end(),
                               [](const ListCell &cell) { return cell.row < 0; }),
                cells.end());
    std::sort(cells.begin(), cells.end(),
              [](const ListCell &one, const ListCell &other) { return one.row < other.row; });
}

/// The uppermost row that is seen and was before, with its distance from the top of the view; where
/// rows may push others away, or none was seen before, the row that is now at the top.
MListPrivate::Anchor MListPrivate::anchorIn(const QRectF &view) const
{
    const ListCell *uppermost = nullptr;
    for (const ListCell &cell : cells) {
        const qreal bottom = cell.top + rows.heights.height(cell.row);
        const bool isSeen = cell.top < view.bottom() && bottom > view.top();
        if (isSeen && (!uppermost || cell.top < uppermost->top))
            uppermost = &cell;
    }
    if (uppermost && (anchorsOnInsert || !haveRowsChanged))
        return {uppermost->row, view.top() - uppermost->top};
    const int row = rows.heights.rowAt(view.top());
    return {row, view.top() - rows.heights.top(row)};
}

int MListPrivate::stuckHeader(qreal top) const
{
    if (!hasStickyHeaders || !rows.hasGroups() || rows.count() == 0)
        return -1;
    const int header = rows.headerOf(rows.heights.rowAt(top));
    return rows.heights.top(header) < top ? header : -1;
}

void MListPrivate::recycleOutside(qreal top, qreal bottom)
{
    const int stuck = stuckHeader(top);
    const auto isOutside = [&](const ListCell &cell) {
        const qreal start = rows.heights.top(cell.row);
        const bool isSeen = start < bottom && start + rows.heights.height(cell.row) > top;
        return !isSeen && cell.row != stuck;
    };
    const auto firstOutside = std::stable_partition(
        cells.begin(), cells.end(), [&](const ListCell &cell) { return !isOutside(cell); });
    const std::vector<ListCell> outside(firstOutside, cells.end());
    cells.erase(firstOutside, cells.end());
    for (const ListCell &cell : outside)
        recycle(cell);
}

/// Answers whether a height turned out to be another one.
bool MListPrivate::makeCells(qreal top, qreal bottom)
{
    bool isOther = false;
    const int stuck = stuckHeader(top);
    if (stuck >= 0)
        isOther = makeCell(stuck);
    int row = rows.heights.rowAt(top);
    for (; row < rows.count() && rows.heights.top(row) < bottom; ++row)
        isOther = makeCell(row) || isOther;
    return isOther;
}

bool MListPrivate::makeCell(int row)
{
    ListCell *cell = cellOfRow(row);
    if (!cell) {
        const bool isHeader = rows.isHeader(row);
        const QModelIndex index = rows.index(row);
        const MCellCreator &creator = creatorOf(isHeader);
        MWidget *widget = creator.createCell(index, isHeader ? headerRecycler : cellRecycler);
        widget->setParentItem(q);
        // Its size hints then reach the list.
        widget->setParentLayoutItem(q);
        widget->setFocusPolicy(Qt::NoFocus);
        // A header that sticks covers the rows that pass below it.
        widget->setZValue(isHeader ? 1 : 0);
        creator.setCellSelected(widget, selection && selection->isSelected(index));
        const auto place =
            std::lower_bound(cells.begin(), cells.end(), row,
                             [](const ListCell &other, int wanted) { return other.row < wanted; });
        cell = &*cells.insert(place, {index, widget, row, isHeader, rows.heights.top(row)});
    }
    if (rows.heights.isMeasured(row))
        return false;
    const QSizeF wanted =
        cell->widget->effectiveSizeHint(Qt::PreferredSize, QSizeF(q->size().width(), -1));
    return rows.heights.measure(row, std::ceil(wanted.height()));
}

void MListPrivate::placeCells(qreal top)
{
    for (ListCell &cell : cells) {
        cell.top = rows.heights.top(cell.row);
        const qreal height = rows.heights.height(cell.row);
        qreal place = cell.top;
        if (cell.isHeader && hasStickyHeaders) {
            const qreal end = rows.heights.top(rows.nextHeader(cell.row));
            place = qMax(cell.top, qMin(std::floor(top), end - height));
        }
        const QRectF geometry(0, place, q->size().width(), height);
        if (cell.widget->geometry() != geometry)
            cell.widget->setGeometry(geometry);
        cell.widget->show();
    }
}

ListCell *MListPrivate::cellOfRow(int row)
{
    const auto found = std::find_if(cells.begin(), cells.end(),
                                    [row](const ListCell &cell) { return cell.row == row; });
    return found == cells.end() ? nullptr : &*found;
}

const ListCell *MListPrivate::cellOfWidget(const QGraphicsItem *widget) const
{
    const auto found = std::find_if(cells.begin(), cells.end(), [widget](const ListCell &cell) {
        return cell.widget == widget;
    });
    return found == cells.end() ? nullptr : &*found;
}

void MListPrivate::recycle(const ListCell &cell)
{
    if (focusRing && focusRing->parentItem() == cell.widget)
        delete focusRing;
    // Something inside it has the focus, which would leap to anywhere.
    const QGraphicsItem *focused = q->scene() ? q->scene()->focusItem() : nullptr;
    if (focused && cell.widget->isAncestorOf(focused))
        q->setFocus(Qt::OtherFocusReason);
    if (keyReceiver == cell.widget)
        cancelKey();
    cell.widget->setParentLayoutItem(nullptr);
    creatorOf(cell.isHeader).cellRecycled(cell.widget);
    (cell.isHeader ? headerRecycler : cellRecycler).recycle(cell.widget);
}

void MListPrivate::recycleAll()
{
    const std::vector<ListCell> all = std::move(cells);
    cells.clear();
    for (const ListCell &cell : all)
        recycle(cell);
}

const MCellCreator &MListPrivate::creatorOf(bool isHeader) const
{
    return isHeader ? *headerCreator : *cellCreator;
}
