// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CLOCKGAPS_H
#define MKCAL_CLOCKGAPS_H

#include "zoneclock.h"

#include <QVector>

namespace mKCal
{
/// The stretches of wall clock that a zone skips when its clock is put forward, from 1970 to 2100.
class ClockGaps
{
public:
    /// Found once for each zone and kept. Safe on any thread.
    static ClockGaps of(const QTimeZone &zone);

    bool isEmpty() const { return m_gaps.isEmpty(); }
    /// Whether the wall clock skips @p time on a day of [@p from, @p to].
    bool skip(const QTime &time, Msecs from, Msecs to) const;

private:
    struct Gap {
        Msecs moment;
        qint64 begin; ///< wallSeconds() of the first second that is not shown
        qint64 end; ///< of the first that is shown again
    };
    static QVector<Gap> find(const QTimeZone &zone);

    QVector<Gap> m_gaps;
};
} // namespace mKCal

#endif
