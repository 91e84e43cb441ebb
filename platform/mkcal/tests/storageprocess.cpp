// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Another process of the calendar, for tests. It opens the database named by its argument, does
// what the lines of its standard input say, and answers each with one line:
//
//     add event|todo|journal UID    edit UID SUMMARY...    delete UID    save    summary UID
//     uids    modified (how many notices came)    quit
//     burst NUMBER PREFIX (saves so many events one by one, and answers each with its UID)
//
// Notices of foreign changes come from its event loop, as in any application.

#include "storagefixture.h"

#include <QSocketNotifier>
#include <QTextStream>

#include <unistd.h>

namespace
{
class Commands
{
public:
    explicit Commands(OpenStorage &opened) : m_opened(opened) { }

    QString answer(const QString &line)
    {
        const QString command = line.section(QLatin1Char(' '), 0, 0);
        const QString first = line.section(QLatin1Char(' '), 1, 1);
        const QString rest = line.section(QLatin1Char(' '), 2);
        if (command == "save")
            return m_opened.storage->save() ? "ok" : m_opened.storage->errorMessage();
        if (command == "uids")
            return m_opened.uids().join(QLatin1Char(' '));
        if (command == "modified")
            return QString::number(m_opened.notices.modified);
        if (command == "add")
            return add(first, rest);
        if (command == "burst")
            return burst(first.toInt(), rest);
        m_opened.storage->load(first);
        const auto incidence = m_opened.incidence(first);
        if (!incidence)
            return "none";
        if (command == "summary")
            return incidence->summary();
        if (command == "edit")
            incidence->setSummary(rest, false);
        else if (command == "delete")
            m_opened.calendar->deleteIncidence(incidence);
        else
            return "unknown command";
        return "ok";
    }

private:
    QString add(const QString &kind, const QString &uid)
    {
        const QDateTime start = Make::at(2026, 3, 10, 9);
        KCalCore::Incidence::Ptr incidence;
        if (kind == "event")
            incidence = Make::meeting(uid, start);
        else if (kind == "todo")
            incidence = Make::todo(uid, start);
        else
            incidence = Make::journal(uid, start);
        return m_opened.calendar->addIncidence(incidence) ? "ok" : "refused";
    }

    /// What is printed is stored: it is said only after the save.
    QString burst(int count, const QString &prefix)
    {
        for (int number = 0; number < count; ++number) {
            const QString uid = prefix + QString::number(number);
            add(QStringLiteral("event"), uid);
            if (!m_opened.storage->save())
                return m_opened.storage->errorMessage();
            QTextStream(stdout) << uid << '\n';
        }
        return "done";
    }

    OpenStorage &m_opened;
};
} // namespace

int main(int argc, char *argv[])
{
    qputenv("TZ", "Europe/Helsinki");
    tzset();
    const QCoreApplication application(argc, argv);
    OpenStorage opened(QCoreApplication::arguments().value(1));
    if (!opened.isOpen)
        return 1;
    Commands commands(opened);
    QTextStream output(stdout);
    QByteArray pending;
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        char buffer[4096];
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0)
            return QCoreApplication::quit();
        pending.append(buffer, int(count));
        for (int end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
            const QString line = QString::fromUtf8(pending.left(end));
            pending.remove(0, end + 1);
            if (line == "quit")
                return QCoreApplication::quit();
            output << commands.answer(line) << '\n' << Qt::flush;
        }
    });
    output << "ready\n" << Qt::flush;
    return QCoreApplication::exec();
}
