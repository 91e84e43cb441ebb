// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "focusring.h"

#include <touchcore/mtheme.h>

#include <QGraphicsWidget>
#include <QPainter>

#include <limits>

namespace
{
const qreal lineWidth = 2;
}

FocusRing::FocusRing(QGraphicsWidget *widget, int offset)
    : QGraphicsObject(widget), m_widget(widget), m_offset(offset)
{
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(std::numeric_limits<float>::max());
    connect(widget, &QGraphicsWidget::geometryChanged, this, [this] { prepareGeometryChange(); });
    connect(MTheme::instance(), &MTheme::changed, this, [this] { update(); });
}

QRectF FocusRing::boundingRect() const
{
    const qreal reach = m_offset + lineWidth;
    return m_widget->rect().adjusted(-reach, -reach, reach, reach);
}

void FocusRing::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const MTheme *theme = MTheme::instance();
    const qreal half = lineWidth / 2;
    const qreal radius = qMax(0.0, theme->measure(QStringLiteral("buttonRadius")) + m_offset);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(theme->color(QStringLiteral("focusRing")), lineWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(boundingRect().adjusted(half, half, -half, -half), radius, radius);
}
