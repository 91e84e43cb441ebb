// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

#include <QProcess>

using namespace mKCal;
using namespace Make;

namespace
{
/// A second process on the same database; see storageprocess.cpp.
class OtherProcess
{
public:
    explicit OtherProcess(const QString &fileName)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(STORAGE_PROCESS), {fileName});
        isReady = readLine() == "ready";
    }
    ~OtherProcess()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    /// What it answers to @p line; this process' event loop stands still meanwhile.
    QByteArray ask(const QByteArray &line)
    {
        m_process.write(line + '\n');
        return readLine();
    }

    bool isReady = false;

private:
    QByteArray readLine()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead())
                return {};
        }
        return m_process.readLine().trimmed();
    }

    QProcess m_process;
};
} // namespace

/// The same as with two storages of one process, with everything that only two processes have:
/// locks, the log's shared memory, and notices through the file system.
class TestStorageProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void changesThereAppearHere();
    void changesHereAppearThere();
    void editOnBothSidesLosesNeitherVersion_data();
    void editOnBothSidesLosesNeitherVersion();

private:
    std::unique_ptr<StorageFixture> m_fixture;
    std::unique_ptr<OpenStorage> m_here;
    std::unique_ptr<OtherProcess> m_there;
};

void TestStorageProcesses::init()
{
    m_fixture = std::make_unique<StorageFixture>();
    QVERIFY(m_fixture->store({journal("note", at(2026, 3, 1, 9)), journal("diary", at(2026, 3, 2)),
                              meeting("meeting", at(2026, 3, 10, 9))}));
    m_here = m_fixture->open();
    QVERIFY(m_here->storage->loadJournals());
    m_there = std::make_unique<OtherProcess>(m_fixture->fileName());
    QVERIFY(m_there->isReady);
}

void TestStorageProcesses::cleanup()
{
    m_there.reset();
    m_here.reset();
    m_fixture.reset();
}

void TestStorageProcesses::changesThereAppearHere()
{
    QCOMPARE(m_there->ask("delete note"), QByteArray("ok"));
    QCOMPARE(m_there->ask("add journal fresh"), QByteArray("ok"));
    QCOMPARE(m_there->ask("add event unasked"), QByteArray("ok"));
    QCOMPARE(m_there->ask("save"), QByteArray("ok"));
    QCOMPARE(m_there->ask("modified"), QByteArray("1"));
    QTRY_COMPARE(m_here->notices.modified, 1);
    QCOMPARE(m_here->uids(), QStringList({"diary", "fresh"}));
    QCOMPARE(m_here->notices.thread, QThread::currentThread());

    QCOMPARE(m_there->ask("edit diary Second thoughts"), QByteArray("ok"));
    QCOMPARE(m_there->ask("save"), QByteArray("ok"));
    QTRY_COMPARE(m_here->notices.modified, 2);
    QCOMPARE(m_here->incidence("diary")->summary(), QStringLiteral("Second thoughts"));
}

void TestStorageProcesses::changesHereAppearThere()
{
    QCOMPARE(m_there->ask("summary diary"), QByteArray("diary"));
    m_here->incidence("diary")->setSummary("From here", false);
    QVERIFY(m_here->storage->save());
    QTRY_COMPARE(m_there->ask("modified"), QByteArray("1"));
    QCOMPARE(m_there->ask("summary diary"), QByteArray("From here"));
}

void TestStorageProcesses::editOnBothSidesLosesNeitherVersion_data()
{
    QTest::addColumn<bool>("seenBeforeTheSave");
    QTest::newRow("saved at once") << false;
    QTest::newRow("saved after the notice") << true;
}

void TestStorageProcesses::editOnBothSidesLosesNeitherVersion()
{
    QFETCH(bool, seenBeforeTheSave);
    m_here->incidence("diary")->setSummary("mine", false);
    QCOMPARE(m_there->ask("edit diary theirs"), QByteArray("ok"));
    QCOMPARE(m_there->ask("save"), QByteArray("ok"));
    if (seenBeforeTheSave)
        QTRY_COMPARE(m_here->notices.modified, 1);
    QVERIFY(m_here->storage->save());
    QCOMPARE(m_here->incidence("diary")->summary(), QStringLiteral("mine"));
    KCalCore::Incidence::List overwritten;
    QVERIFY(m_here->storage->overwrittenIncidences(&overwritten, "diary"));
    QCOMPARE(overwritten.size(), 1);
    QCOMPARE(overwritten.first()->summary(), QStringLiteral("theirs"));
    QTRY_COMPARE(m_there->ask("summary diary"), QByteArray("mine"));
}

STORAGE_TEST_MAIN(TestStorageProcesses)
#include "tst_storageprocesses.moc"
