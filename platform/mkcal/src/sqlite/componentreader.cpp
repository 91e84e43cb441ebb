// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/componentreader.h"

#include "sqlite/childreader.h"
#include "sqlite/componentcolumns.h"
#include "sqlite/connection.h"
#include "sqlite/datetimecolumns.h"
#include "sqlite/logging.h"

#include <KCalendarCore/Event>
#include <KCalendarCore/Journal>
#include <KCalendarCore/Todo>

#include <QUrl>

#include <map>

using namespace KCalCore;

namespace mKCal
{
using namespace ComponentColumn;

namespace
{
constexpr int idColumn = firstKey; // after the last one that is read
}

class ComponentReaderPrivate
{
public:
    explicit ComponentReaderPrivate(Connection &theConnection)
        : connection(theConnection), children(theConnection, dateTimes)
    {
    }

    bool readRow(const Statement &row, ComponentRow *component);
    Incidence::Ptr create(const Statement &row);
    void readTimes(const Statement &row, Incidence *incidence);
    void readTodoState(const Statement &row, Todo *todo);
    void readTexts(const Statement &row, Incidence *incidence);
    void readNumbers(const Statement &row, Incidence *incidence);
    int enumeration(const Statement &row, int column, int most);
    QDateTime moment(const Statement &row, int column);

    // What a new incidence costs most is its random identifiers, which are replaced here: copies of
    // empty ones are made in a tenth of the time.
    const Event emptyEvent;
    const Todo emptyTodo;
    const Journal emptyJournal;

    Connection &connection;
    std::map<QByteArray, std::unique_ptr<Statement>> queries; ///< by their condition
    DateTimeReader dateTimes;
    ChildReader children;
    int faults = 0;
    bool damageTolerated = false;
};

int ComponentReaderPrivate::enumeration(const Statement &row, int column, int most)
{
    const qint64 value = row.integer(column);
    if (value >= 0 && value <= most)
        return int(value);
    ++faults;
    return 0;
}

QDateTime ComponentReaderPrivate::moment(const Statement &row, int column)
{
    return row.isNull(column) ? QDateTime() : dateTimes.readUtc(row.integer(column));
}

Incidence::Ptr ComponentReaderPrivate::create(const Statement &row)
{
    const qint64 type = row.integer(Type);
    if (type == ComponentType::Event)
        return Event::Ptr::create(emptyEvent);
    if (type == ComponentType::Todo)
        return Todo::Ptr::create(emptyTodo);
    if (type == ComponentType::Journal)
        return Journal::Ptr::create(emptyJournal);
    return {};
}

void ComponentReaderPrivate::readTimes(const Statement &row, Incidence *incidence)
{
    const QDateTime start = dateTimes.read(row, Start);
    if (start.isValid() || !row.isNull(Start))
        incidence->setDtStart(start);
    incidence->setAllDay(row.integer(AllDay) != 0);
    const qint64 length = row.integer(ComponentColumn::Duration);
    const bool hasDuration = row.integer(HasDuration) != 0;
    if (length != 0 || hasDuration)
        incidence->setDuration(KCalCore::Duration(
            row.smallInteger(ComponentColumn::Duration),
            row.integer(DurationDaily) ? KCalCore::Duration::Days : KCalCore::Duration::Seconds));
    const QDateTime end = dateTimes.read(row, End);
    if (incidence->type() == IncidenceBase::TypeEvent && end.isValid())
        static_cast<Event *>(incidence)->setDtEnd(end);
    else if (incidence->type() == IncidenceBase::TypeTodo && end.isValid())
        static_cast<Todo *>(incidence)->setDtDue(end, true);
    if (incidence->hasDuration() != hasDuration)
        incidence->setHasDuration(hasDuration);
    if (!row.isNull(RecurrenceId))
        incidence->setRecurrenceId(dateTimes.read(row, RecurrenceId));
    if (row.integer(ThisAndFuture) != 0)
        incidence->setThisAndFuture(true);
}

/// Before the recurrence is there: a recurring to-do that is completed moves on instead.
void ComponentReaderPrivate::readTodoState(const Statement &row, Todo *todo)
{
    const QDateTime completed = moment(row, CompletedTime);
    if (completed.isValid())
        todo->setCompleted(completed);
    const int percent = qBound(0, row.smallInteger(PercentComplete), 100);
    if (percent != todo->percentComplete())
        todo->setPercentComplete(percent);
}

void ComponentReaderPrivate::readTexts(const Statement &row, Incidence *incidence)
{
    incidence->setSummary(row.text(Summary), row.integer(SummaryRich) != 0);
    if (!row.isNull(Description))
        incidence->setDescription(row.text(Description), row.integer(DescriptionRich) != 0);
    if (!row.isNull(Location))
        incidence->setLocation(row.text(Location), row.integer(LocationRich) != 0);
    if (!row.isNull(OrganizerEmail) || !row.isNull(OrganizerName))
        incidence->setOrganizer(Person(row.text(OrganizerName), row.text(OrganizerEmail)));
    if (!row.isNull(SchedulingId))
        incidence->setSchedulingID(row.text(SchedulingId));
    if (!row.isNull(Parent))
        incidence->setRelatedTo(row.text(Parent), Incidence::RelTypeParent);
    if (!row.isNull(Child))
        incidence->setRelatedTo(row.text(Child), Incidence::RelTypeChild);
    if (!row.isNull(Sibling))
        incidence->setRelatedTo(row.text(Sibling), Incidence::RelTypeSibling);
    if (!row.isNull(Url))
        incidence->setUrl(QUrl::fromEncoded(row.bytes(Url)));
    if (!row.isNull(Color))
        incidence->setColor(row.text(Color));
}

void ComponentReaderPrivate::readNumbers(const Statement &row, Incidence *incidence)
{
    const int status = enumeration(row, Status, Incidence::StatusX);
    if (status == Incidence::StatusX)
        incidence->setCustomStatus(row.text(CustomStatus));
    else if (status != incidence->status())
        incidence->setStatus(Incidence::Status(status));
    const int secrecy = enumeration(row, Secrecy, Incidence::SecrecyConfidential);
    if (secrecy != Incidence::SecrecyPublic)
        incidence->setSecrecy(Incidence::Secrecy(secrecy));
    if (incidence->type() == IncidenceBase::TypeEvent
        && enumeration(row, Transparency, Event::Transparent) != Event::Opaque)
        static_cast<Event *>(incidence)->setTransparency(Event::Transparent);
    const int priority = row.smallInteger(Priority);
    if (priority != 0)
        incidence->setPriority(priority);
    const int revision = row.smallInteger(Revision);
    if (revision != 0)
        incidence->setRevision(revision);
    if (!row.isNull(Latitude) && !row.isNull(Longitude)) {
        const double latitude = row.real(Latitude);
        const double longitude = row.real(Longitude);
        if (qAbs(latitude) <= 90 && qAbs(longitude) <= 180) {
            incidence->setGeoLatitude(float(latitude));
            incidence->setGeoLongitude(float(longitude));
        } else {
            ++faults;
        }
    }
}

bool ComponentReaderPrivate::readRow(const Statement &row, ComponentRow *component)
{
    component->id = row.integer(idColumn);
    component->notebook = row.text(Notebook);
    component->change = row.integer(Change);
    component->state = ComponentState(enumeration(row, State, int(ComponentState::Overwritten)));
    component->stateTime = row.integer(StateTime);
    const QString uid = row.text(Uid);
    const Incidence::Ptr incidence = uid.isEmpty() ? Incidence::Ptr() : create(row);
    component->incidence = incidence;
    if (!incidence) {
        ++faults;
        qCWarning(lcSqlite) << "skipped the unreadable row" << component->id << "of"
                            << connection.fileName();
        return true;
    }
    incidence->setUid(uid);
    incidence->setCreated(moment(row, Created));
    readTimes(row, incidence.data());
    readTexts(row, incidence.data());
    if (incidence->type() == IncidenceBase::TypeTodo)
        readTodoState(row, static_cast<Todo *>(incidence.data()));
    readNumbers(row, incidence.data());
    const int flags = row.smallInteger(Flags);
    if (flags != 0 && !children.read(component->id, flags, incidence.data())) {
        if (!damageTolerated)
            return false;
        ++faults;
    }
    if (incidence->type() == IncidenceBase::TypeTodo && !row.isNull(RecurrenceDue))
        static_cast<Todo *>(incidence.data())->setDtRecurrence(dateTimes.read(row, RecurrenceDue));
    // Nothing more is noted on what stays here: it refuses a time of modification.
    incidence->setLastModified(moment(row, LastModified));
    if (row.integer(LocalOnly) != 0)
        incidence->setLocalOnly(true);
    if (row.integer(ReadOnly) != 0)
        incidence->setReadOnly(true);
    incidence->resetDirtyFields();
    return true;
}

ComponentReader::ComponentReader(Connection &connection)
    : d(std::make_unique<ComponentReaderPrivate>(connection))
{
}

ComponentReader::~ComponentReader() = default;

bool ComponentReader::read(const QByteArray &condition, const SqlValues &values, const Sink &sink)
{
    static const QByteArray columns = "SELECT " + list(0, firstKey) + ", id FROM Components WHERE ";
    std::unique_ptr<Statement> &kept = d->queries[condition];
    if (!kept)
        kept = std::make_unique<Statement>(d->connection, columns + condition);
    Statement &row = *kept;
    const int faultsBefore = faults();
    bool going = true;
    row.bindAll(values);
    ComponentRow component;
    while (going && row.next()) {
        const int faultsOfOthers = faults();
        if (!d->readRow(row, &component)) {
            row.reset();
            return false;
        }
        component.faults = faults() - faultsOfOthers;
        if (component.incidence)
            going = sink(component);
    }
    row.reset();
    if (faults() > faultsBefore)
        qCWarning(lcSqlite) << faults() - faultsBefore << "values of" << d->connection.fileName()
                            << "could not be read as they stand";
    return !row.failed();
}

void ComponentReader::tolerateDamage()
{
    d->damageTolerated = true;
}

int ComponentReader::faults() const
{
    return d->faults + d->dateTimes.faults() + d->children.faults();
}
} // namespace mKCal
