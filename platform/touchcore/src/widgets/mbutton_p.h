// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MBUTTON_P_H
#define TOUCHCORE_MBUTTON_P_H

#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>

#include <QPointer>

class MButtonPrivate
{
public:
    QPointer<MButtonGroup> group;
    bool isHeld = false; ///< by finger or key; not down while the finger is too far away
    bool wasChecked = false; ///< what toggled() last told
};

#endif
