// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_CATALOGUE_H
#define DASKEL_CATALOGUE_H

namespace Daskel
{
/// Makes the texts of the library, such as the names of the notebooks it creates, known to
/// qtTrId(): in the first of the person's languages (QLocale::system().uiLanguages()) that has a
/// catalogue `libdaskel_<language>.qm`, else in English, which is part of the library. With it no
/// text identifier of the library is ever shown or stored as it is.
///
/// Catalogues are looked for in `share/daskel/translations` beside or up to three folders above the
/// library and the program, then in the system's data folders.
///
/// True when the texts are there, now or from an earlier call; a second call changes nothing.
/// False before the QCoreApplication exists; the texts live as long as that application object. To
/// be called on its thread. DbInstance does so before it opens the database.
bool installLibraryCatalogue();
} // namespace Daskel

#endif
