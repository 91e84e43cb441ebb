// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "systemtimesource.h"

#include <systemtime/timesource.h>

#include <utility>

namespace Ostra
{
namespace Timed
{
namespace
{
TimeSource::Factory &factoryInForce()
{
    static TimeSource::Factory factory;
    return factory;
}
} // namespace

TimeSource::TimeSource(QObject *parent) : QObject(parent) { }

TimeSource::~TimeSource() = default;

void TimeSource::setFactory(Factory factory)
{
    factoryInForce() = std::move(factory);
}

std::unique_ptr<TimeSource> TimeSource::make()
{
    const Factory &factory = factoryInForce();
    return factory ? factory() : SystemTimeSource::ofThisMachine();
}
} // namespace Timed
} // namespace Ostra
