// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notedetails.h"
#include "notesfixture.h"
#include "notetimes.h"
#include "testtable.h"

#include <daskel/notewidget.h>
#include <touchcore/mlocale.h>

#include <QApplication>

#include <memory>

namespace
{
const QDateTime noon(QDate(2011, 3, 10), QTime(12, 0));

QString said(const NoteWidget &note)
{
    const NoteTimes times = noteTimes(*note.model(), noteDetails(note), noon);
    return times.first + QLatin1Char('|') + times.second
        + (times.isOverdue ? QStringLiteral("|overdue") : QString());
}
} // namespace

class TestNoteTimes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_notes = std::make_unique<NotesFixture>();
        MLocale::getDefault().setTimeFormat24h(MLocale::TwentyFourHourTimeFormat24h);
    }
    void cleanup() { m_notes.reset(); }

    void ofEvents_data();
    void ofEvents();
    void ofTodos_data();
    void ofTodos();
    void ofJournals();
    void ofWhatIsNotStored();

private:
    std::unique_ptr<NotesFixture> m_notes;
};

void TestNoteTimes::ofEvents_data()
{
    addColumns<QString, QString, QString, QString, QString>("start", "end", "rule", "shown",
                                                            "said");
    // Of the event, its rule, and the start of the occurrence or piece that is shown.
    const auto row = [](const char *name, const char *start, const char *end, const char *rule,
                        const char *shown, const char *text) {
        addRow(name, QString::fromLatin1(start), QString::fromLatin1(end),
               QString::fromLatin1(rule), QString::fromLatin1(shown), QString::fromUtf8(text));
    };
    const char *const day = "2011-03-10T00:00";
    row("an hour", "2011-03-10T09:00", "2011-03-10T10:30", "", "2011-03-10T09:00", "09:00|– 10:30");
    row("a moment", "2011-03-10T09:00", "2011-03-10T09:00", "", "2011-03-10T09:00", "09:00|");
    row("to midnight", "2011-03-10T22:00", "2011-03-11T00:00", "", "2011-03-10T22:00",
        "22:00|– 00:00");
    row("a night", "2011-03-10T22:00", "2011-03-11T02:00", "", "2011-03-10T22:00", "22:00|– 02:00");
    row("its morning", "2011-03-09T22:00", "2011-03-10T02:00", "", day, "until|02:00");
    row("days, the first", "2011-03-10T22:00", "2011-03-13T09:00", "", "2011-03-10T22:00",
        "22:00|– 13 Mar");
    row("days, the second", "2011-03-09T22:00", "2011-03-13T09:00", "", day, "until|13 Mar");
    row("days, the last", "2011-03-08T22:00", "2011-03-10T09:00", "", day, "until|09:00");
    row("days to a midnight", "2011-03-08T22:00", "2011-03-11T00:00", "", day, "until|10 Mar");
    row("all day", day, "2011-03-11", "", day, "All day|");
    row("all days, the first", day, "2011-03-13", "", day, "All day|– 12 Mar");
    row("all days, the second", "2011-03-09T00:00", "2011-03-13", "", day, "until|12 Mar");
    row("all days, the last", "2011-03-08T00:00", "2011-03-11", "", day, "until|10 Mar");
    row("each week", "2010-12-02T09:00", "2010-12-02T10:00", "weekly", "2011-03-10T09:00",
        "09:00|– 10:00");
    row("each week all day", "2010-12-02T00:00", "2010-12-03", "weekly", day, "All day|");
    row("each week at night", "2010-12-01T22:00", "2010-12-02T02:00", "weekly", day, "until|02:00");
    row("each week for days", "2010-12-01T00:00", "2010-12-04", "weekly", day, "until|11 Mar");
    row("each day, from midnight", "2010-12-01T00:00", "2010-12-01T06:00", "daily", day,
        "00:00|– 06:00");
    row("the day that is an hour shorter", "2011-03-27T00:00", "2011-03-28", "", "2011-03-27T00:00",
        "All day|");
    row("over the hour that is left out", "2011-03-27T01:00", "2011-03-27T05:00", "",
        "2011-03-27T01:00", "01:00|– 05:00");
    row("the day that is an hour longer", "2011-10-30T00:00", "2011-10-31", "", "2011-10-30T00:00",
        "All day|");
    row("each week over the longer day", "2011-10-23T00:00", "2011-10-24", "weekly",
        "2011-10-30T00:00", "All day|");
}

void TestNoteTimes::ofEvents()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(QString, rule);
    QFETCH(QString, shown);
    const bool isAllDay = !end.contains(QLatin1Char('T'));
    const auto event = makeEvent("e", localTime(qPrintable(start)), localTime(qPrintable(end)));
    event->setAllDay(isAllDay);
    if (rule == QLatin1String("weekly"))
        event->recurrence()->setWeekly(1);
    else if (rule == QLatin1String("daily"))
        event->recurrence()->setDaily(1);
    NotesFixture::add(event);
    const QDateTime shownStart = localTime(qPrintable(shown));
    NoteWidget note({}, nullptr);
    note.setNote(event, shownStart, shownStart.addSecs(3600));
    QTEST(said(note), "said");
}

void TestNoteTimes::ofTodos_data()
{
    addColumns<QString, bool, QString>("due", "isDone", "said");
    addRow("without a date", QString(), false, QStringLiteral("|"));
    addRow("today", QStringLiteral("2011-03-10"), false, QStringLiteral("Today|"));
    addRow("yesterday", QStringLiteral("2011-03-09"), false, QStringLiteral("9 Mar||overdue"));
    addRow("later today", QStringLiteral("2011-03-10T18:00"), false, QStringLiteral("Today|18:00"));
    addRow("this morning", QStringLiteral("2011-03-10T09:00"), false,
           QStringLiteral("Today|09:00|overdue"));
    addRow("now", QStringLiteral("2011-03-10T12:00"), false, QStringLiteral("Today|12:00"));
    addRow("last year", QStringLiteral("2010-12-31"), false, QStringLiteral("31 Dec|2010|overdue"));
    addRow("next year", QStringLiteral("2012-01-01T18:00"), false, QStringLiteral("1 Jan|2012"));
    addRow("yesterday, and done", QStringLiteral("2011-03-09"), true, QStringLiteral("9 Mar|"));
}

void TestNoteTimes::ofTodos()
{
    QFETCH(QString, due);
    QFETCH(bool, isDone);
    const auto todo = makeTodo("t", localTime(qPrintable(due)));
    todo->setAllDay(!due.contains(QLatin1Char('T')));
    todo->setCompleted(isDone);
    NoteWidget note(NotesFixture::add(todo), nullptr);
    QTEST(said(note), "said");
}

void TestNoteTimes::ofJournals()
{
    NoteWidget note(NotesFixture::add(makeJournal("j", noon)), nullptr);
    QCOMPARE(said(note), QStringLiteral("10 Mar|"));
}

void TestNoteTimes::ofWhatIsNotStored()
{
    NoteWidget note({}, nullptr);
    QCOMPARE(said(note), QStringLiteral("|"));
    note.setNote(makeEvent("gone", noon, noon.addSecs(3600)));
    QCOMPARE(said(note), QStringLiteral("12:00|– 13:00"));
}

QTEST_MAIN(TestNoteTimes)

#include "tst_notetimes.moc"
