// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CLOCKCHANGES_H
#define MKCAL_CLOCKCHANGES_H

#include "zoneclock.h"

#include <QVector>

namespace mKCal
{
/// The stretches of wall clock that a zone leaves out when its clock is put forward and shows twice
/// when it is put back, from 1970 to 2100.
class ClockChanges
{
public:
    /// Found once for each zone and kept. Safe on any thread.
    static ClockChanges of(const QTimeZone &zone);

    bool isEmpty() const { return m_changes.isEmpty(); }
    /// Whether the wall clock leaves @p time out, or shows it twice, on a day of [@p from, @p to].
    bool concern(const QTime &time, Msecs from, Msecs to) const;

private:
    struct Change {
        Msecs moment;
        qint64 begin; ///< wallSeconds() of the first second left out or shown twice
        qint64 end; ///< of the first after these
    };
    static QVector<Change> find(const QTimeZone &zone);

    QVector<Change> m_changes;
};
} // namespace mKCal

#endif
