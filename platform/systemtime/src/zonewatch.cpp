// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "zonewatch.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <chrono>

namespace Ostra
{
namespace Timed
{
namespace
{
// Programs that choose a zone write the two files one after the other, and a file rewritten in
// place is empty for a moment: look when nothing has moved for this long.
constexpr std::chrono::milliseconds settlingTime{50};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// "Europe/Helsinki" of a link to ".../zoneinfo/Europe/Helsinki"; empty when it is no such link.
QString nameByLink(const QString &path)
{
    const QString folder = QStringLiteral("/zoneinfo/");
    const QString target = QFile::symLinkTarget(path);
    const int at = target.indexOf(folder);
    return at < 0 ? QString() : target.mid(at + folder.size());
}
} // namespace

ZoneWatch::ZoneWatch(const ZoneFiles &files, QObject *parent) : QObject(parent), m_files(files)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(settlingTime);
    const auto settle = [this] { m_settled.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, settle);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, settle);
    connect(&m_settled, &QTimer::timeout, this, &ZoneWatch::check);
    rearm();
    m_zone = readZone();
}

void ZoneWatch::check()
{
    // Before reading: what changes afterwards wakes the watcher again.
    rearm();
    const Zone zone = readZone();
    if (zone == m_zone)
        return;
    m_zone = zone;
    Q_EMIT changed();
}

ZoneWatch::Zone ZoneWatch::readZone() const
{
    Zone zone;
    zone.name = nameByLink(m_files.localtime);
    if (zone.name.isEmpty())
        zone.name = QString::fromUtf8(contents(m_files.timezone)).trimmed();
    zone.rules = contents(m_files.localtime);
    return zone;
}

void ZoneWatch::rearm()
{
    // A watch on a file is one on the file that a link leads to, and dies with it. The folders tell
    // of what takes the file's or the link's place.
    if (const QStringList watched = m_watcher.files() + m_watcher.directories(); !watched.isEmpty())
        m_watcher.removePaths(watched);
    for (const QString &path : {m_files.localtime, m_files.timezone}) {
        const QFileInfo file(path);
        for (const QString &place : {path, file.absolutePath()}) {
            if (QFileInfo::exists(place))
                m_watcher.addPath(place);
        }
    }
}
} // namespace Timed
} // namespace Ostra
