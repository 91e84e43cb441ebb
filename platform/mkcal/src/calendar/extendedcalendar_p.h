// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_EXTENDEDCALENDAR_P_H
#define MKCAL_EXTENDEDCALENDAR_P_H

#include "dateindex.h"

#include <mkcal/extendedcalendar.h>

#include <QHash>

namespace mKCal
{
/// The incidences of one UID, and the notebook that holds them all.
struct Family {
    KCalCore::Incidence::Ptr series; ///< the one without a recurrence identifier
    KCalCore::Incidence::List exceptions;
    QString notebook;

    bool isEmpty() const { return !series && exceptions.isEmpty(); }
    KCalCore::Incidence::List members() const;
};

class ExtendedCalendarPrivate
{
public:
    struct KnownNotebook {
        QString uid;
        bool isVisible;
    };

    explicit ExtendedCalendarPrivate(ExtendedCalendar *calendar);

    // Identity
    KCalCore::Incidence::Ptr find(const QString &uid, const KDateTime &recurrenceId) const;
    KCalCore::Incidence::Ptr find(const QString &uid, const QDateTime &recurrenceId) const;
    bool contains(const KCalCore::Incidence::Ptr &incidence) const;
    KCalCore::Incidence::List exceptionsOf(const QString &uid) const;

    // Membership
    void enter(const KCalCore::Incidence::Ptr &incidence, const QString &notebook);
    void leave(const KCalCore::Incidence::Ptr &incidence);
    /// Takes an incidence out as if it had never been there: nobody is told, exceptions stay.
    void takeSilently(const KCalCore::Incidence::Ptr &incidence);
    void forgetIfEmpty(const QString &uid);
    KnownNotebook *knownNotebook(const QString &uid);

    // Series
    /// Makes an exception an incidence of its own; null for a cancelled one.
    KCalCore::Incidence::Ptr detachException(const KCalCore::Incidence::Ptr &series,
                                             const KCalCore::Incidence::Ptr &exception);

    // Index
    void index(const KCalCore::Incidence::Ptr &incidence);
    void index(const KCalCore::Incidence::Ptr &incidence, const Family &family);
    void indexAgain();
    DateIndex::Range range(const QDate &start, const QDate &end, const QTimeZone &zone) const;
    bool occursIn(const DateIndex::Entry &entry, const DateIndex::Range &range) const;

    ExtendedCalendar *q;
    ZoneClock clock;
    DateIndex dates;
    QHash<QString, Family> families;
    QVector<KnownNotebook> notebooks; ///< in the order in which they were added
    QString defaultNotebook;
    bool keepsExceptions = false; ///< while a series is exchanged for another version of it
};
} // namespace mKCal

#endif
