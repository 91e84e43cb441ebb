// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "iconpainter.h"

#include <touchcore/mimagewidget.h>

class MImageWidgetPrivate
{
public:
    MScalableImage image;
    bool isMirrored = false;
};

MImageWidget::MImageWidget(QGraphicsItem *parent) : MImageWidget(QString(), parent) { }

MImageWidget::MImageWidget(const QString &id, QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MImageWidgetPrivate>())
{
    d->image = MScalableImage(id);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
}

MImageWidget::~MImageWidget() = default;

QString MImageWidget::image() const
{
    return d->image.id();
}

void MImageWidget::setImage(const QString &id)
{
    if (id == d->image.id())
        return;
    d->image = MScalableImage(id);
    updateGeometry();
    update();
}

bool MImageWidget::isMirrored() const
{
    return d->isMirrored;
}

void MImageWidget::setMirrored(bool isMirrored)
{
    if (d->isMirrored == isMirrored)
        return;
    d->isMirrored = isMirrored;
    update();
}

void MImageWidget::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    MStylableWidget::paint(painter, option, widget);
    if (d->image.isNull())
        return;
    const QRectF room = contentsRectangle();
    QSizeF size = shownSize();
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room.size(), Qt::KeepAspectRatio);
    drawIcon(painter, d->image, centered(size, room), style()->tint(),
             d->isMirrored && layoutDirection() == Qt::RightToLeft);
}

QSizeF MImageWidget::shownSize() const
{
    if (d->image.isNull())
        return {0, 0};
    return style()->imageSize().isEmpty() ? d->image.naturalSize().expandedTo({0, 0})
                                          : style()->imageSize();
}

QSizeF MImageWidget::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF styled = MStylableWidget::sizeHint(which, constraint);
    if (which != Qt::PreferredSize || layout())
        return styled;
    const QSizeF shown = shownSize();
    const QMarginsF around = style()->margins() + style()->paddings();
    const QSizeF own = style()->preferredSize();
    return {own.width() >= 0 ? own.width() : shown.width() + around.left() + around.right(),
            own.height() >= 0 ? own.height() : shown.height() + around.top() + around.bottom()};
}
