// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CALENDARCONF_P_H
#define DASKEL_CALENDARCONF_P_H

#include <daskel/calendarconf.h>

#include <QFileSystemWatcher>
#include <QSettings>
#include <QTimer>

#include <memory>

class CalendarConfPrivate
{
public:
    explicit CalendarConfPrivate(CalendarConf *conf);

    QVariant value(const QString &key, const QVariant &defaultValue) const;
    /// Stores the value and has the file written when the event loop is next idle.
    void setValue(const QString &key, const QVariant &value);
    void writeDefaults();
    /// A file that is replaced is another file to the watcher, and one that is missing no file at
    /// all: then the folder is watched until it is back.
    void watchFile();
    /// Reads what others wrote and writes what is new here.
    void sync();
    /// Says so when the file cannot be read; the values are the defaults then.
    void warnWhenUnreadable() const;

    std::unique_ptr<QSettings> settings;
    std::unique_ptr<QFileSystemWatcher> watcher;
    std::unique_ptr<QTimer> timer;
    CalendarConf *q;
};

#endif
