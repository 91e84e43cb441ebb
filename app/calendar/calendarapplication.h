// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef CALENDARAPPLICATION_H
#define CALENDARAPPLICATION_H

#include <QObject>
#include <QStringList>

class CalendarWindow;

/// What the program does besides showing pages: it opens the calendar and says why when it cannot,
/// takes files in, and answers a second start. UI thread only.
class CalendarApplication : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.daskel.Calendar")

public:
    /// \a window has to live as long.
    explicit CalendarApplication(CalendarWindow *window);
    ~CalendarApplication() override;

    /// Makes the pictures, texts and looks of the application known; once, before the window.
    static void prepare();
    /// The catalogues, digits and reading direction of the default locale's language.
    static void installTexts();

    /// Opens the calendar and takes the \a files in once it is read.
    void start(const QStringList &files);

    /// The name on the session bus for the database \a fileName.
    static QString serviceName(const QString &fileName);
    /// Hands \a files to the program that runs already on that name; false when there is none, and
    /// this one then has the name.
    bool handOver(const QString &service, const QStringList &files);

    /// What happened, what is safe and what can be done, by a primary result code of SQLite.
    static QString openErrorText(int sqliteCode);
    static QString saveErrorText(int sqliteCode);

public Q_SLOTS:
    /// Called by a second start, over the session bus: the window comes to the front.
    Q_SCRIPTABLE void activate(const QStringList &files);
    /// At once or, while the calendar is not read yet, as soon as it is.
    void importFiles(const QStringList &files);

private:
    void databaseOpened();
    void openFailed();
    void askForFiles();
    void importPending();
    void tellFailedSave();
    void tell(const QString &text);

    CalendarWindow *m_window;
    QStringList m_pendingFiles;
};

#endif
