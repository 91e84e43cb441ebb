// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEDETAILS_H
#define DASKEL_NOTEDETAILS_H

#include <QDateTime>

class NoteWidget;

/// What is shown of a note beyond its model, as it is stored now.
struct NoteDetails {
    bool isRepeating = false;
    bool isInvitation = false;
    bool isCancelled = false;
    // Of the whole occurrence, of which the model may hold the piece of one day only; local time,
    // the end is exclusive.
    QDateTime occurrenceStart;
    QDateTime occurrenceEnd;
};

/// Of a note that is not stored (any more): nothing but the times of its model.
NoteDetails noteDetails(const NoteWidget &note);

#endif
