// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef STORAGEFIXTURE_H
#define STORAGEFIXTURE_H

#include "storage/sqlitestorage_p.h"

#include <kcalcompat/clock.h>
#include <mkcal/bulkwriter.h>
#include <mkcal/extendedstorageobserver.h>
#include <mkcal/sqlitestorage.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Journal>
#include <KCalendarCore/Todo>

#include <QTemporaryDir>
#include <QThread>
#include <QTimeZone>
#include <QtTest>

#include <ctime>

/// Runs the tests of @p Test in one time zone, wherever they are run.
#define STORAGE_TEST_MAIN(Test)                                                                    \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        qputenv("TZ", "Europe/Helsinki");                                                          \
        tzset();                                                                                   \
        QCoreApplication application(argc, argv);                                                  \
        Test test;                                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

/// Counts what a storage tells.
class NoticeCounter : public mKCal::ExtendedStorageObserver
{
public:
    void storageModified(mKCal::ExtendedStorage *storage, const QString &) override
    {
        ++modified;
        thread = QThread::currentThread();
        if (onModified)
            onModified(storage);
    }
    void storageProgress(mKCal::ExtendedStorage *, const QString &) override { }
    void storageFinished(mKCal::ExtendedStorage *, bool, const QString &) override { }

    int modified = 0;
    QThread *thread = nullptr;
    std::function<void(mKCal::ExtendedStorage *)> onModified;
};

/// One opened storage with its calendar, as each process of the calendar has one.
struct OpenStorage {
    explicit OpenStorage(const QString &fileName)
        : calendar(new mKCal::ExtendedCalendar(QTimeZone("Europe/Helsinki"))),
          storage(new mKCal::SqliteStorage(calendar, fileName))
    {
        storage->registerObserver(&notices);
        isOpen = storage->open();
    }
    ~OpenStorage() { storage->unregisterObserver(&notices); }

    int reads() const { return mKCal::SqliteStoragePrivate::of(*storage).loader.reads(); }
    KCalCore::Incidence::Ptr incidence(const QString &uid,
                                       const KDateTime &recurrenceId = KDateTime()) const
    {
        return calendar->incidence(uid, recurrenceId);
    }
    QStringList uids() const
    {
        QStringList uids;
        const auto incidences = calendar->rawIncidences();
        for (const auto &incidence : incidences)
            uids.append(incidence->hasRecurrenceId() ? incidence->uid() + QLatin1Char('/')
                                + incidence->recurrenceId().toString(QStringLiteral("yyyyMMdd"))
                                                     : incidence->uid());
        uids.sort();
        return uids;
    }

    NoticeCounter notices;
    mKCal::ExtendedCalendar::Ptr calendar;
    QSharedPointer<mKCal::SqliteStorage> storage;
    bool isOpen = false;
};

namespace Make
{
inline QDateTime at(int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), QTimeZone("Europe/Helsinki"));
}

inline KCalCore::Event::Ptr meeting(const QString &uid, const QDateTime &start, int minutes = 60)
{
    KCalCore::Event::Ptr event(new KCalCore::Event);
    event->setUid(uid);
    event->setSummary(uid, false);
    event->setDtStart(start);
    event->setDtEnd(start.addSecs(minutes * 60));
    return event;
}

inline KCalCore::Event::Ptr allDay(const QString &uid, const QDate &first, int days = 1)
{
    KCalCore::Event::Ptr event(new KCalCore::Event);
    event->setUid(uid);
    event->setSummary(uid, false);
    event->setDtStart(QDateTime(first, QTime(0, 0), Qt::LocalTime));
    event->setDtEnd(QDateTime(first.addDays(days), QTime(0, 0), Qt::LocalTime));
    event->setAllDay(true);
    return event;
}

inline KCalCore::Event::Ptr daily(const QString &uid, const QDateTime &start, int count)
{
    const KCalCore::Event::Ptr event = Make::meeting(uid, start);
    event->recurrence()->setDaily(1);
    event->recurrence()->setDuration(count);
    return event;
}

inline KCalCore::Incidence::Ptr exception(const KCalCore::Incidence::Ptr &series,
                                          const QDateTime &occurrence, const QDateTime &start)
{
    const KCalCore::Event::Ptr exception = meeting(series->uid(), start);
    exception->setRecurrenceId(occurrence);
    return exception;
}

inline KCalCore::Todo::Ptr todo(const QString &uid, const QDateTime &due = QDateTime())
{
    KCalCore::Todo::Ptr todo(new KCalCore::Todo);
    todo->setUid(uid);
    todo->setSummary(uid, false);
    todo->setDtDue(due);
    return todo;
}

inline KCalCore::Journal::Ptr journal(const QString &uid, const QDateTime &start)
{
    KCalCore::Journal::Ptr journal(new KCalCore::Journal);
    journal->setUid(uid);
    journal->setSummary(uid, false);
    journal->setDtStart(start);
    return journal;
}

inline mKCal::Notebook::Ptr notebook(const QString &uid, const QString &name = QString())
{
    return mKCal::Notebook::Ptr(new mKCal::Notebook(uid, name.isEmpty() ? uid : name, QString(),
                                                    QStringLiteral("#63B33B"), false, true, false,
                                                    false, true));
}
} // namespace Make

/// A database of its own for each test function, and a clock that stands still.
class StorageFixture
{
public:
    StorageFixture()
    {
        KCalCompat::Clock::setSource([this] { return now; });
    }
    ~StorageFixture() { KCalCompat::Clock::setSource({}); }

    QString fileName() const { return folder.filePath(QStringLiteral("calendar.db")); }
    /// Opens the database with the notebook "work" as the default one.
    std::unique_ptr<OpenStorage> open() const
    {
        auto opened = std::make_unique<OpenStorage>(fileName());
        if (opened->storage->notebooks().isEmpty()) {
            opened->storage->addNotebook(Make::notebook(QStringLiteral("work")), false);
            opened->storage->setDefaultNotebook(Make::notebook(QStringLiteral("work")));
        }
        opened->notices.modified = 0;
        return opened;
    }
    /// Stores these and forgets them.
    bool store(const KCalCore::Incidence::List &incidences) const
    {
        const auto writer = open();
        for (const auto &incidence : incidences) {
            incidence->setCreated(now);
            writer->calendar->addIncidence(incidence);
        }
        return writer->storage->save();
    }

    QTemporaryDir folder;
    QDateTime now = QDateTime(QDate(2026, 3, 10), QTime(12, 0), Qt::UTC);
};

#endif
