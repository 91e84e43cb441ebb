// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_OPENLINK_H
#define DASKEL_OPENLINK_H

class MWindow;
class QUrl;

/// Opens a link or an attachment of a note in the program that the desktop has for it. A note may
/// come from anybody: what is no page of the web is shown in full and opened only when the person
/// says so. False for an address that is not valid and complete. \a window: where to ask.
bool openLink(const QUrl &link, MWindow *window);

#endif
