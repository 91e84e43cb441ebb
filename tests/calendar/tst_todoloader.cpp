// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filleddatabase.h"
#include "incidences.h"
#include "loadedrows.h"
#include "loaders/todoloader.h"

#include <daskel/calendarconf.h>

#include <KCalendarCore/Recurrence>

#include <QSettings>
#include <QTemporaryDir>

using KCalCore::Todo;

namespace
{
const QDate today = FilledDatabase::today();

Todo::Ptr allDay(const QString &uid, const QDate &due)
{
    auto todo = makeTodo(uid, due.startOfDay());
    todo->setAllDay(true);
    return todo;
}

Todo::Ptr done(const QString &uid, const char *completed)
{
    auto todo = makeTodo(uid, localTime("2011-03-01T10:00"));
    todo->setCompleted(localTime(completed));
    return todo;
}

KCalCore::Incidence::List stock()
{
    const auto urgent = makeTodo("urgent", QDateTime());
    urgent->setPriority(1);
    return {makeTodo("someday", QDateTime()),
            urgent,
            makeTodo("this morning", localTime("2011-03-10T09:00")),
            allDay("yesterday", QDate(2011, 3, 9)),
            allDay("in the course of today", today),
            makeTodo("this evening", localTime("2011-03-10T19:00")),
            allDay("on Sunday", QDate(2011, 3, 13)),
            allDay("on Monday", QDate(2011, 3, 14)),
            done("done first", "2011-03-02T10:00"),
            done("done last", "2011-03-08T10:00"),
            makeEvent("no to-do", localTime("2011-03-10T19:00"), localTime("2011-03-10T20:00"))};
}
} // namespace

/// The groups of the to-do list.
class TodoLoaderTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void groupsInTheirOrder();
    void doneOnesCanBeHidden();
    void aWeekEndsWhereThePersonSays();
    void aGroupIsNeverTorn();
    void whatRepeatsIsDueNext();

private:
    QTemporaryDir m_settings;
};

namespace
{
struct Todos {
    explicit Todos(const KCalCore::Incidence::List &incidences) : database(incidences) { }
    ~Todos() { CalendarConf::destroy(); }

    FilledDatabase database;
    TodoLoader loader;
    LoadedRows rows{&loader};
};
} // namespace

void TodoLoaderTest::initTestCase()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
}

void TodoLoaderTest::groupsInTheirOrder()
{
    Todos todos(stock());
    todos.loader.load();
    QCOMPARE(todos.rows.take(),
             QStringList({"[Overdue]", "yesterday 00:00", "this morning 09:00", "[Today]",
                          "in the course of today 00:00", "this evening 19:00", "[This week]",
                          "on Sunday 00:00", "[Later]", "on Monday 00:00", "[Without date]",
                          "urgent", "someday", "[Done]", "done last 10:00", "done first 10:00"}));
    QCOMPARE(todos.loader.incidenceCount(), 10);
    todos.loader.loadLater();
    todos.loader.loadEarlier();
    QCOMPARE(todos.rows.take(), QStringList());
}

void TodoLoaderTest::doneOnesCanBeHidden()
{
    Todos todos(stock());
    CalendarConf::instance()->setHideCompletedTodos(true);
    todos.loader.load();
    QVERIFY(!todos.rows.take().contains("[Done]"));
    CalendarConf::instance()->setHideCompletedTodos(false);
    todos.loader.load();
    QVERIFY(todos.rows.take().contains("[Done]"));
}

void TodoLoaderTest::aWeekEndsWhereThePersonSays()
{
    Todos todos(stock());
    CalendarConf::instance()->setFirstDayOfWeek(Qt::Sunday);
    todos.loader.load();
    const QStringList rows = todos.rows.take();
    QVERIFY(!rows.contains("[This week]"));
    QCOMPARE(rows.value(rows.indexOf("[Later]") + 1), QString("on Sunday 00:00"));
    CalendarConf::instance()->setFirstDayOfWeek(Qt::Monday);
}

void TodoLoaderTest::aGroupIsNeverTorn()
{
    Todos todos(stock());
    todos.loader.setBatchSize(3);
    todos.loader.load();
    QCOMPARE(todos.rows.take().mid(0, 3) + QStringList{"..."},
             QStringList({"[Overdue]", "yesterday 00:00", "this morning 09:00", "..."}));
    todos.loader.loadLater();
    QCOMPARE(todos.rows.take().first(), QString("[This week]"));
    todos.loader.loadLater();
    QCOMPARE(todos.rows.take().first(), QString("[Done]"));
}

void TodoLoaderTest::whatRepeatsIsDueNext()
{
    const auto weekly = makeTodo("bins", localTime("2011-03-03T20:00"));
    weekly->setDtStart(localTime("2011-03-03T20:00"));
    weekly->recurrence()->setWeekly(1);
    weekly->setDtRecurrence(localTime("2011-03-10T20:00"));
    Todos todos({weekly});
    todos.loader.load();
    QCOMPARE(todos.rows.take(), QStringList({"[Today]", "bins 20:00"}));
}

LOADER_TEST_MAIN(TodoLoaderTest)
#include "tst_todoloader.moc"
