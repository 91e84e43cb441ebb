// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pageheader.h"

#include <touchcore/mbutton.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/msheet.h>

#include <QAction>
#include <QMetaMethod>
#include <QPointer>

class MSheetPrivate
{
public:
    explicit MSheetPrivate(MSheet *sheet) : q(sheet), header(new MPageHeader(sheet))
    {
        header->hide();
    }

    void updateHeader();
    void arrange();

    MSheet *const q;
    MPageHeader *const header;
    QString title;
    QPointer<QAction> cancelAction;
    QPointer<QAction> doneAction;
    QPointer<QGraphicsWidget> central;
};

void MSheetPrivate::updateHeader()
{
    header->setTitle(title);
    header->setLeadingButton(cancelAction ? MPageHeader::CloseButton
                                          : MPageHeader::NoLeadingButton);
    if (cancelAction)
        header->leadingButton()->setEnabled(cancelAction->isEnabled());
    header->setActions(doneAction ? QList<QAction *>{doneAction} : QList<QAction *>());
    header->setVisible(!title.isEmpty() || cancelAction || doneAction);
    arrange();
}

void MSheetPrivate::arrange()
{
    QRectF room = q->contentsRectangle();
    if (header->isVisibleTo(q)) {
        const qreal height = header->effectiveSizeHint(Qt::PreferredSize).height();
        header->setGeometry(QRectF(room.topLeft(), QSizeF(room.width(), height)));
        room.setTop(room.top() + height);
    }
    if (central)
        central->setGeometry(room);
}

MSheet::MSheet(QGraphicsItem *parent)
    : MSceneWindow(SheetLayer, parent), d(std::make_unique<MSheetPrivate>(this))
{
    connect(d->header, &MPageHeader::leadingClicked, this, &MSheet::goBack);
}

MSheet::~MSheet() = default;

QString MSheet::title() const
{
    return d->title;
}

void MSheet::setTitle(const QString &title)
{
    d->title = title;
    d->updateHeader();
}

void MSheet::setCancelAction(QAction *action)
{
    if (d->cancelAction)
        d->cancelAction->disconnect(this);
    d->cancelAction = action;
    if (action)
        connect(action, &QAction::changed, this, [this] { d->updateHeader(); });
    d->updateHeader();
}

QAction *MSheet::cancelAction() const
{
    return d->cancelAction;
}

void MSheet::setDoneAction(QAction *action)
{
    d->doneAction = action;
    d->updateHeader();
}

QAction *MSheet::doneAction() const
{
    return d->doneAction;
}

QGraphicsWidget *MSheet::centralWidget() const
{
    return d->central;
}

void MSheet::setCentralWidget(QGraphicsWidget *widget)
{
    if (widget == d->central)
        return;
    delete d->central;
    d->central = widget;
    if (widget)
        widget->setParentItem(this);
    d->arrange();
}

void MSheet::goBack()
{
    if (d->cancelAction) {
        // A disabled action can be triggered all the same.
        if (d->cancelAction->isEnabled())
            d->cancelAction->trigger();
    } else if (isSignalConnected(QMetaMethod::fromSignal(&MSheet::backRequested))) {
        Q_EMIT backRequested();
    } else {
        dismiss();
    }
}

QRectF MSheet::place(const QSizeF &area) const
{
    const int limit = style()->maximumWidth();
    if (limit <= 0 || area.width() <= limit)
        return {QPointF(), area};
    const int edge = style()->edgeDistance();
    return QRectF((area.width() - limit) / 2, edge, limit, area.height() - 2 * edge).toRect();
}

MSceneWindow::Motion MSheet::motion() const
{
    return RiseMotion;
}

bool MSheet::isModal() const
{
    return true;
}

void MSheet::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    MSceneWindow::resizeEvent(event);
    // Only a sheet that stands free has corners to be rounded.
    const bool isFree = sceneManager() && size() != sceneManager()->visibleSize();
    setStyleMode(isFree ? QByteArrayLiteral("floating") : QByteArray());
    d->arrange();
}
