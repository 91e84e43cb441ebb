// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mprogressindicator.h>

MProgressIndicator::MProgressIndicator(QGraphicsItem *parent)
    : MWidgetController(new MProgressIndicatorModel, parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

MProgressIndicator::~MProgressIndicator() = default;

void MProgressIndicator::setRange(int minimum, int maximum)
{
    const MModelTransaction transaction(model());
    model()->setMinimum(minimum);
    model()->setMaximum(qMax(minimum, maximum));
    setValue(value());
}

void MProgressIndicator::setValue(int value)
{
    model()->setValue(qBound(minimum(), value, maximum()));
}

void MProgressIndicator::setUnknownDuration(bool isUnknown)
{
    model()->setUnknownDuration(isUnknown);
}

qreal MProgressIndicator::fraction() const
{
    const double range = double(maximum()) - minimum();
    return range > 0 ? (double(value()) - minimum()) / range : 1.0;
}
