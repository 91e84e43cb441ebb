// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_TIMED_P_H
#define SYSTEMTIME_TIMED_P_H

#include <QTimer>

#include <memory>

namespace Ostra
{
namespace Timed
{
class TimeSource;

class InterfacePrivate
{
public:
    std::unique_ptr<TimeSource> source;
    /// Fires in the next turn of the event loop: what came until then is one notice.
    QTimer turn;
    qint64 jumpedSeconds = 0;
    bool zoneChanged = false;
};
} // namespace Timed
} // namespace Ostra

#endif
