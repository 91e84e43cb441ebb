// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notelistcontent.h"

#include "emptyview.h"

#include <daskel/daskelpageheaderwidget.h>
#include <daskel/daskelutility.h>
#include <daskel/db_instance.h>
#include <daskel/dskmphysics2dpanning.h>
#include <daskel/notedeletion.h>
#include <daskel/notelistwidget.h>
#include <daskel/noteloader.h>
#include <daskel/notewidgetitemmodel.h>
#include <touchcore/mpannableviewport.h>

#include <QGraphicsLinearLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QTimer>

namespace
{
/// Three screens of rows on a handset, and then some.
constexpr int batchSize = 60;
/// How near an edge has to come, in heights of the view, for more to be loaded.
constexpr qreal nearEdge = 1.5;

KCalCore::Incidence::Ptr incidenceOf(const QModelIndex &index)
{
    return index.data(NoteWidgetItemModel::IncidenceRole).value<KCalCore::Incidence::Ptr>();
}
} // namespace

NoteListContent::NoteListContent(std::unique_ptr<AbstractNoteLoader> noteLoader, bool showGroups,
                                 bool hasDays, NoteDeletion *deletion)
    : m_loader(std::move(noteLoader)), m_deletion(deletion),
      m_header(new DaskelPageHeaderWidget(this)), m_viewport(new MPannableViewport(this)),
      m_list(new NoteListWidget(m_loader.get(), showGroups, hasDays)), m_empty(new EmptyView(this))
{
    m_loader->setBatchSize(batchSize);
    m_viewport->setPhysics(new DskMPhysics2DPanning(m_viewport));
    m_viewport->setWidget(m_list);
    m_list->setStickyHeaders(showGroups);
    m_list->setDeleteNoteReceiver(deletion, SLOT(ask(QString, KDateTime, KDateTime, QString)));
    m_list->installEventFilter(this);
    m_headerRow = new QGraphicsLinearLayout(Qt::Horizontal);
    m_headerRow->setContentsMargins(0, 0, 0, 0);
    m_headerRow->setSpacing(0);
    m_headerRow->addItem(m_header);
    daskelUtilityNewVerticalLayout(m_layout, this);
    m_layout->addItem(m_headerRow);
    m_layout->addItem(m_viewport);
    // All the height that the header leaves.
    m_layout->setStretchFactor(m_viewport, 1);
    m_empty->hide();
    connect(m_empty, &EmptyView::buttonClicked, this, &NoteListContent::importWanted);
    connect(m_list, &MList::itemClicked, this, &NoteListContent::open);
    connect(m_viewport, &MPannableViewport::positionChanged, this, [this] {
        viewChanged();
        lookAtEdges();
    });
    connect(DbInstance::instance(), &DbInstance::dbSaved, this,
            [this](DbInstance::DbSaveError code) {
                if (code != DbInstance::DbSaveOk)
                    tellFailedSave();
            });
}

NoteListContent::~NoteListContent() = default;

NoteWidgetItemModel *NoteListContent::noteModel() const
{
    return static_cast<NoteWidgetItemModel *>(m_list->itemModel());
}

unsigned int NoteListContent::notificationMask() const
{
    return DataReason | ConfigurationReason | DateReason | NotebooksReason;
}

void NoteListContent::notifyUpdate(unsigned int)
{
    if (!m_list->refreshEnabled()) {
        m_list->updateContent(DataReason);
        return;
    }
    const Place place = placeInView();
    prepareReload(topDay());
    m_isLoading = true;
    m_list->updateContent(DataReason);
    // Behind an anchor after which nothing happens.
    if (noteModel()->rowCount() == 0)
        noteModel()->loadEarlier();
    m_isLoading = false;
    showListOrEmpty();
    m_viewport->updateExtent();
    restore(place);
    viewChanged();
    lookAtEdges();
}

void NoteListContent::retranslate()
{
    m_header->setTitle(title());
    notifyUpdate(DataReason);
}

bool NoteListContent::isEmpty() const
{
    return noteModel()->rowCount() == 0;
}

void NoteListContent::prepareReload(const QDate &) { }

void NoteListContent::goHome()
{
    m_viewport->setPosition(QPointF(0, 0));
}

void NoteListContent::showListOrEmpty()
{
    m_header->setTitle(title());
    const bool showsEmpty = DbInstance::instance()->isEnabled() && isEmpty();
    QGraphicsWidget *shown = showsEmpty ? static_cast<QGraphicsWidget *>(m_empty) : m_viewport;
    QGraphicsWidget *other = showsEmpty ? static_cast<QGraphicsWidget *>(m_viewport) : m_empty;
    if (showsEmpty) {
        const Empty empty = emptyText();
        m_empty->show(empty.image, empty.text, empty.button);
    }
    if (m_layout->itemAt(1) == shown)
        return;
    m_layout->removeItem(other);
    other->hide();
    m_layout->addItem(shown);
    m_layout->setStretchFactor(shown, 1);
    shown->show();
    m_layout->activate();
}

QDate NoteListContent::topDay() const
{
    const QModelIndex top = m_list->firstVisibleItem();
    const QModelIndex group = top.parent().isValid() ? top.parent() : top;
    return group.data(NoteWidgetItemModel::StartRole).toDateTime().date();
}

NoteListContent::Place NoteListContent::placeInView() const
{
    const QModelIndexList visible = m_list->visibleItems();
    for (const QModelIndex &index : visible) {
        const auto incidence = incidenceOf(index);
        const MWidget *cell = m_list->cellAt(index);
        if (!incidence || !cell)
            continue;
        return {incidence->uid(), index.data(NoteWidgetItemModel::StartRole).toDateTime(),
                cell->pos().y() - m_viewport->position().y()};
    }
    return {};
}

void NoteListContent::restore(const Place &place)
{
    const NoteWidgetItemModel *model = noteModel();
    const auto isThere = [&](const QModelIndex &index) {
        const auto incidence = incidenceOf(index);
        return incidence && incidence->uid() == place.uid
            && index.data(NoteWidgetItemModel::StartRole).toDateTime() == place.start;
    };
    for (int row = 0; !place.uid.isEmpty() && row < model->rowCount(); ++row) {
        const QModelIndex top = model->index(row, 0);
        const int children = model->rowCount(top);
        for (int child = -1; child < children; ++child) {
            const QModelIndex index = child < 0 ? top : model->index(child, 0, top);
            if (!isThere(index))
                continue;
            m_list->scrollTo(index, MList::PositionAtTop);
            if (const MWidget *cell = m_list->cellAt(index))
                m_viewport->setPosition(QPointF(0, cell->pos().y() - place.distance));
            return;
        }
    }
}

/// Not at once: the viewport is just moving.
void NoteListContent::lookAtEdges()
{
    if (m_isLookDue || m_isLoading)
        return;
    m_isLookDue = true;
    QTimer::singleShot(0, this, [this] {
        m_isLookDue = false;
        if (!m_list->isVisible() || noteModel()->rowCount() == 0)
            return;
        m_isLoading = true;
        const qreal reach = nearEdge * m_viewport->size().height();
        const qreal top = m_viewport->position().y();
        if (m_list->size().height() - top - m_viewport->size().height() < reach)
            noteModel()->loadLater();
        if (top < reach) {
            // What is looked at stays where it is.
            m_list->setAnchorsOnInsert(true);
            noteModel()->loadEarlier();
            m_viewport->updateExtent();
            m_list->setAnchorsOnInsert(false);
        }
        m_isLoading = false;
        viewChanged();
    });
}

void NoteListContent::open(const QModelIndex &index)
{
    const auto incidence = incidenceOf(index);
    if (incidence) {
        Q_EMIT noteChosen(incidence->uid(), KDateTime(incidence->recurrenceId()),
                          index.data(NoteWidgetItemModel::StartRole).toDateTime());
    }
}

void NoteListContent::deleteCurrent()
{
    const QModelIndex index = m_list->selectionModel()->currentIndex();
    if (const auto incidence = incidenceOf(index)) {
        const QDateTime start = index.data(NoteWidgetItemModel::StartRole).toDateTime();
        m_deletion->ask(incidence->uid(), KDateTime(incidence->recurrenceId()), KDateTime(start));
    }
}

void NoteListContent::tellFailedSave()
{
    // The update that a tick announced will not come, and the row shows what was not stored.
    m_list->setRefreshEnabled();
}

bool NoteListContent::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Home || key == Qt::Key_Delete) {
            if (key == Qt::Key_Home)
                goHome();
            else
                deleteCurrent();
            return true;
        }
    }
    return MWidgetController::eventFilter(watched, event);
}
