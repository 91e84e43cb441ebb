// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SYSTEMTIME_ZONEWATCH_H
#define SYSTEMTIME_ZONEWATCH_H

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace Ostra
{
namespace Timed
{
/// The two files that hold the system's zone.
struct ZoneFiles {
    /// The rules: a link into the zone database, or a copy of a file of it.
    QString localtime = QStringLiteral("/etc/localtime");
    /// The name, asked only when localtime is no link.
    QString timezone = QStringLiteral("/etc/timezone");
};

/// Notices when the system's zone files are replaced, relinked or rewritten so that the zone or
/// its rules become different.
class ZoneWatch : public QObject
{
    Q_OBJECT
public:
    explicit ZoneWatch(const ZoneFiles &files, QObject *parent = nullptr);

    /// The zone that the files name, such as "Europe/Helsinki"; empty when they name none.
    QString zoneName() const { return m_zone.name; }
    /// Looks at the files now; emits changed() when they say something new.
    void check();

Q_SIGNALS:
    void changed();

private:
    struct Zone {
        QString name;
        QByteArray rules;
        bool operator==(const Zone &other) const
        {
            return name == other.name && rules == other.rules;
        }
    };

    Zone readZone() const;
    void rearm();

    ZoneFiles m_files;
    QFileSystemWatcher m_watcher;
    QTimer m_settled;
    Zone m_zone;
};
} // namespace Timed
} // namespace Ostra

#endif
