// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kcalcompat/kcalcore.h>
#include <kcalcompat/kdatetime.h>

void KCalCompat::registerMetaTypes()
{
    // Text connections compare types by their registered names. SIGNAL() keeps the spelling of the
    // source, while moc expands the macro KCalCore that the library's own build files define.
    for (const char *name : {"KCalCore::Incidence::Ptr", "QSharedPointer<KCalCore::Incidence>",
                             "QSharedPointer<KCalendarCore::Incidence>"})
        qRegisterMetaType<KCalendarCore::Incidence::Ptr>(name);
    qRegisterMetaType<KDateTime>("KDateTime");
    // Without comparators two QVariants that hold equal values would compare as different.
    if (!QMetaType::hasRegisteredComparators<KDateTime>())
        QMetaType::registerComparators<KDateTime>();
}
