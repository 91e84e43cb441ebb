// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef SOURCECOMMENTS_H
#define SOURCECOMMENTS_H

#include <QHash>
#include <QString>
#include <QStringList>

/// What the sources say of styles and the meta-objects do not: the comments, and who uses which
/// style.
class SourceComments
{
public:
    /// Reads the headers and sources below \a folder.
    explicit SourceComments(const QString &folder);

    /// What the comment above the class says; its first paragraph.
    QString ofClass(const QString &style) const { return m_comments.value(style); }
    /// What the comment above the attribute says.
    QString ofAttribute(const QString &style, const QString &attribute) const
    {
        return m_comments.value(style + QLatin1String("::") + attribute);
    }
    /// The widget classes that the style is of, sorted.
    QStringList usersOf(const QString &style) const;

private:
    void readHeader(const QString &file);
    void readViews(const QString &file);

    QHash<QString, QString> m_comments;
    QMultiHash<QString, QString> m_classesOfStyle;
    QHash<QString, QString> m_controllerOfView;
};

#endif
