// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/daskelpageheaderwidget.h>
#include <touchcore/mbutton.h>
#include <touchcore/mimagewidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mseparator.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>
#include <QLinearGradient>
#include <QPainter>

namespace
{
const int mostTitleLines = 3;

const qreal stripeWidth = 4;
const qreal softOpacity = 0.16;

/// A colour that lets something through already is taken as it is.
QColor softened(QColor color)
{
    if (color.alpha() == 255)
        color.setAlphaF(softOpacity);
    return color;
}

QBrush background(const QRectF &frame, const QColor &color, bool isFading)
{
    if (!isFading)
        return color;
    QColor faded = color;
    faded.setAlpha(0);
    QLinearGradient gradient(frame.topLeft(), frame.bottomLeft());
    gradient.setColorAt(0, color);
    gradient.setColorAt(1, faded);
    return gradient;
}

QGraphicsLinearLayout *emptyLayout(Qt::Orientation orientation)
{
    auto *layout = new QGraphicsLinearLayout(orientation);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}
} // namespace

class DaskelPageHeaderWidgetPrivate
{
public:
    QGraphicsLinearLayout *row;
    QGraphicsLinearLayout *mainLayout;
    MLabel *title;
    MImageWidget *icon;
    MButton *button;
    MSeparator *separator;
    QColor color;
};

DaskelPageHeaderWidget::DaskelPageHeaderWidget(QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<DaskelPageHeaderWidgetPrivate>())
{
    MTheme::instance()->registerStylableType("DaskelPageHeaderWidget", QStringLiteral("libdaskel"));
    d->row = emptyLayout(Qt::Horizontal);
    d->mainLayout = emptyLayout(Qt::Vertical);
    d->title = new MLabel(this);
    d->title->setWordWrap(true);
    d->title->setMaximumLines(mostTitleLines);
    d->icon = new MImageWidget(this);
    d->icon->setStyleName(QStringLiteral("PageHeaderIcon"));
    d->icon->hide();
    d->button = new MButton(this);
    d->button->setStyleName(QStringLiteral("CommonHeaderButton"));
    d->button->hide();
    d->separator = new MSeparator(this, Qt::Horizontal);
    d->separator->hide();
    d->row->addItem(d->title);
    d->row->setStretchFactor(d->title, 1);
    d->mainLayout->addItem(d->row);
    setLayout(d->mainLayout);
    setStyleName(QStringLiteral("DaskelApplicationHeader"));
}

DaskelPageHeaderWidget::~DaskelPageHeaderWidget() = default;

QString DaskelPageHeaderWidget::title() const
{
    return d->title->text();
}

void DaskelPageHeaderWidget::setTitle(const QString &title)
{
    d->title->setText(title);
}

QString DaskelPageHeaderWidget::image() const
{
    return d->icon->image();
}

void DaskelPageHeaderWidget::setImage(const QString &id)
{
    const bool wasShown = !image().isEmpty();
    d->icon->setImage(id);
    if (!id.isEmpty() && !wasShown) {
        d->row->insertItem(0, d->icon);
        d->row->setAlignment(d->icon, Qt::AlignVCenter);
    } else if (id.isEmpty() && wasShown) {
        d->row->removeItem(d->icon);
    }
    d->icon->setVisible(!id.isEmpty());
}

void DaskelPageHeaderWidget::setButtonVisible(bool isVisible)
{
    // Taken out first in either case: an item that is shown twice would stand in the row twice.
    d->row->removeItem(d->button);
    if (isVisible) {
        d->row->addItem(d->button);
        d->row->setAlignment(d->button, Qt::AlignCenter);
    }
    d->button->setVisible(isVisible);
}

MButton *DaskelPageHeaderWidget::getButtonWidget() const
{
    return d->button;
}

void DaskelPageHeaderWidget::setSeparatorVisible(bool isVisible)
{
    d->mainLayout->removeItem(d->separator);
    if (isVisible) {
        d->mainLayout->addItem(d->separator);
        d->mainLayout->setAlignment(d->separator, Qt::AlignCenter);
    }
    d->separator->setVisible(isVisible);
}

void DaskelPageHeaderWidget::setSeparatorStyle(const QString &styleName)
{
    d->separator->setStyleName(styleName);
}

void DaskelPageHeaderWidget::setColor(const QColor &color)
{
    d->color = color;
    update();
}

void DaskelPageHeaderWidget::applyStyle()
{
    d->title->setStyleName(style()->labelStyle());
    if (style()->color().isValid())
        d->color = style()->color();
    MStylableWidget::applyStyle();
}

/// The frame of the style, then the colour (fading out downwards when the style says so), then the
/// image. A notebook's colour at full strength stands in a stripe at the leading edge; below the
/// title it is soft, so that the text can be read in both schemes.
void DaskelPageHeaderWidget::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                                   QWidget *widget)
{
    MStylableWidget::paint(painter, option, widget);
    const QRectF frame = rect().marginsRemoved(style()->margins(layoutDirection()));
    if (d->color.isValid()) {
        painter->fillRect(frame, background(frame, softened(d->color), style()->gradient()));
        const bool isMirrored = layoutDirection() == Qt::RightToLeft;
        QRectF stripe(frame.left(), frame.top(), stripeWidth, frame.height());
        if (isMirrored)
            stripe.moveRight(frame.right());
        painter->fillRect(stripe, d->color);
    }
    style()->image().draw(frame, painter, QColor(), layoutDirection());
}
