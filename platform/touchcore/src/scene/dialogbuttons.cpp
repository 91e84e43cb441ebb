// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogbuttons.h"

#include <touchcore/mbutton.h>
#include <touchcore/mtheme.h>

#include <QEvent>
#include <QStyle>

namespace
{
int spacing()
{
    return MTheme::instance()->measure(QStringLiteral("itemSpacing"));
}
} // namespace

DialogButtons::DialogButtons(QGraphicsItem *parent) : QGraphicsWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

DialogButtons::~DialogButtons()
{
    // They go after the list that their going would change.
    for (MButton *button : qAsConst(m_buttons))
        button->disconnect(this);
}

void DialogButtons::add(MButton *button)
{
    button->setParentItem(this);
    m_buttons.append(button);
    connect(button, &QObject::destroyed, this, [this, button] {
        m_buttons.removeOne(button);
        updateGeometry();
        arrange();
    });
    updateGeometry();
    arrange();
}

void DialogButtons::setTopMargin(qreal margin)
{
    m_topMargin = qMax(0.0, margin);
    updateGeometry();
    arrange();
}

QSizeF DialogButtons::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (m_buttons.isEmpty())
        return {0, 0};
    const QSizeF largest = largestButton();
    const bool isRow = constraint.width() < 0 || constraint.width() >= rowWidth();
    const int rows = isRow ? 1 : m_buttons.size();
    const qreal height = m_topMargin + rows * largest.height() + (rows - 1) * spacing();
    switch (which) {
    case Qt::MinimumSize:
        return {0, height};
    case Qt::PreferredSize:
        return {constraint.width() < 0 ? rowWidth() : constraint.width(), height};
    default:
        return QGraphicsWidget::sizeHint(which, constraint);
    }
}

void DialogButtons::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    QGraphicsWidget::resizeEvent(event);
    arrange();
}

bool DialogButtons::event(QEvent *event)
{
    const bool isTaken = QGraphicsWidget::event(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
    return isTaken;
}

void DialogButtons::arrange()
{
    const int count = m_buttons.size();
    if (count == 0)
        return;
    const bool isRow = size().width() >= rowWidth();
    const qreal height = largestButton().height();
    const qreal width = isRow ? (size().width() - (count - 1) * spacing()) / count : size().width();
    for (int i = 0; i < count; ++i) {
        const QRectF place(isRow ? i * (width + spacing()) : 0,
                           m_topMargin + (isRow ? 0 : i * (height + spacing())), width, height);
        m_buttons.at(i)->setGeometry(
            QStyle::visualRect(layoutDirection(), rect().toRect(), place.toRect()));
    }
}

QSizeF DialogButtons::largestButton() const
{
    QSizeF largest(0, 0);
    for (const MButton *button : m_buttons)
        largest = largest.expandedTo(button->effectiveSizeHint(Qt::PreferredSize));
    return largest;
}

qreal DialogButtons::rowWidth() const
{
    return m_buttons.size() * largestButton().width() + (m_buttons.size() - 1) * spacing();
}
