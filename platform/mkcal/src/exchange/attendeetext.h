// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_ATTENDEETEXT_H
#define MKCAL_ATTENDEETEXT_H

#include <kcalcompat/kcalcore.h>

namespace mKCal
{
/// Takes attendees past ICalFormat that it would drop (those whose address is no e-mail address: a
/// telephone number, another URI, none at all) or whose status it does not know. On its side they
/// have a made-up e-mail address that holds both. In the file a telephone number is a `tel:` URI
/// and the status an x-name (RFC 5545 sections 3.3.3 and 3.2.12).
namespace AttendeeText
{
QByteArray beforeReading(const QByteArray &attendeeLine);
void afterReading(const KCalCore::Incidence::Ptr &incidence);
void beforeWriting(const KCalCore::Incidence::Ptr &clone);
/// Leaves out the attendee's identifier, too: it is an address in this process's memory.
QByteArray afterWriting(const QByteArray &attendeeLine);
} // namespace AttendeeText
} // namespace mKCal

#endif
