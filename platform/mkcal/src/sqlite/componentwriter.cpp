// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/componentwriter.h"

#include "sqlite/childwriter.h"
#include "sqlite/componentcolumns.h"
#include "sqlite/componentkeys.h"
#include "sqlite/connection.h"
#include "sqlite/datetimecolumns.h"
#include "sqlite/statement.h"

#include <KCalendarCore/Event>
#include <KCalendarCore/Todo>

using namespace KCalCore;

namespace mKCal
{
namespace
{
using namespace ComponentColumn;

QByteArray insertText()
{
    const QByteArray places = QByteArrayLiteral("?, ").repeated(Count);
    return "INSERT INTO Components(" + list(0, Count) + ") VALUES (" + places.chopped(2) + ")";
}

/// SQLite rewrites the entries of every index that an UPDATE names a column of, changed or not:
/// the keys are written only when one of them moved.
QByteArray updateText(int first, int end)
{
    return "UPDATE Components SET " + list(first, end, " = ?") + " WHERE id = ?";
}

void bindMilliseconds(Statement &statement, int parameter, const QDateTime &dateTime)
{
    if (dateTime.isValid())
        statement.bind(parameter, dateTime.toMSecsSinceEpoch());
    else
        statement.bindNull(parameter);
}
} // namespace

/// What a row holds beside the incidence.
struct RowMarks {
    QString notebook;
    qint64 change;
    ComponentState state;
    qint64 stateTime;
};

class ComponentWriterPrivate
{
public:
    explicit ComponentWriterPrivate(Connection &connection);

    void bindContent(Statement &statement, int shift, const Incidence &incidence, int flags);
    void bindTimes(Statement &statement, int shift, const Incidence &incidence);
    void bindTexts(Statement &statement, int shift, const Incidence &incidence);
    void bindKeys(Statement &statement, int shift, const ComponentKeys &keys);
    bool updateKeys(qint64 id, const ComponentKeys &keys);
    bool insertRow(const Incidence &incidence, const RowMarks &marks, qint64 *id);

    Connection &connection;
    ChildWriter children;
    Statement find;
    Statement notebookOf;
    Statement tombstone;
    Statement insert;
    Statement updateContent;
    Statement readKeys;
    Statement updateKeysStatement;
    Statement setNotebook;
    Statement retire;
};

ComponentWriterPrivate::ComponentWriterPrivate(Connection &theConnection)
    : connection(theConnection), children(theConnection),
      find(theConnection,
           "SELECT id, notebook, change, flags FROM Components"
           " WHERE uid = ? AND recId = ? AND state = 0"),
      notebookOf(theConnection, "SELECT notebook FROM Components WHERE uid = ? AND state = 0"),
      tombstone(theConnection,
                "SELECT 1 FROM Components WHERE uid = ? AND recId = ? AND state = 1 LIMIT 1"),
      insert(theConnection, insertText()),
      updateContent(theConnection, updateText(firstOfContent, firstKey)),
      readKeys(theConnection,
               "SELECT " + list(firstKey, Count) + ", notebook FROM Components WHERE id = ?"),
      updateKeysStatement(theConnection, updateText(firstKey, Count)),
      setNotebook(theConnection, "UPDATE Components SET notebook = ? WHERE id = ?"),
      retire(theConnection,
             "UPDATE Components SET state = ?, stateTime = ?, change = ? WHERE id = ?")
{
}

void ComponentWriterPrivate::bindTimes(Statement &statement, int shift, const Incidence &incidence)
{
    QDateTime start = incidence.dtStart();
    QDateTime end;
    QDateTime recurrenceDue;
    QDateTime completed;
    int percent = 0;
    int transparency = 0;
    if (incidence.type() == IncidenceBase::TypeEvent) {
        const auto &event = static_cast<const Event &>(incidence);
        end = event.hasEndDate() ? event.dtEnd() : QDateTime();
        transparency = event.transparency();
    } else if (incidence.type() == IncidenceBase::TypeTodo) {
        const auto &todo = static_cast<const Todo &>(incidence);
        start = todo.dtStart(true);
        end = todo.dtDue(true);
        if (!DateTimeColumns::identical(todo.dtRecurrence(), end))
            recurrenceDue = todo.dtRecurrence();
        completed = todo.completed();
        percent = todo.percentComplete();
    }
    DateTimeColumns::bind(statement, Start + shift, start);
    DateTimeColumns::bind(statement, End + shift, end);
    DateTimeColumns::bind(statement, RecurrenceId + shift, incidence.recurrenceId());
    DateTimeColumns::bind(statement, RecurrenceDue + shift, recurrenceDue);
    const KCalCore::Duration duration = incidence.duration();
    statement.bind(HasDuration + shift, incidence.hasDuration());
    statement.bind(ComponentColumn::Duration + shift, duration.value());
    statement.bind(DurationDaily + shift, duration.isDaily());
    statement.bind(Transparency + shift, transparency);
    statement.bind(PercentComplete + shift, percent);
    bindMilliseconds(statement, CompletedTime + shift, completed);
    bindMilliseconds(statement, Created + shift, incidence.created());
    bindMilliseconds(statement, LastModified + shift, incidence.lastModified());
}

void ComponentWriterPrivate::bindTexts(Statement &statement, int shift, const Incidence &incidence)
{
    statement.bind(Summary + shift, incidence.summary());
    statement.bind(SummaryRich + shift, incidence.summaryIsRich());
    statement.bind(Description + shift, incidence.description());
    statement.bind(DescriptionRich + shift, incidence.descriptionIsRich());
    statement.bind(Location + shift, incidence.location());
    statement.bind(LocationRich + shift, incidence.locationIsRich());
    const Person organizer = incidence.organizer();
    statement.bind(OrganizerName + shift, organizer.name());
    statement.bind(OrganizerEmail + shift, organizer.email());
    const QString schedulingId = incidence.schedulingID();
    statement.bind(SchedulingId + shift,
                   schedulingId == incidence.uid() ? QString() : schedulingId);
    statement.bind(Parent + shift, incidence.relatedTo(Incidence::RelTypeParent));
    statement.bind(Child + shift, incidence.relatedTo(Incidence::RelTypeChild));
    statement.bind(Sibling + shift, incidence.relatedTo(Incidence::RelTypeSibling));
    const QUrl url = incidence.url();
    statement.bindAscii(Url + shift, url.isEmpty() ? QByteArray() : url.toEncoded());
    statement.bind(Color + shift, incidence.color());
    statement.bind(CustomStatus + shift, incidence.customStatus());
}

/// @p shift turns an index of ComponentColumn into a parameter of @p statement.
void ComponentWriterPrivate::bindContent(Statement &statement, int shift,
                                         const Incidence &incidence, int flags)
{
    statement.bind(Type + shift, int(incidence.type()));
    statement.bind(Flags + shift, flags);
    statement.bind(AllDay + shift, incidence.allDay());
    bindTimes(statement, shift, incidence);
    bindTexts(statement, shift, incidence);
    statement.bind(ThisAndFuture + shift, incidence.thisAndFuture());
    statement.bind(Status + shift, int(incidence.status()));
    statement.bind(Secrecy + shift, int(incidence.secrecy()));
    statement.bind(Priority + shift, incidence.priority());
    statement.bind(Revision + shift, incidence.revision());
    statement.bind(LocalOnly + shift, incidence.localOnly());
    statement.bind(ReadOnly + shift, incidence.isReadOnly());
    if (incidence.hasGeo()) {
        statement.bind(Latitude + shift, double(incidence.geoLatitude()));
        statement.bind(Longitude + shift, double(incidence.geoLongitude()));
    } else {
        statement.bindNull(Latitude + shift);
        statement.bindNull(Longitude + shift);
    }
}

void ComponentWriterPrivate::bindKeys(Statement &statement, int shift, const ComponentKeys &keys)
{
    statement.bind(KeySpan + shift, keys.span);
    if (keys.hasStart) {
        statement.bind(KeyStart + shift, keys.start);
        statement.bind(KeyEnd + shift, keys.end);
        statement.bind(KeyUntil + shift, keys.until);
    } else {
        statement.bindNull(KeyStart + shift);
        statement.bindNull(KeyEnd + shift);
        statement.bindNull(KeyUntil + shift);
    }
    statement.bind(KeyCompleted + shift, keys.completed);
}

bool ComponentWriterPrivate::updateKeys(qint64 id, const ComponentKeys &keys)
{
    readKeys.bind(1, id);
    if (!readKeys.next())
        return false;
    const bool same = readKeys.smallInteger(KeySpan - firstKey) == keys.span
        && readKeys.isNull(KeyStart - firstKey) != keys.hasStart
        && (!keys.hasStart
            || (readKeys.integer(KeyStart - firstKey) == keys.start
                && readKeys.integer(KeyEnd - firstKey) == keys.end
                && readKeys.integer(KeyUntil - firstKey) == keys.until))
        && readKeys.integer(KeyCompleted - firstKey) == keys.completed;
    readKeys.reset();
    if (same)
        return true;
    bindKeys(updateKeysStatement, 1 - firstKey, keys);
    updateKeysStatement.bind(Count - firstKey + 1, id);
    return updateKeysStatement.run();
}

bool ComponentWriterPrivate::insertRow(const Incidence &incidence, const RowMarks &marks,
                                       qint64 *id)
{
    const int flags = ChildWriter::flagsOf(incidence);
    insert.bind(Notebook + 1, marks.notebook);
    insert.bind(Uid + 1, incidence.uid());
    insert.bind(RecId + 1, recIdText(incidence));
    insert.bind(State + 1, int(marks.state));
    insert.bind(StateTime + 1, marks.stateTime);
    insert.bind(Change + 1, marks.change);
    bindContent(insert, 1, incidence, flags);
    bindKeys(insert, 1, ComponentKeys::of(incidence));
    if (!insert.run())
        return false;
    const qint64 row = connection.lastInsertId();
    if (id)
        *id = row;
    return children.write(row, incidence, flags);
}

ComponentWriter::ComponentWriter(Connection &connection)
    : d(std::make_unique<ComponentWriterPrivate>(connection))
{
}

ComponentWriter::~ComponentWriter() = default;

bool ComponentWriter::find(const QString &uid, const QString &recId, StoredComponent *stored)
{
    *stored = StoredComponent();
    d->find.bind(1, uid);
    d->find.bind(2, recId.isNull() ? QStringLiteral("") : recId);
    if (!d->find.next())
        return !d->find.failed();
    stored->id = d->find.integer(0);
    stored->notebook = d->find.text(1);
    stored->change = d->find.integer(2);
    stored->flags = d->find.smallInteger(3);
    d->find.reset();
    return true;
}

bool ComponentWriter::notebookOf(const QString &uid, QString *notebook)
{
    notebook->clear();
    d->notebookOf.bind(1, uid);
    if (!d->notebookOf.next())
        return !d->notebookOf.failed();
    *notebook = d->notebookOf.text(0);
    d->notebookOf.reset();
    return true;
}

bool ComponentWriter::insert(const Incidence &incidence, const QString &notebook, qint64 change,
                             qint64 *id)
{
    return d->insertRow(incidence, {notebook, change, ComponentState::Live, 0}, id);
}

bool ComponentWriter::insertRetired(const Incidence &incidence, const QString &notebook,
                                    qint64 change, bool overwritten, qint64 time)
{
    const ComponentState state =
        overwritten ? ComponentState::Overwritten : ComponentState::Deleted;
    return d->insertRow(incidence, {notebook, change, state, time}, nullptr);
}

bool ComponentWriter::update(const StoredComponent &stored, const Incidence &incidence,
                             const QString &notebook, qint64 change)
{
    const int flags = ChildWriter::flagsOf(incidence);
    Statement &statement = d->updateContent;
    statement.bind(1, change);
    d->bindContent(statement, 1 - firstOfContent, incidence, flags);
    statement.bind(firstKey - firstOfContent + 1, stored.id);
    if (!statement.run() || !d->updateKeys(stored.id, ComponentKeys::of(incidence)))
        return false;
    if (notebook != stored.notebook) {
        d->setNotebook.bind(1, notebook);
        d->setNotebook.bind(2, stored.id);
        if (!d->setNotebook.run())
            return false;
    }
    return d->children.remove(stored.id, stored.flags)
        && d->children.write(stored.id, incidence, flags);
}

bool ComponentWriter::retire(const StoredComponent &stored, bool overwritten, qint64 change,
                             qint64 time)
{
    d->retire.bind(1, int(overwritten ? ComponentState::Overwritten : ComponentState::Deleted));
    d->retire.bind(2, time);
    d->retire.bind(3, change);
    d->retire.bind(4, stored.id);
    return d->retire.run();
}

bool ComponentWriter::retireNotebook(const QString &notebook, qint64 change, qint64 time)
{
    Statement &statement = d->connection.statement(
        QByteArrayLiteral("UPDATE Components SET state = 1, stateTime = ?, change = ?"
                          " WHERE notebook = ? AND state = 0"));
    statement.bind(1, time);
    statement.bind(2, change);
    statement.bind(3, notebook);
    return statement.run();
}

bool ComponentWriter::moveToNotebook(const QString &uid, const QString &notebook, qint64 change)
{
    Statement &statement = d->connection.statement(QByteArrayLiteral(
        "UPDATE Components SET notebook = ?, change = ? WHERE uid = ? AND state = 0"));
    statement.bind(1, notebook);
    statement.bind(2, change);
    statement.bind(3, uid);
    return statement.run();
}

bool ComponentWriter::removeTombstones(const QString &uid, const QString &recId)
{
    // There is hardly ever one, and looking costs a quarter of a DELETE that finds nothing.
    d->tombstone.bind(1, uid);
    d->tombstone.bind(2, recId.isNull() ? QStringLiteral("") : recId);
    const bool isThere = d->tombstone.next();
    d->tombstone.reset();
    if (!isThere)
        return !d->tombstone.failed();
    Statement &statement = d->connection.statement(
        QByteArrayLiteral("DELETE FROM Components WHERE uid = ? AND recId = ? AND state = 1"));
    statement.bind(1, uid);
    statement.bind(2, recId.isNull() ? QStringLiteral("") : recId);
    return statement.run();
}

bool ComponentWriter::purge(qint64 before, const QString &notebook)
{
    Statement &statement = d->connection.statement(
        QByteArrayLiteral("DELETE FROM Components"
                          " WHERE state <> 0 AND stateTime < ?1 AND (?2 = '' OR notebook = ?2)"));
    statement.bind(1, before);
    statement.bind(2, notebook.isNull() ? QStringLiteral("") : notebook);
    return statement.run();
}
} // namespace mKCal
