// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "extendedcalendar_p.h"

#include <algorithm>

using namespace mKCal;

ExtendedCalendarPrivate::KnownNotebook *ExtendedCalendarPrivate::knownNotebook(const QString &uid)
{
    const auto known =
        std::find_if(notebooks.begin(), notebooks.end(),
                     [&uid](const KnownNotebook &notebook) { return notebook.uid == uid; });
    return known == notebooks.end() ? nullptr : &*known;
}

bool ExtendedCalendar::addNotebook(const QString &uid, bool isVisible)
{
    if (uid.isEmpty() || hasValidNotebook(uid)) {
        return false;
    }
    d->notebooks.append({uid, isVisible});
    return true;
}

bool ExtendedCalendar::updateNotebook(const QString &uid, bool isVisible)
{
    if (auto *known = d->knownNotebook(uid)) {
        known->isVisible = isVisible;
        return true;
    }
    return false;
}

bool ExtendedCalendar::deleteNotebook(const QString &uid)
{
    if (!hasValidNotebook(uid)) {
        return false;
    }
    const auto leaving = incidences(uid);
    for (const KCalCore::Incidence::Ptr &incidence : leaving) {
        d->takeSilently(incidence);
        d->forgetIfEmpty(incidence->uid());
    }
    if (d->defaultNotebook == uid) {
        d->defaultNotebook.clear();
    }
    d->notebooks.erase(std::remove_if(d->notebooks.begin(), d->notebooks.end(),
                                      [&uid](const auto &known) { return known.uid == uid; }),
                       d->notebooks.end());
    return true;
}

bool ExtendedCalendar::hasValidNotebook(const QString &uid) const
{
    return d->knownNotebook(uid) != nullptr;
}

bool ExtendedCalendar::setDefaultNotebook(const QString &uid)
{
    if (!hasValidNotebook(uid)) {
        return false;
    }
    d->defaultNotebook = uid;
    return true;
}

QString ExtendedCalendar::defaultNotebook() const
{
    return d->defaultNotebook;
}

bool ExtendedCalendar::setNotebook(const KCalCore::Incidence::Ptr &incidence,
                                   const QString &notebookUid)
{
    if (!d->contains(incidence) || !hasValidNotebook(notebookUid)) {
        return false;
    }
    if (notebook(incidence) == notebookUid) {
        return true;
    }
    Family &family = d->families[incidence->uid()];
    family.notebook = notebookUid;
    setModified(true);
    const auto moved = family.members();
    for (const KCalCore::Incidence::Ptr &member : moved) {
        notifyIncidenceChanged(member);
    }
    return true;
}

QString ExtendedCalendar::notebook(const KCalCore::Incidence::Ptr &incidence) const
{
    return incidence ? notebook(incidence->uid()) : QString();
}

QString ExtendedCalendar::notebook(const QString &uid) const
{
    const auto family = d->families.constFind(uid);
    return family == d->families.constEnd() ? QString() : family->notebook;
}

QStringList ExtendedCalendar::notebooks() const
{
    QStringList uids;
    for (const auto &known : qAsConst(d->notebooks)) {
        uids.append(known.uid);
    }
    return uids;
}

KCalCore::Incidence::List ExtendedCalendar::incidences(const QString &notebookUid) const
{
    KCalCore::Incidence::List list;
    d->dates.visitAll([&](const DateIndex::Entry &entry) {
        if (notebook(entry.uid) == notebookUid) {
            list.append(entry.incidence);
        }
    });
    return list;
}

void ExtendedCalendar::clearNotebookAssociations()
{
    for (auto family = d->families.begin(); family != d->families.end(); ++family) {
        family->notebook.clear();
    }
}

bool ExtendedCalendar::isVisible(const QString &notebookUid) const
{
    const auto *known = d->knownNotebook(notebookUid);
    return known != nullptr && known->isVisible;
}

bool ExtendedCalendar::isVisible(const KCalCore::Incidence::Ptr &incidence) const
{
    return isVisible(notebook(incidence));
}
