// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"

#include <mkcal/notebook.h>

#include <KCalendarCore/Event>
#include <KCalendarCore/Journal>
#include <KCalendarCore/Todo>

#include <QtTest>

using mKCal::Notebook;

namespace
{
using Change = void (*)(Notebook &);
}

Q_DECLARE_METATYPE(Change)

class TestNotebook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshOnes();
    void everyPropertyCounts_data();
    void everyPropertyCounts();
    void allowed_data();
    void allowed();
};

void TestNotebook::freshOnes()
{
    const Notebook a;
    const Notebook b;
    QVERIFY(!a.uid().isEmpty());
    QVERIFY(a.uid() != b.uid());
    QVERIFY(a.isMaster() && a.isVisible() && a.name().isEmpty());
    QVERIFY(a.eventsAllowed() && a.todosAllowed() && a.journalsAllowed());
    QVERIFY(!a.isShared() && !a.isReadOnly() && !a.isSynchronized() && !a.isHidden());
}

void TestNotebook::everyPropertyCounts_data()
{
    QTest::addColumn<Change>("change");

    static const QDateTime date(QDate(2011, 5, 1), QTime(10, 0), Qt::UTC);
    addRow("uid", Change([](Notebook &n) { n.setUid("x"); }));
    addRow("name", Change([](Notebook &n) { n.setName("x"); }));
    addRow("description", Change([](Notebook &n) { n.setDescription("x"); }));
    addRow("color", Change([](Notebook &n) { n.setColor("#010203"); }));
    addRow("shared", Change([](Notebook &n) { n.setIsShared(true); }));
    addRow("master", Change([](Notebook &n) { n.setIsMaster(false); }));
    addRow("synchronized", Change([](Notebook &n) { n.setIsSynchronized(true); }));
    addRow("read-only", Change([](Notebook &n) { n.setIsReadOnly(true); }));
    addRow("visible", Change([](Notebook &n) { n.setIsVisible(false); }));
    addRow("hidden", Change([](Notebook &n) { n.setIsHidden(true); }));
    addRow("events", Change([](Notebook &n) { n.setEventsAllowed(false); }));
    addRow("to-dos", Change([](Notebook &n) { n.setTodosAllowed(false); }));
    addRow("journals", Change([](Notebook &n) { n.setJournalsAllowed(false); }));
    addRow("plug-in", Change([](Notebook &n) { n.setPluginName("x"); }));
    addRow("account", Change([](Notebook &n) { n.setAccount("x"); }));
    addRow("profile", Change([](Notebook &n) { n.setSyncProfile("x"); }));
    addRow("sync date", Change([](Notebook &n) { n.setSyncDate(date); }));
    addRow("creation date", Change([](Notebook &n) { n.setCreationDate(date); }));
    addRow("modified date", Change([](Notebook &n) { n.setModifiedDate(date); }));
    addRow("shared with", Change([](Notebook &n) { n.setSharedWith({"x@example.com"}); }));
    addRow("custom property", Change([](Notebook &n) { n.setCustomProperty("k", "v"); }));
}

void TestNotebook::everyPropertyCounts()
{
    QFETCH(Change, change);
    const Notebook original("uid", "name", {}, {}, false, true, false, false, true);
    Notebook copy(original);
    QVERIFY(copy == original);
    change(copy);
    QVERIFY(copy != original);
    Notebook again;
    again = copy;
    QVERIFY(again == copy);
    QCOMPARE(original.name(), "name");
}

void TestNotebook::allowed_data()
{
    addColumns<Change, bool, bool, bool>("change", "events", "todos", "journals");

    addRow("all", Change([](Notebook &) {}), true, true, true);
    addRow("no events", Change([](Notebook &n) { n.setEventsAllowed(false); }), false, true, true);
    addRow("only journals", Change([](Notebook &n) {
               n.setEventsAllowed(false);
               n.setTodosAllowed(false);
           }),
           false, false, true);
    addRow("read-only", Change([](Notebook &n) { n.setIsReadOnly(true); }), false, false, false);
}

void TestNotebook::allowed()
{
    QFETCH(Change, change);
    Notebook notebook;
    change(notebook);
    QTEST(notebook.incidenceAllowed(KCalCore::Event::Ptr(new KCalCore::Event)), "events");
    QTEST(notebook.incidenceAllowed(KCalCore::Todo::Ptr(new KCalCore::Todo)), "todos");
    QTEST(notebook.incidenceAllowed(KCalCore::Journal::Ptr(new KCalCore::Journal)), "journals");
    QVERIFY(!notebook.incidenceAllowed({}));
}

QTEST_GUILESS_MAIN(TestNotebook)
#include "tst_notebook.moc"
