// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MPROGRESSINDICATOR_H
#define TOUCHCORE_MPROGRESSINDICATOR_H

#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetmodel.h>
#include <touchcore/mwidgetview.h>

class MProgressIndicatorViewPrivate;

/// What a progress indicator shows.
class MProgressIndicatorModel : public MWidgetModel
{
    Q_OBJECT
    M_MODEL_PROPERTY(int, minimum, setMinimum, 0)
    M_MODEL_PROPERTY(int, maximum, setMaximum, 100)
    M_MODEL_PROPERTY(int, value, setValue, 0)
    M_MODEL_PROPERTY(bool, unknownDuration, setUnknownDuration, false)
};

/// How far something has come, or that it goes on. The view type chooses the look: none for a thin
/// bar, "spinner" for a ring.
///
/// What goes on moves only while it is on display, and only fades when motion is to be reduced.
class MProgressIndicator : public MWidgetController
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum)
    Q_PROPERTY(int maximum READ maximum)
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(bool unknownDuration READ isUnknownDuration WRITE setUnknownDuration)

public:
    explicit MProgressIndicator(QGraphicsItem *parent = nullptr);
    ~MProgressIndicator() override;

    MProgressIndicatorModel *model() const
    {
        return static_cast<MProgressIndicatorModel *>(MWidgetController::model());
    }

    int minimum() const { return model()->minimum(); }
    int maximum() const { return model()->maximum(); }
    /// A \a maximum below \a minimum is taken as equal to it. The value is brought into the range.
    void setRange(int minimum, int maximum);
    int value() const { return model()->value(); }
    /// Whether nobody knows how long it takes; off by default. The value is not shown then.
    bool isUnknownDuration() const { return model()->unknownDuration(); }
    void setUnknownDuration(bool isUnknown);
    /// 0 to 1; 1 for an empty range.
    qreal fraction() const;

public Q_SLOTS:
    /// Brought into the range.
    void setValue(int value);
};

/// How a progress indicator looks. Lengths are pixels at scale 1.
class MProgressIndicatorStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(QColor, color, setColor, Qt::black)
    M_STYLE_ATTRIBUTE(QColor, trackColor, setTrackColor)
    /// Of the bar, or of the ring's line.
    M_STYLE_ATTRIBUTE(int, thickness, setThickness, 4)
    M_STYLE_ATTRIBUTE(int, spinnerSize, setSpinnerSize, 40)
    /// Of one round of what goes on, in milliseconds.
    M_STYLE_ATTRIBUTE(int, period, setPeriod, 1400)
};

/// The bar.
class MProgressIndicatorView : public MWidgetView
{
    Q_OBJECT
    M_STYLE(MProgressIndicatorStyle)

public:
    explicit MProgressIndicatorView(MProgressIndicator *indicator);
    ~MProgressIndicatorView() override;

    void updateData(const QList<const char *> &modifications) override;
    void drawContents(QPainter *painter) const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;

    /// Whether its timer runs.
    bool isMoving() const;

protected:
    MProgressIndicator *indicator() const;
    /// How far the present round is: 0 to 1.
    qreal phase() const;
    /// The colour that comes and goes, where nothing may move.
    QColor fadedColor() const;
    void timerEvent(QTimerEvent *event) override;

private:
    void startOrStop();

    std::unique_ptr<MProgressIndicatorViewPrivate> d;
};

/// The view type "spinner": a ring that fills, or an arc that goes round.
class MProgressSpinnerView : public MProgressIndicatorView
{
    Q_OBJECT

public:
    explicit MProgressSpinnerView(MProgressIndicator *indicator);
    void drawContents(QPainter *painter) const override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;
};

#endif
