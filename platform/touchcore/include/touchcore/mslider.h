// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MSLIDER_H
#define TOUCHCORE_MSLIDER_H

#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetmodel.h>
#include <touchcore/mwidgetview.h>

class MSliderPrivate;

/// What a slider shows.
class MSliderModel : public MWidgetModel
{
    Q_OBJECT
    M_MODEL_PROPERTY(int, minimum, setMinimum, 0)
    M_MODEL_PROPERTY(int, maximum, setMaximum, 100)
    M_MODEL_PROPERTY(int, value, setValue, 0)
    M_MODEL_PROPERTY(bool, down, setDown, false)
};

/// A value between two ends, set by sliding a thumb along a line or by tapping the line.
///
/// The start of the line is the least value. Sliding begins with a movement along the line, so that
/// a list can be panned over a slider; a touch that is taken over gives the earlier value back.
class MSlider : public MWidgetController
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum)
    Q_PROPERTY(int maximum READ maximum)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int step READ step WRITE setStep)

public:
    explicit MSlider(QGraphicsItem *parent = nullptr);
    ~MSlider() override;

    MSliderModel *model() const { return static_cast<MSliderModel *>(MWidgetController::model()); }

    int minimum() const;
    int maximum() const;
    /// A \a maximum below \a minimum is taken as equal to it. The value is brought into the range.
    void setRange(int minimum, int maximum);
    int value() const;
    /// What an arrow key adds or takes, and the distance of the values that can be set by finger,
    /// counted from the minimum; from 1. The page keys move by ten of them.
    int step() const;
    void setStep(int step);

public Q_SLOTS:
    /// Brought into the range.
    void setValue(int value);

Q_SIGNALS:
    void valueChanged(int value);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void cancelEvent() override;

private:
    void slideTo(qreal x);

    std::unique_ptr<MSliderPrivate> d;
};

/// How a slider looks. Lengths are pixels at scale 1.
class MSliderStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(int, trackHeight, setTrackHeight, 4)
    /// The line before and behind the thumb.
    M_STYLE_ATTRIBUTE(QColor, filledColor, setFilledColor, Qt::black)
    M_STYLE_ATTRIBUTE(QColor, trackColor, setTrackColor, Qt::lightGray)
    M_STYLE_ATTRIBUTE(int, thumbSize, setThumbSize, 20)
    M_STYLE_ATTRIBUTE(QColor, thumbColor, setThumbColor, Qt::black)
    /// The soft disc around the thumb while it is held.
    M_STYLE_ATTRIBUTE(int, haloSize, setHaloSize, 40)
    M_STYLE_ATTRIBUTE(QColor, haloColor, setHaloColor)
};

/// The line with its thumb.
class MSliderView : public MWidgetView
{
    Q_OBJECT
    M_STYLE(MSliderStyle)

public:
    explicit MSliderView(MSlider *slider);

    /// The middle of the thumb at the present value, in the coordinates of the slider.
    QPointF thumbPosition() const;
    /// How far along the line \a x is: 0 at its start, 1 at its end.
    qreal fractionAt(qreal x) const;

    void drawContents(QPainter *painter) const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;

private:
    QRectF track() const;
};

#endif
