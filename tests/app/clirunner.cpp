// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "clirunner.h"

#include <QFile>
#include <QProcess>

QByteArray CliResult::described() const
{
    return QStringLiteral("exit code %1\nstandard output:\n%2\nstandard error:\n%3")
        .arg(exitCode)
        .arg(out, error)
        .toUtf8();
}

CliRunner::CliRunner(const QString &zone) : environment(QProcessEnvironment::systemEnvironment())
{
    environment.insert(QStringLiteral("TZ"), zone);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("HOME"), m_home.path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home.path());
    for (const char *name : {"LANGUAGE", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
        environment.remove(QLatin1String(name));
    }
    // Nobody out there tells a test of a changed clock.
    for (const char *bus : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"}) {
        environment.insert(QLatin1String(bus),
                           QStringLiteral("unix:path=") + path(QStringLiteral("no-bus")));
    }
}

CliResult CliRunner::run(const QStringList &arguments) const
{
    return runPlain(QStringList{QStringLiteral("--data"), path(QStringLiteral("data"))}
                    + arguments);
}

CliResult CliRunner::runPlain(const QStringList &arguments, const QString &outFile) const
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_home.path());
    if (!outFile.isEmpty()) {
        process.setStandardOutputFile(outFile);
    }
    process.start(program(), arguments, QIODevice::ReadOnly);
    const bool hasEnded = process.waitForFinished(60000);
    CliResult result;
    if (hasEnded && process.exitStatus() == QProcess::NormalExit) {
        result.exitCode = process.exitCode();
    }
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.error = QString::fromUtf8(process.readAllStandardError());
    return result;
}

QString CliRunner::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName();
}

QByteArray CliRunner::read(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(fileName));
    }
    return file.readAll();
}

QString CliRunner::fixture(const QString &name)
{
    return QStringLiteral(DASKEL_CLI_FIXTURES "/") + name;
}

QString CliRunner::program()
{
    return QStringLiteral(DASKEL_PROGRAM);
}
