// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>
#include <touchcore/mcellgrid.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlocale.h>
#include <touchcore/mtimepicker.h>

#include <QDateTime>
#include <QGraphicsLinearLayout>
#include <QKeyEvent>
#include <QRegularExpression>

namespace
{
const int columns = 6;
const int minutesOfCell = 5;
const int secondsOfMinute = 60;
const int minutesOfHour = 60;
const int halfDay = 12;

QString text(const QTime &time, const QString &pattern)
{
    return MLocale::getDefault().formatDateTimeICU(QDateTime(QDate(2026, 1, 1), time, Qt::UTC),
                                                   pattern);
}

/// What stands between hour and minute, so that a minute is not taken for an hour.
QString separator()
{
    static const QRegularExpression between(QStringLiteral("[HhKk]([^\\w\\s]+)m"));
    const QString pattern =
        MLocale::getDefault().icuFormatString(MLocale::DateNone, MLocale::TimeShort);
    const QString found = between.match(pattern).captured(1);
    return found.isEmpty() ? QStringLiteral(":") : found;
}
} // namespace

class MTimePickerPrivate
{
public:
    explicit MTimePickerPrivate(MTimePicker *picker);

    void connectParts();
    /// Makes the cells for the clock of the locale.
    void rebuild();
    void showTime();
    void setHour(int cell);
    /// Goes on, or back, over midnight, too.
    void addMinutes(int count) { q->setTime(time.addSecs(count * secondsOfMinute)); }

    MTimePicker *q;
    MLabel *shown;
    MButton *earlier;
    MButton *later;
    QGraphicsLinearLayout *column;
    MStylableWidget *halves; ///< in the column where the clock has twelve hours
    MButtonGroup *half;
    MCellGrid *hours;
    MCellGrid *minutes;
    QTime time = QTime(0, 0);
    bool isTwelveHours = false;
};

MTimePickerPrivate::MTimePickerPrivate(MTimePicker *picker)
    : q(picker), shown(new MLabel(q)), earlier(new MButton(q)), later(new MButton(q)),
      column(new QGraphicsLinearLayout(Qt::Vertical, q)), halves(new MStylableWidget(q)),
      half(new MButtonGroup(q)), hours(new MCellGrid(columns, q)),
      minutes(new MCellGrid(columns, q))
{
    shown->setStyleName(QStringLiteral("DisplayLabel"));
    shown->setAlignment(Qt::AlignCenter);
    earlier->setIconID(QStringLiteral("remove"));
    later->setIconID(QStringLiteral("add"));
    auto *heading = new QGraphicsLinearLayout(Qt::Horizontal);
    heading->setContentsMargins(0, 0, 0, 0);
    heading->setSpacing(0);
    for (MButton *button : {earlier, later})
        button->setViewType(QStringLiteral("icon"));
    heading->addItem(earlier);
    heading->addItem(shown);
    heading->addItem(later);
    heading->setStretchFactor(shown, 1);
    heading->setAlignment(shown, Qt::AlignVCenter);
    auto *segments = new QGraphicsLinearLayout(Qt::Horizontal, halves);
    segments->setContentsMargins(0, 0, 0, 0);
    segments->setSpacing(0);
    for (int id : {0, 1}) {
        auto *button = new MButton(halves);
        button->setViewType(QStringLiteral("group"));
        half->addButton(button, id);
        segments->addItem(button);
    }
    column->setContentsMargins(0, 0, 0, 0);
    column->addItem(heading);
    column->addItem(hours);
    column->addItem(minutes);
    for (MCellGrid *grid : {hours, minutes})
        grid->setStyleName(QStringLiteral("TimeGrid"));
    connectParts();
}

void MTimePickerPrivate::connectParts()
{
    QObject::connect(earlier, &MButton::clicked, q, [this] { addMinutes(-1); });
    QObject::connect(later, &MButton::clicked, q, [this] { addMinutes(1); });
    QObject::connect(half, &MButtonGroup::buttonClicked, q, [this](int id) {
        q->setTime(QTime(time.hour() % halfDay + id * halfDay, time.minute()));
    });
    const auto setHourOf = [this](int cell) { setHour(cell); };
    const auto setMinuteOf = [this](int cell) {
        q->setTime(QTime(time.hour(), cell * minutesOfCell));
    };
    for (auto tapOrKey : {&MCellGrid::cellClicked, &MCellGrid::cellReached}) {
        QObject::connect(hours, tapOrKey, q, setHourOf);
        QObject::connect(minutes, tapOrKey, q, setMinuteOf);
    }
    QObject::connect(&MLocale::getDefault(), &MLocale::settingsChanged, q, [this] { rebuild(); });
}

void MTimePickerPrivate::rebuild()
{
    const MLocale &locale = MLocale::getDefault();
    const MLocale::TimeFormat24h chosen = locale.timeFormat24h();
    isTwelveHours =
        (chosen == MLocale::LocaleDefaultTimeFormat24h ? locale.defaultTimeFormat24h() : chosen)
        == MLocale::TwelveHourTimeFormat24h;
    QVector<MCellGrid::Cell> cells(isTwelveHours ? halfDay : 2 * halfDay);
    const QString hour = isTwelveHours ? QStringLiteral("h") : QStringLiteral("HH");
    for (int i = 0; i < cells.size(); ++i)
        cells[i].text = text(QTime(i, 0), hour);
    hours->setCells(cells);
    cells.resize(minutesOfHour / minutesOfCell);
    for (int i = 0; i < cells.size(); ++i)
        cells[i].text = separator() + text(QTime(0, i * minutesOfCell), QStringLiteral("mm"));
    minutes->setCells(cells);
    for (int id : {0, 1})
        half->button(id)->setText(text(QTime(id * halfDay, 0), QStringLiteral("a")));
    column->removeItem(halves);
    if (isTwelveHours)
        column->insertItem(1, halves);
    halves->setVisible(isTwelveHours);
    showTime();
}

void MTimePickerPrivate::showTime()
{
    shown->setText(
        text(time, MLocale::getDefault().icuFormatString(MLocale::DateNone, MLocale::TimeShort)));
    half->setCheckedId(time.hour() / halfDay);
    hours->setChosen(isTwelveHours ? time.hour() % halfDay : time.hour());
    minutes->setChosen(time.minute() % minutesOfCell == 0 ? time.minute() / minutesOfCell : -1);
}

void MTimePickerPrivate::setHour(int cell)
{
    const int first = isTwelveHours ? time.hour() / halfDay * halfDay : 0;
    q->setTime(QTime(first + cell, time.minute()));
}

MTimePicker::MTimePicker(QGraphicsItem *parent)
    : MStylableWidget(parent), d(std::make_unique<MTimePickerPrivate>(this))
{
    d->rebuild();
}

MTimePicker::~MTimePicker() = default;

QTime MTimePicker::time() const
{
    return d->time;
}

void MTimePicker::setTime(const QTime &time)
{
    const QTime minute(time.hour(), time.minute());
    if (!minute.isValid() || minute == d->time)
        return;
    d->time = minute;
    d->showTime();
    Q_EMIT timeChanged(minute);
}

bool MTimePicker::isTwelveHours() const
{
    return d->isTwelveHours;
}

void MTimePicker::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        return d->addMinutes(1);
    case Qt::Key_Minus:
        return d->addMinutes(-1);
    case Qt::Key_PageDown:
        return d->addMinutes(minutesOfHour);
    case Qt::Key_PageUp:
        return d->addMinutes(-minutesOfHour);
    default:
        MStylableWidget::keyPressEvent(event);
    }
}
