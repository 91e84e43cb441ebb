// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef LINKS_H
#define LINKS_H

#include <KCalendarCore/Attachment>
#include <KCalendarCore/Incidence>

#include <QString>

/// What leads out of a note. Nothing is loaded by showing it.
namespace Links
{
/// Of the place of a note (RFC 5870).
QString mapAddress(const KCalCore::Incidence &incidence);
/// What a file with an attachment that lies in the note itself is called.
QString fileName(const KCalCore::Attachment &attachment);
/// The description without the marks of rich text.
QString plainDescription(const KCalCore::Incidence &incidence);
} // namespace Links

#endif
