// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TESTENVIRONMENT_H
#define TESTENVIRONMENT_H

#include <systemtime/timesource.h>

#include <QDate>
#include <QLocale>
#include <QPointer>

/// What the outside world says to a test: the zone of the system, the time, the locale, and news of
/// a clock that was set. All is put back at the end.
class TestEnvironment
{
public:
    /// It is noon of @p today.
    explicit TestEnvironment(const QDate &today, const QByteArray &zone = "Europe/Helsinki");
    ~TestEnvironment();
    Q_DISABLE_COPY(TestEnvironment)

    void setToday(const QDate &today);
    /// As if somebody had chosen another zone; nobody is told.
    void setZone(const QByteArray &zone);

    // News, which whoever watches the time gets from the event loop.
    void jumpClock(qint64 seconds);
    void changeZone(const QByteArray &zone);

private:
    const QByteArray m_zoneBefore;
    const QLocale m_localeBefore;
    QPointer<Ostra::Timed::TimeSource> m_source;
};

#endif
