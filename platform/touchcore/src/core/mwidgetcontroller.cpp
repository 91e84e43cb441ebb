// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "focusring.h"

#include <touchcore/mtheme.h>
#include <touchcore/mviewfactory.h>
#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetmodel.h>
#include <touchcore/mwidgetview.h>

#include <QEvent>
#include <QFocusEvent>
#include <QPainterPath>
#include <QPointer>

namespace
{
/// A finger shows where it is itself: the ring is for those who came by keyboard.
bool isFromKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

/// Whether the focus only follows the window, and comes back with it.
bool isOfTheWindow(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}
} // namespace

class MWidgetControllerPrivate
{
public:
    MWidgetModel *model = nullptr;
    std::unique_ptr<MWidgetView> view;
    QString viewType;
    QString styleName;
    qreal overhang = 0;
    QPointer<FocusRing> focusRing;
    bool isRingDue = false; ///< when the window is active again
};

MWidgetController::MWidgetController(QGraphicsItem *parent)
    : MWidgetController(new MWidgetModel, parent)
{
}

MWidgetController::MWidgetController(MWidgetModel *model, QGraphicsItem *parent)
    : MWidget(parent), d(std::make_unique<MWidgetControllerPrivate>())
{
    setModel(model);
    connect(MTheme::instance(), &MTheme::changed, this, [this] { restyle(); });
}

MWidgetController::~MWidgetController()
{
    // Clears the layout while the view that may own parts of it is still there.
    d->view.reset();
}

MWidgetModel *MWidgetController::model() const
{
    return d->model;
}

void MWidgetController::setModel(MWidgetModel *model)
{
    Q_ASSERT(model);
    if (model == d->model)
        return;
    if (d->model) {
        d->model->disconnect(this);
        if (d->model->parent() == this)
            delete d->model;
    }
    d->model = model;
    if (!model->parent())
        model->setParent(this);
    connect(model, &MWidgetModel::modified, this, &MWidgetController::updateData);
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.VirtualCall): the constructor has no view yet.
    updateData(model->allMembers());
}

QString MWidgetController::viewType() const
{
    return d->viewType;
}

void MWidgetController::setViewType(const QString &viewType)
{
    if (d->viewType == viewType)
        return;
    d->viewType = viewType;
    if (d->view) {
        d->view.reset();
        updateGeometry();
        update();
    }
}

QString MWidgetController::styleName() const
{
    return d->styleName;
}

void MWidgetController::setStyleName(const QString &styleName)
{
    if (d->styleName == styleName)
        return;
    d->styleName = styleName;
    restyle();
}

MWidgetView *MWidgetController::view() const
{
    if (!d->view) {
        auto *self = const_cast<MWidgetController *>(this);
        d->view.reset(MViewFactory::createView(self));
        if (!isEnabled())
            d->view->styleContainer().setMode(QByteArrayLiteral("disabled"));
        d->view->updateData(d->model->allMembers());
        d->view->applyStyle();
    }
    return d->view.get();
}

QRectF MWidgetController::boundingRect() const
{
    return rect().adjusted(-d->overhang, -d->overhang, d->overhang, d->overhang);
}

QPainterPath MWidgetController::shape() const
{
    QPainterPath path;
    path.addRect(rect());
    return path;
}

void MWidgetController::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    view()->paint(painter);
}

void MWidgetController::setOverhang(qreal overhang)
{
    if (qFuzzyCompare(1 + overhang, 1 + d->overhang))
        return;
    prepareGeometryChange();
    d->overhang = overhang;
}

void MWidgetController::updateData(const QList<const char *> &modifications)
{
    if (d->view)
        d->view->updateData(modifications);
}

QSizeF MWidgetController::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF own = layout() ? QSizeF() : view()->sizeHint(which, constraint);
    if (own.width() >= 0 && own.height() >= 0)
        return own;
    const QSizeF inherited = MWidget::sizeHint(which, constraint);
    return {own.width() >= 0 ? own.width() : inherited.width(),
            own.height() >= 0 ? own.height() : inherited.height()};
}

void MWidgetController::changeEvent(QEvent *event)
{
    if (d->view) {
        if (event->type() == QEvent::EnabledChange)
            d->view->setStyleMode(isEnabled() ? QByteArray() : QByteArrayLiteral("disabled"));
        else if (event->type() == QEvent::LayoutDirectionChange)
            d->view->applyStyle();
    }
    MWidget::changeEvent(event);
}

void MWidgetController::focusInEvent(QFocusEvent *event)
{
    const bool isDue =
        isOfTheWindow(event->reason()) ? d->isRingDue : isFromKeyboard(event->reason());
    if (isDue && !d->focusRing)
        d->focusRing = new FocusRing(this, focusOffset());
    MWidget::focusInEvent(event);
}

void MWidgetController::focusOutEvent(QFocusEvent *event)
{
    d->isRingDue = d->focusRing && isOfTheWindow(event->reason());
    delete d->focusRing;
    MWidget::focusOutEvent(event);
}

int MWidgetController::focusOffset() const
{
    return view()->style()->focusOffset();
}

void MWidgetController::restyle()
{
    if (!d->view)
        return;
    d->view->styleContainer().setStyleName(d->styleName);
    d->view->styleContainer().invalidate();
    d->view->applyStyle();
}
