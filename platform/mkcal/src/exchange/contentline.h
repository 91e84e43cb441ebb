// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_CONTENTLINE_H
#define MKCAL_CONTENTLINE_H

#include <QByteArray>
#include <QList>

namespace mKCal
{
/// Looks at one property of iCalendar text: `NAME;PARAMETER=value:value`, unfolded, without its
/// line end (RFC 5545 section 3.1). Values are seen as they stand there, escapes and all.
namespace ContentLine
{
/// In upper case; the whole line when nothing follows the name.
QByteArray name(const QByteArray &line);
/// Whether the line has that name (in upper case), without looking at the rest.
bool isNamed(const QByteArray &line, const char *upperCaseName);
/// Where the value begins in the line that starts at @p from: after the first colon outside quotes;
/// -1 when the line has none.
int valueStart(const QByteArray &text, int from = 0);
/// Empty when there is no colon.
QByteArray value(const QByteArray &line);
/// The value of that parameter without quotes; empty when it is not there.
QByteArray parameter(const QByteArray &line, const QByteArray &name);
/// With CRLF at its end, broken after at most 75 octets, never inside a character.
QByteArray folded(const QByteArray &line);
/// Whether @p line is valid UTF-8.
bool isUtf8(const QByteArray &line);

/// The lines of unfolded text.
QList<QByteArray> split(const QByteArray &text);
/// The first line of that property directly in the component (not in its alarms); empty when there
/// is none. @param component unfolded text, from its BEGIN to its END.
QByteArray find(const QByteArray &component, const char *upperCaseName);
} // namespace ContentLine
} // namespace mKCal

#endif
