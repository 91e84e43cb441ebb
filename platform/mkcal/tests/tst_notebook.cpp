// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

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
    void customProperties();
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
    QTest::newRow("uid") << Change([](Notebook &n) { n.setUid(QStringLiteral("x")); });
    QTest::newRow("name") << Change([](Notebook &n) { n.setName(QStringLiteral("x")); });
    QTest::newRow("description") << Change(
        [](Notebook &n) { n.setDescription(QStringLiteral("x")); });
    QTest::newRow("color") << Change([](Notebook &n) { n.setColor(QStringLiteral("#010203")); });
    QTest::newRow("shared") << Change([](Notebook &n) { n.setIsShared(true); });
    QTest::newRow("master") << Change([](Notebook &n) { n.setIsMaster(false); });
    QTest::newRow("synchronized") << Change([](Notebook &n) { n.setIsSynchronized(true); });
    QTest::newRow("read-only") << Change([](Notebook &n) { n.setIsReadOnly(true); });
    QTest::newRow("visible") << Change([](Notebook &n) { n.setIsVisible(false); });
    QTest::newRow("hidden") << Change([](Notebook &n) { n.setIsHidden(true); });
    QTest::newRow("events") << Change([](Notebook &n) { n.setEventsAllowed(false); });
    QTest::newRow("to-dos") << Change([](Notebook &n) { n.setTodosAllowed(false); });
    QTest::newRow("journals") << Change([](Notebook &n) { n.setJournalsAllowed(false); });
    QTest::newRow("plug-in") << Change([](Notebook &n) { n.setPluginName(QStringLiteral("x")); });
    QTest::newRow("account") << Change([](Notebook &n) { n.setAccount(QStringLiteral("x")); });
    QTest::newRow("profile") << Change([](Notebook &n) { n.setSyncProfile(QStringLiteral("x")); });
    QTest::newRow("sync date") << Change([](Notebook &n) { n.setSyncDate(date); });
    QTest::newRow("creation date") << Change([](Notebook &n) { n.setCreationDate(date); });
    QTest::newRow("modified date") << Change([](Notebook &n) { n.setModifiedDate(date); });
    QTest::newRow("shared with") << Change(
        [](Notebook &n) { n.setSharedWith({QStringLiteral("x@example.com")}); });
    QTest::newRow("custom property") << Change(
        [](Notebook &n) { n.setCustomProperty(QStringLiteral("k"), QStringLiteral("v")); });
}

void TestNotebook::everyPropertyCounts()
{
    QFETCH(Change, change);
    const Notebook original(QStringLiteral("uid"), QStringLiteral("name"), {}, {}, false, true,
                            false, false, true);
    Notebook copy(original);
    QVERIFY(copy == original);
    change(copy);
    QVERIFY(copy != original);
    Notebook again;
    again = copy;
    QVERIFY(again == copy);
    QCOMPARE(original.name(), QStringLiteral("name"));
}

void TestNotebook::customProperties()
{
    Notebook notebook;
    notebook.setCustomProperty(QStringLiteral("b"), QStringLiteral("2"));
    notebook.setCustomProperty(QStringLiteral("a"), QStringLiteral("1"));
    QCOMPARE(notebook.customPropertyKeys(), QStringList({"a", "b"}));
    QCOMPARE(notebook.customProperty(QStringLiteral("b")), QStringLiteral("2"));
    notebook.setCustomProperty(QStringLiteral("b"), QString());
    QCOMPARE(notebook.customPropertyKeys(), QStringList("a"));
}

void TestNotebook::allowed_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("events");
    QTest::addColumn<bool>("todos");
    QTest::addColumn<bool>("journals");

    QTest::newRow("all") << Change([](Notebook &) {}) << true << true << true;
    QTest::newRow("no events") << Change([](Notebook &n) { n.setEventsAllowed(false); }) << false
                               << true << true;
    QTest::newRow("only journals") << Change([](Notebook &n) {
        n.setEventsAllowed(false);
        n.setTodosAllowed(false);
    }) << false << false << true;
    QTest::newRow("read-only") << Change([](Notebook &n) { n.setIsReadOnly(true); }) << false
                               << false << false;
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
