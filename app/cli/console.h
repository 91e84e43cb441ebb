// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CLI_CONSOLE_H
#define DASKEL_CLI_CONSOLE_H

#include <QFile>
#include <QJsonDocument>
#include <QString>
#include <QTextStream>

/// Where the program writes: results on standard output, messages and progress on standard error.
class Console
{
public:
    explicit Console(const QString &commandName);
    Q_DISABLE_COPY(Console)

    QTextStream &out() { return m_out; }
    void json(const QJsonDocument &document);
    /// "daskel: import: ..." on standard error.
    void message(const QString &text);

    /// Draws a bar of how much is done, on a terminal only, and only when it moves by a percent.
    void progress(qint64 done, qint64 total);
    /// Takes the bar away.
    void endProgress();

    /// Writes what is left; false after a message when the output took less than all.
    bool finish();

private:
    QFile m_outFile;
    QTextStream m_out;
    QTextStream m_err;
    QString m_commandName;
    bool m_isTerminal;
    int m_percent = -1;
};

/// @p text with its control characters made visible: it comes from strangers' calendars, and a
/// terminal would obey it.
QString printable(QString text);
/// The same on one line; "(no title)" for an empty one.
QString titleText(const QString &summary);

#endif
