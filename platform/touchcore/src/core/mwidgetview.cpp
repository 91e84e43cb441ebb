// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetview.h>

#include <QPainter>

class MWidgetViewPrivate
{
public:
    explicit MWidgetViewPrivate(MWidgetController *owner) : controller(owner) { }

    MWidgetController *controller;
    MStyleContainer style;
};

MWidgetView::MWidgetView(MWidgetController *controller)
    : d(std::make_unique<MWidgetViewPrivate>(controller))
{
}

MWidgetView::~MWidgetView() = default;

MWidgetController *MWidgetView::controller() const
{
    return d->controller;
}

void MWidgetView::updateData(const QList<const char *> &)
{
    d->controller->update();
}

void MWidgetView::applyStyle()
{
    d->controller->setOverhang(style()->shadow());
    d->controller->updateGeometry();
    d->controller->update();
}

void MWidgetView::paint(QPainter *painter) const
{
    drawBackground(painter);
    drawContents(painter);
}

void MWidgetView::drawBackground(QPainter *painter) const
{
    style()->drawBackground(painter, d->controller->rect(), d->controller->layoutDirection());
}

void MWidgetView::drawContents(QPainter *) const { }

QSizeF MWidgetView::sizeHint(Qt::SizeHint which, const QSizeF &) const
{
    return style()->sizeHint(which);
}

MStyleContainer &MWidgetView::styleContainer() const
{
    if (!d->style.isFor(metaObject(), d->controller->metaObject())) {
        d->style.initialize([this] { return newStyle(); }, metaObject(),
                            d->controller->metaObject());
        d->style.setStyleName(d->controller->styleName());
    }
    return d->style;
}

void MWidgetView::setStyleMode(const QByteArray &mode)
{
    if (styleContainer().mode() == mode)
        return;
    styleContainer().setMode(mode);
    applyStyle();
}

QRectF MWidgetView::contentsRect() const
{
    const Qt::LayoutDirection direction = d->controller->layoutDirection();
    return d->controller->rect()
        .marginsRemoved(style()->margins(direction))
        .marginsRemoved(style()->paddings(direction));
}

bool MWidgetView::contains(const QList<const char *> &members, const char *member)
{
    for (const char *name : members) {
        if (qstrcmp(name, member) == 0)
            return true;
    }
    return false;
}
