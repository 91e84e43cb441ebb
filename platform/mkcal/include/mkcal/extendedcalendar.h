// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef MKCAL_EXTENDEDCALENDAR_H
#define MKCAL_EXTENDEDCALENDAR_H

#include <kcalcompat/kcalcore.h>
#include <kcalcompat/kdatetime.h>

#include <KCalendarCore/MemoryCalendar>

#include <QPair>
#include <QVector>

#include <kcalendarcore_version.h>
#include <memory>

// Virtual in KDE Frameworks 5 and gone in 6: overrides there would be errors, calls stay the same.
#if KCALENDARCORE_VERSION < QT_VERSION_CHECK(6, 0, 0)
#define MKCAL_OVERRIDE_KF5 override
#else
#define MKCAL_OVERRIDE_KF5
#endif

namespace mKCal
{
class ExtendedCalendarPrivate;
class ExtendedStorage;

/// The calendar in memory: the incidences that were loaded or added, found by date through an
/// index of its own, and which notebook each belongs to.
///
/// All-day ends are exclusive here: a one-day all-day event ends on the day after it starts.
/// Queries overlap half-open: an event that ends at midnight is not part of the next day.
/// Results are ordered by start, end, UID and recurrence identifier. Notebook visibility is not
/// looked at. One owner (thread) at a time; const calls are not thread-safe either.
///
/// Observers are told of what is added, changed (a move to another notebook included) and deleted.
/// An incidence in the calendar keeps its UID and recurrence identifier: to change them, delete it,
/// change it and add it again. Group the edits of a recurrence with startUpdates() and
/// endUpdates(). When an incidence was last modified is for the storage to say, not for each
/// setter.
class ExtendedCalendar : public KCalCore::MemoryCalendar
{
    Q_OBJECT
public:
    using Ptr = QSharedPointer<ExtendedCalendar>;

    /// When one occurrence (or one day's piece of it) starts and ends, in the calendar's time zone;
    /// the end is exclusive.
    struct ExpandedIncidenceValidity {
        QDateTime dtStart;
        QDateTime dtEnd;
    };
    using ExpandedIncidence = QPair<ExpandedIncidenceValidity, KCalCore::Incidence::Ptr>;
    using ExpandedIncidenceList = QVector<ExpandedIncidence>;

    explicit ExtendedCalendar(const KDateTime::Spec &timeSpec);
    explicit ExtendedCalendar(const QTimeZone &timeZone);
    explicit ExtendedCalendar(const QByteArray &timeZoneId);
    ~ExtendedCalendar() override;

    /// The storage of the person's own calendar (SqliteStorage on its default file), not yet open.
    static QSharedPointer<ExtendedStorage> defaultStorage(const Ptr &calendar);

    /// Drops everything from memory, changes that were not saved too. Nothing is deleted in the
    /// storage, which reads it again when it is asked to load.
    void close() override;

    // Adding: a second incidence of the same UID and recurrence identifier takes the first one's
    // place. Without a notebook UID the incidence belongs to the default notebook (see
    // setDefaultNotebook()). False for null, and for a notebook that is not known.
    bool addIncidence(const KCalCore::Incidence::Ptr &incidence) override;
    bool addEvent(const KCalCore::Event::Ptr &event) override;
    bool addEvent(const KCalCore::Event::Ptr &event, const QString &notebookUid);
    bool addTodo(const KCalCore::Todo::Ptr &todo) override;
    bool addTodo(const KCalCore::Todo::Ptr &todo, const QString &notebookUid);
    bool addJournal(const KCalCore::Journal::Ptr &journal) override;
    bool addJournal(const KCalCore::Journal::Ptr &journal, const QString &notebookUid);
    bool addIncidence(const KCalCore::Incidence::Ptr &incidence, const QString &notebookUid);

    bool deleteIncidence(const KCalCore::Incidence::Ptr &incidence) override;
    bool deleteEvent(const KCalCore::Event::Ptr &event) override;
    bool deleteTodo(const KCalCore::Todo::Ptr &todo) override;
    bool deleteJournal(const KCalCore::Journal::Ptr &journal) override;
    /// Deletes the exceptions of a series. Deleting a series does so too.
    bool deleteIncidenceInstances(const KCalCore::Incidence::Ptr &incidence) override;

    /// The incidence of that UID and recurrence identifier (null for the series): all-day
    /// identifiers are compared by date, others by instant truncated to seconds.
    KCalCore::Incidence::Ptr incidence(const QString &uid,
                                       const KDateTime &recurrenceId = KDateTime()) const;
    KCalCore::Event::Ptr event(const QString &uid,
                               const QDateTime &recurrenceId = {}) const override;
    KCalCore::Todo::Ptr todo(const QString &uid, const QDateTime &recurrenceId = {}) const override;
    KCalCore::Journal::Ptr journal(const QString &uid,
                                   const QDateTime &recurrenceId = {}) const override;
    using QObject::event;

    // Ranges. Both dates are taken in the calendar's time zone and both days are part of the
    // range. A recurring incidence is listed when its series is alive in the range; an exception
    // stands by its own (moved) time.
    KCalCore::Incidence::List incidences(const QDate &start, const QDate &end) const;
    KCalCore::Journal::List journals(const QDate &start, const QDate &end) const;
    KCalCore::Event::List rawEvents(
        KCalCore::EventSortField sortField = KCalCore::EventSortUnsorted,
        KCalCore::SortDirection sortDirection = KCalCore::SortDirectionAscending) const override;
    KCalCore::Event::List rawEvents(const QDate &start, const QDate &end,
                                    const QTimeZone &timeZone = {},
                                    bool inclusive = false) const override;
    /// The events that occur on that day, recurring ones only when one of their occurrences does.
    KCalCore::Event::List rawEventsForDate(
        const QDate &date, const QTimeZone &timeZone = {},
        KCalCore::EventSortField sortField = KCalCore::EventSortUnsorted,
        KCalCore::SortDirection sortDirection = KCalCore::SortDirectionAscending) const override;
    KCalCore::Todo::List rawTodos(
        KCalCore::TodoSortField sortField = KCalCore::TodoSortUnsorted,
        KCalCore::SortDirection sortDirection = KCalCore::SortDirectionAscending) const override;
    KCalCore::Todo::List rawTodos(const QDate &start, const QDate &end,
                                  const QTimeZone &timeZone = {},
                                  bool inclusive = false) const override;
    KCalCore::Todo::List rawTodosForDate(const QDate &date) const override;
    KCalCore::Journal::List rawJournalsForDate(const QDate &date) const override;
    KCalCore::Journal::List rawJournals(
        KCalCore::JournalSortField sortField = KCalCore::JournalSortUnsorted,
        KCalCore::SortDirection sortDirection = KCalCore::SortDirectionAscending) const override;
    using KCalCore::MemoryCalendar::incidences;
    using KCalCore::MemoryCalendar::journals;
    using KCalCore::MemoryCalendar::rawEventsForDate;

    /// Unrolls recurrences: the occurrences that overlap the window [@p start, @p end), ordered by
    /// start. An occurrence that began before the window is delivered with its real start; one
    /// that only touches the window is not. An event's occurrence runs from its start to its end;
    /// a to-do's is the moment it is due (or starts, when it has no due date); one without dates
    /// has none. Exceptions (RECURRENCE-ID) among @p incidences or in the calendar stand in for
    /// the occurrence that they replace; THISANDFUTURE exceptions for all later ones as well.
    /// @param maxExpand how many occurrences that start in the window one incidence may have;
    ///        further ones are left out.
    /// @param expandLimitHit set to true (never to false) when an incidence has that many.
    ExpandedIncidenceList expandRecurrences(KCalCore::Incidence::List *incidences,
                                            const KDateTime &start, const KDateTime &end,
                                            int maxExpand, bool *expandLimitHit = nullptr) const;

    /// Splits what lasts over midnight into one piece for each day of [@p start, @p end), cut at
    /// the start of the window.
    /// @param maxExpand how many pieces one recurring incidence may have.
    /// @param merge true: single-day items are part of the result too, all ordered by start;
    ///        false: the pieces of multi-day items alone.
    /// @param expandLimitHit set to true (never to false) when a recurring incidence has that many.
    ExpandedIncidenceList expandMultiDay(const ExpandedIncidenceList &list, const QDate &start,
                                         const QDate &end, int maxExpand, bool merge,
                                         bool *expandLimitHit = nullptr) const;

    /// Takes one occurrence out of its series: the series no longer has it, the result is a new
    /// incidence (own UID, no recurrence) in the same notebook with the occurrence's times.
    /// Null when @p incidence does not recur, is not in this calendar, or has no such occurrence.
    KCalCore::Incidence::Ptr dissociateSingleOccurrence(const KCalCore::Incidence::Ptr &incidence,
                                                        const KDateTime &occurrence,
                                                        const KDateTime::Spec &timeSpec);

    /// Cuts a series in two: @p incidence ends before @p firstLater, and the result, a new series
    /// with an own UID in the same notebook, goes on from there (its exceptions and excluded dates
    /// with it). Null, and nothing changed, when there is no such occurrence, when it is the first
    /// one, and when a rule counts its steps from a start that the later part would not have.
    KCalCore::Incidence::Ptr splitSeries(const KCalCore::Incidence::Ptr &incidence,
                                         const KDateTime &firstLater);

    // Notebooks, kept by UID: exceptions are where their series is.
    /// Makes a notebook known; storages call it for each that they hold.
    bool addNotebook(const QString &uid, bool isVisible);
    bool updateNotebook(const QString &uid, bool isVisible);
    /// Forgets a notebook; its incidences leave the calendar without being marked deleted:
    /// observers are not told.
    bool deleteNotebook(const QString &uid);
    bool hasValidNotebook(const QString &uid) const;
    bool setDefaultNotebook(const QString &uid);
    QString defaultNotebook() const;
    /// False, and nothing changed, for an incidence not in this calendar or an unknown notebook.
    bool setNotebook(const KCalCore::Incidence::Ptr &incidence,
                     const QString &notebookUid) MKCAL_OVERRIDE_KF5;
    QString notebook(const KCalCore::Incidence::Ptr &incidence) const MKCAL_OVERRIDE_KF5;
    QString notebook(const QString &uid) const MKCAL_OVERRIDE_KF5;
    QStringList notebooks() const MKCAL_OVERRIDE_KF5;
    KCalCore::Incidence::List incidences(const QString &notebookUid) const MKCAL_OVERRIDE_KF5;
    /// No incidence is in any notebook afterwards.
    void clearNotebookAssociations() MKCAL_OVERRIDE_KF5;
    /// What addNotebook() or updateNotebook() said; false for an unknown notebook.
    bool isVisible(const QString &notebookUid) const;
    bool isVisible(const KCalCore::Incidence::Ptr &incidence) const;

    void incidenceUpdated(const QString &uid, const QDateTime &recurrenceId) override;
    /// Nothing: relations are read from the incidences. The tables of the base class would mark
    /// children as changed when their parent is deleted, and cost time for each missing parent.
    void setupRelations(const KCalCore::Incidence::Ptr &incidence) MKCAL_OVERRIDE_KF5;
    void removeRelations(const KCalCore::Incidence::Ptr &incidence) MKCAL_OVERRIDE_KF5;

Q_SIGNALS:
    /// Everything was dropped from memory.
    void closed();

protected:
    void doSetTimeZone(const QTimeZone &timeZone) override;

private:
    friend class ExtendedCalendarPrivate;
    std::unique_ptr<ExtendedCalendarPrivate> d;
};

/// When the occurrence of @p incidence that starts at @p occurrenceStart ends: all-day ones by
/// days, so that a clock change does not shorten them.
QDateTime occurrenceEnd(const KCalCore::Incidence::Ptr &incidence,
                        const QDateTime &occurrenceStart);
/// The start of the latest occurrence at or before @p time (rules, RDATEs and exclusions heeded);
/// null when there is none.
QDateTime previousOccurrence(const KCalCore::Incidence::Ptr &incidence, const QDateTime &time);
} // namespace mKCal

Q_DECLARE_METATYPE(mKCal::ExtendedCalendar::ExpandedIncidenceValidity)

#endif
