// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarconf_p.h"
#include "daskelassert.h"

#include <daskel/daskellocale.h>
#include <touchcore/mapplication.h>
#include <touchcore/mcalendar.h>
#include <touchcore/mscenemanager.h>
#include <touchcore/mwindow.h>

#include <QFileInfo>

#include <utility>

namespace
{
/// Made once: a setting is read each time anew.
namespace Key
{
const QString workingDaysMask = QStringLiteral("working_days_mask");
const QString firstDayOfWeek = QStringLiteral("first_day_of_week");
const QString defaultReminder = QStringLiteral("default_reminder");
const QString hasDefaultReminder = QStringLiteral("has_default_reminder");
const QString hideCompletedTodos = QStringLiteral("hide_completed_todos");
const QString timeZoneSupport = QStringLiteral("timezone_support");
const QString lastActiveTab = QStringLiteral("last_active_tab");
const QString weekViewDaysLandscape = QStringLiteral("week_view_days_l");
const QString weekViewDaysPortrait = QStringLiteral("week_view_days_p");
const QString firstRun = QStringLiteral("first_run");
const QString notesContent = QStringLiteral("notes_content");
} // namespace Key

constexpr int notChosen = -1;
constexpr int mondayToFriday = 31;

struct WeekView {
    QString key;
    int defaultDays;
};

WeekView weekViewAsHeld()
{
    MWindow *window = MApplication::activeApplicationWindow();
    const bool isLandscape = window && window->sceneManager()->orientation() == M::Landscape;
    return isLandscape ? WeekView{Key::weekViewDaysLandscape, 7}
                       : WeekView{Key::weekViewDaysPortrait, 1};
}

std::unique_ptr<QSettings> newSettings()
{
    return std::make_unique<QSettings>(QStringLiteral("Velmor"), QStringLiteral("daskel_settings"));
}

/// Weekday 0, a fault of the caller, takes the bit that no weekday has.
uint bitOf(int day)
{
    return 1U << (uint(day - 1) % 32U);
}
} // namespace

CalendarConfPrivate::CalendarConfPrivate(CalendarConf *conf)
    : settings(newSettings()), watcher(std::make_unique<QFileSystemWatcher>()),
      timer(std::make_unique<QTimer>()), q(conf)
{
    timer->setInterval(0);
    timer->setSingleShot(true);
    if (!QFileInfo::exists(settings->fileName()))
        writeDefaults();
    warnWhenUnreadable();
    watchFile();
    QObject::connect(watcher.get(), &QFileSystemWatcher::fileChanged, q,
                     &CalendarConf::settingsFileChanged);
    QObject::connect(watcher.get(), &QFileSystemWatcher::directoryChanged, q, [this] {
        if (QFileInfo::exists(settings->fileName()))
            q->settingsFileChanged(settings->fileName());
    });
    QObject::connect(timer.get(), &QTimer::timeout, q, &CalendarConf::syncSettingsCallback);
}

QVariant CalendarConfPrivate::value(const QString &key, const QVariant &defaultValue) const
{
    return settings->value(key, defaultValue);
}

void CalendarConfPrivate::setValue(const QString &key, const QVariant &value)
{
    settings->setValue(key, value);
    if (!timer->isActive())
        timer->start();
}

/// The default of the reminder's minutes lives in its getter alone.
void CalendarConfPrivate::writeDefaults()
{
    const std::pair<QString, QVariant> defaults[] = {
        {Key::timeZoneSupport, false},
        {Key::firstDayOfWeek, notChosen},
        {Key::workingDaysMask, notChosen},
        {Key::hideCompletedTodos, false},
        {Key::hasDefaultReminder, true},
        {Key::lastActiveTab, 0},
        {Key::weekViewDaysLandscape, 7},
        {Key::weekViewDaysPortrait, 1},
        {Key::firstRun, true},
        {Key::notesContent, false},
    };
    for (const auto &[key, value] : defaults)
        settings->setValue(key, value);
    settings->sync();
}

void CalendarConfPrivate::watchFile()
{
    const QString file = settings->fileName();
    const QString folder = QFileInfo(file).path();
    if (watcher->files().contains(file) || watcher->addPath(file))
        watcher->removePath(folder);
    else
        watcher->addPath(folder);
}

void CalendarConfPrivate::sync()
{
    // What once went wrong stays the status of the object for good.
    if (settings->status() != QSettings::NoError)
        settings = newSettings();
    settings->sync();
    warnWhenUnreadable();
}

void CalendarConfPrivate::warnWhenUnreadable() const
{
    // Looks at each line: by itself the settings object does so only when a value is asked for.
    settings->allKeys();
    if (settings->status() == QSettings::NoError)
        return;
    const char *reason = settings->status() == QSettings::AccessError
        ? "it cannot be read or written"
        : "it is not a settings file";
    qWarning("The settings in %s do not count: %s.", qUtf8Printable(settings->fileName()), reason);
}

CalendarConf *CalendarConf::mSingleton = nullptr;

CalendarConf *CalendarConf::instance()
{
    if (!mSingleton)
        mSingleton = new CalendarConf;
    return mSingleton;
}

void CalendarConf::destroy()
{
    delete std::exchange(mSingleton, nullptr);
}

CalendarConf::CalendarConf() : d(std::make_unique<CalendarConfPrivate>(this)) { }

CalendarConf::~CalendarConf() = default;

int CalendarConf::workingDaysMask()
{
    const int mask = d->value(Key::workingDaysMask, notChosen).toInt();
    return mask == notChosen ? mondayToFriday : mask;
}

void CalendarConf::setWorkingDaysMask(int mask)
{
    d->setValue(Key::workingDaysMask, mask);
}

bool CalendarConf::workingDay(int day)
{
    DASKEL_ASSERT(day > 0, "calendarconf", 166);
    return (uint(workingDaysMask()) & bitOf(day)) != 0;
}

void CalendarConf::setWorkingDay(int day, bool on)
{
    DASKEL_ASSERT(day > 0, "calendarconf", 175);
    const uint mask = uint(workingDaysMask());
    setWorkingDaysMask(int(on ? mask | bitOf(day) : mask & ~bitOf(day)));
}

int CalendarConf::firstDayOfWeek()
{
    const MCalendar &calendar = DaskelLocale::sharedCalendar();
    const int chosen = d->value(Key::firstDayOfWeek, notChosen).toInt();
    return chosen > 0 && chosen <= calendar.daysInWeek() ? chosen : calendar.firstDayOfWeek();
}

void CalendarConf::setFirstDayOfWeek(int day)
{
    d->setValue(Key::firstDayOfWeek, day);
}

int CalendarConf::defaultReminder()
{
    return d->value(Key::defaultReminder, 15).toInt();
}

void CalendarConf::setDefaultReminder(int minutes)
{
    d->setValue(Key::defaultReminder, minutes);
}

bool CalendarConf::hasDefaultReminder()
{
    return d->value(Key::hasDefaultReminder, true).toBool();
}

void CalendarConf::setHasDefaultReminder(bool has)
{
    d->setValue(Key::hasDefaultReminder, has);
}

bool CalendarConf::hideCompletedTodos()
{
    return d->value(Key::hideCompletedTodos, false).toBool();
}

void CalendarConf::setHideCompletedTodos(bool hide)
{
    d->setValue(Key::hideCompletedTodos, hide);
}

bool CalendarConf::timeZoneSupportOn()
{
    return d->value(Key::timeZoneSupport, false).toBool();
}

void CalendarConf::setTimeZoneSupportOn(bool on)
{
    d->setValue(Key::timeZoneSupport, on);
}

int CalendarConf::lastActiveTab()
{
    return d->value(Key::lastActiveTab, 0).toInt();
}

void CalendarConf::setLastActiveTab(int tab)
{
    d->setValue(Key::lastActiveTab, tab);
}

int CalendarConf::weekViewDays()
{
    const WeekView view = weekViewAsHeld();
    return d->value(view.key, view.defaultDays).toInt();
}

void CalendarConf::setWeekViewDays(int days)
{
    d->setValue(weekViewAsHeld().key, days);
}

bool CalendarConf::isFirstStart() const
{
    return d->value(Key::firstRun, true).toBool();
}

void CalendarConf::setFirstStartFlag(bool isFirstStart)
{
    d->setValue(Key::firstRun, isFirstStart);
}

bool CalendarConf::notesWithContent() const
{
    return d->value(Key::notesContent, false).toBool();
}

void CalendarConf::setNotesWithContent(bool withContent)
{
    d->setValue(Key::notesContent, withContent);
}

void CalendarConf::settingsFileChanged(const QString &)
{
    // Watched again before it is read: what is written in between is told of, too.
    d->watchFile();
    d->sync();
    Q_EMIT dataUpdated();
}

void CalendarConf::syncSettingsCallback()
{
    d->sync();
    d->watchFile();
}
