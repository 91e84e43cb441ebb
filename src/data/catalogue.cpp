// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "catalogue_p.h"

#include <daskel/catalogue.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <dlfcn.h>

namespace Daskel
{
namespace
{
QString embeddedFolder()
{
    return QStringLiteral(":/daskel/translations");
}

/// The folders of the library and of the program; one and the same when the program contains us.
QStringList codeFolders()
{
    QStringList folders;
    Dl_info self{};
    if (dladdr(reinterpret_cast<const void *>(&codeFolders), &self) != 0) {
        // The loader knows a program only by the name it was started with; a library has a path.
        const QFileInfo file(QFile::decodeName(self.dli_fname));
        if (file.isAbsolute())
            folders << file.canonicalPath();
    }
    folders << QCoreApplication::applicationDirPath();
    return folders;
}

/// Makes @p catalogue the one that is asked first. It lives as long as the application.
void install(std::unique_ptr<QTranslator> catalogue)
{
    QTranslator *installed = catalogue.release();
    installed->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(installed);
}
} // namespace

QStringList catalogueFolders(const QStringList &codeFolders, const QStringList &dataFolders)
{
    constexpr int levelsAbove = 3;
    QStringList folders;
    for (const QString &codeFolder : codeFolders) {
        QString folder = QDir::cleanPath(codeFolder);
        for (int level = 0; level <= levelsAbove; ++level) {
            folders << QDir(folder).filePath(QStringLiteral("share/daskel/translations"));
            folder = QFileInfo(folder).path();
        }
    }
    for (const QString &dataFolder : dataFolders)
        folders << QDir(dataFolder).filePath(QStringLiteral("daskel/translations"));
    folders << embeddedFolder();
    folders.removeDuplicates();
    return folders;
}

std::unique_ptr<QTranslator> loadCatalogue(const QStringList &languages, const QStringList &folders)
{
    auto catalogue = std::make_unique<QTranslator>();
    for (QString language : languages) {
        // QTranslator shortens "libdaskel_de_AT" to "libdaskel_de" by itself.
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        for (const QString &folder : folders) {
            if (catalogue->load(QLatin1String("libdaskel_") + language, folder))
                return catalogue;
        }
    }
    return nullptr;
}

bool installLibraryCatalogue()
{
    QCoreApplication *application = QCoreApplication::instance();
    const QString english = QStringLiteral("libdaskel_en");
    if (application == nullptr)
        return false;
    if (application->findChild<QTranslator *>(english, Qt::FindDirectChildrenOnly) != nullptr)
        return true;

    auto fallback = loadCatalogue({QStringLiteral("en")}, {embeddedFolder()});
    if (!fallback)
        return false;
    fallback->setObjectName(english);
    install(std::move(fallback));

    const QStringList folders = catalogueFolders(
        codeFolders(), QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation));
    if (auto catalogue = loadCatalogue(QLocale::system().uiLanguages(), folders))
        install(std::move(catalogue));
    return true;
}
} // namespace Daskel
