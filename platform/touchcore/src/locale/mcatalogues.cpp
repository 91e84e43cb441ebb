// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mcatalogues.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <dlfcn.h>

namespace
{
/// The folders of the program and of this library.
QStringList codeFolders()
{
    QStringList folders(QCoreApplication::applicationDirPath());
    Dl_info self{};
    if (dladdr(reinterpret_cast<const void *>(&codeFolders), &self) != 0)
        folders << QFileInfo(QFile::decodeName(self.dli_fname)).canonicalPath();
    return folders;
}

/// The folders that data of programs lie in, the nearest first: what runs from a build folder or a
/// moved installation finds its own.
QStringList dataFolders()
{
    constexpr int levelsAbove = 3;
    QStringList folders;
    const QStringList starts = codeFolders();
    for (QString folder : starts) {
        for (int level = 0; level <= levelsAbove; ++level) {
            folders << QDir(folder).filePath(QStringLiteral("share"));
            folder = QFileInfo(folder).path();
        }
    }
    folders << QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    folders.removeDuplicates();
    return folders;
}
} // namespace

MCatalogues::MCatalogues(QObject *parent) : QTranslator(parent) { }

QStringList MCatalogues::folders(const QStringList &paths)
{
    const QStringList dataFolders = ::dataFolders();
    QStringList folders;
    for (auto path = paths.crbegin(); path != paths.crend(); ++path) {
        if (QDir::isAbsolutePath(*path)) {
            folders << *path;
            continue;
        }
        for (const QString &dataFolder : dataFolders)
            folders << QDir(dataFolder).filePath(*path);
    }
    return folders;
}

void MCatalogues::read(const QStringList &names, const QStringList &languages,
                       const QStringList &folders)
{
    m_catalogues.clear();
    for (auto name = names.crbegin(); name != names.crend(); ++name)
        add(*name, languages, folders);
    // What no preferred language has is better read in English than as its identifier.
    for (auto name = names.crbegin(); name != names.crend(); ++name)
        add(*name, {QStringLiteral("en")}, folders);
}

void MCatalogues::add(const QString &name, const QStringList &languages, const QStringList &folders)
{
    auto catalogue = std::make_unique<QTranslator>();
    for (const QString &language : languages) {
        for (const QString &folder : folders) {
            // QTranslator shortens "app_de_AT" to "app_de" by itself.
            if (catalogue->load(name + QLatin1Char('_') + language, folder)) {
                m_catalogues.push_back(std::move(catalogue));
                return;
            }
        }
    }
}

bool MCatalogues::isEmpty() const
{
    return m_catalogues.empty();
}

QString MCatalogues::translate(const char *context, const char *sourceText,
                               const char *disambiguation, int n) const
{
    for (const auto &catalogue : m_catalogues) {
        QString text = catalogue->translate(context, sourceText, disambiguation, n);
        if (!text.isNull())
            return text;
    }
    return {};
}
