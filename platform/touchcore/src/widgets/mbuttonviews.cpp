// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placing.h"

#include <touchcore/mbutton.h>
#include <touchcore/mbuttonviews.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mtheme.h>
#include <touchcore/mviewfactory.h>

#include <QPainter>
#include <QStyle>
#include <QVariantAnimation>

M_REGISTER_VIEW(MButtonIconView, MButton)
M_REGISTER_VIEW(MButtonTabView, MButton)
M_REGISTER_VIEW(MButtonSwitchView, MButton)
M_REGISTER_VIEW(MButtonCheckView, MButton)
M_REGISTER_VIEW(MButtonChoiceView, MButton)

MButtonIconView::MButtonIconView(MButton *button) : MButtonView(button) { }

QString MButtonIconView::defaultStyleName() const
{
    return QStringLiteral("IconButton");
}

QSizeF MButtonIconView::contentsSize(qreal) const
{
    return style()->iconSize();
}

void MButtonIconView::drawContents(QPainter *painter) const
{
    drawIcon(painter, centered(style()->iconSize(), contentsRect()));
}

QSizeF MButtonIconView::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    // Stretched, a round button would be none.
    return MButtonView::sizeHint(which == Qt::MaximumSize ? Qt::PreferredSize : which, constraint);
}

MButtonTabView::MButtonTabView(MButton *button) : MButtonView(button) { }

QString MButtonTabView::defaultStyleName() const
{
    return QStringLiteral("TabButton");
}

QSizeF MButtonTabView::contentsSize(qreal width) const
{
    const QSizeF text = textSize(width);
    const QSizeF icon = style()->iconSize();
    return {qMax(text.width(), icon.width()), icon.height() + style()->spacing() + text.height()};
}

void MButtonTabView::drawContents(QPainter *painter) const
{
    QRectF rect = contentsRect();
    const qreal used = contentsSize(rect.width()).height();
    rect.setTop(rect.top() + qRound((rect.height() - used) / 2));
    rect.setHeight(style()->iconSize().height());
    drawIcon(painter, centered(style()->iconSize(), rect));
    rect.setTop(rect.bottom() + style()->spacing());
    rect.setHeight(textSize(rect.width()).height());
    drawText(painter, rect);
}

MButtonMarkView::MButtonMarkView(MButton *button) : MButtonView(button) { }

qreal MButtonMarkView::markRoom() const
{
    const bool isAlone = button()->text().isEmpty() && button()->iconID().isEmpty();
    return style()->markSize().width() + (isAlone ? 0 : style()->spacing());
}

QSizeF MButtonMarkView::contentsSize(qreal width) const
{
    const QSizeF label = labelSize(width < 0 ? -1 : qMax(0.0, width - markRoom()));
    return {label.width() + markRoom(), qMax(label.height(), style()->markSize().height())};
}

void MButtonMarkView::drawContents(QPainter *painter) const
{
    const Qt::LayoutDirection direction = controller()->layoutDirection();
    const QRect room = contentsRect().toRect();
    QRect label = room;
    QRect mark = room;
    mark.setWidth(qRound(style()->markSize().width()));
    if (isMarkAtStart()) {
        label.setLeft(label.left() + qRound(markRoom()));
    } else {
        label.setRight(label.right() - qRound(markRoom()));
        mark.moveRight(room.right());
    }
    const int height = qRound(style()->markSize().height());
    mark.setTop(room.top() + (room.height() - height) / 2);
    mark.setHeight(height);
    drawLabel(painter, QStyle::visualRect(direction, room, label));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawMark(painter, QStyle::visualRect(direction, room, mark));
    painter->restore();
}

void MButtonMarkView::drawMarkFrame(QPainter *painter, const QRectF &rect, qreal radius) const
{
    // A border of the same colour would show through where the whole is translucent.
    const bool hasBorder = style()->markBorderColor() != style()->markBackgroundColor();
    const qreal line = hasBorder ? style()->markBorderWidth() : 0;
    painter->setPen(hasBorder ? QPen(style()->markBorderColor(), line) : QPen(Qt::NoPen));
    painter->setBrush(style()->markBackgroundColor());
    painter->drawRoundedRect(rect.adjusted(line / 2, line / 2, -line / 2, -line / 2),
                             radius - line / 2, radius - line / 2);
}

class MButtonSwitchViewPrivate
{
public:
    QVariantAnimation slide;
    qreal thumb = 0;
};

MButtonSwitchView::MButtonSwitchView(MButton *button)
    : MButtonMarkView(button), d(std::make_unique<MButtonSwitchViewPrivate>())
{
    d->thumb = button->isChecked() ? 1 : 0;
    d->slide.setEasingCurve(QEasingCurve::OutCubic);
    connect(&d->slide, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        d->thumb = value.toReal();
        controller()->update();
    });
}

MButtonSwitchView::~MButtonSwitchView() = default;

qreal MButtonSwitchView::thumbPosition() const
{
    return d->thumb;
}

QString MButtonSwitchView::defaultStyleName() const
{
    return QStringLiteral("SwitchButton");
}

void MButtonSwitchView::updateData(const QList<const char *> &modifications)
{
    MButtonMarkView::updateData(modifications);
    const qreal side = button()->isChecked() ? 1 : 0;
    if (!contains(modifications, "checked") || d->slide.endValue() == QVariant(side))
        return;
    d->slide.stop();
    d->slide.setStartValue(d->thumb);
    d->slide.setEndValue(side);
    const bool isSliding = button()->isOnDisplay() && MSceneManager::areAnimationsEnabled()
        && !MTheme::instance()->isMotionReduced();
    d->slide.setDuration(isSliding ? style()->switchDuration() : 0);
    d->slide.start();
}

void MButtonSwitchView::drawMark(QPainter *painter, const QRectF &rect) const
{
    const qreal line = style()->markBorderWidth();
    drawMarkFrame(painter, rect, rect.height() / 2);
    const qreal gap = 2 * line;
    const qreal diameter = rect.height() - 2 * gap;
    const qreal way = rect.width() - 2 * gap - diameter;
    const bool isMirrored = controller()->layoutDirection() == Qt::RightToLeft;
    const qreal position = isMirrored ? 1 - d->thumb : d->thumb;
    painter->setPen(Qt::NoPen);
    painter->setBrush(style()->markColor());
    painter->drawEllipse(
        QRectF(rect.left() + gap + position * way, rect.top() + gap, diameter, diameter));
}

MButtonCheckView::MButtonCheckView(MButton *button) : MButtonMarkView(button) { }

QString MButtonCheckView::defaultStyleName() const
{
    return QStringLiteral("CheckButton");
}

void MButtonCheckView::drawMark(QPainter *painter, const QRectF &rect) const
{
    drawMarkFrame(painter, rect, style()->markRadius());
    if (button()->isChecked())
        style()->markImage().draw(rect, painter, style()->markColor());
}

MButtonChoiceView::MButtonChoiceView(MButton *button) : MButtonMarkView(button) { }

QString MButtonChoiceView::defaultStyleName() const
{
    return QStringLiteral("ChoiceButton");
}

void MButtonChoiceView::drawMark(QPainter *painter, const QRectF &rect) const
{
    if (button()->isChecked())
        style()->markImage().draw(rect, painter, style()->markColor());
}
