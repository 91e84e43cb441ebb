// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_ABSTRACTNOTELOADERBACKEND_H
#define DASKEL_ABSTRACTNOTELOADERBACKEND_H

#include <kcalcompat/kcalcore.h>

#include <QSharedPointer>

class QDateTime;
class QString;

/// What a note loader hands its batches to; in this library the model of the note lists. Nobody
/// deletes a backend through this interface.
class AbstractNoteLoaderBackend
{
public:
    /// Begins the group \a groupName; the same name again goes on with it, an empty one ends it.
    /// \a kind is kept for the header as it is, \a date is the one that lists scroll to it by.
    virtual void addGroupHeader(const QString &groupName, int kind, const QDateTime &date) = 0;

    /// Adds a row to the group \a groupName (empty: to a list without headers). \a start and
    /// \a end may be null, and so may \a incidence. \a atFront: before the rows of the same group
    /// in this batch instead of behind them.
    virtual void addIncidence(const QString &groupName, QDateTime *start, QDateTime *end,
                              const QSharedPointer<KCalCore::Incidence> &incidence,
                              bool atFront) = 0;

protected:
    ~AbstractNoteLoaderBackend() = default;
};

#endif
