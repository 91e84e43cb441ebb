// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MEMORYBULKWRITER_H
#define MEMORYBULKWRITER_H

#include "sqlite/componentkeys.h"

#include <kcalcompat/clock.h>
#include <mkcal/bulkwriter.h>

#include <QMap>

/// A database in memory. Holds clones, as a real one does, and counts what was written.
class MemoryBulkWriter : public mKCal::BulkWriter
{
public:
    KCalCore::Incidence::Ptr find(const QString &uid, const KDateTime &recurrenceId) override
    {
        const auto stored = m_incidences.value(key(uid, mKCal::recIdText(recurrenceId)));
        return stored ? KCalCore::Incidence::Ptr(stored->clone()) : stored;
    }
    QString notebook(const QString &uid) override { return m_notebooks.value(uid); }
    bool write(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid) override
    {
        if (failing) {
            return false;
        }
        const QDateTime now = KCalCompat::Clock::now();
        if (!incidence->created().isValid()) {
            incidence->setCreated(now);
        }
        if (!incidence->lastModified().isValid()) {
            incidence->setLastModified(now);
        }
        m_incidences.insert(key(incidence->uid(), mKCal::recIdText(*incidence)),
                            KCalCore::Incidence::Ptr(incidence->clone()));
        m_notebooks.insert(incidence->uid(), notebookUid);
        ++written;
        return true;
    }
    bool remove(const QString &uid, const KDateTime &recurrenceId) override
    {
        return m_incidences.remove(key(uid, mKCal::recIdText(recurrenceId))) > 0;
    }
    bool commit() override { return !failing; }
    QString errorMessage() const override
    {
        return failing ? QStringLiteral("disk full") : QString();
    }

    /// Ordered by UID and recurrence identifier.
    KCalCore::Incidence::List incidences() const { return m_incidences.values().toVector(); }

    bool failing = false;
    int written = 0;

private:
    static QString key(const QString &uid, const QString &recurrenceId)
    {
        return uid + QLatin1Char('\n') + recurrenceId;
    }

    QMap<QString, KCalCore::Incidence::Ptr> m_incidences;
    QMap<QString, QString> m_notebooks;
};

#endif
