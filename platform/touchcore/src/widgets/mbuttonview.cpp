// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placing.h"
#include "textblock.h"

#include <touchcore/mbutton.h>
#include <touchcore/mbuttonview.h>
#include <touchcore/mtheme.h>
#include <touchcore/mviewfactory.h>

#include <QPainter>
#include <QStyle>
#include <QtMath>

M_REGISTER_VIEW(MButtonView, MButton)

class MButtonViewPrivate
{
public:
    MScalableImage icon;
    TextBlock text;
    bool isTextDue = true;
};

MButtonView::MButtonView(MButton *button)
    : MWidgetView(button), d(std::make_unique<MButtonViewPrivate>())
{
}

MButtonView::~MButtonView() = default;

MButton *MButtonView::button() const
{
    return static_cast<MButton *>(controller());
}

QString MButtonView::defaultStyleName() const
{
    return {};
}

void MButtonView::updateData(const QList<const char *> &modifications)
{
    if (contains(modifications, "text") || contains(modifications, "iconID")) {
        d->icon = MScalableImage(button()->iconID());
        d->isTextDue = true;
        controller()->updateGeometry();
    }
    if (button()->isChecked())
        setStyleMode(QByteArrayLiteral("checked"));
    else if (!button()->isEnabled())
        setStyleMode(QByteArrayLiteral("disabled"));
    else
        setStyleMode(button()->isDown() ? QByteArrayLiteral("pressed") : QByteArray());
    MWidgetView::updateData(modifications);
}

void MButtonView::applyStyle()
{
    if (styleContainer().styleName().isEmpty() && !defaultStyleName().isEmpty())
        styleContainer().setStyleName(defaultStyleName());
    d->isTextDue = true;
    MWidgetView::applyStyle();
}

void MButtonView::paint(QPainter *painter) const
{
    if (button()->isEnabled()) {
        MWidgetView::paint(painter);
        return;
    }
    const qreal opacity = painter->opacity();
    painter->setOpacity(opacity * style()->disabledOpacity());
    MWidgetView::paint(painter);
    painter->setOpacity(opacity);
}

void MButtonView::drawBackground(QPainter *painter) const
{
    MWidgetView::drawBackground(painter);
    if (!button()->isDown() || !style()->pressedOverlay().isValid())
        return;
    const QRectF frame =
        controller()->rect().marginsRemoved(style()->margins(controller()->layoutDirection()));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(style()->pressedOverlay());
    painter->drawRoundedRect(frame, style()->cornerRadius(), style()->cornerRadius());
    painter->restore();
}

void MButtonView::drawContents(QPainter *painter) const
{
    drawLabel(painter, contentsRect());
}

QSizeF MButtonView::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF styled = MWidgetView::sizeHint(which, constraint);
    if (which != Qt::MinimumSize && which != Qt::PreferredSize)
        return styled;
    const QMarginsF around = style()->margins() + style()->paddings();
    const qreal sides = around.left() + around.right();
    QSizeF size =
        contentsSize(constraint.width() >= 0 ? qMax(0.0, constraint.width() - sides) : -1);
    size += QSizeF(sides, around.top() + around.bottom());
    // A long text can be shortened, so that it does not widen a page.
    if (which == Qt::MinimumSize)
        size.setWidth(qMin(size.width(), qMax(sides, style()->minimumSize().width())));
    size = size.expandedTo(style()->minimumSize());
    return {styled.width() >= 0 && which == Qt::PreferredSize ? styled.width() : size.width(),
            styled.height() >= 0 && which == Qt::PreferredSize ? styled.height() : size.height()};
}

QSizeF MButtonView::contentsSize(qreal width) const
{
    return labelSize(width);
}

QSizeF MButtonView::textSize(qreal width) const
{
    if (button()->text().isEmpty())
        return {0, 0};
    if (d->isTextDue) {
        d->isTextDue = false;
        TextBlock::Format format;
        format.font = style()->font();
        format.lineHeight = style()->lineHeight() * MTheme::instance()->textScale();
        format.isWrapped = style()->maximumLines() > 1;
        format.maximumLines = style()->maximumLines();
        format.alignment = style()->isLeading() ? Qt::AlignLeading : Qt::AlignHCenter;
        format.direction = controller()->layoutDirection();
        d->text.setText(button()->text(), format);
    }
    return d->text.size(width);
}

QSizeF MButtonView::labelSize(qreal width) const
{
    const QSizeF icon = d->icon.isNull() ? QSizeF(0, 0) : style()->iconSize();
    const qreal gap = d->icon.isNull() || button()->text().isEmpty() ? 0 : style()->spacing();
    const QSizeF text = textSize(width < 0 ? -1 : qMax(0.0, width - icon.width() - gap));
    return {icon.width() + gap + text.width(), qMax(icon.height(), text.height())};
}

void MButtonView::drawLabel(QPainter *painter, const QRectF &rect) const
{
    const Qt::LayoutDirection direction = controller()->layoutDirection();
    const QSizeF size = labelSize(rect.width());
    const qreal used = qMin(size.width(), rect.width());
    QRectF text = rect;
    if (!style()->isLeading())
        text.setLeft(rect.left() + qFloor((rect.width() - used) / 2));
    text.setWidth(used);
    if (style()->isLeading())
        text.setRight(rect.right());
    if (!d->icon.isNull()) {
        const QSizeF iconSize = style()->iconSize();
        const QRectF column(text.left(), rect.top(), iconSize.width(), rect.height());
        drawIcon(painter,
                 QStyle::visualRect(direction, rect.toRect(), centered(iconSize, column).toRect()));
        text.setLeft(text.left() + iconSize.width() + style()->spacing());
    }
    drawText(painter, QStyle::visualRect(direction, rect.toRect(), text.toRect()));
}

void MButtonView::drawIcon(QPainter *painter, const QRectF &rect) const
{
    const QColor tint = style()->iconColor().isValid() ? style()->iconColor() : style()->color();
    d->icon.draw(rect, painter, tint, controller()->layoutDirection());
}

void MButtonView::drawText(QPainter *painter, const QRectF &rect) const
{
    if (button()->text().isEmpty())
        return;
    textSize(rect.width());
    d->text.layOut(rect.width());
    painter->setPen(style()->color());
    d->text.draw(painter, {rect.x(), rect.y() + qFloor((rect.height() - d->text.height()) / 2)});
}
