// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localmonth.h"

#include <touchcore/mbutton.h>
#include <touchcore/mcalendar.h>
#include <touchcore/mcellgrid.h>
#include <touchcore/mdatepicker.h>

#include <QGraphicsLinearLayout>
#include <QKeyEvent>

namespace
{
const int daysInWeek = 7;
/// As many as the longest month can touch, so that nothing below moves from month to month.
const int weeks = 6;
const int monthColumns = 3;
/// Any Monday: the names of the days begin with it.
const QDate someMonday(2026, 11, 2);
} // namespace

class MDatePickerPrivate
{
public:
    explicit MDatePickerPrivate(MDatePicker *picker);

    bool isAllowed(const QDate &day) const
    {
        return !(minimum.isValid() && day < minimum) && !(maximum.isValid() && day > maximum);
    }
    QDate bounded(const QDate &day) const;
    /// Shows the month or year again, after anything changed.
    void refresh();
    void showDays();
    void showMonths();
    void turn(int direction);
    /// The same day of the next month, or of the one before; its last one when it has fewer.
    QDate dayInMonth(int direction) const;
    void tap(int cell);
    void reach(int cell);

    MDatePicker *q;
    MButton *previous;
    MButton *title;
    MButton *next;
    MCellGrid *grid;
    QDate date = QDate::currentDate();
    QDate today = date;
    QDate minimum;
    QDate maximum;
    QDate month;
    bool areMonthsShown = false;
    QDate firstCell; ///< while days are shown
};

MDatePickerPrivate::MDatePickerPrivate(MDatePicker *picker)
    : q(picker), previous(new MButton(q)), title(new MButton(q)), next(new MButton(q)),
      grid(new MCellGrid(daysInWeek, q)), month(LocalMonth::monthOf(date))
{
    previous->setIconID(QStringLiteral("chevron-left"));
    next->setIconID(QStringLiteral("chevron-right"));
    for (MButton *arrow : {previous, next})
        arrow->setViewType(QStringLiteral("icon"));
    title->setStyleName(QStringLiteral("HeadingButton"));
    auto *heading = new QGraphicsLinearLayout(Qt::Horizontal);
    heading->setContentsMargins(0, 0, 0, 0);
    heading->setSpacing(0);
    heading->addItem(previous);
    heading->addItem(title);
    heading->addItem(next);
    heading->setStretchFactor(title, 1);
    auto *column = new QGraphicsLinearLayout(Qt::Vertical, q);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addItem(heading);
    column->addItem(grid);
    column->setStretchFactor(grid, 1);
    QObject::connect(previous, &MButton::clicked, q, [this] { turn(-1); });
    QObject::connect(next, &MButton::clicked, q, [this] { turn(1); });
    QObject::connect(title, &MButton::clicked, q, [this] {
        areMonthsShown = !areMonthsShown;
        refresh();
    });
    QObject::connect(grid, &MCellGrid::cellClicked, q, [this](int cell) { tap(cell); });
    QObject::connect(grid, &MCellGrid::cellReached, q, [this](int cell) { reach(cell); });
    QObject::connect(&MLocale::getDefault(), &MLocale::settingsChanged, q, [this] {
        month = LocalMonth::monthOf(date);
        refresh();
    });
}

QDate MDatePickerPrivate::bounded(const QDate &day) const
{
    if (maximum.isValid() && day > maximum)
        return maximum;
    return minimum.isValid() && day < minimum ? minimum : day;
}

void MDatePickerPrivate::refresh()
{
    const QVector<QDate> shown =
        areMonthsShown ? LocalMonth::monthsOfYear(month) : QVector<QDate>{month};
    const QDate before = shown.first().addDays(-1);
    const QDate after = LocalMonth::nextMonth(shown.last());
    previous->setEnabled(!minimum.isValid() || before >= minimum);
    next->setEnabled(!maximum.isValid() || after <= maximum);
    if (areMonthsShown)
        showMonths();
    else
        showDays();
}

void MDatePickerPrivate::showDays()
{
    const int firstDay = MCalendar().firstDayOfWeek();
    const QDate nextMonth = LocalMonth::nextMonth(month);
    const int before = (month.dayOfWeek() - firstDay + daysInWeek) % daysInWeek;
    firstCell = month.addDays(-before);
    QStringList headings;
    for (int i = 0; i < daysInWeek; ++i)
        headings.append(
            LocalMonth::text(someMonday.addDays(firstDay - 1 + i), QStringLiteral("ccccc")));
    QVector<MCellGrid::Cell> cells(daysInWeek * weeks);
    const QString spoken = MLocale::getDefault().icuPatternFor(QStringLiteral("yMMMMEEEEd"));
    for (int i = 0; i < cells.size(); ++i) {
        const QDate day = firstCell.addDays(i);
        cells[i].text = LocalMonth::text(day, QStringLiteral("d"));
        cells[i].spokenText = LocalMonth::text(day, spoken);
        cells[i].isDimmed = day < month || day >= nextMonth;
        cells[i].isMarked = day == today;
        cells[i].isEnabled = isAllowed(day);
    }
    title->setText(LocalMonth::title(month));
    grid->setStyleName(QString());
    grid->setColumns(daysInWeek);
    grid->setHeadings(headings);
    grid->setCells(cells);
    grid->setChosen(int(firstCell.daysTo(date)));
}

void MDatePickerPrivate::showMonths()
{
    const QVector<QDate> months = LocalMonth::monthsOfYear(month);
    const QDate todaysMonth = LocalMonth::monthOf(today);
    QVector<MCellGrid::Cell> cells;
    for (const QDate &each : months) {
        MCellGrid::Cell cell;
        cell.text = LocalMonth::text(each, QStringLiteral("LLL"));
        cell.spokenText = LocalMonth::title(each);
        cell.isMarked = each == todaysMonth;
        cell.isEnabled = bounded(each) == each || LocalMonth::monthOf(bounded(each)) == each;
        cells.append(cell);
    }
    title->setText(
        LocalMonth::text(month, MLocale::getDefault().icuPatternFor(QStringLiteral("y"))));
    grid->setStyleName(QStringLiteral("MonthGrid"));
    grid->setColumns(monthColumns);
    grid->setHeadings({});
    grid->setCells(cells);
    grid->setChosen(months.indexOf(month));
}

void MDatePickerPrivate::turn(int direction)
{
    if (areMonthsShown)
        month = LocalMonth::monthInYear(month, direction);
    else
        month = direction > 0 ? LocalMonth::nextMonth(month) : LocalMonth::previousMonth(month);
    refresh();
}

void MDatePickerPrivate::tap(int cell)
{
    if (areMonthsShown) {
        month = LocalMonth::monthsOfYear(month).at(cell);
        areMonthsShown = false;
        refresh();
        return;
    }
    const QDate day = firstCell.addDays(cell);
    q->setDate(day);
    Q_EMIT q->dateTapped(day);
}

void MDatePickerPrivate::reach(int cell)
{
    if (!areMonthsShown) {
        q->setDate(firstCell.addDays(cell));
        return;
    }
    month = LocalMonth::monthsOfYear(month).at(cell);
    refresh();
}

QDate MDatePickerPrivate::dayInMonth(int direction) const
{
    const QDate own = LocalMonth::monthOf(date);
    const QDate wanted =
        direction > 0 ? LocalMonth::nextMonth(own) : LocalMonth::previousMonth(own);
    return qMin(wanted.addDays(own.daysTo(date)), LocalMonth::nextMonth(wanted).addDays(-1));
}

MDatePicker::MDatePicker(QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MDatePickerPrivate>(this))
{
    d->refresh();
}

MDatePicker::~MDatePicker() = default;

QDate MDatePicker::date() const
{
    return d->date;
}

void MDatePicker::setDate(const QDate &date)
{
    if (!date.isValid())
        return;
    const QDate earlier = d->date;
    d->date = d->bounded(date);
    showMonthOf(d->date);
    if (d->date != earlier)
        Q_EMIT dateChanged(d->date);
}

QDate MDatePicker::minimumDate() const
{
    return d->minimum;
}

QDate MDatePicker::maximumDate() const
{
    return d->maximum;
}

void MDatePicker::setRange(const QDate &minimum, const QDate &maximum)
{
    d->minimum = minimum;
    d->maximum = maximum.isValid() && minimum.isValid() ? qMax(minimum, maximum) : maximum;
    setDate(d->date);
}

QDate MDatePicker::today() const
{
    return d->today;
}

void MDatePicker::setToday(const QDate &today)
{
    d->today = today;
    d->refresh();
}

QDate MDatePicker::shownMonth() const
{
    return d->month;
}

void MDatePicker::showMonthOf(const QDate &date)
{
    if (!date.isValid())
        return;
    d->month = LocalMonth::monthOf(date);
    d->areMonthsShown = false;
    d->refresh();
}

void MDatePicker::keyPressEvent(QKeyEvent *event)
{
    const int days = d->areMonthsShown ? 0 : d->grid->cellsOf(*event);
    if (days != 0)
        setDate(d->date.addDays(days));
    else if (event->key() == Qt::Key_PageDown)
        setDate(d->dayInMonth(1));
    else if (event->key() == Qt::Key_PageUp)
        setDate(d->dayInMonth(-1));
    else if (event->key() == Qt::Key_Home)
        setDate(d->today);
    else
        MStylableWidget::keyPressEvent(event);
}
