// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"

#include <daskel/daskelutility.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstring>

/// The program runs itself: where messages go belongs to the whole process, and a fatal one ends
/// it.
class TestDebugOutput : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesMessages_data();
    void writesMessages();
    void movesToAnotherFile();

private:
    QProcess m_child;
    QTemporaryDir m_folder;
};

void TestDebugOutput::writesMessages_data()
{
    addColumns<QString, QString, QString, QString, bool>("kind", "file", "written", "onError",
                                                         "ends");
    const QString file = QStringLiteral("out.txt");
    const QString all = QStringLiteral("debug\ninfo\nwarning\ncritical\n");
    const QString nothing;
    addRow("messages", QStringLiteral("--all"), file, all, nothing, false);
    addRow("the file is emptied", QStringLiteral("--none"), file, nothing, nothing, false);
    addRow("a fatal message", QStringLiteral("--fatal"), file, QStringLiteral("fatal\n"), nothing,
           true);
    addRow("no such folder", QStringLiteral("--all"), QStringLiteral("none/out.txt"), nothing, all,
           false);
    addRow("a full disk", QStringLiteral("--all"), QStringLiteral("/dev/full"), nothing, nothing,
           false);
    addRow("a fatal message on a full disk", QStringLiteral("--fatal"), QStringLiteral("/dev/full"),
           nothing, nothing, true);
}

void TestDebugOutput::writesMessages()
{
    QFETCH(QString, kind);
    QFETCH(QString, file);
    QFETCH(QString, written);
    QFETCH(QString, onError);
    QFETCH(bool, ends);
    const QString path = QDir(m_folder.path()).absoluteFilePath(file);
    QFile before(path);
    if (!file.startsWith('/') && before.open(QIODevice::WriteOnly))
        before.write("of another run\n");
    before.close();
    m_child.start(QCoreApplication::applicationFilePath(), {kind, path});
    QVERIFY(m_child.waitForFinished());
    QCOMPARE(m_child.exitStatus() == QProcess::CrashExit, ends);
    const QString said = QString::fromUtf8(m_child.readAllStandardError());
    QCOMPARE(said, onError);
    QFile output(path);
    if (!file.startsWith('/') && output.open(QIODevice::ReadOnly))
        QCOMPARE(QString::fromUtf8(output.readAll()), written);
}

void TestDebugOutput::movesToAnotherFile()
{
    const QString first = m_folder.filePath(QStringLiteral("first.txt"));
    const QString second = m_folder.filePath(QStringLiteral("second.txt"));
    m_child.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--all"), first, second});
    QVERIFY(m_child.waitForFinished());
    for (const QString &name : {first, second}) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().endsWith("critical\n"));
    }
}

namespace
{
bool isToldAsOtherProcess(const char *kind)
{
    if (std::strcmp(kind, "--all") == 0) {
        qDebug("debug");
        qInfo("info");
        qWarning("warning");
        qCritical("critical");
    } else if (std::strcmp(kind, "--fatal") == 0) {
        qFatal("fatal");
    }
    return std::strncmp(kind, "--", 2) == 0;
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    for (int i = 2; i < argc; ++i) {
        debugOutputToFile(QString::fromUtf8(argv[i]));
        if (isToldAsOtherProcess(argv[1]) && i == argc - 1)
            return 0;
    }
    TestDebugOutput test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_debugoutput.moc"
