// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef KCALCOMPAT_SYSTEMCLOCK_P_H
#define KCALCOMPAT_SYSTEMCLOCK_P_H

#include <QDateTime>
#include <QVector>

class QTimeZone;

namespace KCalCompat
{
/// The clock that the C library shows, looked at through two years.
class SystemClock
{
public:
    SystemClock();

    /// The name of the zone whose clock comes nearest, when the one that Qt takes for the system's
    /// shows another time; null when Qt is right, or when no zone is like it at all.
    QByteArray standIn() const;

private:
    struct Look {
        QDateTime moment; ///< UTC
        int offset; ///< seconds that the clock is ahead of it
    };

    /// Looks an hour before and after the change between two looks.
    void lookAtChange(const Look &before, const Look &after);
    /// At how many of the looks a clock in @p zone shows the same.
    int agreement(const QTimeZone &zone) const;
    /// Null when the clock is put forward or back.
    QByteArray fixedZone() const;
    QByteArray nearestZone() const;

    QVector<Look> m_noons;
    QVector<Look> m_changes;
};
} // namespace KCalCompat

#endif
