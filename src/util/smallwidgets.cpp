// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/clickablelabel.h>
#include <daskel/mycolorlabel.h>
#include <touchcore/mtheme.h>

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

ClickableLabel::ClickableLabel(QGraphicsItem *parent) : MLabel(parent) { }

ClickableLabel::ClickableLabel(const QString &text, QGraphicsItem *parent)
    : MLabel(text, parent) { }

/// Accepted by doing nothing, so that the release comes here, too.
void ClickableLabel::mousePressEvent(QGraphicsSceneMouseEvent *) { }

void ClickableLabel::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    Q_EMIT clicked();
}

MyColorLabel::MyColorLabel(QGraphicsItem *parent) : MStylableWidget(parent)
{
    MTheme::instance()->registerStylableType("MyColorLabel", QStringLiteral("libdaskel"));
}

void MyColorLabel::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void MyColorLabel::setColorOpacity(double opacity)
{
    m_opacity = opacity;
    update();
}

void MyColorLabel::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (!m_color.isValid() || m_color == QColor(Qt::color0))
        return;
    const qreal radius = 2.0;
    QPen pen(m_color);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setOpacity(m_opacity);
    painter->setBrush(QBrush(m_color, Qt::SolidPattern));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawRoundedRect(rect().marginsRemoved(style()->margins(layoutDirection())), radius,
                             radius, Qt::AbsoluteSize);
}
