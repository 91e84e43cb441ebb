// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef ASSERTIONS_H
#define ASSERTIONS_H

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

/// Runs this test's program with \a fault as its only argument, which has to end it with the
/// assertion \a text, such as `"value > 0" in file noteloader, line 62`; nothing happens in a
/// release build.
inline void verifyAssertion(const QString &fault, const QByteArray &text)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {fault});
    QVERIFY(child.waitForFinished());
#if defined(QT_NO_DEBUG) && !defined(QT_FORCE_ASSERTS)
    Q_UNUSED(text)
#else
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    const QByteArray said = child.readAllStandardError();
    QVERIFY2(said.contains("ASSERT: " + text), said.constData());
#endif
}

#endif
