// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "console.h"

#include <cstdio>
#include <unistd.h>

Console::Console(const QString &commandName)
    : m_err(stderr), m_commandName(commandName), m_isTerminal(isatty(STDERR_FILENO) == 1)
{
    m_outFile.open(stdout, QIODevice::WriteOnly);
    m_out.setDevice(&m_outFile);
    m_out.setCodec("UTF-8");
    m_err.setCodec("UTF-8");
}

void Console::json(const QJsonDocument &document)
{
    m_out << QString::fromUtf8(document.toJson());
}

void Console::message(const QString &text)
{
    endProgress();
    m_out.flush();
    m_err << QLatin1String("daskel: ");
    if (!m_commandName.isEmpty()) {
        m_err << m_commandName << QLatin1String(": ");
    }
    m_err << printable(text) << Qt::endl;
}

void Console::progress(qint64 done, qint64 total)
{
    constexpr int width = 40;
    const int percent =
        total > 0 ? static_cast<int>(qBound<qint64>(0, done * 100 / total, 100)) : 100;
    if (!m_isTerminal || percent == m_percent) {
        return;
    }
    m_percent = percent;
    const int filled = percent * width / 100;
    m_err << QLatin1String("\r[") << QString(filled, QLatin1Char('='))
          << QString(width - filled, QLatin1Char(' ')) << QStringLiteral("] %1 %").arg(percent, 3)
          << Qt::flush;
}

void Console::endProgress()
{
    if (m_percent >= 0) {
        m_err << QLatin1String("\r\033[K") << Qt::flush;
        m_percent = -1;
    }
}

bool Console::finish()
{
    m_out.flush();
    if (m_out.status() == QTextStream::Ok) {
        return true;
    }
    message(QStringLiteral("cannot write to standard output: %1").arg(m_outFile.errorString()));
    return false;
}

QString printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control) {
            character = QChar::ReplacementCharacter;
        }
    }
    return text;
}

QString titleText(const QString &summary)
{
    const QString title = summary.simplified();
    return title.isEmpty() ? QStringLiteral("(no title)") : printable(title);
}
