// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef CLIRUNNER_H
#define CLIRUNNER_H

#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

/// What a run of the program left behind.
struct CliResult {
    int exitCode = -1; ///< -1 when it crashed or never ended
    QString out;
    QString error;

    /// For a failing test: all of it.
    QByteArray described() const;
};

/// The real program on a person's machine of its own: an empty home, a folder for the database, a
/// fixed zone and locale.
class CliRunner
{
public:
    explicit CliRunner(const QString &zone = QStringLiteral("Europe/Helsinki"));

    /// daskel --data FOLDER ARGUMENTS; FOLDER/calendar.db is databaseFile().
    CliResult run(const QStringList &arguments) const;
    /// daskel ARGUMENTS
    CliResult runPlain(const QStringList &arguments, const QString &outFile = QString()) const;

    QString path(const QString &name) const { return m_home.filePath(name); }
    QString databaseFile() const { return path(QStringLiteral("data/calendar.db")); }
    /// Writes a file into the home; its path.
    QString write(const QString &name, const QByteArray &content) const;
    static QByteArray read(const QString &fileName);
    static QString fixture(const QString &name);
    static QString program();

    QProcessEnvironment environment;

private:
    QTemporaryDir m_home;
};

#endif
