// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storage/changewatcher.h"

namespace mKCal
{
namespace
{
// A big transaction touches the log while it is being written; what a look during that time cannot
// see yet, a look this much later does.
constexpr int recheckMilliseconds = 20;
} // namespace

ChangeWatcher::ChangeWatcher()
{
    m_recheck.setSingleShot(true);
    m_recheck.setInterval(recheckMilliseconds);
    connect(&m_recheck, &QTimer::timeout, this, &ChangeWatcher::touched);
    connect(this, &ChangeWatcher::lookRequested, this, &ChangeWatcher::touched,
            Qt::QueuedConnection);
    connect(this, &ChangeWatcher::watchRequested, this, &ChangeWatcher::begin,
            Qt::QueuedConnection);
}

ChangeWatcher::~ChangeWatcher() = default;

void ChangeWatcher::stop()
{
    m_fileNames.clear();
    m_watcher.reset();
    m_recheck.stop();
}

void ChangeWatcher::begin(const QStringList &fileNames)
{
    m_fileNames = fileNames;
    m_watcher = std::make_unique<QFileSystemWatcher>(fileNames);
    connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this, &ChangeWatcher::fileChanged);
    // What was written between the opening and now.
    Q_EMIT touched();
}

void ChangeWatcher::fileChanged(const QString &fileName)
{
    // A file that was replaced or made anew is a new file to the watcher.
    if (!m_watcher->files().contains(fileName))
        m_watcher->addPath(fileName);
    m_recheck.start();
    Q_EMIT touched();
}
} // namespace mKCal
