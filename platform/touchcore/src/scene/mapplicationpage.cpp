// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pageheader.h"

#include <touchcore/mapplicationpage.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mwidgetview.h>
#include <touchcore/mwindow.h>

#include <QEvent>
#include <QPointer>

class MApplicationPagePrivate
{
public:
    explicit MApplicationPagePrivate(MApplicationPage *page)
        : q(page), header(new MPageHeader(page))
    {
    }

    bool hasPageBelow() const;
    void updateLeadingButton();
    void arrange();

    MApplicationPage *const q;
    MPageHeader *const header;
    QPointer<QGraphicsWidget> central;
};

bool MApplicationPagePrivate::hasPageBelow() const
{
    const MSceneManager *manager = q->sceneManager();
    return manager && manager->pageHistory().indexOf(q) > 0;
}

void MApplicationPagePrivate::updateLeadingButton()
{
    const MApplicationPageModel::EscapeMode mode = q->escapeMode();
    const bool isBack = mode == MApplicationPageModel::EscapeBack
        || (mode == MApplicationPageModel::EscapeAuto && hasPageBelow());
    header->setLeadingButton(isBack ? MPageHeader::BackButton : MPageHeader::CloseButton);
}

void MApplicationPagePrivate::arrange()
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

MApplicationPageModel::MApplicationPageModel(QObject *parent) : MWidgetModel(parent) { }

MApplicationPageModel::~MApplicationPageModel() = default;

MApplicationPage::MApplicationPage(QGraphicsItem *parent)
    : MSceneWindow(PageLayer, parent), d(std::make_unique<MApplicationPagePrivate>(this))
{
    setModel(new MApplicationPageModel);
    d->updateLeadingButton();
    connect(d->header, &MPageHeader::leadingClicked, this, &MApplicationPage::goBack);
    connect(this, &MSceneWindow::appearing, this, [this] { d->updateLeadingButton(); });
}

MApplicationPage::~MApplicationPage() = default;

QString MApplicationPage::title() const
{
    return model()->title();
}

void MApplicationPage::setTitle(const QString &title)
{
    model()->setTitle(title);
}

MApplicationPageModel::EscapeMode MApplicationPage::escapeMode() const
{
    return model()->escapeMode();
}

void MApplicationPage::setEscapeMode(MApplicationPageModel::EscapeMode mode)
{
    model()->setEscapeMode(mode);
}

bool MApplicationPage::isHeaderVisible() const
{
    return model()->headerVisible();
}

void MApplicationPage::setHeaderVisible(bool isVisible)
{
    model()->setHeaderVisible(isVisible);
}

QGraphicsWidget *MApplicationPage::centralWidget() const
{
    return d->central;
}

void MApplicationPage::setCentralWidget(QGraphicsWidget *widget)
{
    if (widget == d->central)
        return;
    delete d->central;
    d->central = widget;
    if (widget)
        widget->setParentItem(this);
    d->arrange();
}

void MApplicationPage::goBack()
{
    const QPointer<MApplicationPage> guard(this);
    const bool isAuto = escapeMode() == MApplicationPageModel::EscapeAuto;
    Q_EMIT backButtonClicked();
    if (!isAuto || !guard)
        return;
    if (d->hasPageBelow())
        dismiss();
    else if (sceneManager())
        sceneManager()->window()->close();
}

void MApplicationPage::updateData(const QList<const char *> &modifications)
{
    MSceneWindow::updateData(modifications);
    if (MWidgetView::contains(modifications, "title"))
        d->header->setTitle(title());
    if (MWidgetView::contains(modifications, "escapeMode"))
        d->updateLeadingButton();
    if (MWidgetView::contains(modifications, "headerVisible")) {
        d->header->setVisible(isHeaderVisible());
        d->arrange();
    }
}

MSceneWindow::Motion MApplicationPage::motion() const
{
    return SlideMotion;
}

void MApplicationPage::enterDisplayEvent()
{
    // The pages below may be others than when it was last seen.
    d->updateLeadingButton();
    MSceneWindow::enterDisplayEvent();
}

void MApplicationPage::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    MSceneWindow::resizeEvent(event);
    d->arrange();
}

bool MApplicationPage::event(QEvent *event)
{
    const bool isTaken = MSceneWindow::event(event);
    if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved)
        d->header->setActions(actions());
    return isTaken;
}
