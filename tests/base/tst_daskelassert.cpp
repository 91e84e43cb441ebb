// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Whatever the test is built as, this file keeps its assertions.
#ifndef QT_FORCE_ASSERTS
#define QT_FORCE_ASSERTS
#endif

#include "daskelassert.h"
#include "releaseassert.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <cstring>

/// The program runs itself: an assertion that fails ends the process.
class TestDaskelAssert : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void endsTheProcessWithTheFixedPlace();
    void letsTheProgramGoOn();
};

void TestDaskelAssert::endsTheProcessWithTheFixedPlace()
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--fail")});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    const QByteArray said = child.readAllStandardError();
    QVERIFY2(said.contains("ASSERT: \"day > 0\" in file calendarconf, line 166"), said.constData());
}

void TestDaskelAssert::letsTheProgramGoOn()
{
    int looks = 0;
    DASKEL_ASSERT(++looks == 1, "tst_daskelassert", 1);
    QCOMPARE(looks, 1);
    QCOMPARE(assertInARelease(), 0);
}

int main(int argc, char *argv[])
{
    if (argc == 2 && std::strcmp(argv[1], "--fail") == 0) {
        const int day = argc - 2;
        DASKEL_ASSERT(day > 0, "calendarconf", 166);
        return 0;
    }
    QCoreApplication application(argc, argv);
    TestDaskelAssert test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_daskelassert.moc"
