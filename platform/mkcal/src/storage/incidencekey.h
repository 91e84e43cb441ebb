// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_INCIDENCEKEY_H
#define MKCAL_INCIDENCEKEY_H

#include "sqlite/componentkeys.h"

#include <QHash>
#include <QString>

namespace mKCal
{
/// What tells one incidence from all others, as the database tells them: the UID, and the
/// recurrence identifier as recIdText() writes it (empty for a series and for a single incidence).
struct IncidenceKey {
    QString uid;
    QString recId;

    static IncidenceKey of(const KCalCore::Incidence &incidence)
    {
        return {incidence.uid(), recIdText(incidence)};
    }
};

inline bool operator==(const IncidenceKey &a, const IncidenceKey &b)
{
    return a.uid == b.uid && a.recId == b.recId;
}

inline uint qHash(const IncidenceKey &key, uint seed = 0)
{
    return qHash(key.uid, seed) ^ qHash(key.recId, seed + 1);
}
} // namespace mKCal

#endif
