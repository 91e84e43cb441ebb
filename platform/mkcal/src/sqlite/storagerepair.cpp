// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/componentreader.h"
#include "sqlite/componentwriter.h"
#include "sqlite/connection.h"
#include "sqlite/metatable.h"
#include "sqlite/notebooktable.h"
#include "sqlite/schema.h"
#include "sqlite/statement.h"

#include <mkcal/storagecheck.h>

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace mKCal
{
namespace
{
constexpr int mostProblems = 200;

/// How far beyond the last row that could be found others are looked for.
constexpr qint64 blindReach = 1000;

/// Copies what can be read of one database into another, row by row: a damaged page costs the rows
/// that lie on it. Reminders are left out, they are planned anew.
class Rescue
{
public:
    Rescue(Connection &damaged, Connection &target);

    bool run();
    QStringList lost() const { return m_lost; }

private:
    void note(const QString &text);
    QVector<qint64> findRows();
    bool scan(const QByteArray &query, QVector<qint64> *rows);
    bool copyNotebooks();
    bool copyRow(qint64 id);
    bool write(const ComponentRow &row);
    bool ensureNotebook(const QString &uid);
    bool copyMeta();

    Connection &m_damaged;
    Connection &m_target;
    ComponentReader m_reader;
    ComponentWriter m_writer;
    NotebookTable m_notebooks;
    QSet<QString> m_knownNotebooks;
    QSet<qint64> m_indexed; ///< rows that an index still tells of
    QStringList m_lost;
    int m_lostRows = 0;
};

Rescue::Rescue(Connection &damaged, Connection &target)
    : m_damaged(damaged), m_target(target), m_reader(damaged), m_writer(target), m_notebooks(target)
{
    m_reader.tolerateDamage();
}

bool Rescue::run()
{
    Transaction transaction(m_target);
    if (!transaction.isActive() || !copyNotebooks())
        return false;
    const QVector<qint64> rows = findRows();
    for (const qint64 id : rows) {
        if (!copyRow(id))
            return false;
    }
    if (m_lostRows > 0)
        note(QStringLiteral("%1 incidences lie on damaged pages and are lost").arg(m_lostRows));
    return copyMeta() && transaction.commit();
}

void Rescue::note(const QString &text)
{
    if (m_lost.size() < mostProblems)
        m_lost.append(text);
}

/// Reads row numbers as far as the query gets; whether it got to the end.
bool Rescue::scan(const QByteArray &query, QVector<qint64> *rows)
{
    Statement statement(m_damaged, query);
    while (statement.next())
        rows->append(statement.integer(0));
    return !statement.failed();
}

/// From both ends of the table up to the first damaged page, and by trial between.
QVector<qint64> Rescue::findRows()
{
    QVector<qint64> rows;
    if (scan("SELECT id FROM Components NOT INDEXED ORDER BY id", &rows))
        return rows;
    QVector<qint64> indexed;
    if (!scan("SELECT id FROM Components INDEXED BY ComponentsChange WHERE change >= 0", &indexed))
        note(QStringLiteral("the table of incidences is torn: what else it held cannot be told"));
    m_indexed = QSet<qint64>(indexed.cbegin(), indexed.cend());

    const qint64 firstMissing = rows.isEmpty() ? 1 : rows.last() + 1;
    QVector<qint64> backwards;
    scan("SELECT id FROM Components NOT INDEXED WHERE id >= " + QByteArray::number(firstMissing)
             + " ORDER BY id DESC",
         &backwards);
    qint64 end = firstMissing + blindReach;
    if (!backwards.isEmpty())
        end = backwards.last();
    else if (!indexed.isEmpty())
        end = qMax(end, *std::max_element(indexed.cbegin(), indexed.cend()) + 1);
    for (qint64 id = firstMissing; id < end; ++id)
        rows.append(id);
    std::reverse(backwards.begin(), backwards.end());
    return rows + backwards;
}

bool Rescue::copyNotebooks()
{
    Notebook::List notebooks;
    if (!NotebookTable(m_damaged).read(&notebooks))
        note(QStringLiteral("not all notebooks can be read"));
    for (const Notebook::Ptr &notebook : qAsConst(notebooks)) {
        if (!m_notebooks.insert(*notebook))
            return false;
        m_knownNotebooks.insert(notebook->uid());
    }
    return true;
}

bool Rescue::copyRow(qint64 id)
{
    bool seen = false;
    bool written = true;
    const int faults = m_reader.faults();
    const bool answered = m_reader.read("id = ?", {SqlValue(id)}, [&](const ComponentRow &row) {
        seen = true;
        if (row.faults > 0)
            note(QStringLiteral("parts of \"%1\" (%2) are lost")
                     .arg(row.incidence->summary(), row.incidence->uid()));
        written = write(row);
        return written;
    });
    if (!answered && m_indexed.contains(id))
        ++m_lostRows;
    if (answered && !seen && m_reader.faults() > faults)
        note(QStringLiteral("row %1 holds nothing that can be read").arg(id));
    return written;
}

bool Rescue::write(const ComponentRow &row)
{
    const KCalCore::Incidence &incidence = *row.incidence;
    if (row.state != ComponentState::Live)
        return m_writer.insertRetired(incidence, row.notebook, row.change,
                                      row.state == ComponentState::Overwritten, row.stateTime);
    StoredComponent stored;
    if (!ensureNotebook(row.notebook)
        || !m_writer.find(incidence.uid(), recIdText(incidence), &stored))
        return false;
    if (stored.id != 0) {
        note(QStringLiteral("a second \"%1\" (%2) is left out")
                 .arg(incidence.summary(), incidence.uid()));
        return true;
    }
    return m_writer.insert(incidence, row.notebook, row.change);
}

bool Rescue::ensureNotebook(const QString &uid)
{
    if (m_knownNotebooks.contains(uid))
        return true;
    note(QStringLiteral("the notebook \"%1\" is known by its identifier alone").arg(uid));
    m_knownNotebooks.insert(uid);
    Notebook notebook;
    notebook.setUid(uid);
    notebook.setName(uid);
    return m_notebooks.insert(notebook);
}

bool Rescue::copyMeta()
{
    MetaTable from(m_damaged);
    MetaTable to(m_target);
    const QString defaultNotebook = from.defaultNotebook();
    if (!defaultNotebook.isEmpty() && !to.setDefaultNotebook(defaultNotebook))
        return false;
    return m_target.execute("UPDATE Meta SET value = (SELECT ifnull(max(change), 0)"
                            " FROM Components) WHERE key = 'change'");
}
} // namespace

CheckReport repairDatabase(const QString &databaseName, const QString &target)
{
    CheckReport report;
    if (QFile::exists(target)) {
        report.error = QStringLiteral("%1: there is already a file of that name").arg(target);
        return report;
    }
    const QString folder = QFileInfo(target).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        report.error = QStringLiteral("%1: there is no folder \"%2\"").arg(target, folder);
        return report;
    }
    Connection damaged;
    if (!damaged.open(databaseName, Connection::Salvage) || !Schema::isKnown(damaged)) {
        report.error = damaged.lastError().message;
        return report;
    }
    Connection whole;
    if (!whole.open(target) || !Schema::prepare(whole)) {
        report.error = whole.lastError().message;
        return report;
    }
    QStringList lost;
    {
        Rescue rescue(damaged, whole);
        if (!rescue.run()) {
            report.error = whole.lastError().message;
            return report;
        }
        lost = rescue.lost();
    }
    whole.close();
    report = checkDatabase(target);
    report.problems = lost + report.problems;
    return report;
}
} // namespace mKCal
