// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notetitle.h"

namespace
{
constexpr int mostCharacters = 48;
}

QString noteTitle(const KCalCore::Incidence &incidence)
{
    const QString title = incidence.summary().simplified();
    return title.isEmpty() ? qtTrId("qtn_caln_no_title") : title;
}

QString shortenedTitle(const KCalCore::Incidence &incidence)
{
    const QString title = noteTitle(incidence);
    return title.size() <= mostCharacters
        ? title
        : title.left(mostCharacters - 1).trimmed() + QChar(0x2026);
}
