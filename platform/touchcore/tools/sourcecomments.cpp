// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sourcecomments.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace
{
QString textOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList files;
    QDirIterator each(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext())
        files.append(each.next());
    return files;
}
} // namespace

SourceComments::SourceComments(const QString &folder)
{
    for (const QString &file :
         filesBelow(folder + QLatin1String("/include"), QStringLiteral("*.h")))
        readHeader(file);
    for (const QString &file : filesBelow(folder + QLatin1String("/src"), QStringLiteral("*.cpp")))
        readViews(file);
}

void SourceComments::readHeader(const QString &file)
{
    static const QRegularExpression comment(QStringLiteral("^\\s*/// ?(.*)$"));
    static const QRegularExpression classStart(QStringLiteral("^class (\\w+)[^;]*$"));
    static const QRegularExpression attribute(QStringLiteral("M_STYLE_ATTRIBUTE\\(\\w+, (\\w+),"));
    static const QRegularExpression use(QStringLiteral("^\\s*M_STYLE\\((\\w+)\\)"));
    QString currentClass;
    QStringList lines;
    bool isSkipping = false;
    const QStringList text = textOf(file).split(QLatin1Char('\n'));
    for (const QString &line : text) {
        const QRegularExpressionMatch said = comment.match(line);
        if (said.hasMatch()) {
            isSkipping = isSkipping || (!lines.isEmpty() && said.captured(1).isEmpty());
            if (!isSkipping)
                lines.append(said.captured(1));
            continue;
        }
        const QString words = lines.join(QLatin1Char(' '));
        if (const auto found = classStart.match(line); found.hasMatch()) {
            currentClass = found.captured(1);
            m_comments.insert(currentClass, words);
        } else if (const auto named = attribute.match(line); named.hasMatch()) {
            m_comments.insert(currentClass + QLatin1String("::") + named.captured(1), words);
        } else if (const auto used = use.match(line); used.hasMatch()) {
            m_classesOfStyle.insert(used.captured(1), currentClass);
        }
        lines.clear();
        isSkipping = false;
    }
}

void SourceComments::readViews(const QString &file)
{
    static const QRegularExpression view(QStringLiteral("^M_REGISTER_VIEW\\((\\w+), (\\w+)\\)"),
                                         QRegularExpression::MultilineOption);
    QRegularExpressionMatchIterator each = view.globalMatch(textOf(file));
    while (each.hasNext()) {
        const QRegularExpressionMatch found = each.next();
        m_controllerOfView.insert(found.captured(1), found.captured(2));
    }
}

QStringList SourceComments::usersOf(const QString &style) const
{
    QStringList users;
    const QStringList classes = m_classesOfStyle.values(style);
    for (const QString &name : classes)
        users.append(m_controllerOfView.value(name, name));
    users.sort();
    users.removeDuplicates();
    return users;
}
