// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef PLAINSTORAGE_H
#define PLAINSTORAGE_H

#include <mkcal/bulkwriter.h>
#include <mkcal/extendedstorage.h>
#include <mkcal/extendedstorageobserver.h>

#include <QStringList>

#include <atomic>
#include <functional>

/// A storage that is no database: it writes down what it is asked to do (in `calls`, the UI thread
/// and a worker not at once) and does as the test says. What is loaded comes from `provide`.
class PlainStorage : public mKCal::ExtendedStorage
{
public:
    using Incidences = KCalCore::Incidence::List;
    using Notebook = mKCal::Notebook;

    explicit PlainStorage(const mKCal::ExtendedCalendar::Ptr &calendar) : ExtendedStorage(calendar)
    {
    }

    int failingOpens = 0; ///< how many attempts to open fail from now on
    std::atomic<int> noticeHolds{0};
    bool accepts = true; ///< what saves and changes of notebooks answer
    KDateTime lastFuture; ///< what loadFutureIncidences() finds
    Incidences stored; ///< what allIncidences() finds
    std::function<void()> provide = [] {}; ///< called by every load
    QStringList calls;

    /// Such as "open, loadJournals": all since the last time.
    QString takeCalls() { return std::exchange(calls, {}).join(QStringLiteral(", ")); }
    void tellModified() { notifyModified(QStringLiteral("test")); }

    bool open() override
    {
        calls << QStringLiteral("open");
        m_isOpen = failingOpens == 0;
        failingOpens = qMax(0, failingOpens - 1);
        return m_isOpen;
    }
    bool close() override { return true; }
    bool isOpen() const override { return m_isOpen; }
    QString errorMessage() const override { return {}; }

    bool load() override { return loaded(QStringLiteral("load")); }
    bool load(const QString &uid, const KDateTime &recurrenceId) override
    {
        return loaded(QStringLiteral("load %1 %2").arg(uid, recurrenceId.toString()));
    }
    bool load(const QDate &date) override { return loaded(QLatin1String("load ") + text(date)); }
    bool load(const QDate &start, const QDate &end) override
    {
        return loaded(QStringLiteral("load %1 %2").arg(text(start), text(end)));
    }
    bool loadRecurringIncidences() override { return loaded(QStringLiteral("loadRecurring")); }
    bool loadRecurringIncidences(const QDate &start, const QDate &end) override
    {
        return loaded(QStringLiteral("loadRecurring %1 %2").arg(text(start), text(end)));
    }
    bool loadUncompletedTodos() override { return loaded(QStringLiteral("loadTodos")); }
    bool loadJournals() override { return loaded(QStringLiteral("loadJournals")); }
    bool loadNotebookIncidences(const QString &) override { return false; }
    bool loadFutureIncidences(int limit, KDateTime *last) override
    {
        *last = lastFuture;
        return loaded(QStringLiteral("loadFuture %1").arg(limit));
    }
    int loadCompletedTodos(int, KDateTime *) override { return 0; }
    bool loadCreatedSince(const QDateTime &) override { return false; }
    bool loadModifiedSince(const QDateTime &) override { return false; }
    bool loadByAttendee(const QString &) override { return false; }
    Incidences search(const QString &, int) override { return {}; }
    QDate nextDateWithIncidence(const QDate &) override { return {}; }
    QDate previousDateWithIncidence(const QDate &) override { return {}; }
    bool allIncidences(Incidences *list, const QString &notebookUid) override
    {
        calls << QLatin1String("allIncidences ") + notebookUid;
        *list += stored;
        return true;
    }

    bool save() override
    {
        calls << QStringLiteral("save");
        if (accepts)
            tellModified();
        return accepts;
    }
    bool hasUnsavedChanges() const override { return false; }
    bool deletedIncidences(Incidences *, const QDateTime &, const QString &) override
    {
        return false;
    }
    bool overwrittenIncidences(Incidences *, const QString &) override { return false; }
    bool undelete(const QString &, const KDateTime &) override { return false; }
    bool purgeDeleted(const QDateTime &, const QString &) override { return false; }
    std::unique_ptr<mKCal::BulkWriter> bulkWriter() override { return nullptr; }

    bool resetAlarms(const Incidences &incidences) override
    {
        calls << QStringLiteral("resetAlarms %1").arg(incidences.size());
        return true;
    }
    void holdNotices() override { ++noticeHolds; }
    void releaseNotices() override { --noticeHolds; }
    mKCal::ReminderList reminders(const QDateTime &, const QDateTime &) override { return {}; }
    bool setReminderShown(qint64) override { return false; }
    bool setReminderDismissed(qint64) override { return false; }
    bool notifyOpened(const KCalCore::Incidence::Ptr &) override { return false; }

    Notebook::List notebooks() override { return m_notebooks; }
    Notebook::Ptr notebook(const QString &uid) override
    {
        for (const Notebook::Ptr &notebook : qAsConst(m_notebooks)) {
            if (notebook->uid() == uid)
                return notebook;
        }
        return {};
    }
    bool addNotebook(const Notebook::Ptr &added, bool signal) override
    {
        calls << QStringLiteral("addNotebook %1 %2").arg(added->uid()).arg(signal);
        if (!accepts || notebook(added->uid()))
            return false;
        m_notebooks << added;
        return true;
    }
    bool updateNotebook(const Notebook::Ptr &changed) override
    {
        calls << QLatin1String("updateNotebook ") + (changed ? changed->name() : QString());
        return accepts;
    }
    bool deleteNotebook(const Notebook::Ptr &deleted, bool onlyMemory) override
    {
        calls << QStringLiteral("deleteNotebook %1 %2").arg(deleted->uid()).arg(onlyMemory);
        return accepts && m_notebooks.removeAll(notebook(deleted->uid())) > 0;
    }
    bool setDefaultNotebook(const Notebook::Ptr &notebook) override
    {
        calls << QLatin1String("setDefaultNotebook ") + notebook->uid();
        m_default = notebook;
        return true;
    }
    Notebook::Ptr defaultNotebook() override { return m_default; }
    bool resetDefaultNotebook() override
    {
        calls << QStringLiteral("resetDefaultNotebook");
        return true;
    }

private:
    static QString text(const QDate &date) { return date.toString(Qt::ISODate); }
    bool loaded(const QString &call)
    {
        calls << call;
        provide();
        return true;
    }

    bool m_isOpen = false;
    Notebook::List m_notebooks;
    Notebook::Ptr m_default;
};

#endif
