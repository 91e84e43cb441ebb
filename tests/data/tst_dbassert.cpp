// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "plaindatabase.h"

#include <QProcess>
#include <QtTest>

#include <cstring>

/// Between destroy() and recreate() there is neither calendar nor storage. The program runs itself:
/// an assertion that fails ends the process.
class DbAssertTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingToHandOut_data();
    void nothingToHandOut();
};

void DbAssertTest::nothingToHandOut_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QByteArray>("place");
    QTest::newRow("calendar") << "--calendar" << QByteArray("in file db_instance, line 280");
    QTest::newRow("storage") << "--storage" << QByteArray("in file db_instance, line 287");
}

void DbAssertTest::nothingToHandOut()
{
    QFETCH(QString, asked);
    QFETCH(QByteArray, place);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {asked});
    QVERIFY(child.waitForFinished());
#if defined(QT_NO_DEBUG) && !defined(QT_FORCE_ASSERTS)
    Q_UNUSED(place)
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
#else
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    const QByteArray said = child.readAllStandardError();
    QVERIFY2(said.contains("ASSERT: \"d != nullptr\" " + place), said.constData());
#endif
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 2 && (!std::strcmp(argv[1], "--calendar") || !std::strcmp(argv[1], "--storage"))) {
        PlainDatabase database;
        database.open();
        const DbInstance *const db = DbInstance::instance();
        if (!db->calendar() || !db->storage())
            return 1;
        DbInstance::destroy();
        const bool isNull =
            std::strcmp(argv[1], "--calendar") == 0 ? !db->calendar() : !db->storage();
        return isNull ? 0 : 1;
    }
    DbAssertTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dbassert.moc"
