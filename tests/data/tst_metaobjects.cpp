// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <daskel/db_instance.h>
#include <daskel/expandedincidencescache.h>
#include <daskel/notebookmanager.h>

#include <QMetaMethod>
#include <QtTest>

Q_DECLARE_METATYPE(const QMetaObject *)

/// What other programs rely on by number: the order of signals and slots, the values of the
/// enumerations.
class MetaObjectsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void methods_data();
    void methods();
    void enumerators_data();
    void enumerators();
};

void MetaObjectsTest::methods_data()
{
    QTest::addColumn<const QMetaObject *>("metaObject");
    QTest::addColumn<QStringList>("signatures");

    QTest::newRow("DbInstance")
        << &DbInstance::staticMetaObject
        << QStringList{
               QStringLiteral("signal dataUpdated()"),
               QStringLiteral("signal dbEnabled()"),
               QStringLiteral("signal dbOpenedOk()"),
               QStringLiteral("signal dbOpenedNok()"),
               QStringLiteral("signal dbSaved(DbInstance::DbSaveError)"),
               QStringLiteral("slot timeSettingsChanged(Ostra::Timed::WallClock::Info,bool)"),
               QStringLiteral("slot enableDb()"),
               QStringLiteral("slot save(bool)"),
               QStringLiteral("slot save()"),
               QStringLiteral("slot tryOpenDatabase()"),
               QStringLiteral("slot threadedInit()"),
               QStringLiteral("slot updateNotebookAsync()")};
    QTest::newRow("ExpandedIncidencesCache")
        << &ExpandedIncidencesCache::staticMetaObject << QStringList{};
    QTest::newRow("NotebookManager")
        << &NotebookManager::staticMetaObject
        << QStringList{QStringLiteral("signal notebooksChanged()"),
                       QStringLiteral("signal notebooksModified(NotebookManager::ModifyError)"),
                       QStringLiteral("slot dataUpdated()")};
}

void MetaObjectsTest::methods()
{
    QFETCH(const QMetaObject *, metaObject);
    QStringList found;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        found << (method.methodType() == QMetaMethod::Signal ? QLatin1String("signal ")
                                                             : QLatin1String("slot "))
                + QLatin1String(method.methodSignature());
    }
    QTEST(found, "signatures");
}

void MetaObjectsTest::enumerators_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("fixed");

    QTest::newRow("the calendar") << int(DbInstance::CalendarUser) << 0;
    QTest::newRow("notes") << int(DbInstance::NotesUser) << 1;
    QTest::newRow("nobody") << int(DbInstance::NoUser) << 2;
    QTest::newRow("saved") << int(DbInstance::DbSaveOk) << 0;
    QTest::newRow("not saved") << int(DbInstance::DbSaveFailed) << 1;
    QTest::newRow("not saved, error 10") << int(DbInstance::DbSaveStorageError10) << 2;
    QTest::newRow("modified") << int(NotebookManager::NoModifyError) << 0;
    QTest::newRow("not modified") << int(NotebookManager::ModifyFailed) << 1;
    QTest::newRow("not modified, error 10") << int(NotebookManager::ModifyStorageError10) << 2;
}

void MetaObjectsTest::enumerators()
{
    QFETCH(int, value);
    QTEST(value, "fixed");
}

QTEST_GUILESS_MAIN(MetaObjectsTest)
#include "tst_metaobjects.moc"
