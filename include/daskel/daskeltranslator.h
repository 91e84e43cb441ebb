// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_DASKELTRANSLATOR_H
#define DASKEL_DASKELTRANSLATOR_H

class QString;
class QStringList;

/// Makes the texts of the library and of the application known to qtTrId(), in the languages of the
/// default locale. For a program's start, after its QCoreApplication was made; on the UI thread.
class DaskelTranslator
{
public:
    /// The catalogue "libdaskel" and then each of \a catalogs, in their order; empty names are
    /// passed over. They lie in `share/daskel/translations` of the installation or the build
    /// folder. They replace the catalogues of an earlier call; settings of the default locale stay.
    static void installLibdaskelTranslationCatalogs(const QStringList &catalogs);
    static void installLibdaskelTranslationCatalogs(const QString &catalog);
};

#endif
