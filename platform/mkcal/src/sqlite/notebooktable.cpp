// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sqlite/notebooktable.h"

#include "sqlite/connection.h"
#include "sqlite/statement.h"

namespace mKCal
{
namespace
{
/// The columns in the order of bindNotebook() and readNotebook(); uid is last, where UPDATE needs
/// it.
constexpr char insertText[] =
    "INSERT INTO Notebooks(name, description, color, isShared, isMaster, isSynchronized,"
    " isReadOnly, isVisible, isHidden, eventsAllowed, todosAllowed, journalsAllowed, pluginName,"
    " account, syncProfile, syncDate, creationDate, modifiedDate, sharedWith, uid, position)"
    " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?,"
    " (SELECT ifnull(max(position), 0) + 1 FROM Notebooks))";
constexpr char updateText[] =
    "UPDATE Notebooks SET name = ?, description = ?, color = ?, isShared = ?, isMaster = ?,"
    " isSynchronized = ?, isReadOnly = ?, isVisible = ?, isHidden = ?, eventsAllowed = ?,"
    " todosAllowed = ?, journalsAllowed = ?, pluginName = ?, account = ?, syncProfile = ?,"
    " syncDate = ?, creationDate = ?, modifiedDate = ?, sharedWith = ? WHERE uid = ?";
constexpr char selectText[] =
    "SELECT name, description, color, isShared, isMaster, isSynchronized, isReadOnly, isVisible,"
    " isHidden, eventsAllowed, todosAllowed, journalsAllowed, pluginName, account, syncProfile,"
    " syncDate, creationDate, modifiedDate, sharedWith, uid FROM Notebooks ORDER BY position";

QString textOrEmpty(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

void bindMoment(Statement &statement, int parameter, const QDateTime &moment)
{
    if (moment.isValid())
        statement.bind(parameter, moment.toMSecsSinceEpoch());
    else
        statement.bindNull(parameter);
}

QDateTime moment(const Statement &row, int column)
{
    return row.isNull(column) ? QDateTime()
                              : QDateTime::fromMSecsSinceEpoch(row.integer(column), Qt::UTC);
}

void bindNotebook(Statement &statement, const Notebook &notebook)
{
    int parameter = 1;
    for (const QString &text : {notebook.name(), notebook.description(), notebook.color()})
        statement.bind(parameter++, textOrEmpty(text));
    for (const bool value :
         {notebook.isShared(), notebook.isMaster(), notebook.isSynchronized(),
          notebook.isReadOnly(), notebook.isVisible(), notebook.isHidden(),
          notebook.eventsAllowed(), notebook.todosAllowed(), notebook.journalsAllowed()})
        statement.bind(parameter++, value);
    for (const QString &text : {notebook.pluginName(), notebook.account(), notebook.syncProfile()})
        statement.bind(parameter++, text);
    for (const QDateTime &date :
         {notebook.syncDate(), notebook.creationDate(), notebook.modifiedDate()})
        bindMoment(statement, parameter++, date);
    statement.bind(parameter++, notebook.sharedWith().join(QLatin1Char('\n')));
    statement.bind(parameter++, notebook.uid());
}

Notebook::Ptr readNotebook(const Statement &row)
{
    using Setter = void (Notebook::*)(bool);
    static constexpr Setter allowances[] = {&Notebook::setIsHidden, &Notebook::setEventsAllowed,
                                            &Notebook::setTodosAllowed,
                                            &Notebook::setJournalsAllowed};
    const auto flag = [&row](int column) { return row.integer(column) != 0; };
    auto notebook = Notebook::Ptr::create(row.text(19), row.text(0), row.text(1), row.text(2),
                                          flag(3), flag(4), flag(5), flag(6), flag(7));
    int column = 8;
    for (const Setter set : allowances)
        (notebook.data()->*set)(flag(column++));
    notebook->setPluginName(row.text(12));
    notebook->setAccount(row.text(13));
    notebook->setSyncProfile(row.text(14));
    notebook->setSyncDate(moment(row, 15));
    notebook->setCreationDate(moment(row, 16));
    notebook->setModifiedDate(moment(row, 17));
    notebook->setSharedWith(row.text(18).split(QLatin1Char('\n'), Qt::SkipEmptyParts));
    return notebook;
}
} // namespace

NotebookTable::NotebookTable(Connection &connection) : m_connection(connection) { }

bool NotebookTable::read(Notebook::List *notebooks)
{
    notebooks->clear();
    Statement &rows = m_connection.statement(selectText);
    while (rows.next())
        notebooks->append(readNotebook(rows));
    if (rows.failed())
        return false;
    for (const Notebook::Ptr &notebook : qAsConst(*notebooks)) {
        if (!readProperties(notebook))
            return false;
    }
    return true;
}

bool NotebookTable::readProperties(const Notebook::Ptr &notebook)
{
    Statement &rows = m_connection.statement(
        QByteArrayLiteral("SELECT name, value FROM NotebookProps WHERE notebook = ?"));
    rows.bind(1, notebook->uid());
    while (rows.next())
        notebook->setCustomProperty(rows.text(0), rows.text(1));
    return !rows.failed();
}

bool NotebookTable::exists(const QString &uid, bool *exists)
{
    Statement &row =
        m_connection.statement(QByteArrayLiteral("SELECT count(*) FROM Notebooks WHERE uid = ?"));
    row.bind(1, uid);
    if (!row.next())
        return false;
    *exists = row.integer(0) > 0;
    row.reset();
    return true;
}

bool NotebookTable::insert(const Notebook &notebook)
{
    Statement &statement = m_connection.statement(insertText);
    bindNotebook(statement, notebook);
    return statement.run() && writeProperties(notebook);
}

bool NotebookTable::update(const Notebook &notebook)
{
    Statement &statement = m_connection.statement(updateText);
    bindNotebook(statement, notebook);
    return statement.run() && writeProperties(notebook);
}

bool NotebookTable::writeProperties(const Notebook &notebook)
{
    Statement &removal =
        m_connection.statement(QByteArrayLiteral("DELETE FROM NotebookProps WHERE notebook = ?"));
    removal.bind(1, notebook.uid());
    if (!removal.run())
        return false;
    Statement &statement = m_connection.statement(
        QByteArrayLiteral("INSERT INTO NotebookProps(notebook, name, value) VALUES (?, ?, ?)"));
    const QStringList keys = notebook.customPropertyKeys();
    for (const QString &key : keys) {
        statement.bind(1, notebook.uid());
        statement.bind(2, key);
        statement.bind(3, textOrEmpty(notebook.customProperty(key)));
        if (!statement.run())
            return false;
    }
    return true;
}

bool NotebookTable::remove(const QString &uid)
{
    Statement &statement =
        m_connection.statement(QByteArrayLiteral("DELETE FROM Notebooks WHERE uid = ?"));
    statement.bind(1, uid);
    return statement.run();
}
} // namespace mKCal
