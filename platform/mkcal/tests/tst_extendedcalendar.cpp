// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendarscene.h"
#include "testtable.h"

using namespace CalendarScene;
using mKCal::ExtendedCalendar;

namespace
{
/// Writes down what the calendar tells its observers, and where the incidence is then.
class Observer : public KCalCore::Calendar::CalendarObserver
{
public:
    explicit Observer(ExtendedCalendar &calendar) : m_calendar(calendar)
    {
        m_calendar.registerObserver(this);
    }
    ~Observer() override { m_calendar.unregisterObserver(this); }

    void calendarIncidenceAdded(const KCalCore::Incidence::Ptr &incidence) override
    {
        note("+", incidence);
    }
    void calendarIncidenceChanged(const KCalCore::Incidence::Ptr &incidence) override
    {
        note("~", incidence);
    }
    void calendarIncidenceDeleted(const KCalCore::Incidence::Ptr &incidence,
                                  const KCalCore::Calendar *) override
    {
        note("-", incidence);
    }
    QStringList take() { return std::exchange(m_notes, {}); }

private:
    void note(const char *what, const KCalCore::Incidence::Ptr &incidence)
    {
        const QString mark = incidence->hasRecurrenceId() ? QStringLiteral("!") : QString();
        m_notes.append(QLatin1String(what) + incidence->uid() + mark + QLatin1Char('@')
                       + m_calendar.notebook(incidence));
    }

    ExtendedCalendar &m_calendar;
    QStringList m_notes;
};

KCalCore::Event::Ptr weekly(const QString &uid)
{
    return recurring(newEvent(uid, "2011-05-02T10:00", "2011-05-02T11:00"), "FREQ=WEEKLY");
}

KCalCore::Event::Ptr moved(const KCalCore::Event::Ptr &series)
{
    return exception(series, at("2011-05-16T10:00"), "2011-05-18T10:00", "2011-05-18T11:00");
}
} // namespace

class TestExtendedCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void days_data();
    void days();
    void queriesOfOneDay();
    void queryInAnotherZone();
    void order();
    void sortFields();
    void edits();
    void ungroupedRecurrenceEdits();
    void exceptionEdits();
    void timeZoneChange();
    void lookUp_data();
    void lookUp();
    void replacing();
    void replacingSeriesKeepsExceptions();
    void deleting();
    void relationsStayAsTheyAre();
    void readOnlyAndForeign();
    void notebooks();
    void notebookMoves();
    void deletedNotebook();
    void closing();

private:
    std::unique_ptr<ExtendedCalendar> m_calendar;
    std::unique_ptr<Observer> m_observer;
};

void TestExtendedCalendar::init()
{
    m_calendar = std::make_unique<ExtendedCalendar>(QTimeZone("Europe/Helsinki"));
    for (const char *uid : {"home", "work"}) {
        QVERIFY(m_calendar->addNotebook(uid, true));
    }
    QVERIFY(m_calendar->setDefaultNotebook("home"));
    m_observer = std::make_unique<Observer>(*m_calendar);
}

void TestExtendedCalendar::cleanup()
{
    m_observer.reset();
    m_calendar.reset();
}

void TestExtendedCalendar::days_data()
{
    addColumns<KCalCore::Incidence::Ptr, QList<int>>("incidence", "daysOfMay");

    using Pointer = KCalCore::Incidence::Ptr;
    const auto row = [](const char *name, const Pointer &incidence, const QList<int> &days) {
        addRow(name, incidence, days);
    };
    row("all-day, one day", newEvent("a", "2011-05-03", "2011-05-04"), {3});
    row("all-day, two days", newEvent("a", "2011-05-03", "2011-05-05"), {3, 4});
    row("all-day, no end", newEvent("a", "2011-05-03"), {3});
    row("all-day, a week", newEvent("a", "2011-04-28", "2011-05-04"), {1, 2, 3});
    row("ends at midnight", newEvent("a", "2011-05-03T20:00", "2011-05-04T00:00"), {3});
    row("ends past midnight", newEvent("a", "2011-05-03T20:00", "2011-05-04T00:01"), {3, 4});
    row("a moment at midnight", newEvent("a", "2011-05-03T00:00"), {3});
    row("end before start", newEvent("a", "2011-05-03T20:00", "2011-05-02T00:00"), {3});
    row("late in UTC", newEvent("a", "2011-05-03T22:30", "2011-05-03T23:30", "UTC"), {4});
    row("floating", newEvent("a", "2011-05-03T23:00", "2011-05-03T23:30", ""), {3});
    row("due", newTodo("a", "2011-05-03T12:00"), {3});
    row("due all day", newTodo("a", "2011-05-03"), {3});
    row("no date", newTodo("a", {}), {});
    row("journal", newJournal("a", "2011-05-03"), {3});
    row("recurring", recurring(newEvent("a", "2011-05-02", "2011-05-03"), "FREQ=DAILY;INTERVAL=2"),
        {2, 4});
    row("recurring to-do",
        recurring(newTodo("a", "2011-05-02T10:00"), "FREQ=DAILY;INTERVAL=2;COUNT=2"), {2, 4});
    row("recurring to-do, on its due dates",
        recurring(with(newTodo("a", "2011-05-03T10:00"),
                       [](auto &todo) { todo.setDtStart(at("2011-05-01T10:00")); }),
                  "FREQ=DAILY;INTERVAL=2;COUNT=2"),
        {3, 5});
}

void TestExtendedCalendar::days()
{
    QFETCH(KCalCore::Incidence::Ptr, incidence);
    QVERIFY(m_calendar->addIncidence(incidence));
    QList<int> found;
    for (QDate day(2011, 5, 1); day < QDate(2011, 5, 6); day = day.addDays(1)) {
        const auto list = m_calendar->incidences(day);
        QVERIFY(list.isEmpty() || list == KCalCore::Incidence::List{incidence});
        if (!list.isEmpty()) {
            found.append(day.day());
        }
    }
    QTEST(found, "daysOfMay");
    QFETCH(QList<int>, daysOfMay);
    const auto inWeek = m_calendar->incidences(QDate(2011, 5, 1), QDate(2011, 5, 5));
    QCOMPARE(inWeek.isEmpty(), daysOfMay.isEmpty());
    QVERIFY(m_calendar->incidences(QDate(2010, 1, 1), QDate(2010, 12, 31)).isEmpty());
}

void TestExtendedCalendar::queriesOfOneDay()
{
    m_calendar->addEvent(newEvent("event", "2011-05-03", "2011-05-04"));
    m_calendar->addTodo(newTodo("todo", "2011-05-03"));
    m_calendar->addJournal(newJournal("journal", "2011-05-03"));
    const QDate day(2011, 5, 3);
    QCOMPARE(uids(m_calendar->events(day)), QStringList("event"));
    QCOMPARE(uids(m_calendar->rawEvents(day, day)), QStringList("event"));
    QCOMPARE(uids(m_calendar->todos(day)), QStringList("todo"));
    QCOMPARE(uids(m_calendar->rawTodos(day, day)), QStringList("todo"));
    QCOMPARE(uids(m_calendar->journals(day)), QStringList("journal"));
    QCOMPARE(uids(m_calendar->journals(day, day)), QStringList("journal"));
    QCOMPARE(m_calendar->incidences(day, day).size(), 3);
    QVERIFY(m_calendar->events(day.addDays(1)).isEmpty());
    // Only what does not reach beyond the days.
    m_calendar->addEvent(newEvent("long", "2011-05-02", "2011-05-04"));
    QCOMPARE(uids(m_calendar->rawEvents(day, day, {}, true)), QStringList("event"));
    QCOMPARE(uids(m_calendar->rawEvents(QDate(), day)), QStringList({"long", "event"}));
}

void TestExtendedCalendar::queryInAnotherZone()
{
    m_calendar->addEvent(newEvent("late", "2011-05-03T23:00", "2011-05-03T23:30"));
    m_calendar->addEvent(newEvent("day", "2011-05-03", "2011-05-04"));
    m_calendar->addEvent(newEvent("floating", "2011-05-03T22:00", "2011-05-03T23:00", ""));
    const QTimeZone tokyo("Asia/Tokyo");
    const QDate third(2011, 5, 3);
    const QDate fourth(2011, 5, 4);
    QCOMPARE(uids(m_calendar->rawEvents(third, third, tokyo)), QStringList({"day", "floating"}));
    QCOMPARE(uids(m_calendar->rawEventsForDate(fourth, tokyo)), QStringList("late"));
}

void TestExtendedCalendar::order()
{
    for (const char *uid : {"d", "b", "c", "a"}) {
        m_calendar->addEvent(newEvent(uid, "2011-05-03T10:00", "2011-05-03T11:00"));
    }
    m_calendar->addEvent(newEvent("long", "2011-05-01T10:00", "2011-05-09T11:00"));
    m_calendar->addEvent(weekly("series"));
    m_calendar->addEvent(newEvent("shorter", "2011-05-03T10:00", "2011-05-03T10:30"));
    m_calendar->addTodo(newTodo("undated", {}));
    const QStringList expected{"long", "series", "shorter", "a", "b", "c", "d"};
    QCOMPARE(uids(m_calendar->incidences(QDate(2011, 5, 3), QDate(2011, 5, 3))), expected);
    QCOMPARE(uids(m_calendar->rawEvents()), expected);
    m_calendar->setNotebook(m_calendar->incidence("c"), "work");
    QCOMPARE(uids(m_calendar->incidences(QStringLiteral("home"))),
             QStringList({"long", "series", "shorter", "a", "b", "d", "undated"}));
}

void TestExtendedCalendar::sortFields()
{
    const auto b = newEvent("b", "2011-05-03T10:00", "2011-05-03T12:00");
    b->setSummary("1", false);
    const auto a = newEvent("a", "2011-05-03T11:00", "2011-05-03T11:30");
    a->setSummary("2", false);
    m_calendar->addEvent(a);
    m_calendar->addEvent(b);
    using namespace KCalCore;
    QCOMPARE(uids(m_calendar->rawEvents(EventSortStartDate)), QStringList({"b", "a"}));
    QCOMPARE(uids(m_calendar->rawEvents(EventSortStartDate, SortDirectionDescending)),
             QStringList({"a", "b"}));
    QCOMPARE(uids(m_calendar->rawEvents(EventSortEndDate)), QStringList({"a", "b"}));
    QCOMPARE(uids(m_calendar->rawEventsForDate(QDate(2011, 5, 3), {}, EventSortSummary)),
             QStringList({"b", "a"}));
}

void TestExtendedCalendar::edits()
{
    const auto event = newEvent("a", "2011-05-03T10:00", "2011-05-03T12:00");
    const QDateTime modified(QDate(2011, 1, 1), QTime(0, 0), Qt::UTC);
    event->setLastModified(modified);
    m_calendar->addEvent(event);
    m_observer->take();
    event->setDtStart(at("2011-05-06T10:00"));
    event->setDtEnd(at("2011-05-07T12:00"));
    QCOMPARE(m_observer->take(), QStringList({"~a@home", "~a@home"}));
    QVERIFY(m_calendar->events(QDate(2011, 5, 3)).isEmpty());
    QCOMPARE(uids(m_calendar->events(QDate(2011, 5, 7))), QStringList("a"));
    QCOMPARE(event->lastModified(), modified);

    event->startUpdates();
    event->setDtStart(at("2011-05-20T10:00"));
    event->setDtEnd(at("2011-05-20T12:00"));
    event->setAllDay(true);
    event->endUpdates();
    QCOMPARE(m_observer->take(), QStringList("~a@home"));
    QCOMPARE(uids(m_calendar->events(QDate(2011, 5, 20))), QStringList("a"));
    m_calendar->deleteEvent(event);
    QVERIFY(m_calendar->rawEvents().isEmpty());
}

void TestExtendedCalendar::ungroupedRecurrenceEdits()
{
    const auto event = newEvent("a", "2011-05-03T10:00", "2011-05-03T12:00");
    m_calendar->addEvent(event);
    event->recurrence()->setDaily(1);
    QCOMPARE(m_calendar->events(QDate(2011, 5, 3)).size(), 1);
    QCOMPARE(m_calendar->events(QDate(2012, 5, 3)).size(), 1);
    event->recurrence()->setDuration(3);
    QVERIFY(m_calendar->rawEvents(QDate(2011, 5, 7), QDate(2012, 5, 7)).isEmpty());
    QCOMPARE(m_calendar->events(QDate(2011, 5, 5)).size(), 1);
    event->recurrence()->clear();
    QVERIFY(m_calendar->events(QDate(2011, 5, 5)).isEmpty());
    QCOMPARE(m_calendar->events(QDate(2011, 5, 3)).size(), 1);
    QVERIFY(m_calendar->deleteEvent(event));
    QVERIFY(m_calendar->events(QDate(2011, 5, 3)).isEmpty());
}

void TestExtendedCalendar::exceptionEdits()
{
    const auto series = weekly("a");
    const auto exception = moved(series);
    m_calendar->addEvent(series);
    m_calendar->addEvent(exception);
    m_observer->take();
    exception->startUpdates();
    exception->setDtStart(at("2011-05-20T10:00"));
    exception->endUpdates();
    QCOMPARE(m_observer->take(), QStringList("~a!@home"));
    QCOMPARE(m_calendar->events(QDate(2011, 5, 20)), KCalCore::Event::List{exception});
    QVERIFY(m_calendar->events(QDate(2011, 5, 18)).isEmpty());
    QVERIFY(m_calendar->events(QDate(2011, 5, 16)).isEmpty());
}

void TestExtendedCalendar::timeZoneChange()
{
    m_calendar->addEvent(newEvent("day", "2011-05-03", "2011-05-04"));
    m_calendar->addEvent(newEvent("floating", "2011-05-03T23:00", "2011-05-03T23:30", ""));
    m_calendar->addEvent(newEvent("moment", "2011-05-03T23:00", "2011-05-03T23:30"));
    m_calendar->setTimeZone(QTimeZone("Asia/Tokyo"));
    QCOMPARE(uids(m_calendar->events(QDate(2011, 5, 3))), QStringList({"day", "floating"}));
    QCOMPARE(uids(m_calendar->events(QDate(2011, 5, 4))), QStringList("moment"));
}

void TestExtendedCalendar::lookUp_data()
{
    addColumns<KDateTime, bool, bool>("recurrenceId", "isAllDay", "isFound");

    addRow("as it is", KDateTime(at("2011-05-16T10:00")), false, true);
    addRow("in UTC", KDateTime(at("2011-05-16T07:00", "UTC")), false, true);
    addRow("milliseconds do not count", KDateTime(at("2011-05-16T10:00").addMSecs(1)), false, true);
    addRow("another second", KDateTime(at("2011-05-16T10:00").addSecs(1)), false, false);
    addRow("all-day, a date", KDateTime(QDate(2011, 5, 16)), true, true);
    addRow("all-day, midnight here", KDateTime(at("2011-05-16", "")), true, true);
    addRow("all-day, midnight elsewhere", KDateTime(at("2011-05-16", "America/New_York")), true,
           true);
    addRow("all-day, midnight as UTC", KDateTime(at("2011-05-15T21:00", "UTC")), true, true);
    addRow("all-day, another date", KDateTime(QDate(2011, 5, 17)), true, false);
}

void TestExtendedCalendar::lookUp()
{
    QFETCH(KDateTime, recurrenceId);
    QFETCH(bool, isAllDay);
    const auto series = isAllDay
        ? recurring(newEvent("a", "2011-05-02", "2011-05-03"), "FREQ=WEEKLY")
        : weekly("a");
    const auto exception = isAllDay
        ? CalendarScene::exception(series, at("2011-05-16", ""), "2011-05-18", "2011-05-19")
        : moved(series);
    m_calendar->addEvent(exception);
    QVERIFY(!m_calendar->incidence("a"));
    QTEST(m_calendar->incidence("a", recurrenceId) == exception, "isFound");
    m_calendar->addEvent(series);
    QTEST(m_calendar->incidence("a", recurrenceId) == exception, "isFound");
    QCOMPARE(m_calendar->incidence("a", KDateTime()), KCalCore::Incidence::Ptr(series));
    // Neither a null date nor one of another type names something else.
    QCOMPARE(m_calendar->event("a", QDateTime(QDate(), QTime(0, 0))), series);
    QVERIFY(!m_calendar->todo("a"));
}

void TestExtendedCalendar::replacing()
{
    const auto first = newEvent("a", "2011-05-03T10:00", "2011-05-03T11:00");
    QVERIFY(m_calendar->addEvent(first, "work"));
    QCOMPARE(m_observer->take(), QStringList("+a@work"));
    QVERIFY(m_calendar->addEvent(first));
    QCOMPARE(m_observer->take(), QStringList());
    const auto second = newTodo("a", "2011-05-05T10:00");
    QVERIFY(m_calendar->addTodo(second));
    QCOMPARE(m_observer->take(), QStringList("~a@work"));
    QCOMPARE(m_calendar->incidence("a"), KCalCore::Incidence::Ptr(second));
    QVERIFY(m_calendar->rawEvents().isEmpty());
    first->setSummary("nobody listens", false);
    QVERIFY(m_observer->take().isEmpty());
    second->setSummary("somebody does", false);
    QCOMPARE(m_observer->take(), QStringList("~a@work"));

    QVERIFY(!m_calendar->addIncidence({}));
    QVERIFY(!m_calendar->addEvent(newEvent("b", "2011-05-03T10:00"), "unknown"));
    QVERIFY(!m_calendar->incidence("b"));
    QVERIFY(m_observer->take().isEmpty());
}

void TestExtendedCalendar::replacingSeriesKeepsExceptions()
{
    const auto series = weekly("a");
    const auto exception = moved(series);
    m_calendar->addEvent(series);
    m_calendar->addEvent(exception);
    m_observer->take();
    const auto other = weekly("a");
    m_calendar->addEvent(other, "work");
    QCOMPARE(m_observer->take(), QStringList({"~a@work", "~a!@work"}));
    QCOMPARE(m_calendar->incidence("a"), KCalCore::Incidence::Ptr(other));
    QCOMPARE(m_calendar->incidence("a", KDateTime(exception->recurrenceId())),
             KCalCore::Incidence::Ptr(exception));
    QCOMPARE(uids(m_calendar->events(QDate(2011, 5, 18))), QStringList("a"));
}

void TestExtendedCalendar::deleting()
{
    const auto series = weekly("a");
    m_calendar->addEvent(series, "work");
    m_calendar->addEvent(moved(series));
    m_observer->take();
    QVERIFY(m_calendar->deleteEvent(series));
    QCOMPARE(m_observer->take(), QStringList({"-a!@work", "-a@work"}));
    QVERIFY(m_calendar->incidences().isEmpty());
    QVERIFY(m_calendar->notebook(QStringLiteral("a")).isEmpty());
    QVERIFY(m_calendar->incidences(QStringLiteral("work")).isEmpty());
    QVERIFY(!m_calendar->deleteEvent(series));
    QVERIFY(!m_calendar->deleteIncidence({}));
    // To change an identity: out, changed, in again.
    series->setUid("b");
    QVERIFY(m_calendar->addEvent(series));
    QCOMPARE(uids(m_calendar->events(QDate(2011, 5, 9))), QStringList("b"));
    QCOMPARE(m_calendar->notebook(series), QStringLiteral("home"));
}

void TestExtendedCalendar::relationsStayAsTheyAre()
{
    const auto parent = newTodo("parent", "2011-05-03");
    const auto child = newTodo("child", "2011-05-03");
    child->setRelatedTo("parent");
    m_calendar->addTodo(parent);
    m_calendar->addTodo(child);
    m_observer->take();
    m_calendar->deleteTodo(parent);
    QCOMPARE(m_observer->take(), QStringList("-parent@home"));
    QCOMPARE(child->relatedTo(), QStringLiteral("parent"));
}

void TestExtendedCalendar::readOnlyAndForeign()
{
    ExtendedCalendar other{QTimeZone("Europe/Helsinki")};
    const auto foreign = newEvent("a", "2011-05-03T10:00");
    QVERIFY(other.addEvent(foreign));
    QVERIFY(other.notebook(foreign).isEmpty());
    QVERIFY(!m_calendar->setNotebook(foreign, "home"));
    QVERIFY(!m_calendar->deleteEvent(foreign));
    QVERIFY(m_calendar->notebook(foreign).isEmpty());
}

void TestExtendedCalendar::notebooks()
{
    QCOMPARE(m_calendar->notebooks(), QStringList({"home", "work"}));
    QVERIFY(!m_calendar->addNotebook("home", true));
    QVERIFY(!m_calendar->addNotebook(QString(), true));
    QVERIFY(m_calendar->updateNotebook("work", false));
    QVERIFY(!m_calendar->updateNotebook("unknown", false));
    QVERIFY(!m_calendar->isVisible(QStringLiteral("work")));
    QVERIFY(!m_calendar->setDefaultNotebook("unknown"));
    QCOMPARE(m_calendar->defaultNotebook(), QStringLiteral("home"));
    // Nothing is left out because its notebook is not visible.
    m_calendar->addTodo(newTodo("a", "2011-05-03"), "work");
    QCOMPARE(m_calendar->rawTodos(QDate(2011, 5, 3), QDate(2011, 5, 3)).size(), 1);
    QVERIFY(!m_calendar->isVisible(m_calendar->incidence("a")));
    m_calendar->clearNotebookAssociations();
    QVERIFY(m_calendar->notebook(QStringLiteral("a")).isEmpty());
    QVERIFY(m_calendar->hasValidNotebook("work"));
}

void TestExtendedCalendar::notebookMoves()
{
    const auto series = weekly("a");
    const auto exception = moved(series);
    m_calendar->addEvent(series);
    m_calendar->addEvent(exception, "work");
    QCOMPARE(m_calendar->notebook(exception), QStringLiteral("home"));
    m_observer->take();
    QVERIFY(m_calendar->setNotebook(exception, "work"));
    QCOMPARE(m_observer->take(), QStringList({"~a@work", "~a!@work"}));
    QVERIFY(m_calendar->setNotebook(series, "work"));
    QVERIFY(m_observer->take().isEmpty());
    QVERIFY(!m_calendar->setNotebook(series, "unknown"));
    QCOMPARE(m_calendar->notebook(series), QStringLiteral("work"));
    QCOMPARE(m_calendar->incidences(QStringLiteral("work")).size(), 2);
    QVERIFY(m_calendar->incidences(QStringLiteral("home")).isEmpty());
    // Added once more, with a notebook: moved.
    QVERIFY(m_calendar->addEvent(series, "home"));
    QCOMPARE(m_observer->take(), QStringList({"~a@home", "~a!@home"}));
}

void TestExtendedCalendar::deletedNotebook()
{
    const auto series = weekly("a");
    m_calendar->addEvent(series);
    m_calendar->addEvent(moved(series));
    m_calendar->addEvent(newEvent("b", "2011-05-03T10:00"), "work");
    m_observer->take();
    QVERIFY(m_calendar->deleteNotebook("home"));
    QVERIFY(m_observer->take().isEmpty());
    QCOMPARE(uids(m_calendar->incidences()), QStringList("b"));
    QVERIFY(!m_calendar->incidence("a"));
    QVERIFY(m_calendar->defaultNotebook().isEmpty());
    QVERIFY(!m_calendar->hasValidNotebook("home"));
    QVERIFY(!m_calendar->deleteNotebook("home"));
    series->setSummary("nobody listens", false);
    QVERIFY(m_observer->take().isEmpty());
}

void TestExtendedCalendar::closing()
{
    const auto event = newEvent("a", "2011-05-03T10:00");
    m_calendar->addEvent(event);
    m_calendar->close();
    QVERIFY(m_calendar->incidences().isEmpty());
    QVERIFY(!m_calendar->incidence("a"));
    QVERIFY(m_calendar->addEvent(event));
    QCOMPARE(m_calendar->events(QDate(2011, 5, 3)).size(), 1);
}

CALENDAR_TEST_MAIN(TestExtendedCalendar, "Europe/Helsinki")
#include "tst_extendedcalendar.moc"
