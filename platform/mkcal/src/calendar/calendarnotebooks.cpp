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

void ExtendedCalendarPrivate::putInNotebook(const QString &uid, const QString &notebook)
{
    QString &current = families[uid].notebook;
    const auto former = uidsOfNotebook.find(current);
    if (former != uidsOfNotebook.end() && former->remove(uid) && former->isEmpty()) {
        uidsOfNotebook.erase(former);
    }
    current = notebook;
    uidsOfNotebook[notebook].insert(uid);
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
    const QSet<QString> uids = d->uidsOfNotebook.value(uid);
    for (const QString &member : uids) {
        const auto leaving = d->families.value(member).members();
        for (const KCalCore::Incidence::Ptr &incidence : leaving) {
            d->takeSilently(incidence);
        }
        d->forgetIfEmpty(member);
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
    d->putInNotebook(incidence->uid(), notebookUid);
    setModified(true);
    const auto moved = d->families.value(incidence->uid()).members();
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
    QVector<const DateIndex::Entry *> entries;
    const QSet<QString> uids = d->uidsOfNotebook.value(notebookUid);
    for (const QString &uid : uids) {
        const auto members = d->families.value(uid).members();
        for (const KCalCore::Incidence::Ptr &incidence : members) {
            entries.append(d->dates.find(incidence.data()));
        }
    }
    std::sort(entries.begin(), entries.end(), [](const auto *a, const auto *b) {
        return a->isDated != b->isDated ? a->isDated : *a < *b;
    });
    KCalCore::Incidence::List incidences;
    incidences.reserve(entries.size());
    for (const DateIndex::Entry *entry : qAsConst(entries)) {
        incidences.append(entry->incidence);
    }
    return incidences;
}

void ExtendedCalendar::clearNotebookAssociations()
{
    for (auto family = d->families.begin(); family != d->families.end(); ++family) {
        family->notebook.clear();
    }
    const QStringList uids = d->families.keys();
    d->uidsOfNotebook.clear();
    if (!uids.isEmpty()) {
        d->uidsOfNotebook.insert(QString(), QSet<QString>(uids.cbegin(), uids.cend()));
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
