// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakeportal.h"
#include "locale/mdesktopsetting.h"
#include "privatebus.h"

#include <touchcore/mtheme.h>

#include <QApplication>
#include <QSignalSpy>

namespace
{
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");
} // namespace

/// The theme follows the scheme that the person chose for the desktop, over a bus of the test's
/// own. There is one theme, so that this is one story.
class TestMDesktopScheme : public QObject
{
    Q_OBJECT

public:
    explicit TestMDesktopScheme(const PrivateBus &bus) : m_bus(bus) { }

private Q_SLOTS:
    void isLightWhereThereIsNoPortal();
    void takesWhatTheDesktopPrefers();
    void followsTheDesktop_data();
    void followsTheDesktop();
    void stopsWhenTheProgramChooses();
    void mayBeStoppedWhileItIsTold();

private:
    const PrivateBus &m_bus;
    FakePortal m_portal{group, key};
};

void TestMDesktopScheme::isLightWhereThereIsNoPortal()
{
    MTheme::instance()->setColorScheme(M::DarkScheme);
    MTheme::instance()->followDesktop();
    QCOMPARE(MTheme::instance()->colorScheme(), M::LightScheme);
    MTheme::instance()->setColorScheme(M::LightScheme);
}

void TestMDesktopScheme::takesWhatTheDesktopPrefers()
{
    QVERIFY(m_portal.start(m_bus.connection(QStringLiteral("portal")), 1u));
    QSignalSpy changes(MTheme::instance(), &MTheme::changed);
    MTheme::instance()->followDesktop();
    MTheme::instance()->followDesktop();
    QVERIFY(changes.wait());
    QCOMPARE(MTheme::instance()->colorScheme(), M::DarkScheme);
    QCOMPARE(changes.size(), 1);
}

void TestMDesktopScheme::followsTheDesktop_data()
{
    QTest::addColumn<QVariant>("preference");
    QTest::addColumn<M::ColorScheme>("scheme");
    QTest::newRow("light") << QVariant(2u) << M::LightScheme;
    QTest::newRow("dark") << QVariant(1u) << M::DarkScheme;
    QTest::newRow("none") << QVariant(0u) << M::LightScheme;
    QTest::newRow("dark again") << QVariant(1u) << M::DarkScheme;
    QTest::newRow("what nobody knows") << QVariant(QStringLiteral("sepia")) << M::LightScheme;
}

void TestMDesktopScheme::followsTheDesktop()
{
    QFETCH(QVariant, preference);
    QSignalSpy changes(MTheme::instance(), &MTheme::changed);
    Q_EMIT m_portal.SettingChanged(group, QStringLiteral("contrast"), QDBusVariant(7u));
    m_portal.choose(preference);
    QVERIFY(changes.wait());
    QTEST(MTheme::instance()->colorScheme(), "scheme");
    QCOMPARE(changes.size(), 1);
}

void TestMDesktopScheme::stopsWhenTheProgramChooses()
{
    MTheme::instance()->setColorScheme(M::DarkScheme);
    const MDesktopSetting listener(group, key, nullptr);
    QSignalSpy heard(&listener, &MDesktopSetting::changed);
    m_portal.choose(2u);
    QVERIFY(heard.wait());
    QCOMPARE(MTheme::instance()->colorScheme(), M::DarkScheme);
}

void TestMDesktopScheme::mayBeStoppedWhileItIsTold()
{
    MTheme::instance()->followDesktop();
    QSignalSpy changes(MTheme::instance(), &MTheme::changed);
    m_portal.choose(1u);
    QVERIFY(changes.wait());
    const QMetaObject::Connection stop = connect(MTheme::instance(), &MTheme::changed, this, [] {
        MTheme::instance()->setColorScheme(M::LightScheme);
    });
    m_portal.choose(2u);
    QVERIFY(changes.wait());
    disconnect(stop);
    const MDesktopSetting listener(group, key, nullptr);
    QSignalSpy heard(&listener, &MDesktopSetting::changed);
    m_portal.choose(1u);
    QVERIFY(heard.wait());
    QCOMPARE(MTheme::instance()->colorScheme(), M::LightScheme);
}

int main(int argc, char *argv[])
{
    const PrivateBus bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    QApplication application(argc, argv);
    TestMDesktopScheme test(bus);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mdesktopscheme.moc"
