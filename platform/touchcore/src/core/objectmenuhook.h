// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_OBJECTMENUHOOK_H
#define TOUCHCORE_OBJECTMENUHOOK_H

class MWidget;
class QPointF;

/// Opens the menu of a widget at a place of the scene; answers whether it did.
using ObjectMenuOpener = bool (*)(MWidget *, const QPointF &);

/// The menu is a scene window, which stands above widgets: it registers itself here.
void setObjectMenuOpener(ObjectMenuOpener opener);

#endif
