// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MTIMEPICKER_H
#define TOUCHCORE_MTIMEPICKER_H

#include <touchcore/mstylablewidget.h>

#include <QTime>

class MTimePickerPrivate;

/// Hours and minutes to choose a time from with two taps: all hours, and every fifth minute. The
/// buttons beside the time reach the minutes between.
///
/// It has the clock, digits and words of the default locale, and follows its changes.
class MTimePicker : public MStylableWidget
{
    Q_OBJECT
    Q_PROPERTY(QTime time READ time WRITE setTime NOTIFY timeChanged USER true)

public:
    explicit MTimePicker(QGraphicsItem *parent = nullptr);
    ~MTimePicker() override;

    /// Whole minutes; midnight when nothing else was set.
    QTime time() const;
    /// Seconds are dropped. An invalid time changes nothing.
    void setTime(const QTime &time);

    /// Whether it shows twelve hours twice.
    bool isTwelveHours() const;

Q_SIGNALS:
    void timeChanged(const QTime &time);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::unique_ptr<MTimePickerPrivate> d;
};

#endif
