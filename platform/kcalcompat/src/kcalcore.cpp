// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kcalcompat/kcalcore.h>
#include <kcalcompat/kdatetime.h>

void KCalCompat::registerMetaTypes()
{
    // moc and SIGNAL() know a type by the spelling that the source used, and both are in use.
    qRegisterMetaType<KCalCore::Incidence::Ptr>("KCalCore::Incidence::Ptr");
    qRegisterMetaType<KCalCore::Incidence::Ptr>("QSharedPointer<KCalCore::Incidence>");
    qRegisterMetaType<KDateTime>("KDateTime");
    // Without comparators two QVariants that hold equal values would compare as different.
    QMetaType::registerComparators<KDateTime>();
}
