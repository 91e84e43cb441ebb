// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_TEXTCARRIER_H
#define MKCAL_TEXTCARRIER_H

#include "componentsplitter.h"

#include <kcalcompat/kcalcore.h>

namespace mKCal
{
/// Carries past ICalFormat what it loses or alters, in properties of ours that it leaves alone. In
/// the file they have their names of RFC 5545 wherever there is one:
/// - RESOURCES, and commas inside a category or resource (they would split it);
/// - RELATED-TO of other kinds than parent (they would become the parent), and of journals;
/// - COMPLETED of a recurring to-do (it would move the series on to its next occurrence)
///   and its absence (the time of writing would be put in);
/// - parameters of X-properties, which lose their quotes (an address is one, for a phone's map);
/// - a summary that is not there (the description would become it);
/// - attendees that were removed from a meeting or are no e-mail address (AttendeeText).
///
/// What ICalFormat writes against RFC 5545 is put right: an all-day RECURRENCE-ID with a time of
/// day, numbers of a BYHOUR written twice, the UNTIL of floating times as an instant.
///
/// Milliseconds, languages of conferences and attendees' parameters of other programs are not
/// carried: RFC 5545 times have whole seconds, and nobody has missed the others yet.
namespace TextCarrier
{
/// Whether text with that property has to go through beforeReading().
bool carries(const QByteArray &line);
/// Changes the text of a component before ICalFormat reads it.
void beforeReading(CalendarComponent *component);
/// Puts what was carried where it belongs in the incidence that was read from @p component.
void afterReading(const CalendarComponent &component, const KCalCore::Incidence::Ptr &incidence);
/// Changes a clone before ICalFormat writes it.
void beforeWriting(const KCalCore::Incidence::Ptr &clone);
/// The lines of the file from the unfolded text of a component that ICalFormat wrote; folded.
QByteArray afterWriting(const QByteArray &component);

/// A property for the number of a clone, to know it again in what ICalFormat wrote; left out of the
/// file.
extern const char *const indexProperty;
} // namespace TextCarrier

/// Completes a to-do as a whole, where Todo::setCompleted() would move a recurring one on. Nothing
/// happens to other incidences.
void setCompletedForGood(const KCalCore::Incidence::Ptr &incidence, const QDateTime &completed);
} // namespace mKCal

#endif
