// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef NOTETEXT_H
#define NOTETEXT_H

#include <kcalcompat/kcalcore.h>

#include <KCalendarCore/Attendee>
#include <KCalendarCore/Incidence>

/// A note in words, as the note view shows it, in the person's language. UI thread only.
namespace NoteText
{
/// When the occurrence at \a start, or at a day's piece of it, begins and ends; of a to-do, when it
/// is due; empty without dates.
QString when(const KCalCore::Incidence::Ptr &incidence, const QDateTime &start);
/// "Repeats every week on Monday until 3 March 2027"; empty for what does not repeat.
QString repetition(const KCalCore::Incidence &incidence);
/// "15 minutes before"
QString reminder(const KCalCore::Alarm &alarm);
/// "Anna Berg (accepted)"
QString participant(const KCalCore::Attendee &attendee);
} // namespace NoteText

#endif
