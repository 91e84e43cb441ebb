// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/daskeltranslator.h>
#include <touchcore/mlocale.h>

#include <QStringList>

void DaskelTranslator::installLibdaskelTranslationCatalogs(const QStringList &catalogs)
{
    // The library holds its English texts itself, for where no file is found.
    MLocale::addTranslationPath(QStringLiteral(":/daskel/translations"));
    MLocale::addTranslationPath(QStringLiteral("daskel/translations"));
    MLocale locale;
    locale.installTrCatalog(QStringLiteral("libdaskel"));
    for (const QString &catalog : catalogs)
        locale.installTrCatalog(catalog);
    MLocale::setDefault(locale);
}

void DaskelTranslator::installLibdaskelTranslationCatalogs(const QString &catalog)
{
    installLibdaskelTranslationCatalogs(QStringList(catalog));
}
