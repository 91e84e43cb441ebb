// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placing.h"

#include <touchcore/mimagewidget.h>

MImageWidget::MImageWidget(QGraphicsItem *parent) : MImageWidget(QString(), parent) { }

MImageWidget::MImageWidget(const QString &id, QGraphicsItem *parent)
    : MStylableWidget(parent), m_image(id)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
}

MImageWidget::~MImageWidget() = default;

void MImageWidget::setImage(const QString &id)
{
    if (id == m_image.id())
        return;
    m_image = MScalableImage(id);
    updateGeometry();
    update();
}

void MImageWidget::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    MStylableWidget::paint(painter, option, widget);
    if (m_image.isNull())
        return;
    const QRectF room = contentsRectangle();
    QSizeF size = shownSize();
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room.size(), Qt::KeepAspectRatio);
    m_image.draw(centered(size, room), painter, style()->tint(), layoutDirection());
}

QSizeF MImageWidget::shownSize() const
{
    if (m_image.isNull())
        return {0, 0};
    return style()->imageSize().isEmpty() ? m_image.naturalSize().expandedTo({0, 0})
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
