// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef KCALCOMPAT_KCALCORE_H
#define KCALCOMPAT_KCALCORE_H

#include <KCalendarCore/Incidence>

#include <QMetaType>

/// The name under which the calendar's own code knows the incidence types. Include this header
/// instead of declaring the namespace: an alias and a namespace of one name cannot meet.
/// (KCalendarCore's CMake package defines the name as a macro, its pkg-config file does not.)
#ifndef KCalCore
namespace KCalCore = KCalendarCore;
#endif

Q_DECLARE_METATYPE(KCalendarCore::Incidence::Ptr)

namespace KCalCompat
{
/// Registers `KCalCore::Incidence::Ptr` (also as "QSharedPointer<KCalCore::Incidence>") and
/// `KDateTime`, so that queued connections and QVariant carry them. May be called more than once.
void registerMetaTypes();
} // namespace KCalCompat

#endif
