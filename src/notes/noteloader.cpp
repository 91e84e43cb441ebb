// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "daskelassert.h"

#include <daskel/noteloader.h>

class AbstractNoteLoaderPrivate
{
public:
    AbstractNoteLoaderBackend *backend = nullptr;
    int batchSize = 15;
    QSharedPointer<mKCal::ExtendedStorage> storage;
    QSharedPointer<mKCal::ExtendedCalendar> calendar;
    int incidenceCount = 0;
};

AbstractNoteLoader::AbstractNoteLoader() : d(std::make_unique<AbstractNoteLoaderPrivate>()) { }

AbstractNoteLoader::~AbstractNoteLoader() = default;

void AbstractNoteLoader::setBackend(AbstractNoteLoaderBackend *backend)
{
    d->backend = backend;
}

AbstractNoteLoaderBackend *AbstractNoteLoader::backend() const
{
    DASKEL_ASSERT(d->backend, "noteloader", 55);
    return d->backend;
}

void AbstractNoteLoader::setBatchSize(int value)
{
    DASKEL_ASSERT(value > 0, "noteloader", 62);
    d->batchSize = value;
}

int AbstractNoteLoader::batchSize() const
{
    return d->batchSize;
}

void AbstractNoteLoader::setStorage(const QSharedPointer<mKCal::ExtendedStorage> &storage)
{
    d->storage = storage;
}

QSharedPointer<mKCal::ExtendedStorage> AbstractNoteLoader::storage() const
{
    return d->storage;
}

void AbstractNoteLoader::setCalendar(const QSharedPointer<mKCal::ExtendedCalendar> &calendar)
{
    d->calendar = calendar;
}

QSharedPointer<mKCal::ExtendedCalendar> AbstractNoteLoader::calendar() const
{
    return d->calendar;
}

void AbstractNoteLoader::addIncidence(const QString &groupName, QDateTime *start, QDateTime *end,
                                      const QSharedPointer<KCalCore::Incidence> &incidence,
                                      bool atFront)
{
    backend()->addIncidence(groupName, start, end, incidence, atFront);
    if (incidence)
        ++d->incidenceCount;
}

int AbstractNoteLoader::incidenceCount() const
{
    return d->incidenceCount;
}

void AbstractNoteLoader::resetIncidenceCount()
{
    d->incidenceCount = 0;
}
