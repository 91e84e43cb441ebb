// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storagefixture.h"

#include <mkcal/storagecheck.h>

#include <QProcess>

#include <memory>
#include <vector>

using namespace mKCal;

namespace
{
/// saveCount one event after the other; see storageprocess.cpp. Every UID that it said is stored.
class SavingProcess
{
public:
    SavingProcess(const QString &fileName, int count, const QByteArray &prefix)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(STORAGE_PROCESS), {fileName});
        m_process.write("burst " + QByteArray::number(count) + ' ' + prefix + '\n');
        m_process.closeWriteChannel();
    }
    /// Reads until it has said @p lines lines or ended; false when it ended before.
    bool waitForLines(int lines)
    {
        while (m_said.count('\n') < lines) {
            if (!m_process.waitForReadyRead())
                return false;
            m_said += m_process.readAll();
        }
        return true;
    }
    void kill()
    {
        m_process.kill();
        finish();
    }
    void finish()
    {
        m_process.waitForFinished(-1);
        m_said += m_process.readAll();
    }
    /// The UIDs, without "ready" at the start and what follows the last whole line.
    QStringList acknowledged(const QByteArray &prefix) const
    {
        QStringList uids;
        const auto lines = m_said.left(m_said.lastIndexOf('\n') + 1).split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith(prefix))
                uids.append(QString::fromUtf8(line));
        }
        return uids;
    }

private:
    QProcess m_process;
    QByteArray m_said;
};
} // namespace

/// Many writers at once, and writers that die at any moment.
class TestStorageCrashes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fourWritersLoseNothing();
    void killedWritersLoseNothing();
};

void TestStorageCrashes::fourWritersLoseNothing()
{
    constexpr int writerCount = 4;
    constexpr int saveCount = 200;
    StorageFixture fixture;
    QVERIFY(fixture.store({Make::journal("first", Make::at(2026, 3, 1))}));
    std::vector<std::unique_ptr<SavingProcess>> writers;
    for (int writer = 0; writer < writerCount; ++writer) {
        const QByteArray prefix = QByteArray("writer") + char('a' + writer) + '-';
        writers.push_back(std::make_unique<SavingProcess>(fixture.fileName(), saveCount, prefix));
    }
    for (int writer = 0; writer < writerCount; ++writer) {
        writers[size_t(writer)]->finish();
        const QByteArray prefix = QByteArray("writer") + char('a' + writer) + '-';
        QCOMPARE(writers[size_t(writer)]->acknowledged(prefix).size(), saveCount);
    }
    const auto reader = fixture.open();
    QVERIFY(reader->storage->load());
    QCOMPARE(reader->uids().size(), writerCount * saveCount + 1);
    QVERIFY(checkDatabase(fixture.fileName()).intact);
}

void TestStorageCrashes::killedWritersLoseNothing()
{
    constexpr int killCount = 50;
    StorageFixture fixture;
    QVERIFY(fixture.store({Make::journal("first", Make::at(2026, 3, 1))}));
    QStringList acknowledged;
    for (int round = 0; round < killCount; ++round) {
        const QByteArray prefix = "round" + QByteArray::number(round) + '-';
        SavingProcess writer(fixture.fileName(), 100000, prefix);
        // "ready" and a varying number of saves; the kill then meets whatever it is doing.
        QVERIFY(writer.waitForLines(2 + round % 7));
        writer.kill();
        acknowledged += writer.acknowledged(prefix);
    }
    const CheckReport report = checkDatabase(fixture.fileName());
    QVERIFY2(report.intact, qPrintable(report.problems.join(QLatin1Char('\n'))));
    const auto reader = fixture.open();
    QVERIFY(reader->storage->load());
    QVERIFY(acknowledged.size() >= killCount);
    for (const QString &uid : qAsConst(acknowledged))
        QVERIFY2(reader->incidence(uid), qPrintable(uid));
}

STORAGE_TEST_MAIN(TestStorageCrashes)
#include "tst_storagecrashes.moc"
