// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefixture.h"
#include "failingdevice.h"
#include "incidences.h"
#include "plaindatabase.h"
#include "warningcapture.h"

#include <daskel/notebookmanager.h>

#include <QSignalSpy>
#include <QtTest>

using mKCal::Notebook;

namespace
{
const QString notesUid = "66666666-7777-8888-9999-000000000000";

Notebook::Ptr makeNotebook(const char *name)
{
    auto notebook = Notebook::Ptr::create();
    notebook->setUid(QLatin1String(name));
    notebook->setName(QLatin1String(name));
    return notebook;
}

QString names(const Notebook::List &notebooks)
{
    QStringList result;
    for (const Notebook::Ptr &notebook : notebooks)
        result << notebook->name();
    return result.join(", ");
}
} // namespace

/// The list of notebooks and what changes it.
class NotebookManagerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsCopiesOfWhatIsNotHidden();
    void unequalAsLongAsOneIsHidden();
    void addingAndChanging();
    void deleting();
    void refused_data();
    void refused();
    void brokenDisk();
    void movingAnIncidence();
    void onADatabase();

private:
    NotebookManager &manager() { return *NotebookManager::instance(); }
    /// What each change told since the last call.
    static QList<int> takeErrors(QSignalSpy &modified)
    {
        QList<int> errors;
        while (!modified.isEmpty())
            errors << modified.takeFirst().first().value<NotebookManager::ModifyError>();
        return errors;
    }
};

void NotebookManagerTest::listsCopiesOfWhatIsNotHidden()
{
    PlainDatabase database;
    database.open();
    manager().dataUpdated();
    QCOMPARE(names(manager().notebooks()), "Personal");
    const auto listed = manager().notebooks().first();
    listed->setName("edited");
    QCOMPARE(manager().getNotebook(listed->uid())->name(), "Personal");
    QCOMPARE(manager().getDefaultNotebook()->uid(), listed->uid());
    QVERIFY(manager().getNotebook(notesUid)->isHidden());
    QVERIFY(!manager().getNotebook("unknown"));
}

void NotebookManagerTest::unequalAsLongAsOneIsHidden()
{
    PlainDatabase database;
    database.openEnabled(DbInstance::NoUser);
    QSignalSpy changed(&manager(), &NotebookManager::notebooksChanged);
    const auto notes = database.storage->notebook(notesUid);
    for (int times = 1; times <= 2; ++times) {
        manager().dataUpdated();
        QCOMPARE(changed.count(), times);
    }
    notes->setIsHidden(false);
    manager().dataUpdated();
    QCOMPARE(changed.count(), 3);
    manager().dataUpdated(); // now they are equal
    QCOMPARE(changed.count(), 3);
    notes->setColor("#000000");
    WarningCapture warnings;
    database.storage->tellModified(); // by way of DbInstance
    QCOMPARE(changed.count(), 4);
}

void NotebookManagerTest::addingAndChanging()
{
    PlainDatabase database;
    database.open();
    manager().dataUpdated();
    database.takeCalls();
    QSignalSpy modified(&manager(), &NotebookManager::notebooksModified);
    const auto work = makeNotebook("work");
    QVERIFY(manager().addNotebook(work));
    QCOMPARE(takeErrors(modified), QList<int>{0});
    QCOMPARE(database.takeCalls(), "addNotebook work 1");
    QCOMPARE(manager().notebooks().last(), work); // itself, no copy

    const auto changed = makeNotebook("work");
    changed->setName("office");
    QVERIFY(manager().updateNotebook(changed));
    QCOMPARE(names(manager().notebooks()), "Personal, office");
    QCOMPARE(manager().notebooks().last(), changed);
    QVERIFY(manager().updateNotebook(makeNotebook("not listed")));
    QCOMPARE(manager().notebooks().size(), 2);
    QCOMPARE(takeErrors(modified), QList<int>({0, 0}));
}

void NotebookManagerTest::deleting()
{
    PlainDatabase database;
    database.open();
    manager().dataUpdated();
    const auto work = makeNotebook("work");
    QVERIFY(manager().addNotebook(work));
    database.takeCalls();
    QSignalSpy modified(&manager(), &NotebookManager::notebooksModified);

    QVERIFY(!manager().deleteNotebook({}));
    QCOMPARE(modified.count(), 0);
    QVERIFY(manager().deleteNotebook(work));
    QCOMPARE(database.takeCalls(), "deleteNotebook work 0");
    QCOMPARE(names(manager().notebooks()), "Personal");

    const auto personal = manager().notebooks().first();
    QVERIFY(manager().deleteNotebook(personal));
    QCOMPARE(database.takeCalls(),
             QString("deleteNotebook %1 0, resetDefaultNotebook").arg(personal->uid()));
    QVERIFY(manager().notebooks().isEmpty());
    QCOMPARE(takeErrors(modified), QList<int>({0, 0}));
}

void NotebookManagerTest::refused_data()
{
    QTest::addColumn<QString>("change");
    for (const char *change : {"add", "update", "delete"})
        QTest::newRow(change) << QString::fromLatin1(change);
}

void NotebookManagerTest::refused()
{
    QFETCH(QString, change);
    PlainDatabase database;
    database.open();
    manager().dataUpdated();
    const auto before = manager().notebooks();
    const auto personal = Notebook::Ptr::create(*before.first());
    personal->setName("edited");
    QSignalSpy modified(&manager(), &NotebookManager::notebooksModified);

    database.storage->accepts = false;
    if (change == "add")
        QVERIFY(!manager().addNotebook(makeNotebook("work")));
    else if (change == "update")
        QVERIFY(!manager().updateNotebook(personal));
    else
        QVERIFY(!manager().deleteNotebook(personal));
    QCOMPARE(takeErrors(modified), QList<int>{1});
    QCOMPARE(manager().notebooks(), before);
    QVERIFY(!database.storage->calls.contains("resetDefaultNotebook"));
}

void NotebookManagerTest::brokenDisk()
{
    DatabaseFixture database;
    database.open();
    manager().dataUpdated();
    const auto before = manager().notebooks();
    QSignalSpy modified(&manager(), &NotebookManager::notebooksModified);
    WarningCapture warnings;
    {
        const FailingDevice device;
        QVERIFY(!manager().addNotebook(makeNotebook("work")));
    }
    QCOMPARE(takeErrors(modified), QList<int>{2});
    QCOMPARE(names(manager().notebooks()), names(before));
    QVERIFY(!manager().addNotebook(before.first())); // refused for its UID
    QCOMPARE(takeErrors(modified), QList<int>{1});
}

void NotebookManagerTest::movingAnIncidence()
{
    DatabaseFixture database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    db->enableDb();
    QVERIFY(manager().addNotebook(makeNotebook("work")));
    const auto event =
        makeEvent("event", localTime("2011-03-10T10:00"), localTime("2011-03-10T11:00"));
    const auto journal = makeJournal("journal", localTime("2011-03-10T10:00"));
    QVERIFY(db->calendar()->addEvent(event));
    QVERIFY(db->calendar()->addJournal(journal));
    const QString personal = db->calendar()->notebook(event);

    QVERIFY(!manager().setIncidenceNotebook(event, "unknown"));
    QVERIFY(!manager().setIncidenceNotebook(event, notesUid)); // journals only
    QVERIFY(!manager().setIncidenceNotebook({}, "work"));
    QCOMPARE(db->calendar()->notebook(event), personal);

    QVERIFY(manager().setIncidenceNotebook(event, "work"));
    QVERIFY(manager().setIncidenceNotebook(journal, notesUid));
    QCOMPARE(db->calendar()->notebook(event), "work");
    QCOMPARE(db->calendar()->notebook(journal), notesUid);
}

void NotebookManagerTest::onADatabase()
{
    DatabaseFixture database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    db->setUser(DbInstance::NotesUser);
    db->enableDb();
    QSignalSpy changed(&manager(), &NotebookManager::notebooksChanged);
    const auto work = makeNotebook("work");
    QVERIFY(manager().addNotebook(work));
    QTRY_VERIFY(!changed.isEmpty()); // the storage tells
    QCOMPARE(names(manager().notebooks()), "Personal, work");

    const auto personal = Notebook::Ptr::create(*manager().getDefaultNotebook());
    QVERIFY(manager().deleteNotebook(personal));
    QCOMPARE(manager().getDefaultNotebook()->uid(), "work");
}

QTEST_GUILESS_MAIN(NotebookManagerTest)
#include "tst_notebookmanager.moc"
