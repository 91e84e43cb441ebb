// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_ACTIONBUTTON_H
#define TOUCHCORE_ACTIONBUTTON_H

class MButton;
class QAction;
class QString;

/// The name of the theme's picture for \a action, from its dynamic property "iconID"; empty for
/// none.
QString actionIcon(const QAction *action);

/// For the buttons of headers. Makes \a button do what \a action does and show what it shows: its
/// picture when it has one, else its text. The button follows the action as long as both are there.
void tieButton(MButton *button, QAction *action);

#endif
