// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/componentcolumns.h"
#include "sqlite/componentreader.h"
#include "sqlite/connection.h"
#include "sqlite/schema.h"
#include "sqlite/statement.h"

#include <mkcal/storagecheck.h>

namespace mKCal
{
namespace
{
constexpr int mostProblems = 200;

/// What a clock or a zone file that changed since may move a key by.
constexpr qint64 keyTolerance = 86400;

/// Looks at one file and notes what it finds in a report.
class Inspection
{
public:
    Inspection(Connection &connection, CheckReport *report)
        : m_connection(connection), m_report(report),
          m_keys(connection,
                 "SELECT span, start, end, until, completed, recId FROM Components WHERE id = ?")
    {
    }

    void run();

private:
    void problem(const QString &text);
    void countRows();
    int count(const QByteArray &query);
    void checkIntegrity();
    void checkChildren();
    void checkNotebooks();
    void checkExceptions();
    void checkRows();
    void checkKeys(const ComponentRow &row);
    bool sameKey(int column, qint64 expected) const;
    /// For a database error in the middle of a look.
    void noteFailure();

    Connection &m_connection;
    CheckReport *m_report;
    Statement m_keys;
};

QString describe(const ComponentRow &row)
{
    const QString recId = recIdText(*row.incidence);
    return QStringLiteral("row %1 (%2%3%4)")
        .arg(row.id)
        .arg(row.incidence->uid(), recId.isEmpty() ? QString() : QStringLiteral(" "), recId);
}

void Inspection::problem(const QString &text)
{
    // One damaged page stops several queries with the same words.
    if (m_report->problems.contains(text))
        return;
    if (m_report->problems.size() < mostProblems)
        m_report->problems.append(text);
    else if (m_report->problems.size() == mostProblems)
        m_report->problems.append(QStringLiteral("and more"));
}

void Inspection::noteFailure()
{
    problem(m_connection.lastError().message);
}

void Inspection::run()
{
    countRows();
    checkIntegrity();
    checkChildren();
    checkNotebooks();
    checkExceptions();
    checkRows();
    m_report->intact = m_report->problems.isEmpty();
}

int Inspection::count(const QByteArray &query)
{
    Statement statement(m_connection, "SELECT count(*) FROM " + query);
    if (!statement.next()) {
        noteFailure();
        return -1;
    }
    return statement.smallInteger(0);
}

void Inspection::countRows()
{
    m_report->notebooks = count("Notebooks");
    m_report->events = count("Components WHERE state = 0 AND type = 0");
    m_report->todos = count("Components WHERE state = 0 AND type = 1");
    m_report->journals = count("Components WHERE state = 0 AND type = 2");
    m_report->deleted = count("Components WHERE state = 1");
    m_report->overwritten = count("Components WHERE state = 2");
    if (m_report->schemaVersion >= 1)
        m_report->reminders = count("Reminders");
}

void Inspection::checkIntegrity()
{
    Statement check(m_connection, "PRAGMA integrity_check(20)");
    while (check.next()) {
        const QString answer = check.text(0);
        if (answer != QLatin1String("ok"))
            problem(QStringLiteral("SQLite: ") + answer.simplified());
    }
    if (check.failed())
        noteFailure();
}

void Inspection::checkChildren()
{
    struct Table {
        const char *name;
        int flag;
    };
    static constexpr Table tables[] = {
        {"Alarm", ComponentFlag::Alarms},
        {"Attendee", ComponentFlag::Attendees},
        {"Rule", ComponentFlag::Rules},
        {"Dates", ComponentFlag::Dates},
        {"Props", ComponentFlag::Props},
        {"Attachment", ComponentFlag::Attachments},
        {"Conference", ComponentFlag::Conferences},
    };
    for (const Table &table : tables) {
        const QByteArray name = table.name;
        const QString title = QString::fromLatin1(name);
        const int orphans = count(name + " WHERE comp NOT IN (SELECT id FROM Components)");
        if (orphans > 0)
            problem(QStringLiteral("%1: %2 rows belong to no component").arg(title).arg(orphans));
        const int unseen = count(name + " JOIN Components ON id = comp WHERE flags & "
                                 + QByteArray::number(table.flag) + " = 0");
        if (unseen > 0)
            problem(QStringLiteral("%1: %2 rows that their component does not know of")
                        .arg(title)
                        .arg(unseen));
    }
}

void Inspection::checkNotebooks()
{
    Statement unknown(m_connection,
                      "SELECT notebook, count(*) FROM Components WHERE state = 0"
                      " AND notebook NOT IN (SELECT uid FROM Notebooks) GROUP BY notebook");
    while (unknown.next())
        problem(QStringLiteral("%1 components are in the unknown notebook \"%2\"")
                    .arg(unknown.integer(1))
                    .arg(unknown.text(0)));
    if (unknown.failed())
        noteFailure();
}

/// An exception may stand alone: a person can be invited to a single occurrence. What is left of a
/// series that was deleted is a fault.
void Inspection::checkExceptions()
{
    Statement left(
        m_connection,
        "SELECT uid, recId FROM Components AS exception"
        " WHERE recId <> '' AND state = 0"
        " AND EXISTS (SELECT 1 FROM Components AS series WHERE series.uid = exception.uid"
        "  AND series.recId = '' AND series.state = 1)"
        " AND NOT EXISTS (SELECT 1 FROM Components AS series"
        "  WHERE series.uid = exception.uid AND series.recId = '' AND series.state = 0)");
    while (left.next())
        problem(QStringLiteral("the exception %1 of %2 is left of a series that was deleted")
                    .arg(left.text(1), left.text(0)));
    if (left.failed())
        noteFailure();
}

void Inspection::checkRows()
{
    ComponentReader reader(m_connection);
    reader.tolerateDamage();
    int skipped = 0;
    const bool answered = reader.read("1 ORDER BY id", {}, [&](const ComponentRow &row) {
        skipped -= row.faults;
        if (row.faults > 0)
            problem(
                QStringLiteral("%1: %2 values cannot be read").arg(describe(row)).arg(row.faults));
        checkKeys(row);
        return true;
    });
    if (!answered)
        noteFailure();
    skipped += reader.faults();
    if (skipped > 0)
        problem(QStringLiteral("%1 rows cannot be read").arg(skipped));
}

void Inspection::checkKeys(const ComponentRow &row)
{
    const ComponentKeys keys = ComponentKeys::of(*row.incidence);
    m_keys.bind(1, row.id);
    if (!m_keys.next())
        return;
    const bool same = m_keys.integer(0) == keys.span && m_keys.isNull(1) != keys.hasStart
        && (!keys.hasStart
            || (sameKey(1, keys.start) && sameKey(2, keys.end) && sameKey(3, keys.until)))
        && m_keys.integer(4) == keys.completed && m_keys.text(5) == recIdText(*row.incidence);
    m_keys.reset();
    if (!same)
        problem(QStringLiteral("%1: would not be found by its time").arg(describe(row)));
}

bool Inspection::sameKey(int column, qint64 expected) const
{
    const qint64 stored = m_keys.integer(column);
    return stored == expected
        || (stored < ComponentKeys::endless && expected < ComponentKeys::endless
            && qAbs(double(stored) - double(expected)) <= double(keyTolerance));
}
} // namespace

CheckReport checkDatabase(const QString &databaseName)
{
    CheckReport report;
    Connection connection;
    if (!connection.open(databaseName, Connection::Salvage) || !Schema::isKnown(connection)) {
        report.error = connection.lastError().message;
        return report;
    }
    report.readable = true;
    report.schemaVersion = Schema::version(connection);
    Inspection(connection, &report).run();
    return report;
}
} // namespace mKCal
