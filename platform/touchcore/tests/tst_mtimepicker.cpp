// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "touchscreen.h"

#include <touchcore/mbutton.h>
#include <touchcore/mcellgrid.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlocale.h>
#include <touchcore/mtimepicker.h>

#include <QSignalSpy>
#include <QtTest>

class TestMTimePicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_screen.reset(); }

    void hasTheClockOfTheLocale_data();
    void hasTheClockOfTheLocale();
    void choosesWithTwoTaps();
    void choosesTheHalfOfTheDay();
    void reachesEveryMinute();
    void goesByKey_data();
    void goesByKey();
    void takesWholeMinutes();

private:
    template <typename Part> static void collect(const QGraphicsItem *item, QList<Part *> *parts);
    template <typename Part> QList<Part *> parts() const;
    MCellGrid *hours() const { return parts<MCellGrid>().first(); }
    MCellGrid *minutes() const { return parts<MCellGrid>().last(); }
    void tap(const QGraphicsWidget *widget, const QPointF &place)
    {
        m_screen->tap(widget->mapToScene(place));
    }
    void layOut();

    std::unique_ptr<TouchScreen> m_screen;
    MTimePicker *m_picker = nullptr;
};

template <typename Part>
void TestMTimePicker::collect(const QGraphicsItem *item, QList<Part *> *parts)
{
    const QList<QGraphicsItem *> children = item->childItems();
    for (QGraphicsItem *child : children) {
        if (auto *part = dynamic_cast<Part *>(child))
            parts->append(part);
        else
            collect(child, parts);
    }
}

template <typename Part> QList<Part *> TestMTimePicker::parts() const
{
    QList<Part *> found;
    collect(m_picker, &found);
    return found;
}

void TestMTimePicker::layOut()
{
    m_picker->resize(360, m_picker->effectiveSizeHint(Qt::PreferredSize).height());
    TouchScreen::layOut();
}

void TestMTimePicker::init()
{
    MLocale::setDefault(MLocale(QStringLiteral("en_GB")));
    m_screen = std::make_unique<TouchScreen>();
    m_picker = new MTimePicker;
    m_screen->scene.addItem(m_picker);
    layOut();
}

void TestMTimePicker::hasTheClockOfTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<MLocale::TimeFormat24h>("clock");
    QTest::addColumn<int>("cells");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("secondHour");
    QTest::addColumn<QString>("secondMinute");
    const auto own = MLocale::LocaleDefaultTimeFormat24h;
    QTest::newRow("British") << QStringLiteral("en_GB") << own << 24 << QStringLiteral("21:05")
                             << QStringLiteral("01") << QStringLiteral(":05");
    QTest::newRow("American") << QStringLiteral("en_US") << own << 12
                              << QString::fromUtf8("9:05\u202fPM") << QStringLiteral("1")
                              << QStringLiteral(":05");
    QTest::newRow("Finnish") << QStringLiteral("fi_FI") << own << 24 << QStringLiteral("21.05")
                             << QStringLiteral("01") << QStringLiteral(".05");
    QTest::newRow("Egyptian") << QStringLiteral("ar_EG") << own << 12 << QString::fromUtf8("٩:٠٥ م")
                              << QString::fromUtf8("١") << QString::fromUtf8(":٠٥");
    QTest::newRow("American with a clock of 24 hours")
        << QStringLiteral("en_US") << MLocale::TwentyFourHourTimeFormat24h << 24
        << QStringLiteral("21:05") << QStringLiteral("01") << QStringLiteral(":05");
}

void TestMTimePicker::hasTheClockOfTheLocale()
{
    QFETCH(QString, locale);
    QFETCH(MLocale::TimeFormat24h, clock);
    QFETCH(int, cells);
    QFETCH(QString, shown);
    QFETCH(QString, secondHour);
    QFETCH(QString, secondMinute);

    m_picker->setTime(QTime(21, 5));
    MLocale chosen(locale);
    chosen.setTimeFormat24h(clock);
    MLocale::setDefault(chosen);
    QCOMPARE(m_picker->isTwelveHours(), cells == 12);
    QCOMPARE(hours()->cells().size(), cells);
    QCOMPARE(hours()->chosen(), cells == 12 ? 9 : 21);
    QCOMPARE(parts<MLabel>().first()->text().simplified(), shown.simplified());
    QCOMPARE(hours()->cells().at(1).text, secondHour);
    QCOMPARE(minutes()->cells().at(1).text, secondMinute);
    const QList<MButton *> buttons = parts<MButton>();
    for (const MButton *button : buttons) {
        if (!button->text().isEmpty())
            QCOMPARE(button->isVisible(), cells == 12);
    }
}

void TestMTimePicker::choosesWithTwoTaps()
{
    QSignalSpy changed(m_picker, &MTimePicker::timeChanged);
    tap(hours(), hours()->cellRect(14).center());
    tap(minutes(), minutes()->cellRect(9).center());
    QCOMPARE(m_picker->time(), QTime(14, 45));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(hours()->chosen(), 14);
    QCOMPARE(minutes()->chosen(), 9);
    tap(minutes(), minutes()->cellRect(9).center());
    QCOMPARE(changed.count(), 2);
}

void TestMTimePicker::choosesTheHalfOfTheDay()
{
    MLocale::setDefault(MLocale(QStringLiteral("en_US")));
    layOut();
    const auto half = [this](const char *text) {
        const QList<MButton *> buttons = parts<MButton>();
        for (MButton *button : buttons) {
            if (button->text() == QLatin1String(text))
                return button;
        }
        return static_cast<MButton *>(nullptr);
    };
    tap(hours(), hours()->cellRect(3).center());
    QCOMPARE(m_picker->time(), QTime(3, 0));
    tap(half("PM"), half("PM")->rect().center());
    QCOMPARE(m_picker->time(), QTime(15, 0));
    tap(hours(), hours()->cellRect(0).center());
    QCOMPARE(m_picker->time(), QTime(12, 0));
    tap(half("AM"), half("AM")->rect().center());
    QCOMPARE(m_picker->time(), QTime(0, 0));
    m_picker->setTime(QTime(22, 0));
    QVERIFY(half("PM")->isChecked());
}

void TestMTimePicker::reachesEveryMinute()
{
    const QList<MButton *> buttons = parts<MButton>();
    MButton *earlier = buttons[0];
    MButton *later = buttons[1];
    m_picker->setTime(QTime(9, 58));
    QCOMPARE(minutes()->chosen(), -1);
    for (int i = 0; i < 3; ++i)
        tap(later, later->rect().center());
    QCOMPARE(m_picker->time(), QTime(10, 1));
    m_picker->setTime(QTime(0, 0));
    tap(earlier, earlier->rect().center());
    QCOMPARE(m_picker->time(), QTime(23, 59));
}

void TestMTimePicker::goesByKey_data()
{
    QTest::addColumn<bool>("isOnHours");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QTime>("time");
    QTest::newRow("an hour on") << true << Qt::Key_Right << QTime(13, 30);
    QTest::newRow("a row of hours on") << true << Qt::Key_Down << QTime(18, 30);
    QTest::newRow("five minutes back") << false << Qt::Key_Left << QTime(12, 25);
    QTest::newRow("out of the minutes") << false << Qt::Key_Down << QTime(12, 30);
    QTest::newRow("a minute on") << false << Qt::Key_Plus << QTime(12, 31);
    QTest::newRow("a minute back") << true << Qt::Key_Minus << QTime(12, 29);
    QTest::newRow("page down") << true << Qt::Key_PageDown << QTime(13, 30);
    QTest::newRow("page up") << true << Qt::Key_PageUp << QTime(11, 30);
}

void TestMTimePicker::goesByKey()
{
    QFETCH(bool, isOnHours);
    QFETCH(Qt::Key, key);
    QFETCH(QTime, time);

    m_picker->setTime(QTime(12, 30));
    (isOnHours ? hours() : minutes())->setFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_screen->view, key);
    QCOMPARE(m_picker->time(), time);
}

void TestMTimePicker::takesWholeMinutes()
{
    m_picker->setTime(QTime(7, 8, 59));
    QCOMPARE(m_picker->time(), QTime(7, 8));
    m_picker->setTime(QTime());
    QCOMPARE(m_picker->time(), QTime(7, 8));
}

QTEST_MAIN(TestMTimePicker)
#include "tst_mtimepicker.moc"
