// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "command.h"
#include "console.h"
#include "database.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace
{
const QString jsonOption = QStringLiteral("json");
constexpr int colorWidth = 9;

void declare(QCommandLineParser &parser)
{
    parser.addOption({jsonOption, QStringLiteral("Write JSON.")});
}

QJsonObject toJson(const mKCal::Notebook &notebook, bool isDefault)
{
    return {{QStringLiteral("uid"), notebook.uid()},
            {QStringLiteral("name"), notebook.name()},
            {QStringLiteral("description"), notebook.description()},
            {QStringLiteral("color"), notebook.color()},
            {QStringLiteral("default"), isDefault},
            {QStringLiteral("visible"), notebook.isVisible()},
            {QStringLiteral("hidden"), notebook.isHidden()},
            {QStringLiteral("readOnly"), notebook.isReadOnly()},
            {QStringLiteral("events"), notebook.eventsAllowed()},
            {QStringLiteral("todos"), notebook.todosAllowed()},
            {QStringLiteral("journals"), notebook.journalsAllowed()}};
}

QString marks(const mKCal::Notebook &notebook, bool isDefault)
{
    QStringList marks;
    const auto mark = [&marks](bool applies, const char *text) {
        if (applies) {
            marks.append(QLatin1String(text));
        }
    };
    mark(isDefault, "default");
    mark(!notebook.isVisible(), "not visible");
    mark(notebook.isHidden(), "not in lists");
    mark(notebook.isReadOnly(), "read-only");
    return marks.isEmpty() ? QString()
                           : QStringLiteral(" (%1)").arg(marks.join(QStringLiteral(", ")));
}

ExitCode run(const QCommandLineParser &parser, Console &console)
{
    const Database database(console);
    if (!database.isOpen()) {
        return Failed;
    }
    const auto defaultNotebook = database.storage()->defaultNotebook();
    QJsonArray array;
    for (const auto &notebook : database.storage()->notebooks()) {
        const bool isDefault = defaultNotebook && defaultNotebook->uid() == notebook->uid();
        if (parser.isSet(jsonOption)) {
            array.append(toJson(*notebook, isDefault));
        } else {
            console.out() << printable(notebook->uid()) << "  "
                          << notebook->color().leftJustified(colorWidth)
                          << titleText(notebook->name()) << marks(*notebook, isDefault) << '\n';
        }
    }
    if (parser.isSet(jsonOption)) {
        console.json(QJsonDocument(array));
    }
    return Done;
}
} // namespace

const Command notebooksCommand = {"notebooks", "Lists the notebooks.", {0, 0, ""}, declare, run};
