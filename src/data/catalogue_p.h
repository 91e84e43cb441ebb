// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CATALOGUE_P_H
#define DASKEL_CATALOGUE_P_H

#include <QString>
#include <QStringList>

#include <memory>

class QTranslator;

namespace Daskel
{
/// Where catalogues may lie, the nearest first: `share/daskel/translations` in each folder of
/// @p codeFolders and the three above it, then `daskel/translations` in each of @p dataFolders,
/// then the library's own resource. Each folder once; none needs to exist.
QStringList catalogueFolders(const QStringList &codeFolders, const QStringList &dataFolders);

/// The catalogue of the first language in @p languages (such as "de-AT", which "de" serves as well)
/// that one of @p folders holds; null when there is none.
std::unique_ptr<QTranslator> loadCatalogue(const QStringList &languages,
                                           const QStringList &folders);
} // namespace Daskel

#endif
