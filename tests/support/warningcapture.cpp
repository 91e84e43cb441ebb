// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "warningcapture.h"

#include <mutex>

namespace
{
struct Captured {
    std::mutex mutex;
    QStringList warnings;
    QtMessageHandler next = [](QtMsgType, const QMessageLogContext &, const QString &) {};
};

Captured &captured()
{
    static Captured instance;
    return instance;
}

void keepWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtWarningMsg) {
        captured().next(type, context, message);
        return;
    }
    const std::lock_guard<std::mutex> lock(captured().mutex);
    captured().warnings << message;
}
} // namespace

WarningCapture::WarningCapture() : m_before(qInstallMessageHandler(nullptr))
{
    captured().next = m_before;
    qInstallMessageHandler(keepWarning);
}

WarningCapture::~WarningCapture()
{
    qInstallMessageHandler(m_before);
    take();
}

QStringList WarningCapture::take()
{
    const std::lock_guard<std::mutex> lock(captured().mutex);
    return std::exchange(captured().warnings, {});
}
