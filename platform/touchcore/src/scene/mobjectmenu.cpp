// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "actionbutton.h"

#include <touchcore/mimagewidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mobjectmenu.h>
#include <touchcore/mpannableviewport.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mseparator.h>
#include <touchcore/mwindow.h>

#include <QAction>
#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QPointer>

#include <algorithm>

class MObjectMenuPrivate
{
public:
    explicit MObjectMenuPrivate(MObjectMenu *menu) : q(menu) { }

    void addRow(QAction *action);
    void showAction(MListItem *row, MImageWidget *icon, MLabel *label, const QAction *action);
    void trigger(QAction *action);
    /// -1 for none.
    int focusedRow() const;
    /// Gives the focus to the nearest usable row from \a index on; past the last comes the first.
    void focusFrom(int index, int step);

    MObjectMenu *const q;
    MPannableViewport *viewport = nullptr;
    QGraphicsWidget *pane = nullptr;
    QGraphicsLinearLayout *column = nullptr;
    QList<MListItem *> rows;
    QList<MImageWidget *> icons;
    /// In the coordinates of the window's contents.
    QPointF finger;
};

void MObjectMenuPrivate::addRow(QAction *action)
{
    if (action->isSeparator()) {
        column->addItem(new MSeparator(pane));
        return;
    }
    auto *row = new MListItem(pane);
    row->setStyleName(QStringLiteral("ObjectMenuItem"));
    row->setFocusPolicy(Qt::StrongFocus);
    auto *icon = new MImageWidget(row);
    icon->setStyleName(QStringLiteral("ObjectMenuIcon"));
    auto *label = new MLabel(row);
    label->setStyleName(QStringLiteral("ObjectMenuText"));
    auto *line = new QGraphicsLinearLayout(Qt::Horizontal, row);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(q->style()->spacing());
    line->addItem(icon);
    line->addItem(label);
    line->setStretchFactor(label, 1);
    line->setAlignment(icon, Qt::AlignVCenter);
    column->addItem(row);
    rows.append(row);
    icons.append(icon);
    showAction(row, icon, label, action);
    QObject::connect(action, &QAction::changed, row,
                     [this, row, icon, label, action] { showAction(row, icon, label, action); });
    QObject::connect(action, &QObject::destroyed, row, [this, row] {
        row->hide();
        q->updateGeometry();
    });
    QObject::connect(row, &MListItem::clicked, action, [this, action] { trigger(action); });
}

void MObjectMenuPrivate::showAction(MListItem *row, MImageWidget *icon, MLabel *label,
                                    const QAction *action)
{
    const QString picture = action->isCheckable() && action->isChecked()
        ? q->style()->checkedImage()
        : actionIcon(action);
    icon->setImage(picture);
    // One picture moves the texts of all rows, so that they stay in line.
    const bool hasPictures = std::any_of(icons.begin(), icons.end(), [](const MImageWidget *other) {
        return !other->image().isEmpty();
    });
    for (MImageWidget *other : qAsConst(icons))
        other->setVisible(hasPictures);
    label->setText(action->iconText());
    row->setEnabled(action->isEnabled());
    row->setVisible(action->isVisible());
    // The viewport between does not tell that its contents changed.
    q->updateGeometry();
}

void MObjectMenuPrivate::trigger(QAction *action)
{
    const QPointer<QAction> chosen(action);
    q->dismiss();
    // The menu is on its way: what the action shows comes above what was there before.
    if (chosen)
        chosen->trigger();
}

int MObjectMenuPrivate::focusedRow() const
{
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i)->hasFocus())
            return i;
    }
    return -1;
}

void MObjectMenuPrivate::focusFrom(int index, int step)
{
    for (int tried = 0; tried < rows.size(); ++tried) {
        index = (index + step + rows.size()) % rows.size();
        MListItem *row = rows.at(index);
        if (row->isVisible() && row->isEnabled()) {
            row->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

MObjectMenu::MObjectMenu(const QList<QAction *> &actions, QGraphicsItem *parent)
    : MSceneWindow(MenuLayer, parent), d(std::make_unique<MObjectMenuPrivate>(this))
{
    auto *frame = new QGraphicsLinearLayout(Qt::Vertical, this);
    frame->setContentsMargins(0, 0, 0, 0);
    d->viewport = new MPannableViewport(this);
    d->viewport->setVerticalPanningPolicy(MPannableViewport::PanningAsNeeded);
    frame->addItem(d->viewport);
    d->pane = new QGraphicsWidget;
    d->column = new QGraphicsLinearLayout(Qt::Vertical, d->pane);
    d->column->setContentsMargins(0, 0, 0, 0);
    d->column->setSpacing(0);
    for (QAction *action : actions)
        d->addRow(action);
    d->viewport->setWidget(d->pane);
}

MObjectMenu::~MObjectMenu() = default;

bool MObjectMenu::open(MWidget *widget, const QPointF &scenePosition)
{
    auto *menu = new MObjectMenu(widget->actions());
    return menu->popUp(widget, scenePosition);
}

bool MObjectMenu::popUp(QGraphicsWidget *owner, const QPointF &scenePosition)
{
    MWindow *window = nullptr;
    if (QGraphicsScene *scene = owner->scene()) {
        const QList<QGraphicsView *> views = scene->views();
        for (QGraphicsView *view : views)
            window = window ? window : qobject_cast<MWindow *>(view);
    }
    if (!window) {
        deleteLater();
        return false;
    }
    connect(owner, &QObject::destroyed, this, &MSceneWindow::dismiss);
    d->finger = window->sceneManager()->root()->mapFromScene(scenePosition);
    appear(window, DestroyWhenDone);
    return true;
}

QRectF MObjectMenu::place(const QSizeF &area) const
{
    const qreal edge = style()->edgeDistance();
    const QRectF room = QRectF(QPointF(), area).adjusted(edge, edge, -edge, -edge);
    const QMarginsF frame = style()->margins() + style()->paddings();
    const QSizeF wanted = d->pane->effectiveSizeHint(Qt::PreferredSize)
        + QSizeF(frame.left() + frame.right(), frame.top() + frame.bottom());
    const qreal widest = qMin<qreal>(room.width(), style()->maximumWidth());
    const QSizeF size(qBound(qMin<qreal>(style()->minimumWidth(), widest), wanted.width(), widest),
                      qMin(wanted.height(), room.height()));

    const qreal distance = style()->fingerDistance();
    QRectF place(QPointF(), size.toSize());
    if (layoutDirection() == Qt::RightToLeft)
        place.moveRight(d->finger.x() - distance);
    else
        place.moveLeft(d->finger.x() + distance);
    place.moveTop(d->finger.y() + distance);
    // Above the finger when there is no room below it: the hand hides what is under it.
    if (place.bottom() > room.bottom() && d->finger.y() - distance - size.height() >= room.top())
        place.moveBottom(d->finger.y() - distance);
    place.moveLeft(qBound(room.left(), place.left(), room.right() - place.width()));
    place.moveTop(qBound(room.top(), place.top(), room.bottom() - place.height()));
    return {place.topLeft().toPoint(), place.size()};
}

MSceneWindow::Motion MObjectMenu::motion() const
{
    return GrowMotion;
}

bool MObjectMenu::isModal() const
{
    return true;
}

void MObjectMenu::pressedOutside()
{
    dismiss();
}

void MObjectMenu::applyStyle()
{
    for (MListItem *row : qAsConst(d->rows))
        row->setMinimumHeight(style()->rowHeight());
    MSceneWindow::applyStyle();
}

void MObjectMenu::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        d->focusFrom(d->focusedRow(), 1);
        break;
    case Qt::Key_Up:
        d->focusFrom(qMax(0, d->focusedRow()), -1);
        break;
    case Qt::Key_Home:
        d->focusFrom(-1, 1);
        break;
    case Qt::Key_End:
        d->focusFrom(0, -1);
        break;
    default:
        MSceneWindow::keyPressEvent(event);
    }
}
