// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mstylablewidget.h>

#include <QEvent>
#include <QGraphicsLayout>

class MStylableWidgetPrivate
{
public:
    MStyleContainer style;
    /// The class whose style is applied. A base class may ask for it while it is constructed.
    const QMetaObject *styledAs = nullptr;
};

MStylableWidget::MStylableWidget(QGraphicsItem *parent)
    : MWidgetController(parent), d(std::make_unique<MStylableWidgetPrivate>())
{
}

MStylableWidget::~MStylableWidget() = default;

MStyleContainer &MStylableWidget::styleContainer() const
{
    if (!d->style.isFor(metaObject(), metaObject())) {
        d->style.initialize([this] { return newStyle(); }, metaObject(), metaObject());
        d->style.setStyleName(styleName());
    }
    return d->style;
}

void MStylableWidget::setStyleMode(const QByteArray &mode)
{
    if (styleContainer().mode() == mode)
        return;
    styleContainer().setMode(mode);
    if (d->styledAs)
        applyStyle();
}

QRectF MStylableWidget::contentsRectangle() const
{
    return rect()
        .marginsRemoved(style()->margins(layoutDirection()))
        .marginsRemoved(style()->paddings(layoutDirection()));
}

void MStylableWidget::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    style()->drawBackground(painter, rect(), layoutDirection());
}

void MStylableWidget::applyStyle()
{
    d->styledAs = metaObject();
    const QMarginsF margins =
        style()->margins(layoutDirection()) + style()->paddings(layoutDirection());
    setContentsMargins(margins);
    setOverhang(style()->shadow());
    if (layout())
        layout()->invalidate();
    updateGeometry();
    update();
}

QSizeF MStylableWidget::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (d->styledAs != metaObject())
        const_cast<MStylableWidget *>(this)->applyStyle();
    const QSizeF own = style()->sizeHint(which);
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): that of the controller asks a view.
    const QSizeF inherited = MWidget::sizeHint(which, constraint);
    // What a layout needs is never cut by a style's preferred size; its minimum may only enlarge.
    const bool isLaidOut = layout() && which != Qt::MaximumSize;
    const auto side = [isLaidOut](qreal styled, qreal laidOut) {
        if (styled < 0)
            return laidOut;
        return isLaidOut ? qMax(styled, laidOut) : styled;
    };
    return {side(own.width(), inherited.width()), side(own.height(), inherited.height())};
}

void MStylableWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        setStyleMode(isEnabled() ? QByteArray() : QByteArrayLiteral("disabled"));
    else if (event->type() == QEvent::LayoutDirectionChange && d->styledAs)
        applyStyle();
    MWidgetController::changeEvent(event);
}

int MStylableWidget::focusOffset() const
{
    return style()->focusOffset();
}

void MStylableWidget::polishEvent()
{
    if (d->styledAs != metaObject())
        applyStyle();
    MWidgetController::polishEvent();
}

void MStylableWidget::restyle()
{
    d->style.setStyleName(styleName());
    if (d->styledAs)
        applyStyle();
}
