// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"

#include <daskel/notebookmanager.h>

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>

using mKCal::Notebook;

namespace
{
const QString nameOption = QStringLiteral("name");
const QString colorOption = QStringLiteral("color");
const QString descriptionOption = QStringLiteral("description");
const QString visibleOption = QStringLiteral("visible");
const QString readOnlyOption = QStringLiteral("read-only");
const QString uidOption = QStringLiteral("uid");

void declare(QCommandLineParser &parser)
{
    parser.addOption(
        {nameOption, QStringLiteral("New name of an edited notebook."), QStringLiteral("NAME")});
    parser.addOption(
        {colorOption, QStringLiteral("Colour, such as #63B33B."), QStringLiteral("COLOR")});
    parser.addOption({descriptionOption, QStringLiteral("Description."), QStringLiteral("TEXT")});
    parser.addOption({visibleOption, QStringLiteral("Whether views show it: yes or no."),
                      QStringLiteral("yes|no")});
    parser.addOption({readOnlyOption, QStringLiteral("Whether it is only read: yes or no."),
                      QStringLiteral("yes|no")});
    parser.addOption({uidOption, QStringLiteral("UID of the added notebook (default: a new one)."),
                      QStringLiteral("UID")});
    parser.addPositionalArgument(
        QStringLiteral("action"),
        QStringLiteral("add NAME, or edit, delete or default with a notebook's name or UID."),
        QStringLiteral("add|edit|delete|default"));
    parser.addPositionalArgument(QStringLiteral("notebook"), QStringLiteral("Its name or UID."),
                                 QStringLiteral("NOTEBOOK"));
}

/// Takes the options over into @p notebook; false after a message when one is not understood.
bool applyOptions(const QCommandLineParser &parser, Notebook *notebook, Console &console)
{
    static const QRegularExpression colorForm(QStringLiteral("^#[0-9A-Fa-f]{6}$"));
    const auto readSwitch = [&](const QString &option, void (Notebook::*set)(bool)) {
        const QString value = parser.value(option);
        if (value != QLatin1String("yes") && value != QLatin1String("no")) {
            console.message(QStringLiteral("--%1: '%2' is neither yes nor no").arg(option, value));
            return false;
        }
        (notebook->*set)(value == QLatin1String("yes"));
        return true;
    };
    if (parser.isSet(nameOption)) {
        notebook->setName(parser.value(nameOption));
    }
    if (parser.isSet(descriptionOption)) {
        notebook->setDescription(parser.value(descriptionOption));
    }
    if (parser.isSet(colorOption)) {
        if (!colorForm.match(parser.value(colorOption)).hasMatch()) {
            console.message(QStringLiteral("--color: '%1' is not a colour such as #63B33B")
                                .arg(parser.value(colorOption)));
            return false;
        }
        notebook->setColor(parser.value(colorOption));
    }
    return (!parser.isSet(visibleOption) || readSwitch(visibleOption, &Notebook::setIsVisible))
        && (!parser.isSet(readOnlyOption) || readSwitch(readOnlyOption, &Notebook::setIsReadOnly));
}

ExitCode finish(bool accepted, const Database &database, Console &console)
{
    if (!accepted) {
        console.message(database.storage()->errorMessage());
    }
    return accepted ? Done : Failed;
}

ExitCode add(const QCommandLineParser &parser, const QString &name, const Database &database,
             Console &console)
{
    const auto notebook = Notebook::Ptr::create();
    notebook->setName(name);
    notebook->setColor(QStringLiteral("#63B33B"));
    if (parser.isSet(uidOption)) {
        notebook->setUid(parser.value(uidOption));
    }
    if (!applyOptions(parser, notebook.data(), console)) {
        return WrongUsage;
    }
    if (!NotebookManager::instance()->addNotebook(notebook)) {
        return finish(false, database, console);
    }
    console.out() << notebook->uid() << '\n';
    return Done;
}

ExitCode edit(const QCommandLineParser &parser, const QString &uidOrName, const Database &database,
              Console &console)
{
    const auto notebook = database.findNotebook(uidOrName);
    if (!notebook) {
        return Failed;
    }
    const auto changed = Notebook::Ptr::create(*notebook);
    if (!applyOptions(parser, changed.data(), console)) {
        return WrongUsage;
    }
    return finish(NotebookManager::instance()->updateNotebook(changed), database, console);
}

ExitCode remove(const QCommandLineParser & /*parser*/, const QString &uidOrName,
                const Database &database, Console &console)
{
    const auto notebook = database.findNotebook(uidOrName);
    return notebook
        ? finish(NotebookManager::instance()->deleteNotebook(notebook), database, console)
        : Failed;
}

ExitCode makeDefault(const QCommandLineParser & /*parser*/, const QString &uidOrName,
                     const Database &database, Console &console)
{
    const auto notebook = database.findNotebook(uidOrName);
    return notebook ? finish(database.storage()->setDefaultNotebook(notebook), database, console)
                    : Failed;
}

/// What can be done with a notebook, and which options go with it.
struct Action {
    QString name;
    QStringList options;
    ExitCode (*run)(const QCommandLineParser &parser, const QString &notebook,
                    const Database &database, Console &console);
};

const QVector<Action> actions = {
    {QStringLiteral("add"),
     {uidOption, colorOption, descriptionOption, visibleOption, readOnlyOption},
     add},
    {QStringLiteral("edit"),
     {nameOption, colorOption, descriptionOption, visibleOption, readOnlyOption},
     edit},
    {QStringLiteral("delete"), {}, remove},
    {QStringLiteral("default"), {}, makeDefault},
};

/// Why the options do not fit the action; empty when they do.
QString misfit(const QCommandLineParser &parser, const Action &action)
{
    for (const QString &option :
         {nameOption, colorOption, descriptionOption, visibleOption, readOnlyOption, uidOption}) {
        if (parser.isSet(option) && !action.options.contains(option)) {
            return QStringLiteral("%1: --%2 does not belong here").arg(action.name, option);
        }
    }
    for (const QString &option : {nameOption, uidOption}) {
        if (parser.isSet(option) && parser.value(option).trimmed().isEmpty()) {
            return QStringLiteral("%1: --%2 is empty").arg(action.name, option);
        }
    }
    const bool changesSomething =
        std::any_of(action.options.begin(), action.options.end(),
                    [&parser](const QString &option) { return parser.isSet(option); });
    if (action.run == edit && !changesSomething) {
        return QStringLiteral("edit: nothing to change; give one of --%1")
            .arg(action.options.join(QStringLiteral(", --")));
    }
    return {};
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const QString wanted = parser.positionalArguments().at(0);
    const QString notebook = parser.positionalArguments().at(1).trimmed();
    const auto action = std::find_if(actions.begin(), actions.end(),
                                     [&wanted](const Action &each) { return each.name == wanted; });
    if (action == actions.end()) {
        console.message(
            QStringLiteral("'%1' is none of add, edit, delete and default").arg(wanted));
        return WrongUsage;
    }
    const QString reason = notebook.isEmpty()
        ? QStringLiteral("%1: the notebook's name is empty").arg(wanted)
        : misfit(parser, *action);
    if (!reason.isEmpty()) {
        console.message(reason);
        return WrongUsage;
    }
    const Database database(console);
    return database.isOpen() ? action->run(parser, notebook, database, console) : Failed;
}
} // namespace

const Command notebookCommand = {"notebook",
                                 "Adds, edits or deletes a notebook, or makes it the default.",
                                 {2, 2, "say add, edit, delete or default, and which notebook"},
                                 declare,
                                 run};
