// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTELOADER_H
#define DASKEL_NOTELOADER_H

#include <daskel/abstractnoteloaderbackend.h>
#include <mkcal/extendedcalendar.h>
#include <mkcal/extendedstorage.h>

#include <memory>

class AbstractNoteLoaderPrivate;

/// Knows which notes belong in a list (a day, an agenda, the to-dos) and hands them over batch by
/// batch: the first one, then whatever lies before or behind, as the person scrolls.
///
/// Applications derive their loaders from it. A batch is handed over before the call returns: for
/// each group first addGroupHeader() of the backend, then addIncidence() for its rows, in the order
/// in which they are to be shown. A loader that has nothing more hands over nothing. It belongs to
/// whoever made it; the backend and the list do not delete it. UI thread only.
class AbstractNoteLoader
{
public:
    AbstractNoteLoader();
    virtual ~AbstractNoteLoader();
    Q_DISABLE_COPY(AbstractNoteLoader)

    /// The first batch of a list that was cleared.
    virtual void load() = 0;
    /// The batch before everything handed over so far.
    virtual void loadEarlier() = 0;
    /// The batch behind everything handed over so far.
    virtual void loadLater() = 0;

    /// Not owned; the model that is made for this loader sets itself.
    void setBackend(AbstractNoteLoaderBackend *backend);
    AbstractNoteLoaderBackend *backend() const;

    /// How many incidences a batch should hold, at least 1; a hint to the loader, 15 by default.
    void setBatchSize(int value);
    int batchSize() const;

    // Where the loader reads; normally those of DbInstance. Neither opened nor watched here.
    void setStorage(const QSharedPointer<mKCal::ExtendedStorage> &storage);
    QSharedPointer<mKCal::ExtendedStorage> storage() const;
    void setCalendar(const QSharedPointer<mKCal::ExtendedCalendar> &calendar);
    QSharedPointer<mKCal::ExtendedCalendar> calendar() const;

    /// Hands one row to the backend and counts it; a row without incidence is a placeholder and
    /// does not count.
    void addIncidence(const QString &groupName, QDateTime *start, QDateTime *end,
                      const QSharedPointer<KCalCore::Incidence> &incidence, bool atFront);
    /// How many incidences were handed over since the last reset. load() normally begins with one.
    int incidenceCount() const;
    void resetIncidenceCount();

private:
    std::unique_ptr<AbstractNoteLoaderPrivate> d;
};

#endif
