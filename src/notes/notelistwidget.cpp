// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "daskelassert.h"
#include "noteheadercreator.h"
#include "notelistwidget_p.h"

#include <daskel/notewidgetitemmodel.h>
#include <kcalcompat/clock.h>
#include <kcalcompat/kcalcore.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>

#include <QItemSelectionModel>

#include <limits>

namespace
{
constexpr int scrollInterval = 100;
constexpr int daysBack = 14;
constexpr int daysAhead = 28;
} // namespace

NoteListWidgetPrivate::NoteListWidgetPrivate(NoteListWidget *widget) : q(widget) { }

void NoteListWidgetPrivate::initialize(AbstractNoteLoader *loader, bool showGroups,
                                       bool customHeaders)
{
    // This list moves its viewport itself when rows come in above.
    q->setAnchorsOnInsert(false);
    cellCreator = new NoteCellCreator(q);
    q->setCellCreator(cellCreator);
    if (customHeaders)
        q->setHeaderCreator(new NoteHeaderCreator);
    QObject::connect(q, &MList::panningStarted, q, &NoteListWidget::listStarted);
    QObject::connect(q, &MList::panningStopped, q, &NoteListWidget::listStopped);
    q->setItemLoader(loader);
    q->setShowGroups(showGroups);
    scrollTimer.setInterval(scrollInterval);
    QObject::connect(&scrollTimer, &QTimer::timeout, q, &NoteListWidget::ensureListScrolled);
}

NoteWidgetItemModel *NoteListWidgetPrivate::noteModel() const
{
    return qobject_cast<NoteWidgetItemModel *>(q->itemModel());
}

void NoteListWidgetPrivate::watchViewport()
{
    MPannableViewport *viewport = q->parentViewport();
    if (!viewport)
        return;
    QObject::connect(viewport, SIGNAL(positionChanged(QPointF)), q,
                     SLOT(viewportPositionChanged(QPointF)), Qt::UniqueConnection);
    // Only the panning of the note lists tells of it.
    if (viewport->physics()->metaObject()->indexOfSignal("pointerReleased()") >= 0) {
        QObject::connect(viewport->physics(), SIGNAL(pointerReleased()), q,
                         SLOT(viewportMouseReleased()), Qt::UniqueConnection);
    }
}

void NoteListWidgetPrivate::loadEarlier()
{
    if (noteModel()->loadEarlier() > 0)
        rowAddedAbove = true;
}

qreal NoteListWidgetPrivate::roomBelow() const
{
    const MPannableViewport *viewport = q->parentViewport();
    return q->size().height() - viewport->size().height() - viewport->position().y();
}

NoteListWidget::NoteListWidget(AbstractNoteLoader *loader, bool showGroups, bool customHeaders)
    : NoteListWidget(nullptr, loader, showGroups, customHeaders)
{
}

NoteListWidget::NoteListWidget(QGraphicsItem *parent, AbstractNoteLoader *loader, bool showGroups,
                               bool customHeaders)
    : MList(parent), d(std::make_unique<NoteListWidgetPrivate>(this))
{
    d->initialize(loader, showGroups, customHeaders);
}

NoteListWidget::~NoteListWidget()
{
    delete itemModel();
}

void NoteListWidget::setItemLoader(AbstractNoteLoader *loader)
{
    const QAbstractItemModel *previous = itemModel();
    setItemModel(loader ? new NoteWidgetItemModel(loader) : nullptr);
    delete previous;
}

void NoteListWidget::setItemStyleName(const QString &styleName)
{
    d->cellCreator->setItemStyleName(styleName);
}

QString NoteListWidget::itemStyleName() const
{
    return d->cellCreator->itemStyleName();
}

void NoteListWidget::setDeleteNoteReceiver(QObject *receiver, const char *slot)
{
    d->cellCreator->setDeleteNoteReceiver(receiver, slot);
}

int NoteListWidget::noteCount() const
{
    const NoteWidgetItemModel *model = d->noteModel();
    return model ? model->noteCount() : 0;
}

int NoteListWidget::updateTypeMask() const
{
    return 1;
}

void NoteListWidget::updateContent(int)
{
    if (!refreshEnabled()) {
        setRefreshEnabled();
        return;
    }
    if (NoteWidgetItemModel *model = d->noteModel())
        model->reload();
    Q_EMIT listReloaded();
}

void NoteListWidget::contentUpdated(int mask)
{
    updateContent(mask);
}

void NoteListWidget::setRefreshDisabled()
{
    if (d->refreshesToPass < std::numeric_limits<quint16>::max())
        ++d->refreshesToPass;
    else
        qWarning("NoteListWidget::setRefreshDisabled Overflow");
}

void NoteListWidget::setRefreshEnabled()
{
    if (d->refreshesToPass > 0)
        --d->refreshesToPass;
}

bool NoteListWidget::refreshEnabled() const
{
    return d->refreshesToPass == 0;
}

void NoteListWidget::switchDate(const QDateTime &date)
{
    const QAbstractItemModel *model = itemModel();
    if (!model || model->rowCount() == 0)
        return;
    const QDateTime now = KCalCompat::Clock::now().toLocalTime();
    const QDate day = date.date();
    if (day < now.date().addDays(-daysBack) || day > now.date().addDays(daysAhead)) {
        switchDate(now);
        return;
    }
    const auto dayOf = [model](int row) {
        return model->index(row, 0).data(NoteWidgetItemModel::StartRole).toDateTime().date();
    };
    int row = 0;
    while (row < model->rowCount() && dayOf(row) != day)
        ++row;
    if (row == model->rowCount()) {
        if (dayOf(0) < day) {
            switchDate(date.addDays(-1));
            return;
        }
        row = 0;
    }
    if (!d->scrollTimer.isActive())
        d->scrollTimer.start();
    d->ignoreNextStop = true;
    scrollTo(model->index(row, 0), MList::PositionAtTop);
}

void NoteListWidget::selectAll()
{
    const QAbstractItemModel *model = itemModel();
    if (!model)
        return;
    QItemSelection all;
    const auto addRowsOf = [model, &all](const QModelIndex &parent) {
        const int count = model->rowCount(parent);
        if (count > 0)
            all.select(model->index(0, 0, parent), model->index(count - 1, 0, parent));
    };
    if (showGroups()) {
        for (int row = 0; row < model->rowCount(); ++row)
            addRowsOf(model->index(row, 0));
    } else {
        addRowsOf({});
    }
    selectionModel()->select(all, QItemSelectionModel::ClearAndSelect);
}

void NoteListWidget::deselectAll()
{
    if (selectionModel())
        selectionModel()->clearSelection();
}

QStringList NoteListWidget::getSelectionUidList() const
{
    const QItemSelectionModel *sm = selectionModel();
    DASKEL_ASSERT(sm, "notelistwidget", 487);
    QStringList uids;
    const QModelIndexList selected = sm->selectedIndexes();
    for (const QModelIndex &index : selected) {
        if (const auto note = index.data().value<KCalCore::Incidence::Ptr>())
            uids.append(note->uid());
    }
    return uids;
}

QMultiHash<QString, QDateTime> NoteListWidget::getSelectionUidHash() const
{
    const QItemSelectionModel *sm = selectionModel();
    DASKEL_ASSERT(sm, "notelistwidget", 502);
    QMultiHash<QString, QDateTime> starts;
    const QModelIndexList selected = sm->selectedIndexes();
    for (const QModelIndex &index : selected) {
        const auto note = index.data().value<KCalCore::Incidence::Ptr>();
        DASKEL_ASSERT(note, "notelistwidget", 508);
        if (note)
            starts.insert(note->uid(), index.data(NoteWidgetItemModel::StartRole).toDateTime());
    }
    return starts;
}

MPannableViewport *NoteListWidget::parentViewport() const
{
    for (QGraphicsWidget *above = parentWidget(); above; above = above->parentWidget()) {
        if (auto *viewport = qobject_cast<MPannableViewport *>(above))
            return viewport;
    }
    return nullptr;
}

void NoteListWidget::setGeometry(const QRectF &rect)
{
    d->watchViewport();
    if (d->rowAddedAbove) {
        d->rowAddedAbove = false;
        MPannableViewport *viewport = parentViewport();
        const qreal growth = rect.height() - size().height();
        if (viewport && growth > 0) {
            // What the person was looking at stays where it is.
            viewport->setPosition(viewport->position() + QPointF(0, growth));
        }
    }
    MList::setGeometry(rect);
}

void NoteListWidget::listStarted()
{
    d->isPanning = true;
    d->isPointerReleased = false;
    if (const MPannableViewport *viewport = parentViewport())
        d->lastPosition = viewport->position();
    d->scrollTimer.stop();
}

void NoteListWidget::viewportMouseReleased()
{
    d->isPointerReleased = true;
}

void NoteListWidget::viewportPositionChanged(QPointF position)
{
    // Once the finger has left, the list may swing back: that is not where the person wants to go.
    if (!d->isPointerReleased || d->panDirection == NoteListWidgetPrivate::None) {
        if (position.y() < d->lastPosition.y())
            d->panDirection = NoteListWidgetPrivate::TowardsTop;
        else if (position.y() > d->lastPosition.y())
            d->panDirection = NoteListWidgetPrivate::TowardsBottom;
    }
    d->lastPosition = position;
}

void NoteListWidget::listStopped()
{
    d->isPanning = false;
    if (d->ignoreNextStop) {
        d->ignoreNextStop = false;
        return;
    }
    NoteWidgetItemModel *model = d->noteModel();
    const MPannableViewport *viewport = parentViewport();
    if (model && model->rowCount() > 0 && viewport) {
        const bool isTall = size().height() > viewport->size().height();
        const bool isAtBottom = d->roomBelow() <= 0;
        const bool isAtTop = viewport->position().y() <= 0;
        switch (d->panDirection) {
        case NoteListWidgetPrivate::None:
            if (isTall && isAtBottom)
                model->loadLater();
            else if (isTall && isAtTop)
                d->loadEarlier();
            break;
        case NoteListWidgetPrivate::TowardsBottom:
            if (isAtBottom)
                model->loadLater();
            break;
        case NoteListWidgetPrivate::TowardsTop:
            if (isAtTop)
                d->loadEarlier();
            break;
        }
    }
    d->panDirection = NoteListWidgetPrivate::None;
}

void NoteListWidget::ensureListScrolled()
{
    if (!d->isPanning)
        d->ignoreNextStop = false;
}
