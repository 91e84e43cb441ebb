// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarapplication.h"
#include "calendarwindow.h"
#include "pictures.h"

#include <daskel/calendarconf.h>
#include <daskel/db_instance.h>
#include <kcalcompat/ksystemtimezones.h>
#include <mkcal/sqlitestorage.h>
#include <touchcore/mapplication.h>
#include <touchcore/mtheme.h>

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace
{
const QSize usualSize(480, 854);

/// What the library writes for a log is not for who started the calendar from a terminal.
void leaveOutWarnings(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "daskel-calendar: %s\n", qUtf8Printable(text));
}

QStringList absolute(QStringList files)
{
    for (QString &file : files)
        file = QFileInfo(file).absoluteFilePath();
    return files;
}

int fail(const QString &text)
{
    std::fprintf(stderr, "daskel-calendar: %s\n", qUtf8Printable(text));
    return 1;
}

int showCalendar(const QString &database, const QStringList &files)
{
    CalendarWindow window;
    CalendarApplication calendar(&window);
    if (calendar.handOver(CalendarApplication::serviceName(database), files))
        return 0;
    window.resize(usualSize);
    window.show();
    calendar.start(files);
    return MApplication::exec();
}
} // namespace

int main(int argc, char **argv)
{
    KSystemTimeZones().configChanged();
    MApplication application(argc, argv);
    MApplication::setApplicationName(QStringLiteral("daskel-calendar"));
    MApplication::setApplicationVersion(QStringLiteral(DASKEL_VERSION));
    MApplication::setDesktopFileName(QStringLiteral("org.daskel.Calendar"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Appointments, to-dos and notes."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption data(QStringLiteral("data"),
                                  QStringLiteral("Use the calendar in the folder DIR."),
                                  QStringLiteral("DIR"));
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Write a picture of each page into DIR."),
                                      QStringLiteral("DIR"));
    parser.addOptions({data, pictures});
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("iCalendar files to take in."),
                                 QStringLiteral("[FILE.ics...]"));
    parser.process(application);

    QString database;
    if (parser.isSet(data)) {
        database = QDir(parser.value(data)).absoluteFilePath(QStringLiteral("calendar.db"));
        mKCal::SqliteStorage::setDefaultFile(database);
    }
    qInstallMessageHandler(leaveOutWarnings);
    CalendarApplication::prepare();
    int result = 0;
    if (parser.isSet(pictures)) {
        const QString wrong = writePictures(parser.value(pictures));
        result = wrong.isEmpty() ? 0 : fail(wrong);
    } else {
        MTheme::instance()->followDesktop();
        result = showCalendar(database, absolute(parser.positionalArguments()));
    }
    CalendarConf::destroy();
    DbInstance::destroy();
    return result;
}
