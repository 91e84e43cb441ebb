// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"

#include <daskel/notebookmanager.h>

#include <QCommandLineParser>
#include <QRegularExpression>

using mKCal::Notebook;

namespace
{
const QString NameOption = QStringLiteral("name");
const QString ColorOption = QStringLiteral("color");
const QString DescriptionOption = QStringLiteral("description");
const QString VisibleOption = QStringLiteral("visible");
const QString ReadOnlyOption = QStringLiteral("read-only");
const QString UidOption = QStringLiteral("uid");

void declare(QCommandLineParser &parser)
{
    parser.addOption({NameOption, QStringLiteral("New name."), QStringLiteral("NAME")});
    parser.addOption(
        {ColorOption, QStringLiteral("Colour, such as #63B33B."), QStringLiteral("COLOR")});
    parser.addOption({DescriptionOption, QStringLiteral("Description."), QStringLiteral("TEXT")});
    parser.addOption({VisibleOption, QStringLiteral("Whether views show it: yes or no."),
                      QStringLiteral("yes|no")});
    parser.addOption({ReadOnlyOption, QStringLiteral("Whether it is only read: yes or no."),
                      QStringLiteral("yes|no")});
    parser.addOption({UidOption, QStringLiteral("UID of the added notebook (default: a new one)."),
                      QStringLiteral("UID")});
    parser.addPositionalArgument(
        QStringLiteral("action"),
        QStringLiteral("add NAME, or edit, delete or default with a notebook's UID or name."),
        QStringLiteral("add|edit|delete|default"));
    parser.addPositionalArgument(QStringLiteral("notebook"), QStringLiteral("Its name or UID."),
                                 QStringLiteral("NOTEBOOK"));
}

/// Takes the options over into @p notebook; false after a message when one is not understood.
bool applyOptions(const QCommandLineParser &parser, Notebook *notebook, Console &console)
{
    static const QRegularExpression ColorForm(QStringLiteral("^#[0-9A-Fa-f]{6}$"));
    const auto readSwitch = [&](const QString &option, void (Notebook::*set)(bool)) {
        const QString value = parser.value(option);
        if (value != QLatin1String("yes") && value != QLatin1String("no")) {
            console.message(QStringLiteral("--%1: '%2' is neither yes nor no").arg(option, value));
            return false;
        }
        (notebook->*set)(value == QLatin1String("yes"));
        return true;
    };
    if (parser.isSet(NameOption)) {
        notebook->setName(parser.value(NameOption));
    }
    if (parser.isSet(DescriptionOption)) {
        notebook->setDescription(parser.value(DescriptionOption));
    }
    if (parser.isSet(ColorOption)) {
        if (!ColorForm.match(parser.value(ColorOption)).hasMatch()) {
            console.message(QStringLiteral("--color: '%1' is not a colour such as #63B33B")
                                .arg(parser.value(ColorOption)));
            return false;
        }
        notebook->setColor(parser.value(ColorOption));
    }
    return (!parser.isSet(VisibleOption) || readSwitch(VisibleOption, &Notebook::setIsVisible))
        && (!parser.isSet(ReadOnlyOption) || readSwitch(ReadOnlyOption, &Notebook::setIsReadOnly));
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
    if (parser.isSet(UidOption)) {
        notebook->setUid(parser.value(UidOption));
    }
    if (!applyOptions(parser, notebook.data(), console)) {
        return WrongUsage;
    }
    if (!NotebookManager::instance()->addNotebook(notebook)) {
        return finish(false, database, console);
    }
    console.out() << notebook->uid() << Qt::endl;
    return Done;
}

ExitCode edit(const QCommandLineParser &parser, const Notebook &stored, const Database &database,
              Console &console)
{
    const auto changed = Notebook::Ptr::create(stored);
    if (!applyOptions(parser, changed.data(), console)) {
        return WrongUsage;
    }
    return finish(NotebookManager::instance()->updateNotebook(changed), database, console);
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const QStringList arguments = parser.positionalArguments();
    const QString action = arguments.value(0);
    static const QStringList Actions = {QStringLiteral("add"), QStringLiteral("edit"),
                                        QStringLiteral("delete"), QStringLiteral("default")};
    if (!Actions.contains(action)) {
        console.message(QStringLiteral("say what to do: add, edit, delete or default"));
        return WrongUsage;
    }
    if (arguments.size() != 2 || arguments.at(1).isEmpty()) {
        console.message(QStringLiteral("%1: name one notebook").arg(action));
        return WrongUsage;
    }
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    if (action == QLatin1String("add")) {
        return add(parser, arguments.at(1), database, console);
    }
    const auto notebook = database.findNotebook(arguments.at(1));
    if (!notebook) {
        return Failed;
    }
    if (action == QLatin1String("edit")) {
        return edit(parser, *notebook, database, console);
    }
    const bool accepted = action == QLatin1String("delete")
        ? NotebookManager::instance()->deleteNotebook(notebook)
        : database.storage()->setDefaultNotebook(notebook);
    return finish(accepted, database, console);
}
} // namespace

const Command notebookCommand = {
    "notebook", "Adds, edits or deletes a notebook, or makes it the default.", declare, run};
