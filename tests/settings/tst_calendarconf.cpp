// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "warningcapture.h"

#include <daskel/calendarconf.h>
#include <daskel/daskellocale.h>
#include <touchcore/mapplication.h>
#include <touchcore/mwindow.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <memory>
#include <sys/stat.h>

namespace
{
using Getter = QVariant (*)();

CalendarConf *conf()
{
    return CalendarConf::instance();
}
} // namespace
Q_DECLARE_METATYPE(Getter)

/// Each test has a settings folder of its own. The program runs itself as the other process, and
/// where an assertion ends it.
class TestCalendarConf : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void makesTheFileWithItsDefaults();
    void readsValues_data();
    void readsValues();
    void setsWorkingDays();
    void refusesDayZero_data();
    void refusesDayZero();
    void keepsAWeekOfEachOrientation();
    void writesOnceForManySetters();
    void hearsOfOtherWriters_data();
    void hearsOfOtherWriters();
    void keepsWhatTwoProcessesWrite();
    void survivesAnUnreadableFile_data();
    void survivesAnUnreadableFile();
    void warnsNoMoreOnceTheFileIsMended();

private:
    QString file() const
    {
        return m_folder->filePath(QStringLiteral("Velmor/daskel_settings.conf"));
    }
    QByteArray contents() const;
    void write(const QByteArray &text) const;
    quint64 inode() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestCalendarConf::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
    MLocale british(QStringLiteral("en_GB"));
    MLocale::setDefault(british);
}

void TestCalendarConf::cleanup()
{
    CalendarConf::destroy();
}

QByteArray TestCalendarConf::contents() const
{
    QFile settings(file());
    return settings.open(QIODevice::ReadOnly) ? settings.readAll() : QByteArray();
}

void TestCalendarConf::write(const QByteArray &text) const
{
    QDir().mkpath(QFileInfo(file()).path());
    QFile settings(file());
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write(text);
}

/// Another number for each time that the file was replaced.
quint64 TestCalendarConf::inode() const
{
    struct stat status {
    };
    return ::stat(QFile::encodeName(file()).constData(), &status) == 0 ? status.st_ino : 0;
}

void TestCalendarConf::makesTheFileWithItsDefaults()
{
    QCOMPARE(conf()->defaultReminder(), 15);
    const QSettings written(file(), QSettings::IniFormat);
    const QMap<QString, QString> expected{
        {"timezone_support", "false"},
        {"first_day_of_week", "-1"},
        {"working_days_mask", "-1"},
        {"hide_completed_todos", "false"},
        {"has_default_reminder", "true"},
        {"last_active_tab", "0"},
        {"week_view_days_l", "7"},
        {"week_view_days_p", "1"},
        {"first_run", "true"},
        {"notes_content", "false"},
    };
    QCOMPARE(written.allKeys(), QStringList(expected.keys()));
    for (auto entry = expected.begin(); entry != expected.end(); ++entry)
        QCOMPARE(written.value(entry.key()).toString(), entry.value());
}

void TestCalendarConf::readsValues_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QVariant>("value");

    const auto row = [](const char *name, const char *stored, Getter getter,
                        const QVariant &value) {
        QTest::newRow(name) << QByteArray(stored) << getter << value;
    };
    const Getter mask = [] { return QVariant(conf()->workingDaysMask()); };
    row("no mask", "", mask, 31);
    row("a mask that was never chosen", "working_days_mask=-1", mask, 31);
    row("no working days at all", "working_days_mask=0", mask, 0);
    const Getter firstDay = [] { return QVariant(conf()->firstDayOfWeek()); };
    row("the locale's first day", "", firstDay, 1);
    row("a first day that was never chosen", "first_day_of_week=-1", firstDay, 1);
    row("day 0", "first_day_of_week=0", firstDay, 1);
    row("day 8", "first_day_of_week=8", firstDay, 1);
    row("Sunday", "first_day_of_week=7", firstDay, 7);
    row(
        "Saturday is free", "working_days_mask=31", [] { return QVariant(conf()->workingDay(6)); },
        false);
    row(
        "an hour before", "default_reminder=60", [] { return QVariant(conf()->defaultReminder()); },
        60);
    row(
        "no reminder", "has_default_reminder=false",
        [] { return QVariant(conf()->hasDefaultReminder()); }, false);
    row(
        "done to-dos hidden", "hide_completed_todos=true",
        [] { return QVariant(conf()->hideCompletedTodos()); }, true);
    row(
        "zones", "timezone_support=true", [] { return QVariant(conf()->timeZoneSupportOn()); },
        true);
    row(
        "third tab", "last_active_tab=2", [] { return QVariant(conf()->lastActiveTab()); }, 2);
    row(
        "opened before", "first_run=false", [] { return QVariant(conf()->isFirstStart()); }, false);
    row(
        "notes with contents", "notes_content=true",
        [] { return QVariant(conf()->notesWithContent()); }, true);
    // No window: as in portrait.
    row(
        "week view", "week_view_days_l=5\nweek_view_days_p=3",
        [] { return QVariant(conf()->weekViewDays()); }, 3);
}

void TestCalendarConf::readsValues()
{
    QFETCH(QByteArray, stored);
    QFETCH(Getter, getter);
    write("[General]\n" + stored + '\n');
    QTEST(getter(), "value");
}

void TestCalendarConf::setsWorkingDays()
{
    conf()->setWorkingDay(6, true);
    QCOMPARE(conf()->workingDaysMask(), 63);
    conf()->setWorkingDay(1, false);
    QCOMPARE(conf()->workingDaysMask(), 62);
    QVERIFY(!conf()->workingDay(1));
    QVERIFY(conf()->workingDay(6));
}

void TestCalendarConf::refusesDayZero_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QByteArray>("place");
    QTest::newRow("reading") << QStringLiteral("--read-day-0") << QByteArray("line 166");
    QTest::newRow("writing") << QStringLiteral("--write-day-0") << QByteArray("line 175");
}

void TestCalendarConf::refusesDayZero()
{
    QFETCH(QString, call);
    QFETCH(QByteArray, place);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {call, m_folder->path()});
    QVERIFY(child.waitForFinished());
#if defined(QT_NO_DEBUG) && !defined(QT_FORCE_ASSERTS)
    Q_UNUSED(place)
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
#else
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    const QByteArray said = child.readAllStandardError();
    QVERIFY2(said.contains("ASSERT: \"day > 0\" in file calendarconf, " + place), said.constData());
#endif
}

/// Without a window it is as in portrait.
void TestCalendarConf::keepsAWeekOfEachOrientation()
{
    QCOMPARE(conf()->weekViewDays(), 1);
    MWindow window;
    window.resize(854, 480);
    window.show();
    QCOMPARE(conf()->weekViewDays(), 7);
    conf()->setWeekViewDays(5);
    window.resize(480, 854);
    QTRY_COMPARE(window.orientation(), M::Portrait);
    QCOMPARE(conf()->weekViewDays(), 1);
    conf()->setWeekViewDays(2);
    window.resize(854, 480);
    QTRY_COMPARE(window.orientation(), M::Landscape);
    QCOMPARE(conf()->weekViewDays(), 5);

    CalendarConf::destroy();
    const QSettings written(file(), QSettings::IniFormat);
    QCOMPARE(written.value(QStringLiteral("week_view_days_p")).toInt(), 2);
    QCOMPARE(written.value(QStringLiteral("week_view_days_l")).toInt(), 5);
}

void TestCalendarConf::writesOnceForManySetters()
{
    conf();
    QSignalSpy updated(conf(), &CalendarConf::dataUpdated);
    const quint64 before = inode();
    conf()->setLastActiveTab(1);
    conf()->setHideCompletedTodos(true);
    conf()->setFirstStartFlag(false);
    QCOMPARE(inode(), before);
    QCOMPARE(updated.count(), 0);
    QTRY_VERIFY(inode() != before);
    const quint64 after = inode();
    QTRY_VERIFY(updated.count() > 0);
    QCOMPARE(inode(), after);
    QVERIFY(contents().contains("last_active_tab=1"));
    QVERIFY(contents().contains("hide_completed_todos=true"));
}

void TestCalendarConf::hearsOfOtherWriters_data()
{
    QTest::addColumn<bool>("byRename");
    QTest::newRow("written in place") << false;
    QTest::newRow("replaced by another file") << true;
}

/// Three times: a watch that is not renewed hears only the first. Each time of another length,
/// since a file system may not tell two moments apart.
void TestCalendarConf::hearsOfOtherWriters()
{
    QFETCH(bool, byRename);
    QSignalSpy updated(conf(), &CalendarConf::dataUpdated);
    for (const int tab : {1, 22, 333}) {
        const QByteArray text = "[General]\nlast_active_tab=" + QByteArray::number(tab) + '\n';
        updated.clear();
        if (byRename) {
            QSaveFile settings(file());
            QVERIFY(settings.open(QIODevice::WriteOnly));
            settings.write(text);
            QVERIFY(settings.commit());
        } else {
            write(text);
        }
        QTRY_COMPARE(conf()->lastActiveTab(), tab);
        QVERIFY(updated.count() > 0);
    }
    // Away for a while, as some tools do it.
    QVERIFY(QFile::rename(file(), file() + QStringLiteral(".old")));
    QTRY_COMPARE(conf()->lastActiveTab(), 0);
    write("[General]\nlast_active_tab=9\n");
    QTRY_COMPARE(conf()->lastActiveTab(), 9);
}

void TestCalendarConf::keepsWhatTwoProcessesWrite()
{
    conf()->setLastActiveTab(4);
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--remind-30"), m_folder->path()});
    QVERIFY(other.waitForFinished());
    QCOMPARE(other.exitCode(), 0);
    QVERIFY(!contents().contains("last_active_tab=4"));
    QVERIFY(contents().contains("default_reminder=30"));
    QTRY_VERIFY(contents().contains("last_active_tab=4"));
    QVERIFY(contents().contains("default_reminder=30"));
    QCOMPARE(conf()->defaultReminder(), 30);
}

void TestCalendarConf::survivesAnUnreadableFile_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("reason");
    const QString noSettings = QStringLiteral("it is not a settings file");
    QTest::newRow("nonsense") << QByteArray("\x01\x02 not settings at all\n[[[\n= =\n")
                              << noSettings;
    QTest::newRow("a picture") << QByteArray::fromHex("89504e470d0a1a0a0000000d49484452")
                               << noSettings;
    QTest::newRow("a folder") << QByteArray() << QStringLiteral("it cannot be read or written");
}

void TestCalendarConf::survivesAnUnreadableFile()
{
    QFETCH(QByteArray, stored);
    QFETCH(QString, reason);
    if (stored.isEmpty())
        QVERIFY(QDir().mkpath(file()));
    else
        write(stored);
    WarningCapture capture;
    QCOMPARE(conf()->defaultReminder(), 15);
    QCOMPARE(conf()->workingDaysMask(), 31);
    QCOMPARE(
        capture.take(),
        QStringList{QStringLiteral("The settings in %1 do not count: %2.").arg(file(), reason)});
    CalendarConf::destroy();
    QCOMPARE(contents(), stored);
}

void TestCalendarConf::warnsNoMoreOnceTheFileIsMended()
{
    write("not settings");
    WarningCapture capture;
    QSignalSpy updated(conf(), &CalendarConf::dataUpdated);
    QCOMPARE(capture.take().size(), 1);
    write("[General]\nlast_active_tab=9\n");
    QTRY_COMPARE(conf()->lastActiveTab(), 9);
    int told = updated.count();
    conf()->setDefaultReminder(30);
    QTRY_VERIFY(updated.count() > told);
    QVERIFY(contents().contains("default_reminder=30"));
    QCOMPARE(capture.take(), QStringList());

    // A setting that is changed may replace what was not readable.
    write("no settings again");
    QStringList warned;
    QTRY_VERIFY(!(warned += capture.take()).isEmpty());
    QCOMPARE(warned.size(), 1);
    told = updated.count();
    conf()->setLastActiveTab(3);
    QTRY_VERIFY(updated.count() > told);
    QVERIFY(contents().contains("last_active_tab=3"));
    QCOMPARE(capture.take(), QStringList());
}

namespace
{
/// What the program does as a process of its own; false when it is the test.
bool isDoneAsOtherProcess(const char *what, const char *folder)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString::fromUtf8(folder));
    if (std::strcmp(what, "--read-day-0") == 0)
        conf()->workingDay(0);
    else if (std::strcmp(what, "--write-day-0") == 0)
        conf()->setWorkingDay(0, true);
    else if (std::strcmp(what, "--remind-30") == 0)
        conf()->setDefaultReminder(30);
    else
        return false;
    CalendarConf::destroy();
    return true;
}
} // namespace

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    if (argc == 3 && isDoneAsOtherProcess(argv[1], argv[2]))
        return 0;
    TestCalendarConf test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_calendarconf.moc"
