// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "librarypages.h"

#include <daskel/daskeltranslator.h>
#include <daskel/db_instance.h>
#include <daskel/notebookmanager.h>
#include <daskel/notedeletion.h>
#include <daskel/notelistwidget.h>
#include <daskel/noteloader.h>
#include <daskel/notewidget.h>
#include <kcalcompat/clock.h>
#include <mkcal/sqlitestorage.h>
#include <touchcore/mwindow.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Journal>
#include <KCalendarCore/Todo>

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <pagebuilder.h>

namespace
{
const QDate today(2026, 11, 21);

QDateTime at(int hour, int minute = 0, int day = 0)
{
    return {today.addDays(day), QTime(hour, minute)};
}

/// A calendar of its own, for a noon in November.
class Notes
{
public:
    Notes()
    {
        KCalCompat::Clock::setSource([] { return at(12).toUTC(); });
        mKCal::SqliteStorage::setDefaultFile(m_folder.filePath(QStringLiteral("notes.db")));
        DbInstance::instance()->enableDb();
        DaskelTranslator::installLibdaskelTranslationCatalogs(QString());
        for (const char *color : {"#1565C0", "#C62828", "#2E7D32", "#F9A825"}) {
            mKCal::Notebook::Ptr notebook(new mKCal::Notebook);
            notebook->setColor(QLatin1String(color));
            NotebookManager::instance()->addNotebook(notebook);
            m_notebooks << notebook->uid();
        }
    }

    KCalCore::Event::Ptr event(const QString &title, const QDateTime &start, const QDateTime &end)
    {
        auto event = KCalCore::Event::Ptr::create();
        event->setSummary(title, false);
        event->setDtStart(start);
        event->setDtEnd(end);
        add(event);
        return event;
    }
    KCalCore::Event::Ptr allDay(const QString &title, int firstDay, int days)
    {
        auto made = event(title, at(0, 0, firstDay), at(0, 0, firstDay + days));
        made->startUpdates();
        made->setAllDay(true);
        made->endUpdates();
        return made;
    }
    KCalCore::Todo::Ptr todo(const QString &title, const QDateTime &due)
    {
        auto todo = KCalCore::Todo::Ptr::create();
        todo->setSummary(title, false);
        todo->setDtDue(due);
        add(todo);
        return todo;
    }
    KCalCore::Journal::Ptr journal(const QString &title)
    {
        auto journal = KCalCore::Journal::Ptr::create();
        journal->setSummary(title, false);
        journal->setDtStart(at(8));
        add(journal);
        return journal;
    }

    static KCalCore::Incidence::Ptr named(const QString &title)
    {
        const KCalCore::Incidence::List all = DbInstance::instance()->calendar()->incidences();
        return *std::find_if(all.begin(), all.end(), [&title](const auto &incidence) {
            return incidence->summary() == title;
        });
    }

private:
    void add(const KCalCore::Incidence::Ptr &incidence)
    {
        const QString notebook = m_notebooks.at(m_added++ % m_notebooks.size());
        DbInstance::instance()->calendar()->addIncidence(incidence, notebook);
    }

    QTemporaryDir m_folder;
    QStringList m_notebooks;
    int m_added = 0;
};

void remind(const KCalCore::Incidence::Ptr &incidence)
{
    incidence->startUpdates();
    const KCalCore::Alarm::Ptr alarm = incidence->newAlarm();
    alarm->setStartOffset(KCalCore::Duration(-15 * 60));
    alarm->setEnabled(true);
    incidence->endUpdates();
}

void repeatWeekly(const KCalCore::Incidence::Ptr &incidence)
{
    incidence->startUpdates();
    incidence->recurrence()->setWeekly(1);
    incidence->endUpdates();
}

struct Row {
    QString group;
    KCalCore::Incidence::Ptr incidence;
    QDateTime start;
    QDateTime end;
};

Row wholeRow(const QString &group, const KCalCore::Incidence::Ptr &incidence)
{
    return {group, incidence, incidence->dtStart(),
            incidence->dateTime(KCalCore::Incidence::RoleEnd)};
}

QVector<Row> eventRows(Notes &notes)
{
    const QString day = QStringLiteral("Saturday, 21 November · today");
    const auto fair = notes.allDay(QStringLiteral("Book fair"), -1, 4);
    fair->setLocation(QStringLiteral("Hall 3"), false);
    const auto market = notes.event(QStringLiteral("Market"), at(9), at(10, 30));
    market->setLocation(QStringLiteral("Hall 3"), false);
    const auto lesson = notes.event(QStringLiteral("Swimming lesson"), at(11), at(12));
    remind(lesson);
    repeatWeekly(lesson);
    const auto meeting = notes.event(
        QStringLiteral("Parents’ evening of the music school with the plans for next year"), at(14),
        at(15, 30));
    meeting->setLocation(QStringLiteral("The large hall on the second floor, by the stairs"),
                         false);
    meeting->addAttendee(
        KCalCore::Attendee(QStringLiteral("Aino"), QStringLiteral("aino@example.org")));
    remind(meeting);
    repeatWeekly(meeting);
    const auto maybe = notes.event(QStringLiteral("Dinner, perhaps"), at(18), at(20));
    maybe->setStatus(KCalCore::Incidence::StatusTentative);
    const auto off = notes.event(QStringLiteral("Concert"), at(19), at(22));
    off->setStatus(KCalCore::Incidence::StatusCanceled);
    off->setLocation(QStringLiteral("Park"), false);
    const auto night = notes.event(QStringLiteral("Night train"), at(22, 10), at(6, 45, 1));
    const auto holidays = notes.event(QStringLiteral("Bank holidays"), at(23), at(12, 0, 3));
    holidays->setReadOnly(true);
    QVector<Row> rows{{day, fair, at(0), at(0, 0, 1)}};
    rows << wholeRow(day, notes.allDay(QStringLiteral("Aino’s birthday"), 0, 1));
    for (const auto &event : {market, lesson, meeting, maybe, off, night, holidays})
        rows << wholeRow(day, event);
    rows << Row{QStringLiteral("Sunday, 22 November"), night, at(0, 0, 1), at(6, 45, 1)};
    return rows;
}

QVector<Row> todoRows(Notes &notes)
{
    const auto late = notes.todo(QStringLiteral("Return the library books"), at(18, 0, -2));
    late->setLocation(QStringLiteral("Library"), false);
    const auto rent = notes.todo(QStringLiteral("Pay the rent"), at(0, 0, -1));
    rent->setAllDay(true);
    const auto call = notes.todo(QStringLiteral("Call home"), at(18));
    remind(call);
    const auto done = notes.todo(QStringLiteral("Water the flowers"), at(0));
    done->startUpdates();
    done->setAllDay(true);
    done->setCompleted(true);
    done->endUpdates();
    const auto someday = notes.todo(QStringLiteral("Learn to sail"), {});
    QVector<Row> rows;
    for (const auto &todo : {late, rent})
        rows << wholeRow(QStringLiteral("Overdue"), todo);
    rows << wholeRow(QStringLiteral("Today"), call)
         << wholeRow(QStringLiteral("Without a date"), someday)
         << wholeRow(QStringLiteral("Done"), done)
         << wholeRow(QStringLiteral("Notes"),
                     notes.journal(QStringLiteral("Ideas for the garden")));
    return rows;
}

/// Hands over what it was given, once.
class RowsLoader : public AbstractNoteLoader
{
public:
    explicit RowsLoader(const QVector<Row> &rows) : m_rows(rows) { }

    void load() override
    {
        resetIncidenceCount();
        for (Row row : qAsConst(m_rows)) {
            const bool isOfToday = row.group.contains(QLatin1String("today"));
            backend()->addGroupHeader(row.group, 0, at(0, 0, isOfToday ? 0 : 1));
            addIncidence(row.group, &row.start, &row.end, row.incidence, false);
        }
    }
    void loadEarlier() override { }
    void loadLater() override { }

private:
    const QVector<Row> m_rows;
};

/// With the loader that it needs.
class RowsList : public NoteListWidget
{
public:
    explicit RowsList(const QVector<Row> &rows)
        : NoteListWidget(nullptr, true, true), m_loader(rows)
    {
        setItemLoader(&m_loader);
        updateContent(1);
    }

private:
    RowsLoader m_loader;
};

Notes &theNotes()
{
    static Notes notes;
    return notes;
}

const QVector<Row> &theEvents()
{
    static const QVector<Row> rows = eventRows(theNotes());
    return rows;
}
} // namespace

QGraphicsWidget *makeEventsPage()
{
    return new RowsList(theEvents());
}

void openDeleteQuestion(MWindow *window)
{
    auto *deletion = new NoteDeletion(window, window);
    const auto lesson = theNotes().named(QStringLiteral("Swimming lesson"));
    deletion->ask(lesson->uid(), {}, KDateTime(lesson->dtStart()));
}

QGraphicsWidget *makeNarrowNotesPage()
{
    const QVector<Row> &rows = theEvents();
    PageBuilder builder;
    builder.addCaption(QStringLiteral("Squeezed"));
    for (const Row &row : rows) {
        auto *note = new EventNoteWidget(row.incidence, nullptr);
        note->setSqueezed(true);
        builder.add(note);
    }
    builder.addCaption(QStringLiteral("Drawn in one piece, as high as there is room"));
    for (const int height : {24, 56, 80}) {
        auto *note = new NoteWidget(rows.at(4).incidence, nullptr);
        note->setMinimumHeight(height);
        note->setMaximumHeight(height);
        builder.add(note);
    }
    return builder.page();
}

QGraphicsWidget *makeTodosPage()
{
    static const QVector<Row> rows = todoRows(theNotes());
    return new RowsList(rows);
}
