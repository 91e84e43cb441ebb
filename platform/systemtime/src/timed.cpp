// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "timed_p.h"

#include <systemtime/timed.h>
#include <systemtime/timesource.h>

#include <QtGlobal>

#include <utility>

namespace Ostra
{
namespace Timed
{
Interface::Interface(QObject *parent) : Interface(TimeSource::make(), parent) { }

Interface::Interface(std::unique_ptr<TimeSource> source, QObject *parent)
    : QObject(parent), d(std::make_unique<InterfacePrivate>())
{
    qRegisterMetaType<WallClock::Info>();
    d->source = std::move(source);
    d->turn.setSingleShot(true);
    connect(d->source.get(), &TimeSource::clockJumped, this, [this](qint64 seconds) {
        d->jumpedSeconds += seconds;
        d->turn.start(0);
    });
    connect(d->source.get(), &TimeSource::zoneChanged, this, [this] {
        d->zoneChanged = true;
        d->turn.start(0);
    });
    connect(&d->turn, &QTimer::timeout, this, [this] {
        const qint64 jumped = std::exchange(d->jumpedSeconds, 0);
        const bool zoneChanged = std::exchange(d->zoneChanged, false);
        if (jumped != 0 || zoneChanged)
            Q_EMIT settingsChanged(WallClock::Info(qAbs(jumped)), jumped != 0);
    });
}

Interface::~Interface() = default;

bool Interface::settings_changed_connect(QObject *receiver, const char *slot)
{
    return connect(this, SIGNAL(settingsChanged(Ostra::Timed::WallClock::Info, bool)), receiver,
                   slot);
}
} // namespace Timed
} // namespace Ostra
