// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_INCIDENCEREMOVAL_H
#define DASKEL_INCIDENCEREMOVAL_H

#include <daskel/notedeletion.h>
#include <kcalcompat/kcalcore.h>

/// Takes an incidence, or a part of a series, out of the calendar of DbInstance, and can put it
/// back. Saves nothing.
class IncidenceRemoval
{
public:
    /// False, and nothing is changed, when there is no such incidence or occurrence.
    bool remove(const QString &uid, const KDateTime &recurrenceId, const KDateTime &start,
                NoteDeletion::Extent extent);
    /// All is as it was before the last remove(); nothing when there was none.
    void putBack();
    /// Whether there is something to put back.
    bool isEmpty() const { return m_before.isEmpty(); }
    void forget() { m_before.clear(); }

private:
    KCalCore::Incidence::List m_before; ///< copies: the series and its exceptions
    QString m_notebook;
};

#endif
