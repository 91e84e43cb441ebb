// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CALENDARCONF_H
#define DASKEL_CALENDARCONF_H

#include <QObject>

#include <memory>

class CalendarConfPrivate;

/// What the person prefers: working days, the first day of the week, reminders, how the calendar
/// opens. Kept in an INI file that other programs may read and write.
///
/// One per process, on the UI thread. Every getter reads what stands in the file, as last read: a
/// change by another process is seen once dataUpdated() has told of it. Every setter stores the
/// value as it is given; the file is written when the event loop is next idle, once for any number
/// of setters, and always whole.
class CalendarConf : public QObject
{
    Q_OBJECT

public:
    /// The one object, made on first use; makes the file with its defaults when there is none.
    static CalendarConf *instance();
    /// Deletes it, which writes what is not written yet; a later instance() makes another one.
    static void destroy();
    ~CalendarConf() override;

    /// Bit `day - 1` is set for each working day, 1 being Monday. Monday to Friday by default.
    int workingDaysMask();
    void setWorkingDaysMask(int mask);
    /// \a day: 1 Monday to 7 Sunday.
    bool workingDay(int day);
    void setWorkingDay(int day, bool on);

    /// 1 Monday to 7 Sunday; the locale's own first day unless a day of the week was chosen.
    int firstDayOfWeek();
    void setFirstDayOfWeek(int day);

    /// Minutes before the start, 15 by default.
    int defaultReminder();
    void setDefaultReminder(int minutes);
    /// Whether new notes ring; they do by default.
    bool hasDefaultReminder();
    void setHasDefaultReminder(bool has);

    bool hideCompletedTodos();
    void setHideCompletedTodos(bool hide);
    bool timeZoneSupportOn();
    void setTimeZoneSupportOn(bool on);

    /// The index of the page that was shown last, 0 by default.
    int lastActiveTab();
    void setLastActiveTab(int tab);

    /// How many days the week view shows as the window is held now: 7 in landscape and 1 in
    /// portrait (and without a window) by default. Each orientation keeps its own number.
    int weekViewDays();
    void setWeekViewDays(int days);

    /// Whether the calendar was never opened before; true by default.
    bool isFirstStart() const;
    void setFirstStartFlag(bool isFirstStart);
    /// Whether the list of notes shows their contents, too.
    bool notesWithContent() const;
    void setNotesWithContent(bool withContent);

Q_SIGNALS:
    /// The settings file changed on disk, by this process or by another one, and was read again.
    void dataUpdated();

public Q_SLOTS:
    void settingsFileChanged(const QString &path);
    void syncSettingsCallback();

private:
    CalendarConf();

    static CalendarConf *mSingleton;
    std::unique_ptr<CalendarConfPrivate> d;
};

#endif
