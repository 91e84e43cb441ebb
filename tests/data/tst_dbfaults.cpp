// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefixture.h"
#include "failingdevice.h"
#include "incidences.h"
#include "testtable.h"
#include "warningcapture.h"

#include <daskel/db_instance.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QtTest>

#include <csignal>
#include <functional>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
bool syncFails = false;

/// Puts right at the end of its life what it put wrong.
using Fault = std::shared_ptr<void>;

Fault undoneBy(std::function<void()> undo)
{
    static int place = 0;
    return {&place, [undo = std::move(undo)](void *) { undo(); }};
}

QString folder()
{
    return QFileInfo(DatabaseFixture::fileName()).path();
}

bool replaceContent(qint64 offset, const QByteArray &content)
{
    QFile file(DatabaseFixture::fileName());
    return file.open(QIODevice::ReadWrite) && file.seek(offset)
        && file.write(content) == content.size();
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Root may do everything: for these faults the test is nobody for a while.
Fault asNobody(mode_t folderMode, mode_t fileMode)
{
    constexpr uid_t nobody = 65534;
    const bool isRoot = geteuid() == 0;
    const QByteArray folderName = QFile::encodeName(folder());
    const QByteArray outerName = QFile::encodeName(QFileInfo(folder()).path());
    chmod(outerName.constData(), 0755);
    const auto names = QDir(folder()).entryInfoList(QDir::Files);
    for (const QFileInfo &name : names) {
        const QByteArray path = QFile::encodeName(name.filePath());
        chmod(path.constData(), fileMode);
        if (isRoot && chown(path.constData(), nobody, nobody) != 0)
            qFatal("cannot give the database away");
    }
    chmod(folderName.constData(), folderMode);
    if (isRoot && (chown(folderName.constData(), nobody, nobody) != 0 || seteuid(nobody) != 0))
        qFatal("cannot become nobody");
    return undoneBy([isRoot, folderName] {
        if (isRoot && seteuid(0) != 0)
            qFatal("cannot become root again");
        chmod(folderName.constData(), 0700);
    });
}

/// Another process has it locked; nobody waits for the lock in earnest.
Fault lockedElsewhere(const char *how)
{
    sqlite3 *other = nullptr;
    sqlite3_open(QFile::encodeName(DatabaseFixture::fileName()).constData(), &other);
    if (sqlite3_exec(other, how, nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("cannot lock: %s", sqlite3_errmsg(other));
    sqlite3_vfs *const vfs = sqlite3_vfs_find(nullptr);
    const auto xSleep = vfs->xSleep;
    vfs->xSleep = [](sqlite3_vfs *, int microseconds) { return microseconds; };
    return undoneBy([other, vfs, xSleep] {
        vfs->xSleep = xSleep;
        sqlite3_close(other);
    });
}

Fault limitedFileSize()
{
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1024, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    return undoneBy([before, handlerBefore] {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handlerBefore);
    });
}

Fault failingSync()
{
    syncFails = true;
    return undoneBy([] { syncFails = false; });
}

Fault movedFile()
{
    const QString away = DatabaseFixture::fileName() + ".away";
    QFile::rename(DatabaseFixture::fileName(), away);
    return undoneBy([away] { QFile::rename(away, DatabaseFixture::fileName()); });
}
} // namespace

// SQLite finds these before the C library's.
extern "C" int fdatasync(int file)
{
    if (syncFails) {
        errno = EIO;
        return -1;
    }
    return int(syscall(SYS_fdatasync, file));
}

extern "C" int fsync(int file)
{
    return fdatasync(file);
}

/// What a person's calendar meets on a bad day: each fault has its code, its signal and a message
/// that names the file, and nothing that was stored is lost.
class DbFaultsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void opening_data();
    void opening();
    void saving_data();
    void saving();
    void reading_data();
    void reading();
};

using Provoke = std::function<Fault()>;
Q_DECLARE_METATYPE(Provoke)

void DbFaultsTest::opening_data()
{
    addColumns<Provoke, int>("provoke", "code");
    const auto row = [](const char *name, int code, const Provoke &provoke) {
        addRow(name, provoke, code);
    };
    row("a folder in its place", SQLITE_CANTOPEN, [] {
        QFile::remove(DatabaseFixture::fileName());
        QDir().mkpath(DatabaseFixture::fileName());
        return undoneBy([] { QDir().rmdir(DatabaseFixture::fileName()); });
    });
    row("no way to its folder", SQLITE_CANTOPEN, [] {
        QDir().rename(folder(), folder() + ".away");
        QFile inTheWay(folder());
        inTheWay.open(QIODevice::WriteOnly);
        return undoneBy([] {
            QFile::remove(folder());
            QDir().rename(folder() + ".away", folder());
        });
    });
    row("no permission", SQLITE_CANTOPEN, [] { return asNobody(0700, 0000); });
    row("a folder that cannot be written", SQLITE_READONLY, [] { return asNobody(0555, 0644); });
    row("not a database", SQLITE_NOTADB, [] {
        replaceContent(0, QByteArray(4096, 'x'));
        return Fault();
    });
    row("garbage in the first page", SQLITE_CORRUPT, [] {
        replaceContent(100, QByteArray(3996, '\xa5'));
        return Fault();
    });
    row("locked", SQLITE_BUSY, [] {
        return lockedElsewhere("PRAGMA locking_mode=EXCLUSIVE; BEGIN IMMEDIATE;"
                               "UPDATE Meta SET value = value; COMMIT;");
    });
    row("full disk, log not there yet", SQLITE_IOERR,
        [] { return std::make_shared<FailingDevice>(ENOSPC); });
}

void DbFaultsTest::opening()
{
    QFETCH(Provoke, provoke);
    QFETCH(int, code);
    DatabaseFixture database;
    database.open();
    DbInstance::instance()->enableDb();
    QVERIFY(DbInstance::instance()->calendar()->addTodo(makeTodo("todo", QDateTime())));
    QVERIFY(DbInstance::instance()->save());
    DbInstance::destroy();

    const WarningCapture warnings;
    Fault fault = provoke();
    const QByteArray before = contentOf(DatabaseFixture::fileName());
    database.open();
    DbInstance *const db = DbInstance::instance();
    QSignalSpy refused(db, &DbInstance::dbOpenedNok);
    for (int attempt = 0; attempt < 3; ++attempt)
        QVERIFY(!db->tryOpenDatabase());
    QVERIFY(refused.count() >= 1);
    QVERIFY(!db->didDatabaseOpenSucceed());
    const auto storage = db->storage().dynamicCast<mKCal::SqliteStorage>();
    QCOMPARE(storage->errorCode(), code);
    QVERIFY2(storage->errorMessage().contains(DatabaseFixture::fileName()),
             qPrintable(storage->errorMessage()));
    QCOMPARE(contentOf(DatabaseFixture::fileName()), before);
    fault.reset();
}

void DbFaultsTest::saving_data()
{
    addColumns<Provoke, int, int>("provoke", "code", "signalled");
    const auto row = [](const char *name, int code, DbInstance::DbSaveError signalled,
                        const Provoke &provoke) { addRow(name, provoke, code, int(signalled)); };
    const auto failed = DbInstance::DbSaveFailed;
    const auto failed10 = DbInstance::DbSaveStorageError10;
    row("full disk", SQLITE_FULL, failed, [] { return std::make_shared<FailingDevice>(ENOSPC); });
    row("broken disk", SQLITE_IOERR, failed10, [] { return std::make_shared<FailingDevice>(EIO); });
    row("disk that does not keep", SQLITE_IOERR, failed10, failingSync);
    row("limited file size", SQLITE_IOERR, failed10, limitedFileSize);
    row("locked", SQLITE_BUSY, failed, [] { return lockedElsewhere("BEGIN IMMEDIATE"); });
    row("moved away", SQLITE_READONLY, failed, movedFile);
}

void DbFaultsTest::saving()
{
    QFETCH(Provoke, provoke);
    QFETCH(int, code);
    QFETCH(int, signalled);
    DatabaseFixture database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    db->enableDb();
    QVERIFY(db->calendar()->addTodo(makeTodo("stored", QDateTime())));
    QVERIFY(db->save());
    QVERIFY(db->calendar()->addTodo(makeTodo("unsaved", QDateTime())));
    QSignalSpy saved(db, &DbInstance::dbSaved);
    const WarningCapture warnings;
    Fault fault = provoke();
    QVERIFY(!db->save());
    fault.reset();

    QCOMPARE(saved.count(), 1);
    QCOMPARE(saved[0][0].value<DbInstance::DbSaveError>(), signalled);
    const auto storage = db->storage().dynamicCast<mKCal::SqliteStorage>();
    QVERIFY2(storage->saveErrors().contains(code), qPrintable(storage->errorMessage()));
    QVERIFY2(storage->errorMessage().contains(DatabaseFixture::fileName()),
             qPrintable(storage->errorMessage()));

    QVERIFY2(db->save(), qPrintable(storage->errorMessage()));
    const OtherProcess other;
    QVERIFY(other.storage->load());
    QVERIFY(other.calendar->incidence("stored"));
    QVERIFY(other.calendar->incidence("unsaved"));
}

void DbFaultsTest::reading_data()
{
    addColumns<int, int>("error", "code");
    // SQLite takes a sector that cannot be read for a damaged file.
    addRow("unreadable sector", EIO, SQLITE_CORRUPT);
    addRow("device gone", ENODEV, SQLITE_IOERR);
}

void DbFaultsTest::reading()
{
    QFETCH(int, error);
    QFETCH(int, code);
    DatabaseFixture database;
    database.open();
    DbInstance *const db = DbInstance::instance();
    db->enableDb();
    QVERIFY(db->calendar()->addTodo(makeTodo("stored", QDateTime())));
    QVERIFY(db->save());
    DbInstance::destroy();
    database.open();
    const auto storage = DbInstance::instance()->storage().dynamicCast<mKCal::SqliteStorage>();
    {
        const WarningCapture warnings;
        const FailingDevice device(error, FailingDevice::Reading);
        QVERIFY(!storage->load());
        QCOMPARE(storage->errorCode(), code);
        QVERIFY(storage->errorMessage().contains(DatabaseFixture::fileName()));
    }
    // The failed load is not taken for one that found nothing.
    QVERIFY(storage->load());
    QVERIFY(DbInstance::instance()->calendar()->incidence("stored"));
}

QTEST_GUILESS_MAIN(DbFaultsTest)
#include "tst_dbfaults.moc"
