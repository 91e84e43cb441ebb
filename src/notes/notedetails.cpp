// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notedetails.h"

#include <daskel/db_instance.h>
#include <daskel/notewidget.h>

namespace
{
QDateTime endOf(const KCalCore::Incidence::Ptr &incidence, const QDateTime &start)
{
    return mKCal::occurrenceEnd(incidence, start).toLocalTime();
}

bool beginsWithDay(const QDateTime &time)
{
    return time == time.date().startOfDay();
}

/// The start of the occurrence of which something is shown from \a shownStart on.
QDateTime startOf(KCalCore::Incidence::Ptr incidence, const QDateTime &shownStart)
{
    // Pieces of later days begin with their day. Looking for an occurrence of a long series takes
    // time, so what lasts one whole day at most is not looked for.
    const bool isWholeDay =
        incidence->allDay() || beginsWithDay(incidence->dtStart().toLocalTime());
    const bool isShort = endOf(incidence, shownStart) <= shownStart.addDays(1);
    if (!beginsWithDay(shownStart) || (isWholeDay && isShort))
        return shownStart;
    const QDateTime start = DbInstance::incidenceRecurrenceStart(incidence, shownStart);
    return start.isValid() && endOf(incidence, start) > shownStart ? start : shownStart;
}
} // namespace

NoteDetails noteDetails(const NoteWidget &note)
{
    const NoteWidgetModel *model = note.model();
    NoteDetails details;
    details.occurrenceStart = model->startTime();
    details.occurrenceEnd = model->endTime();
    const auto incidence = model->uid().isEmpty() ? KCalCore::Incidence::Ptr() : note.note();
    if (!incidence)
        return details;
    details.isRepeating = incidence->recurs() || incidence->hasRecurrenceId();
    details.isInvitation = !incidence->attendees().isEmpty();
    details.isCancelled = incidence->status() == KCalCore::Incidence::StatusCanceled;
    if (model->type() == NoteWidgetModel::EventNote && model->startTime().isValid()) {
        details.occurrenceStart = startOf(incidence, model->startTime());
        details.occurrenceEnd = endOf(incidence, details.occurrenceStart);
    }
    return details;
}
