// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/focusring.h"
#include "groupheadercreator.h"
#include "mlist_p.h"
#include "widgets/press.h"

#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QWidget>

namespace
{
/// Rows that come into view may turn out higher, which moves the aim.
const int mostJumps = 5;

bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu
        || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}
} // namespace

MListPrivate::MListPrivate(MList *owner)
    : q(owner), headerCreator(std::make_unique<GroupHeaderCreator>())
{
    tapTimer.setSingleShot(true);
    QObject::connect(&tapTimer, &QTimer::timeout, owner, [this] { tap(tapped); });
}

MListPrivate::~MListPrivate()
{
    viewportContext.reset();
    modelContext.reset();
    for (const ListCell &cell : cells) {
        // Qt takes for granted that who has a layout item above it has a parent.
        cell.widget->setParentLayoutItem(nullptr);
        delete cell.widget;
    }
    cells.clear();
    cellRecycler.clear();
    headerRecycler.clear();
}

MList::MList(QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MListPrivate>(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setFiltersChildEvents(true);
}

MList::~MList() = default;

void MList::setItemModel(QAbstractItemModel *model)
{
    // One that is being deleted is not to be had any more.
    const bool isGone = d->selection && !d->rows.model();
    if (model == d->rows.model() && !isGone)
        return;
    d->recycleAll();
    d->rows.setModel(model);
    d->selection.reset();
    if (model) {
        d->selection = std::make_unique<QItemSelectionModel>(model);
        connect(d->selection.get(), &QItemSelectionModel::selectionChanged, this,
                [this] { d->showSelection(); });
        connect(d->selection.get(), &QItemSelectionModel::currentChanged, this,
                [this] { d->updateFocusRing(); });
    }
    d->followModel();
    d->rebuildRows();
}

QAbstractItemModel *MList::itemModel() const
{
    return d->rows.model();
}

void MList::setCellCreator(MCellCreator *creator)
{
    d->recycleAll();
    d->cellRecycler.clear();
    d->cellCreator.reset(creator);
    d->rebuildRows();
}

const MCellCreator *MList::cellCreator() const
{
    return d->cellCreator.get();
}

void MList::setHeaderCreator(MCellCreator *creator)
{
    d->recycleAll();
    d->headerRecycler.clear();
    d->headerCreator.reset(creator ? creator : new GroupHeaderCreator);
    d->rebuildRows();
}

const MCellCreator *MList::headerCreator() const
{
    return d->headerCreator.get();
}

bool MList::showGroups() const
{
    return d->rows.hasGroups();
}

void MList::setShowGroups(bool showGroups)
{
    if (d->rows.hasGroups() == showGroups)
        return;
    d->rows.setHasGroups(showGroups);
    d->reset();
}

bool MList::stickyHeaders() const
{
    return d->hasStickyHeaders;
}

void MList::setStickyHeaders(bool stickyHeaders)
{
    d->hasStickyHeaders = stickyHeaders;
    d->layOut();
}

bool MList::anchorsOnInsert() const
{
    return d->anchorsOnInsert;
}

void MList::setAnchorsOnInsert(bool anchorsOnInsert)
{
    d->anchorsOnInsert = anchorsOnInsert;
}

QItemSelectionModel *MList::selectionModel() const
{
    return d->selection.get();
}

MList::SelectionMode MList::selectionMode() const
{
    return d->selectionMode;
}

void MList::setSelectionMode(SelectionMode mode)
{
    d->selectionMode = mode;
}

void MList::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    d->followViewport();
    const int row = d->rows.row(index);
    if (row < 0 || !d->viewport)
        return;
    MPannableViewport *viewport = d->viewport;
    viewport->physics()->stop();
    for (int jump = 0; jump < mostJumps; ++jump) {
        viewport->updateExtent();
        const QPointF from = viewport->position();
        viewport->setPosition(from + QPointF(0, d->wayTo(row, hint)));
        if (viewport->position() == from)
            break;
    }
}

MWidget *MList::cellAt(const QModelIndex &index) const
{
    const ListCell *cell = d->cellOfRow(d->rows.row(index));
    return cell ? cell->widget : nullptr;
}

QModelIndex MList::indexOf(const QGraphicsItem *cell) const
{
    const ListCell *shown = d->cellOfWidget(cell);
    return shown ? QModelIndex(shown->index) : QModelIndex();
}

QModelIndex MList::indexAt(const QPointF &position) const
{
    if (!rect().contains(position))
        return {};
    // A header that sticks covers the row whose place it is.
    for (const ListCell &cell : d->cells) {
        if (cell.isHeader && cell.widget->geometry().contains(position))
            return cell.index;
    }
    return position.y() < d->rows.heights.total()
        ? d->rows.index(d->rows.heights.rowAt(position.y()))
        : QModelIndex();
}

QModelIndex MList::firstVisibleItem() const
{
    const QModelIndexList visible = visibleItems();
    return visible.isEmpty() ? QModelIndex() : visible.first();
}

QModelIndex MList::lastVisibleItem() const
{
    const QModelIndexList visible = visibleItems();
    return visible.isEmpty() ? QModelIndex() : visible.last();
}

QModelIndexList MList::visibleItems() const
{
    QModelIndexList visible;
    const QRectF view = d->seen();
    for (const ListCell &cell : d->cells) {
        const qreal bottom = cell.top + d->rows.heights.height(cell.row);
        if (cell.top < view.bottom() && bottom > view.top())
            visible.append(cell.index);
    }
    return visible;
}

void MList::setGeometry(const QRectF &rect)
{
    const bool isOtherWidth = rect.width() != size().width();
    MStylableWidget::setGeometry(rect);
    if (isOtherWidth)
        d->rows.heights.forget(0, d->rows.count());
    d->layOut();
}

bool MList::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        d->hasLeftViewport = false;
        // Also what a cell sends whose size hints changed.
        for (const ListCell &cell : d->cells)
            d->rows.heights.forget(cell.row, 1);
        // An earlier request may arrive before the viewport knows of the rows: it has to move
        // first.
        if (d->haveRowsChanged && d->viewport)
            d->viewport->updateExtent();
        d->layOut();
    }
    return MStylableWidget::event(event);
}

bool MList::sceneEventFilter(QGraphicsItem *watched, QEvent *event)
{
    if (event->type() == QEvent::GraphicsSceneMouseRelease) {
        const auto *release = static_cast<QGraphicsSceneMouseEvent *>(event);
        const ListCell *cell = d->cellOfWidget(watched);
        const bool isTap = cell && release->button() == Qt::LeftButton
            && scene()->mouseGrabberItem() == watched
            && isWithinReach(*cell->widget, watched->mapFromScene(release->scenePos()));
        if (isTap)
            d->tapLater(cell->index);
    }
    return MStylableWidget::sceneEventFilter(watched, event);
}

/// The cell below does not care for touches.
void MList::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    d->pressed = event->button() == Qt::LeftButton ? indexAt(event->pos()) : QModelIndex();
    event->setAccepted(d->pressed.isValid());
}

void MList::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    if (index.isValid() && index == d->pressed)
        d->tapLater(index);
    d->pressed = QModelIndex();
}

void MList::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    if (index.isValid())
        Q_EMIT itemLongPressed(index, event->scenePos());
    else
        MStylableWidget::contextMenuEvent(event);
}

void MList::keyPressEvent(QKeyEvent *event)
{
    if (d->moveCurrent(event->key())) {
        event->accept();
        return;
    }
    const QModelIndex current = d->rows.index(d->currentRow());
    if (!current.isValid()) {
        MStylableWidget::keyPressEvent(event);
        return;
    }
    if (!d->cellOfRow(d->currentRow()))
        scrollTo(current);
    const bool isTaken = d->offerKey(event);
    if (isTapKey(*event)) {
        d->pressed = current;
        event->accept();
    } else if (!isTaken && isMenuKey(*event)) {
        event->accept();
        const MWidget *cell = cellAt(current);
        Q_EMIT itemLongPressed(current, cell ? cell->mapToScene(cell->rect().center()) : QPointF());
    } else if (!isTaken) {
        MStylableWidget::keyPressEvent(event);
    }
}

void MList::keyReleaseEvent(QKeyEvent *event)
{
    if (d->keyReceiver)
        scene()->sendEvent(d->keyReceiver, event);
    if (!isTapKey(*event) || event->isAutoRepeat())
        return;
    d->keyReceiver = nullptr;
    event->accept();
    const QModelIndex index = d->pressed;
    d->pressed = QModelIndex();
    d->tap(index);
}

/// Instead of the base's: the ring runs around the current row, as one around all rows would hardly
/// be in view.
void MList::focusInEvent(QFocusEvent *event)
{
    const bool isFromKeyboard =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (event->reason() == Qt::MouseFocusReason)
        d->isKeyboardUsed = false;
    if (isFromKeyboard) {
        d->isKeyboardUsed = true;
        const int first = d->choosableFrom(d->rows.heights.rowAt(d->seen().top()), 1);
        if (d->currentRow() < 0 && first >= 0)
            d->makeCurrent(first);
        scrollTo(d->rows.index(d->currentRow()));
    }
    d->updateFocusRing();
}

void MList::focusOutEvent(QFocusEvent *)
{
    delete d->focusRing;
    d->pressed = QModelIndex();
    d->cancelKey();
}

void MList::applyStyle()
{
    // The cells' styles are others, too.
    d->rows.heights.forget(0, d->rows.count());
    d->requestLayout();
    MStylableWidget::applyStyle();
}

QVariant MList::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemSceneHasChanged || change == ItemVisibleHasChanged)
        d->requestLayout();
    return MStylableWidget::itemChange(change, value);
}

QSizeF MList::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    switch (which) {
    case Qt::PreferredSize:
        return {qMax(0.0, constraint.width()), d->rows.heights.total()};
    case Qt::MaximumSize:
        return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    default:
        // Not all its rows: a layout would then have to give it that height at once, from within
        // the call that tells of it.
        return {0, 0};
    }
}
