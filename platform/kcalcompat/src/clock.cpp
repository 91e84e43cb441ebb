// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kcalcompat/clock.h>

#include <mutex>

namespace KCalCompat
{
namespace
{
std::mutex sourceMutex;

std::function<QDateTime()> &currentSource()
{
    static std::function<QDateTime()> source;
    return source;
}
} // namespace

QDateTime Clock::now()
{
    const std::lock_guard<std::mutex> lock(sourceMutex);
    const auto &source = currentSource();
    return source ? source().toUTC() : QDateTime::currentDateTimeUtc();
}

void Clock::setSource(std::function<QDateTime()> source)
{
    const std::lock_guard<std::mutex> lock(sourceMutex);
    currentSource() = std::move(source);
}
} // namespace KCalCompat
