// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakeportal.h"
#include "localeenvironment.h"
#include "privatebus.h"

#include <touchcore/mlocale.h>

#include <QDBusVariant>
#include <QSignalSpy>

namespace
{
const QString desktop = QStringLiteral("org.gnome.desktop.interface");
const QString clockFormat = QStringLiteral("clock-format");
} // namespace

/// The clock that the person chooses in the settings of the desktop, over a bus of the test's own.
/// The process follows it from the first connectSettings() on, so that this is one story.
class TestMDesktopClock : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void staysAsTheLocaleIsUntilItIsConnected();
    void takesWhatTheDesktopSays();
    void followsTheDesktop_data();
    void followsTheDesktop();
    void letsTheProgramsOwnChoiceWin();
    void keepsFollowingAfterSetDefault();
    void tellsALocaleThatIsConnectedLater();

private:
    QString shortTimePattern() const
    {
        return MLocale::getDefault().icuFormatString(MLocale::DateNone, MLocale::TimeShort);
    }

    PrivateBus m_bus;
    FakePortal m_portal{desktop, clockFormat};
};

void TestMDesktopClock::initTestCase()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
    QVERIFY(m_portal.start(m_bus.connection(QStringLiteral("portal")), QStringLiteral("24h")));
}

void TestMDesktopClock::staysAsTheLocaleIsUntilItIsConnected()
{
    QCOMPARE(MLocale::getDefault().timeFormat24h(), MLocale::LocaleDefaultTimeFormat24h);
    QCOMPARE(shortTimePattern(), QStringLiteral("h:mm\u202fa"));
}

void TestMDesktopClock::takesWhatTheDesktopSays()
{
    QSignalSpy changes(&MLocale::getDefault(), &MLocale::settingsChanged);
    MLocale::getDefault().connectSettings();
    MLocale::getDefault().connectSettings();
    QVERIFY2(changes.isEmpty(), "the answer comes from the event loop");
    QVERIFY(changes.wait());
    QCOMPARE(MLocale::getDefault().timeFormat24h(), MLocale::TwentyFourHourTimeFormat24h);
    QCOMPARE(MLocale::getDefault().defaultTimeFormat24h(), MLocale::TwelveHourTimeFormat24h);
    QCOMPARE(shortTimePattern(), QStringLiteral("HH:mm"));
    QCOMPARE(changes.size(), 1);
}

void TestMDesktopClock::followsTheDesktop_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<MLocale::TimeFormat24h>("clock");

    QTest::newRow("12 hours") << QStringLiteral("12h") << MLocale::TwelveHourTimeFormat24h;
    QTest::newRow("24 hours") << QStringLiteral("24h") << MLocale::TwentyFourHourTimeFormat24h;
    QTest::newRow("a value that nobody knows")
        << QStringLiteral("decimal") << MLocale::LocaleDefaultTimeFormat24h;
}

void TestMDesktopClock::followsTheDesktop()
{
    QFETCH(QString, value);
    QFETCH(MLocale::TimeFormat24h, clock);
    QSignalSpy changes(&MLocale::getDefault(), &MLocale::settingsChanged);
    Q_EMIT m_portal.SettingChanged(desktop, QStringLiteral("font-name"),
                                   QDBusVariant(QStringLiteral("12h")));
    m_portal.choose(value);
    QVERIFY(changes.wait());
    QCOMPARE(MLocale::getDefault().timeFormat24h(), clock);
    QCOMPARE(changes.size(), 1);
}

void TestMDesktopClock::letsTheProgramsOwnChoiceWin()
{
    MLocale &locale = MLocale::getDefault();
    locale.setTimeFormat24h(MLocale::TwelveHourTimeFormat24h);
    QSignalSpy changes(&locale, &MLocale::settingsChanged);
    MLocale other(QStringLiteral("de_DE"));
    other.connectSettings();
    QSignalSpy otherChanges(&other, &MLocale::settingsChanged);
    m_portal.choose(QStringLiteral("24h"));
    QVERIFY(otherChanges.wait());
    QCOMPARE(locale.timeFormat24h(), MLocale::TwelveHourTimeFormat24h);
    QVERIFY(changes.isEmpty());

    locale.setTimeFormat24h(MLocale::LocaleDefaultTimeFormat24h);
    QCOMPARE(locale.timeFormat24h(), MLocale::TwentyFourHourTimeFormat24h);
    QCOMPARE(changes.size(), 1);
}

void TestMDesktopClock::keepsFollowingAfterSetDefault()
{
    MLocale::setDefault(MLocale(QStringLiteral("en_GB")));
    QCOMPARE(MLocale::getDefault().timeFormat24h(), MLocale::TwentyFourHourTimeFormat24h);
    QSignalSpy changes(&MLocale::getDefault(), &MLocale::settingsChanged);
    m_portal.choose(QStringLiteral("12h"));
    QVERIFY(changes.wait());
    QCOMPARE(shortTimePattern(), QStringLiteral("h:mm\u202fa"));
    // A copy knows what was chosen, but does not follow.
    QCOMPARE(MLocale().timeFormat24h(), MLocale::TwelveHourTimeFormat24h);
}

void TestMDesktopClock::tellsALocaleThatIsConnectedLater()
{
    MLocale later(QStringLiteral("de_DE"));
    QSignalSpy changes(&later, &MLocale::settingsChanged);
    later.connectSettings();
    QVERIFY(changes.isEmpty());
    QVERIFY(changes.wait());
    QCOMPARE(later.timeFormat24h(), MLocale::TwelveHourTimeFormat24h);
}

int main(int argc, char *argv[])
{
    startIn("en_US.UTF-8");
    QCoreApplication application(argc, argv);
    TestMDesktopClock test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mdesktopclock.moc"
