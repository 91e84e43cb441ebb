// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_ACCESSIBLETEXTS_H
#define TOUCHCORE_ACCESSIBLETEXTS_H

#include <QAccessible>

class MWidget;
class QGraphicsItem;

/// What a widget is to somebody who cannot see it; QAccessible::NoRole for what only arranges
/// others.
QAccessible::Role accessibleRole(const MWidget *widget);

/// What a widget is called: its dynamic property "accessibleName" where the program set one, its
/// own text, or the texts inside it.
QString accessibleName(const MWidget *widget);

/// What a person has entered or chosen in a widget; empty where it must not be read aloud.
QString accessibleValue(const MWidget *widget);

/// What lies at a place of the screen, as deep inside as it is known; null when nothing does.
QAccessibleInterface *deepestChildAt(const QAccessibleInterface &container, int x, int y);

/// The widgets inside \a widget that stand for themselves, in the order of reading; what only
/// arranges others is stepped over.
QList<MWidget *> accessibleChildren(const QGraphicsItem *item);

#endif
