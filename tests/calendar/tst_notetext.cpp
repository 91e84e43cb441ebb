// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "incidences.h"
#include "loadedrows.h"
#include "pages/links.h"
#include "pages/notetext.h"
#include "testenvironment.h"

#include <KCalendarCore/Alarm>
#include <KCalendarCore/ICalFormat>

/// A note in words.
class NoteTextTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void when_data();
    void when();
    void repetition_data();
    void repetition();
    void enclosedFiles_data();
    void enclosedFiles();
    void reminder_data();
    void reminder();

private:
    TestEnvironment m_environment{QDate(2011, 3, 10)};
};

void NoteTextTest::when_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const char *start, const char *end, const char *words) {
        QTest::newRow(name) << start << end << QString::fromUtf8(words);
    };
    row("an hour", "2011-03-10T09:00", "2011-03-10T10:00",
        "Thursday, 10 March 2011, 09:00 – 10:00");
    row("a moment", "2011-03-10T09:00", "2011-03-10T09:00", "Thursday, 10 March 2011, 09:00");
    row("over night", "2011-03-10T22:00", "2011-03-11T06:00",
        "Thursday, 10 March 2011, 22:00 – Friday, 11 March 2011, 06:00");
    row("all day", "2011-03-10", "2011-03-11", "Thursday, 10 March 2011");
    row("some days", "2011-03-10", "2011-03-13",
        "Thursday, 10 March 2011 – Saturday, 12 March 2011");
    row("across the clock change", "2011-03-26", "2011-03-28",
        "Saturday, 26 March 2011 – Sunday, 27 March 2011");
}

void NoteTextTest::when()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    const bool isAllDay = !start.contains('T');
    const auto event = isAllDay
        ? makeAllDayEvent("e", isoDate(qPrintable(start)), isoDate(qPrintable(end)))
        : makeEvent("e", localTime(qPrintable(start)), localTime(qPrintable(end)));
    QTEST(NoteText::when(event, event->dtStart()), "words");
    // The second day's piece tells of the whole.
    QTEST(NoteText::when(event, event->dtStart().addDays(1)), "words");
}

void NoteTextTest::repetition_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *rule, const char *words) {
        QTest::newRow(rule) << rule << words;
    };
    row("FREQ=DAILY", "Repeats every day");
    row("FREQ=DAILY;INTERVAL=3", "Repeats every 3 days");
    row("FREQ=WEEKLY;BYDAY=MO,TH", "Repeats every week on Monday, Thursday");
    row("FREQ=WEEKLY;INTERVAL=2;COUNT=5", "Repeats every 2 weeks, 5 times");
    row("FREQ=MONTHLY;UNTIL=20120303T220000Z", "Repeats every month until 4 March 2012");
    row("FREQ=YEARLY", "Repeats every year");
    row("FREQ=HOURLY;INTERVAL=6", "Repeats every 6 hours");
}

void NoteTextTest::repetition()
{
    QFETCH(QString, rule);
    const auto event = makeEvent("e", localTime("2011-03-10T09:00"), localTime("2011-03-10T10:00"));
    auto *made = new KCalCore::RecurrenceRule;
    QVERIFY(KCalCore::ICalFormat().fromString(made, rule));
    made->setStartDt(event->dtStart());
    event->recurrence()->addRRule(made);
    QTEST(NoteText::repetition(*event), "words");
}

void NoteTextTest::reminder_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("words");
    QTest::newRow("at once") << 0 << "At the start";
    QTest::newRow("a quarter") << -15 * 60 << "15 minutes before";
    QTest::newRow("a minute") << -60 << "1 minute before";
    QTest::newRow("two hours") << -2 * 3600 << "2 hours before";
    QTest::newRow("an hour and a half") << -90 * 60 << "90 minutes before";
    QTest::newRow("a day") << -24 * 3600 << "1 day before";
    QTest::newRow("afterwards") << 600 << "10 minutes after";
}

void NoteTextTest::reminder()
{
    QFETCH(int, seconds);
    const auto event = makeEvent("e", localTime("2011-03-10T09:00"), localTime("2011-03-10T10:00"));
    const auto alarm = event->newAlarm();
    alarm->setStartOffset(KCalCore::Duration(seconds));
    QTEST(NoteText::reminder(*alarm), "words");
}

void NoteTextTest::enclosedFiles_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("mimeType");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("named") << "plan.pdf"
                           << "application/pdf"
                           << "plan.pdf";
    QTest::newRow("without a suffix") << "plan"
                                      << "application/pdf"
                                      << "plan.pdf";
    QTest::newRow("without a name") << ""
                                    << "application/pdf"
                                    << "attachment.pdf";
    QTest::newRow("without anything") << ""
                                      << ""
                                      << "attachment";
    QTest::newRow("out of the folder") << "../../.profile"
                                       << "application/pdf"
                                       << "attachment.pdf";
    QTest::newRow("another way out") << "..\\..\\plan.pdf"
                                     << ""
                                     << "plan.pdf";
}

void NoteTextTest::enclosedFiles()
{
    QFETCH(QString, label);
    QFETCH(QString, mimeType);
    KCalCore::Attachment attachment(QByteArray("data").toBase64(), mimeType);
    attachment.setLabel(label);
    QTEST(Links::fileName(attachment), "fileName");
}

LOADER_TEST_MAIN(NoteTextTest)
#include "tst_notetext.moc"
