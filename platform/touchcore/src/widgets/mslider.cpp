// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mslider.h>

#include <QApplication>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QStyleHints>

#include <cmath>

class MSliderPrivate
{
public:
    int step = 1;
    bool isHeld = false;
    bool isSliding = false;
    int valueBefore = 0;
    int toldValue = 0;
};

namespace
{
const int stepsOfPage = 10;
}

MSlider::MSlider(QGraphicsItem *parent)
    : MWidgetController(new MSliderModel, parent), d(std::make_unique<MSliderPrivate>())
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(model(), &MWidgetModel::modified, this, [this] {
        if (d->toldValue == value())
            return;
        d->toldValue = value();
        Q_EMIT valueChanged(d->toldValue);
    });
}

MSlider::~MSlider() = default;

int MSlider::minimum() const
{
    return model()->minimum();
}

int MSlider::maximum() const
{
    return model()->maximum();
}

void MSlider::setRange(int minimum, int maximum)
{
    const MModelTransaction transaction(model());
    model()->setMinimum(minimum);
    model()->setMaximum(qMax(minimum, maximum));
    setValue(value());
}

int MSlider::value() const
{
    return model()->value();
}

void MSlider::setValue(int value)
{
    model()->setValue(qBound(minimum(), value, maximum()));
}

int MSlider::step() const
{
    return d->step;
}

void MSlider::setStep(int step)
{
    d->step = qMax(1, step);
}

void MSlider::slideTo(qreal x)
{
    const auto *line = qobject_cast<MSliderView *>(view());
    if (!line)
        return;
    const double way = line->fractionAt(x) * (double(maximum()) - minimum());
    setValue(int(minimum() + std::round(way / d->step) * d->step));
}

void MSlider::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (!event->isAccepted())
        return;
    d->isHeld = true;
    d->isSliding = false;
    d->valueBefore = value();
    model()->setDown(true);
}

void MSlider::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (!d->isHeld)
        return;
    const qreal way = event->pos().x() - event->buttonDownPos(Qt::LeftButton).x();
    if (std::abs(way) >= QGuiApplication::styleHints()->startDragDistance() / 2.0)
        d->isSliding = true;
    if (d->isSliding)
        slideTo(event->pos().x());
}

void MSlider::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (!d->isHeld)
        return;
    d->isHeld = false;
    slideTo(event->pos().x());
    model()->setDown(false);
}

void MSlider::keyPressEvent(QKeyEvent *event)
{
    const int forward = layoutDirection() == Qt::LeftToRight ? d->step : -d->step;
    switch (event->key()) {
    case Qt::Key_Right:
        return setValue(value() + forward);
    case Qt::Key_Left:
        return setValue(value() - forward);
    case Qt::Key_Up:
        return setValue(value() + d->step);
    case Qt::Key_Down:
        return setValue(value() - d->step);
    case Qt::Key_PageUp:
        return setValue(value() + d->step * stepsOfPage);
    case Qt::Key_PageDown:
        return setValue(value() - d->step * stepsOfPage);
    case Qt::Key_Home:
        return setValue(minimum());
    case Qt::Key_End:
        return setValue(maximum());
    default:
        MWidgetController::keyPressEvent(event);
    }
}

void MSlider::ungrabMouseEvent(QEvent *event)
{
    cancelEvent();
    MWidgetController::ungrabMouseEvent(event);
}

void MSlider::cancelEvent()
{
    if (!d->isHeld)
        return;
    d->isHeld = false;
    setValue(d->valueBefore);
    model()->setDown(false);
}
