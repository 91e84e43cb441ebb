// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/focusring.h"
#include "mlist_p.h"

#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QGraphicsScene>
#include <QKeyEvent>

namespace
{
/// Rows that come into view may turn out higher, which moves the aim.
const int mostSteps = 3;
} // namespace

qreal MListPrivate::wayTo(int row, MList::ScrollHint hint) const
{
    const QRectF view = seen();
    const int header = hasStickyHeaders && rows.hasGroups() ? rows.headerOf(row) : row;
    const qreal covered = header == row ? 0 : rows.heights.height(header);
    const qreal top = rows.heights.top(row);
    const qreal bottom = top + rows.heights.height(row);
    const qreal wayToTop = top - covered - view.top();
    switch (hint) {
    case MList::PositionAtTop:
        return wayToTop;
    case MList::PositionAtBottom:
        return bottom - view.bottom();
    case MList::PositionAtCenter:
        return (top + bottom) / 2 - view.center().y();
    case MList::EnsureVisible:
        break;
    }
    return wayToTop < 0 ? wayToTop : qBound(0.0, bottom - view.bottom(), wayToTop);
}

bool MListPrivate::isChoosable(int row) const
{
    return !rows.isHeader(row);
}

int MListPrivate::choosableFrom(int row, int step) const
{
    while (row >= 0 && row < rows.count() && !isChoosable(row))
        row += step;
    return row < rows.count() ? qMax(-1, row) : -1;
}

int MListPrivate::currentRow() const
{
    return selection ? rows.row(selection->currentIndex()) : -1;
}

void MListPrivate::makeCurrent(int row)
{
    isKeyboardUsed = true;
    selection->setCurrentIndex(rows.index(row), QItemSelectionModel::NoUpdate);
    updateFocusRing();
}

bool MListPrivate::moveCurrent(int key)
{
    const int current = currentRow();
    const qreal page = seen().height();
    const int firstSeen = rows.heights.rowAt(seen().top());
    const qreal place = current < 0 ? 0 : rows.heights.top(current);
    int target = -1;
    bool isDownwards = false;
    switch (key) {
    case Qt::Key_Up:
        target = current < 0 ? choosableFrom(firstSeen, 1) : choosableFrom(current - 1, -1);
        break;
    case Qt::Key_Down:
        target = current < 0 ? choosableFrom(firstSeen, 1) : choosableFrom(current + 1, 1);
        isDownwards = true;
        break;
    case Qt::Key_PageUp:
        target = choosableFrom(rows.heights.rowAt(place - page), 1);
        break;
    case Qt::Key_PageDown:
        target = choosableFrom(rows.heights.rowAt(place + page), -1);
        isDownwards = true;
        break;
    case Qt::Key_Home:
        target = choosableFrom(0, 1);
        break;
    case Qt::Key_End:
        target = choosableFrom(rows.count() - 1, -1);
        isDownwards = true;
        break;
    default:
        return false;
    }
    if (target >= 0 && target != current) {
        makeCurrent(target);
        reveal(target);
    } else if (viewport) {
        // Shows what lies beyond the last row, and lets a list that grows at its ends grow.
        viewport->physics()->moveBy(QPointF(0, isDownwards ? page : -page));
    }
    return true;
}

void MListPrivate::reveal(int row)
{
    if (!viewport)
        return;
    const QPersistentModelIndex index = rows.index(row);
    const auto approach = [this](int aim) {
        const qreal way = wayTo(aim, MList::EnsureVisible);
        if (way != 0)
            viewport->physics()->moveBy(QPointF(0, way));
    };
    for (int step = 0; step < mostSteps && index.isValid(); ++step) {
        const int place = rows.row(index);
        // The first row of a group is shown with the group's name.
        if (place > 0 && rows.isHeader(place - 1))
            approach(place - 1);
        approach(place);
    }
}

void MListPrivate::tap(const QModelIndex &index)
{
    const int row = rows.row(index);
    if (row < 0)
        return;
    if (isChoosable(row)) {
        const bool isSelectable = index.flags() & Qt::ItemIsSelectable;
        QItemSelectionModel::SelectionFlags flags = QItemSelectionModel::NoUpdate;
        if (isSelectable && selectionMode == MList::SingleSelection)
            flags = QItemSelectionModel::ClearAndSelect;
        else if (isSelectable && selectionMode == MList::MultiSelection)
            flags = QItemSelectionModel::Toggle;
        selection->setCurrentIndex(index, flags);
    }
    Q_EMIT q->itemClicked(index);
}

/// The touch has to be over, for the cell and for the scene: who hears of the tap may open a
/// dialog and wait for it, or take the row away.
void MListPrivate::tapLater(const QModelIndex &index)
{
    isKeyboardUsed = false;
    updateFocusRing();
    tapped = index;
    tapTimer.start();
}

void MListPrivate::showSelection()
{
    for (const ListCell &cell : cells)
        creatorOf(cell.isHeader).setCellSelected(cell.widget, selection->isSelected(cell.index));
}

void MListPrivate::updateFocusRing()
{
    const int current = isKeyboardUsed && q->hasFocus() ? currentRow() : -1;
    const ListCell *cell = cellOfRow(current);
    if (focusRing && cell && focusRing->parentItem() == cell->widget)
        return;
    delete focusRing;
    if (cell)
        focusRing = new FocusRing(cell->widget, q->style()->focusOffset());
}

bool MListPrivate::offerKey(QKeyEvent *event)
{
    const ListCell *cell = cellOfRow(currentRow());
    if (!cell)
        return false;
    keyReceiver = cell->widget;
    event->accept();
    q->scene()->sendEvent(cell->widget, event);
    return event->isAccepted();
}

void MListPrivate::cancelKey()
{
    if (!keyReceiver)
        return;
    MCancelEvent cancel;
    QCoreApplication::sendEvent(keyReceiver, &cancel);
    keyReceiver = nullptr;
}
