// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef ZONEFOLDER_H
#define ZONEFOLDER_H

#include "zonewatch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

/// A machine's zone files in a folder of their own: etc/localtime, which links to
/// zoneinfo/Europe/Helsinki, and etc/timezone; a few zones to choose from.
class ZoneFolder
{
public:
    ZoneFolder()
    {
        QDir root(m_dir.path());
        root.mkpath(QStringLiteral("etc"));
        root.mkpath(QStringLiteral("zoneinfo/Europe"));
        for (const char *city : {"Helsinki", "Berlin", "Mariehamn"})
            write(zoneinfo(city), QByteArray("rules of ") + city);
        // Mariehamn has the rules of Helsinki, under another name.
        write(zoneinfo("Mariehamn"), "rules of Helsinki");
        link(zoneinfo("Helsinki"), localtime());
        write(timezone(), "Europe/Helsinki\n");
    }

    QString localtime() const { return m_dir.filePath(QStringLiteral("etc/localtime")); }
    QString timezone() const { return m_dir.filePath(QStringLiteral("etc/timezone")); }
    QString zoneinfo(const char *city) const
    {
        return m_dir.filePath(QStringLiteral("zoneinfo/Europe/%1").arg(QLatin1String(city)));
    }
    Ostra::Timed::ZoneFiles files() const { return {localtime(), timezone()}; }

    static void write(const QString &path, const QByteArray &contents)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            qFatal("Cannot write %s", qPrintable(path));
        file.write(contents);
    }
    static void remove(const QString &path) { QFile::remove(path); }
    static void link(const QString &target, const QString &path) { QFile::link(target, path); }
    /// As the time service and package upgrades do: no moment without the file.
    static void rename(const QString &from, const QString &to)
    {
        std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData());
    }

    /// Points localtime to @p city at one stroke.
    void choose(const char *city) const
    {
        const QString next = localtime() + QStringLiteral(".new");
        link(zoneinfo(city), next);
        rename(next, localtime());
    }

private:
    QTemporaryDir m_dir;
};

#endif
