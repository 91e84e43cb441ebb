// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testenvironment.h"
#include "timerservice_p.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace
{
/// A clock that stands still until the test moves it on.
class StandingClock : public TimerServicePrivate
{
public:
    explicit StandingClock(const QDateTime *now) : m_now(now) { }
    QDateTime currentDateTime() const override { return *m_now; }

private:
    const QDateTime *m_now;
};

QDateTime at(const char *text)
{
    return QDateTime::fromString(QLatin1String(text), Qt::ISODateWithMs);
}

/// Writes down what the service says, in the order in which it says it.
class Listener : public QObject
{
    Q_OBJECT
public:
    QString heard;

public Q_SLOTS:
    void minute() { heard += QLatin1Char('m'); }
    void hour() { heard += QLatin1Char('h'); }
    void date() { heard += QLatin1Char('d'); }
};

void listen(Listener *listener, const QString &units)
{
    TimerService *service = TimerService::instance();
    if (units.contains(QLatin1Char('m')))
        QObject::connect(service, &TimerService::minuteChanged, listener, &Listener::minute);
    if (units.contains(QLatin1Char('h')))
        QObject::connect(service, &TimerService::hourChanged, listener, &Listener::hour);
    if (units.contains(QLatin1Char('d')))
        QObject::connect(service, &TimerService::dateChanged, listener, &Listener::date);
}

using Way = void (*)(TimerService *, Listener *);
} // namespace
Q_DECLARE_METATYPE(Way)

class TestTimerService : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aimsAtTheNextBoundary_data();
    void aimsAtTheNextBoundary();
    void tellsWhatChanged_data();
    void tellsWhatChanged();
    void followsItsListeners_data();
    void followsItsListeners();
    void staysStoppedWhileDisabled();
    void looksAtOnceWhenTheClockIsSet();
    void livesThroughAYear_data();
    void livesThroughAYear();
    void startsAnewAfterDestroy();
    void listenersMayLookAgain();
    void listenersMayDestroyIt();

private:
    static int armedFor() { return timer()->isActive() ? timer()->interval() : -1; }
    static QTimer *timer() { return TimerService::instance()->findChild<QTimer *>(); }
    void start(const char *now);

    QDateTime m_now;
    std::unique_ptr<TestEnvironment> m_environment;
};

void TestTimerService::init()
{
    m_environment = std::make_unique<TestEnvironment>(QDate(2026, 3, 10));
    TimerServicePrivate::setFactory([this] { return std::make_unique<StandingClock>(&m_now); });
}

void TestTimerService::cleanup()
{
    TimerService::destroy();
    TimerServicePrivate::setFactory({});
    m_environment.reset();
}

void TestTimerService::start(const char *now)
{
    m_now = at(now);
    TimerService::instance();
}

void TestTimerService::aimsAtTheNextBoundary_data()
{
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("units");
    QTest::addColumn<int>("delay");

    const auto row = [](const char *name, const char *now, const char *units, int delay) {
        QTest::newRow(name) << QString::fromLatin1(now) << QString::fromLatin1(units) << delay;
    };
    row("nobody listens", "2026-03-10T10:15:42.100", "", -1);
    row("minutes", "2026-03-10T10:15:42.100", "m", 17900);
    row("hours", "2026-03-10T10:15:42.100", "h", 44 * 60000 + 17900);
    row("dates", "2026-03-10T23:59:30.250", "d", 29750);
    row("the finest unit counts", "2026-03-10T10:15:42.100", "mhd", 17900);
    row("on the boundary itself", "2026-03-10T10:15:00.000", "m", 60000);
    row("at midnight", "2026-03-10T00:00:00.000", "d", 86400000);
    // 2026-03-29 ends an hour earlier than its clock says at 01:00: the wait ends at the leap.
    row("the clock leaps forward before", "2026-03-29T01:00:00.000", "d", 2 * 3600000);
    row("the clock leaps back before", "2026-10-25T01:00:00.000", "d", 3 * 3600000);
}

void TestTimerService::aimsAtTheNextBoundary()
{
    QFETCH(QString, now);
    QFETCH(QString, units);
    start(now.toLatin1());
    Listener listener;
    listen(&listener, units);
    QTEST(armedFor(), "delay");
}

void TestTimerService::tellsWhatChanged_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("heard");

    const auto row = [](const char *name, const char *before, const char *after,
                        const char *heard) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(after)
                            << QString::fromLatin1(heard);
    };
    row("a second", "2026-03-10T10:15:42", "2026-03-10T10:15:43", "");
    row("a minute", "2026-03-10T10:15:42", "2026-03-10T10:16:00", "m");
    row("three minutes at once", "2026-03-10T10:15:42", "2026-03-10T10:18:42", "m");
    row("midnight", "2026-03-10T23:59:30.250", "2026-03-11T00:00:00", "mhd");
    row("exactly one hour", "2026-03-10T10:15:42", "2026-03-10T11:15:42", "h");
    row("exactly one day", "2026-03-10T10:15:42", "2026-03-11T10:15:42", "d");
    row("back by a year", "2026-03-10T10:15:42", "2025-03-10T10:15:42", "d");
}

void TestTimerService::tellsWhatChanged()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    start(before.toLatin1());
    Listener listener;
    listen(&listener, QStringLiteral("mhd"));
    m_now = at(after.toLatin1());
    TimerService::instance()->timerExpired();
    QTEST(listener.heard, "heard");
}

/// Each row connects something, then takes it away in its own way: no timer may be left, whatever
/// Qt tells the service about it.
void TestTimerService::followsItsListeners_data()
{
    QTest::addColumn<Way>("leave");
    QTest::addColumn<int>("armed");

    const int untilMinute = 17900;
    const int untilHour = 44 * 60000 + 17900;
    const auto row = [](const char *name, Way leave, int armed) {
        QTest::newRow(name) << leave << armed;
    };
    row(
        "by text",
        [](TimerService *service, Listener *listener) {
            connect(service, SIGNAL(minuteChanged()), listener, SLOT(minute()));
            disconnect(service, SIGNAL(minuteChanged()), listener, SLOT(minute()));
        },
        -1);
    row(
        "by pointer to member",
        [](TimerService *service, Listener *listener) {
            connect(service, &TimerService::minuteChanged, listener, &Listener::minute);
            disconnect(service, &TimerService::minuteChanged, listener, &Listener::minute);
        },
        -1);
    row(
        "a lambda by its handle",
        [](TimerService *service, Listener *listener) {
            disconnect(connect(service, &TimerService::minuteChanged, listener, [] {}));
        },
        -1);
    row(
        "by handle while another one stays",
        [](TimerService *service, Listener *listener) {
            connect(service, &TimerService::hourChanged, listener, &Listener::hour);
            disconnect(connect(service, &TimerService::minuteChanged, listener, &Listener::minute));
        },
        untilHour);
    row(
        "one of two of the same signal",
        [](TimerService *service, Listener *listener) {
            connect(service, &TimerService::minuteChanged, listener, [] {});
            disconnect(connect(service, &TimerService::minuteChanged, listener, [] {}));
        },
        untilMinute);
    row(
        "the receiver is deleted",
        [](TimerService *service, Listener *) {
            auto *shortLived = new Listener;
            connect(service, &TimerService::minuteChanged, shortLived, &Listener::minute);
            connect(service, SIGNAL(hourChanged()), shortLived, SLOT(hour()));
            delete shortLived;
        },
        -1);
    row(
        "duplicates at once",
        [](TimerService *service, Listener *listener) {
            connect(service, SIGNAL(minuteChanged()), listener, SLOT(minute()));
            connect(service, SIGNAL(minuteChanged()), listener, SLOT(minute()));
            disconnect(service, SIGNAL(minuteChanged()), listener, SLOT(minute()));
        },
        -1);
    row(
        "everything of the receiver",
        [](TimerService *service, Listener *listener) {
            connect(service, &TimerService::minuteChanged, listener, &Listener::minute);
            connect(service, &TimerService::dateChanged, listener, &Listener::date);
            disconnect(service, nullptr, listener, nullptr);
        },
        -1);
    row(
        "everybody",
        [](TimerService *service, Listener *listener) {
            connect(service, &TimerService::minuteChanged, listener, &Listener::minute);
            connect(service, &TimerService::hourChanged, listener, &Listener::hour);
            service->disconnect();
        },
        -1);
    row(
        "with blocked signals",
        [](TimerService *service, Listener *listener) {
            service->blockSignals(true);
            connect(service, &TimerService::minuteChanged, listener, &Listener::minute);
            disconnect(service, &TimerService::minuteChanged, listener, &Listener::minute);
            service->blockSignals(false);
        },
        -1);
    row(
        "connected while blocked",
        [](TimerService *service, Listener *listener) {
            service->blockSignals(true);
            connect(service, &TimerService::minuteChanged, listener, &Listener::minute);
            service->blockSignals(false);
        },
        untilMinute);
    row(
        "a signal that was never connected",
        [](TimerService *service, Listener *listener) {
            connect(service, &TimerService::hourChanged, listener, &Listener::hour);
            disconnect(service, &TimerService::minuteChanged, listener, &Listener::minute);
        },
        untilHour);
}

void TestTimerService::followsItsListeners()
{
    QFETCH(Way, leave);
    start("2026-03-10T10:15:42.100");
    Listener listener;
    leave(TimerService::instance(), &listener);
    QCoreApplication::processEvents();
    QTEST(armedFor(), "armed");
}

void TestTimerService::staysStoppedWhileDisabled()
{
    start("2026-03-10T10:15:42");
    Listener listener;
    listen(&listener, QStringLiteral("mhd"));
    TimerService *service = TimerService::instance();
    service->disable();
    QCOMPARE(armedFor(), -1);
    m_now = at("2026-03-11T09:30:10");
    service->enable();
    QCOMPARE(armedFor(), 50000);
    QCOMPARE(listener.heard, QString());
    m_now = at("2026-03-11T09:31:00");
    service->timerExpired();
    QCOMPARE(listener.heard, QStringLiteral("mhd"));
}

void TestTimerService::looksAtOnceWhenTheClockIsSet()
{
    start("2026-03-10T10:15:42");
    Listener listener;
    listen(&listener, QStringLiteral("mhd"));
    TimerService::instance()->disable();
    m_now = at("2026-03-10T10:18:50");
    m_environment->jumpClock(188);
    QTRY_COMPARE(listener.heard, QStringLiteral("m"));
    QCOMPARE(armedFor(), 10000);
    m_environment->changeZone("Asia/Tokyo");
    m_now = at("2026-03-10T17:18:50");
    QTRY_COMPARE(listener.heard, QStringLiteral("mh"));
}

void TestTimerService::livesThroughAYear_data()
{
    QTest::addColumn<QString>("units");
    QTest::addColumn<int>("unitLength");
    QTest::addColumn<int>("told");
    QTest::addColumn<int>("mostExpiries");

    const int minutes = 365 * 24 * 60;
    QTest::newRow("minutes") << QStringLiteral("m") << 60000 << minutes << minutes;
    // In autumn 03:00 follows 03:59: the hour that comes twice is the same number on the wall.
    QTest::newRow("hours") << QStringLiteral("h") << 3600000 << 365 * 24 - 1 << 365 * 24;
    // A wait ends where the clock is changed, too.
    QTest::newRow("dates") << QStringLiteral("d") << 86400000 << 365 << 365 + 2;
}

/// Moves the clock to where the timer would fire, again and again: whatever changes on the wall is
/// told at the very moment, and the timer never fires more often than needed.
void TestTimerService::livesThroughAYear()
{
    QFETCH(QString, units);
    QFETCH(int, unitLength);
    QFETCH(int, mostExpiries);
    start("2026-01-01T00:00:00");
    Listener listener;
    listen(&listener, units);
    const QTimer *const aimed = timer();
    const QDateTime end = at("2027-01-01T00:00:00");
    int expiries = 0;
    int told = 0;
    while (m_now < end) {
        QVERIFY(aimed->isActive());
        m_now = m_now.addMSecs(aimed->interval());
        listener.heard.clear();
        TimerService::instance()->timerExpired();
        ++expiries;
        told += listener.heard.size();
        if (!listener.heard.isEmpty())
            QCOMPARE(m_now.time().msecsSinceStartOfDay() % unitLength, 0);
    }
    QCOMPARE(m_now, end);
    QVERIFY(expiries <= mostExpiries);
    QTEST(told, "told");
}

void TestTimerService::startsAnewAfterDestroy()
{
    start("2026-03-10T10:15:42");
    Listener listener;
    listen(&listener, QStringLiteral("m"));
    TimerService::destroy();
    m_now = at("2026-03-10T10:20:00");
    QCOMPARE(armedFor(), -1);
    listen(&listener, QStringLiteral("m"));
    TimerService::instance()->timerExpired();
    QCOMPARE(listener.heard, QString());
}

/// As when a listener asks the person, and the clock is set before the answer comes.
void TestTimerService::listenersMayLookAgain()
{
    start("2026-03-10T23:59:30");
    Listener listener;
    listen(&listener, QStringLiteral("hd"));
    connect(TimerService::instance(), &TimerService::minuteChanged, &listener,
            [] { TimerService::instance()->timerExpired(); });
    m_now = at("2026-03-11T00:00:00");
    TimerService::instance()->timerExpired();
    QCOMPARE(listener.heard, QStringLiteral("hd"));
}

void TestTimerService::listenersMayDestroyIt()
{
    start("2026-03-10T23:59:30");
    Listener listener;
    listen(&listener, QStringLiteral("hd"));
    connect(TimerService::instance(), &TimerService::minuteChanged, &listener,
            [] { TimerService::destroy(); });
    m_now = at("2026-03-11T00:00:00");
    TimerService::instance()->timerExpired();
    QCOMPARE(listener.heard, QString());
}

QTEST_GUILESS_MAIN(TestTimerService)
#include "tst_timerservice.moc"
