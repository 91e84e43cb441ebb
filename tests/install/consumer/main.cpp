// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// A user's program on the installed library: notes a dentist's appointment in the database of the
// folder that it is given, and lists what a fresh start finds there.

#include <daskel/db_instance.h>
#include <mkcal/sqlitestorage.h>

#include <QCoreApplication>
#include <QTextStream>
#include <QTimeZone>

namespace
{
const QDate appointmentDay(2026, 5, 4);

bool addAppointment(DbInstance *database)
{
    KCalCore::Event::Ptr event(new KCalCore::Event);
    event->setSummary(QStringLiteral("Dentist"), false);
    event->setDtStart(QDateTime(appointmentDay, QTime(9, 30), QTimeZone("Europe/Helsinki")));
    event->setDtEnd(QDateTime(appointmentDay, QTime(10, 0), QTimeZone("Europe/Helsinki")));
    return database->calendar()->addEvent(event) && database->save();
}

bool listAppointments(DbInstance *database)
{
    database->load(appointmentDay);
    const KCalCore::Event::List events =
        database->calendar()->rawEvents(appointmentDay, appointmentDay);
    QTextStream out(stdout);
    for (const KCalCore::Event::Ptr &event : events) {
        out << event->dtStart().toString(Qt::ISODate) << ' ' << event->summary() << '\n';
    }
    return events.size() == 1 && events.first()->summary() == QLatin1String("Dentist");
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QString folder = application.arguments().value(1);
    if (!mKCal::SqliteStorage::setDefaultFile(folder + QStringLiteral("/calendar.db"))) {
        return 1;
    }

    DbInstance *database = DbInstance::instance();
    database->enableDb();
    bool done = database->didDatabaseOpenSucceed() && addAppointment(database);

    database->recreate();
    database->enableDb();
    done = done && listAppointments(database);

    DbInstance::destroy();
    return done ? 0 : 1;
}
