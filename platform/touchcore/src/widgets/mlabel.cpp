// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mlabel_p.h"

#include <touchcore/mlabel.h>
#include <touchcore/mtheme.h>

#include <QEvent>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtMath>

bool MLabelPrivate::isRich() const
{
    return textFormat == Qt::RichText || (textFormat == Qt::AutoText && Qt::mightBeRichText(text));
}

void MLabelPrivate::invalidate()
{
    isPrepared = false;
    q->updateGeometry();
    q->update();
}

void MLabelPrivate::prepare()
{
    if (isPrepared)
        return;
    isPrepared = true;
    const qreal lineHeight = q->style()->lineHeight() * MTheme::instance()->textScale();
    if (isRich()) {
        rich = std::make_unique<RichText>();
        rich->setText(text,
                      {q->style()->font(), q->style()->linkColor(), lineHeight, wordWrap, alignment,
                       q->layoutDirection()});
    } else {
        rich.reset();
        block.setText(text,
                      {q->style()->font(), lineHeight, wordWrap, maximumLines, textElide, alignment,
                       q->layoutDirection()});
    }
}

QSizeF MLabelPrivate::textSize(qreal width)
{
    prepare();
    return rich ? rich->sizeFor(width) : block.size(width);
}

void MLabelPrivate::layOut(qreal width)
{
    prepare();
    if (rich)
        rich->layOut(width);
    else
        block.layOut(width);
}

qreal MLabelPrivate::textHeight() const
{
    return rich ? rich->size().height() : block.height();
}

QPointF MLabelPrivate::textPosition() const
{
    const QRectF room = q->contentsRectangle();
    const qreal spare = room.height() - textHeight();
    qreal y = room.y();
    if (alignment & Qt::AlignBottom)
        y += spare;
    else if (alignment & Qt::AlignVCenter)
        y += qFloor(spare / 2);
    return {room.x(), y};
}

QString MLabelPrivate::linkAt(const QPointF &position)
{
    if (!isRich())
        return {};
    layOut(q->contentsRectangle().width());
    return rich->linkAt(position - textPosition());
}

MLabel::MLabel(QGraphicsItem *parent) : MLabel(QString(), parent) { }

MLabel::MLabel(const QString &text, QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MLabelPrivate>(this))
{
    d->text = text;
}

MLabel::~MLabel() = default;

QString MLabel::text() const
{
    return d->text;
}

void MLabel::setText(const QString &text)
{
    if (d->text == text)
        return;
    d->text = text;
    d->invalidate();
}

Qt::TextFormat MLabel::textFormat() const
{
    return d->textFormat;
}

void MLabel::setTextFormat(Qt::TextFormat format)
{
    if (d->textFormat == format)
        return;
    d->textFormat = format;
    d->invalidate();
}

bool MLabel::wordWrap() const
{
    return d->wordWrap;
}

void MLabel::setWordWrap(bool isWrapped)
{
    if (d->wordWrap == isWrapped)
        return;
    d->wordWrap = isWrapped;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(isWrapped);
    setSizePolicy(policy);
    // Only a long text gains from knowing what part of it is painted.
    setFlag(ItemUsesExtendedStyleOption, isWrapped);
    d->invalidate();
}

int MLabel::maximumLines() const
{
    return d->maximumLines;
}

void MLabel::setMaximumLines(int lines)
{
    if (d->maximumLines == lines)
        return;
    d->maximumLines = qMax(0, lines);
    d->invalidate();
}

Qt::Alignment MLabel::alignment() const
{
    return d->alignment;
}

void MLabel::setAlignment(Qt::Alignment alignment)
{
    if (d->alignment == alignment)
        return;
    d->alignment = alignment;
    d->invalidate();
}

Qt::TextElideMode MLabel::textElide() const
{
    return d->textElide;
}

void MLabel::setTextElide(Qt::TextElideMode mode)
{
    if (d->textElide == mode)
        return;
    d->textElide = mode;
    d->invalidate();
}

bool MLabel::isElided() const
{
    d->layOut(contentsRectangle().width());
    return !d->rich && d->block.isElided();
}

QString MLabel::plainText() const
{
    if (!d->isRich())
        return d->text;
    d->prepare();
    return d->rich->toPlainText();
}

void MLabel::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    MStylableWidget::paint(painter, option, widget);
    if (d->text.isEmpty())
        return;
    const QRectF room = contentsRectangle();
    d->layOut(room.width());
    const QRectF exposed = d->wordWrap ? option->exposedRect : QRectF();
    const bool isClipped = d->textElide == Qt::ElideNone && isElided();
    if (isClipped) {
        painter->save();
        painter->setClipRect(room, Qt::IntersectClip);
    }
    if (d->rich) {
        d->rich->draw(painter, d->textPosition(), style()->color(), exposed);
    } else {
        painter->setPen(style()->color());
        d->block.draw(painter, d->textPosition(), exposed);
    }
    if (isClipped)
        painter->restore();
}

void MLabel::applyStyle()
{
    d->isPrepared = false;
    MStylableWidget::applyStyle();
    // The marks of some scripts reach beyond lines that are made for Latin letters.
    setOverhang(qMax(style()->shadow(), qCeil(style()->font().pixelSize() / 4.0)));
}

QSizeF MLabel::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    const QSizeF styled = MStylableWidget::sizeHint(which, constraint);
    if (which == Qt::MaximumSize || layout())
        return styled;
    const QMarginsF around = style()->margins() + style()->paddings();
    const qreal sides = around.left() + around.right();
    const qreal width = constraint.width() >= 0 ? qMax(0.0, constraint.width() - sides) : -1;
    QSizeF text = d->textSize(width);
    if (which == Qt::MinimumSize) {
        // A text can be shortened or wrapped; without a width given it needs one line.
        text.setWidth(0);
        if (width < 0 || d->maximumLines > 0)
            text.setHeight(qMin(text.height(), d->textSize(-1).height()));
    }
    const QSizeF own = style()->sizeHint(which);
    return {own.width() >= 0 ? own.width() : qCeil(text.width()) + sides,
            own.height() >= 0 ? own.height()
                              : qCeil(text.height()) + around.top() + around.bottom()};
}

void MLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        d->invalidate();
    MStylableWidget::changeEvent(event);
}

void MLabel::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    MStylableWidget::resizeEvent(event);
    update();
}

void MLabel::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    d->pressedLink = d->linkAt(event->pos());
    event->setAccepted(!d->pressedLink.isEmpty());
}

void MLabel::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const QString link = d->pressedLink;
    d->pressedLink.clear();
    if (!link.isEmpty() && d->linkAt(event->pos()) == link)
        Q_EMIT linkActivated(link);
}

void MLabel::cancelEvent()
{
    d->pressedLink.clear();
}
