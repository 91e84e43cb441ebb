// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <systemtime/qmtime.h>
#include <systemtime/timesource.h>

#include <QTimer>

#include <utility>

using Ostra::Timed::TimeSource;

namespace Tarvo
{
class QmTimePrivate
{
public:
    void note(QmTimeWhatChanged what)
    {
        changed = turn.isActive() ? qMin(changed, what) : what;
        turn.start(0);
    }

    std::unique_ptr<TimeSource> source;
    /// Fires in the next turn of the event loop: what came until then is one notice.
    QTimer turn;
    QmTimeWhatChanged changed = QmTimeOnlySettingsChanged;
};

QmTime::QmTime(QObject *parent) : QmTime(TimeSource::make(), parent) { }

QmTime::QmTime(std::unique_ptr<TimeSource> source, QObject *parent)
    : QObject(parent), d(std::make_unique<QmTimePrivate>())
{
    qRegisterMetaType<QmTimeWhatChanged>("Tarvo::QmTimeWhatChanged");
    d->source = std::move(source);
    d->turn.setSingleShot(true);
    connect(d->source.get(), &TimeSource::clockJumped, this,
            [this] { d->note(QmTimeTimeChanged); });
    connect(d->source.get(), &TimeSource::resumed, this, [this] { d->note(QmTimeTimeChanged); });
    connect(d->source.get(), &TimeSource::zoneChanged, this,
            [this] { d->note(QmTimeOnlySettingsChanged); });
    connect(&d->turn, &QTimer::timeout, this, [this] { Q_EMIT timeOrSettingsChanged(d->changed); });
}

QmTime::~QmTime() = default;
} // namespace Tarvo
