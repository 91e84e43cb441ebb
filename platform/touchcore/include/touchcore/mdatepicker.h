// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MDATEPICKER_H
#define TOUCHCORE_MDATEPICKER_H

#include <touchcore/mstylablewidget.h>

#include <QDate>

class MDatePickerPrivate;

/// A month to choose a day from. The heading leads to the months of the year, for days far away.
///
/// Months, names, digits and the first day of the week are those of the default locale; the picker
/// follows its changes. Arrow keys go by day and week, the page keys by month, Home to today.
class MDatePicker : public MStylableWidget
{
    Q_OBJECT
    Q_PROPERTY(QDate date READ date WRITE setDate NOTIFY dateChanged USER true)

public:
    explicit MDatePicker(QGraphicsItem *parent = nullptr);
    ~MDatePicker() override;

    /// Today when nothing else was set.
    QDate date() const;
    /// Brought into the range, and shown. An invalid date changes nothing.
    void setDate(const QDate &date);

    QDate minimumDate() const;
    QDate maximumDate() const;
    /// An invalid date is no limit. A \a maximum before \a minimum is taken as equal to it.
    void setRange(const QDate &minimum, const QDate &maximum);

    /// The day that is marked: the clock's unless set. An open picker does not follow midnight by
    /// itself.
    QDate today() const;
    void setToday(const QDate &today);

    /// The first day of the month that is shown.
    QDate shownMonth() const;
    void showMonthOf(const QDate &date);

Q_SIGNALS:
    void dateChanged(const QDate &date);
    /// Tapped, also when it was chosen already.
    void dateTapped(const QDate &date);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::unique_ptr<MDatePickerPrivate> d;
};

#endif
