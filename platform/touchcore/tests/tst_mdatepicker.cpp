// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "touchscreen.h"

#include <touchcore/mbutton.h>
#include <touchcore/mcellgrid.h>
#include <touchcore/mdatepicker.h>
#include <touchcore/mlocale.h>

#include <QSignalSpy>
#include <QtTest>

namespace
{
const QDate today(2026, 11, 21);
}

class TestMDatePicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_screen.reset(); }

    void showsAMonthAsTheLocaleWritesIt_data();
    void showsAMonthAsTheLocaleWritesIt();
    void choosesWhatIsTapped();
    void ignoresTouchesThatAreTakenOver();
    void turnsMonthsAndYears();
    void goesByKey_data();
    void goesByKey();
    void goesThroughTheMonthsOfAYearByKey();
    void staysWithinItsRange();
    void marksToday();
    void followsTheLocale();

private:
    static MCellGrid *gridOf(const MDatePicker *picker);
    MButton *button(int position) const;
    QString title() const { return button(1)->text(); }
    void tapCell(const QString &text, bool isDimmed = false);

    std::unique_ptr<TouchScreen> m_screen;
    MDatePicker *m_picker = nullptr;
};

MCellGrid *TestMDatePicker::gridOf(const MDatePicker *picker)
{
    const QList<QGraphicsItem *> children = picker->childItems();
    for (QGraphicsItem *child : children) {
        if (auto *grid = dynamic_cast<MCellGrid *>(child))
            return grid;
    }
    return nullptr;
}

/// The arrow back, the heading and the arrow on.
MButton *TestMDatePicker::button(int position) const
{
    QList<MButton *> buttons;
    const QList<QGraphicsItem *> children = m_picker->childItems();
    for (QGraphicsItem *child : children) {
        if (auto *button = dynamic_cast<MButton *>(child))
            buttons.append(button);
    }
    return buttons.value(position);
}

void TestMDatePicker::tapCell(const QString &text, bool isDimmed)
{
    MCellGrid *grid = gridOf(m_picker);
    const QVector<MCellGrid::Cell> cells = grid->cells();
    for (int i = 0; i < cells.size(); ++i) {
        if (cells[i].text == text && cells[i].isDimmed == isDimmed) {
            m_screen->tap(grid->mapToScene(grid->cellRect(i).center()));
            return;
        }
    }
    QFAIL(qPrintable(text));
}

void TestMDatePicker::init()
{
    MLocale::setDefault(MLocale(QStringLiteral("en_GB")));
    m_screen = std::make_unique<TouchScreen>();
    m_picker = new MDatePicker;
    m_screen->scene.addItem(m_picker);
    m_picker->setToday(today);
    m_picker->setDate(today);
    m_picker->resize(360, m_picker->effectiveSizeHint(Qt::PreferredSize).height());
    TouchScreen::layOut();
}

void TestMDatePicker::showsAMonthAsTheLocaleWritesIt_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("firstHeading");
    QTest::addColumn<QString>("firstCell");
    QTest::addColumn<int>("dimmedBefore");
    QTest::addColumn<QDate>("month");
    QTest::newRow("British, from Monday")
        << QStringLiteral("en_GB") << QStringLiteral("November 2026") << QStringLiteral("M")
        << QStringLiteral("26") << 6 << QDate(2026, 11, 1);
    QTest::newRow("American, from Sunday")
        << QStringLiteral("en_US") << QStringLiteral("November 2026") << QStringLiteral("S")
        << QStringLiteral("1") << 0 << QDate(2026, 11, 1);
    QTest::newRow("Finnish") << QStringLiteral("fi_FI") << QString::fromUtf8("marraskuu 2026")
                             << QStringLiteral("M") << QStringLiteral("26") << 6
                             << QDate(2026, 11, 1);
    QTest::newRow("Japanese, year first")
        << QStringLiteral("ja_JP") << QString::fromUtf8("2026年11月") << QString::fromUtf8("日")
        << QString::fromUtf8("1日") << 0 << QDate(2026, 11, 1);
    QTest::newRow("Egyptian, from Saturday")
        << QStringLiteral("ar_EG") << QString::fromUtf8("نوفمبر ٢٠٢٦") << QString::fromUtf8("س")
        << QString::fromUtf8("٣١") << 1 << QDate(2026, 11, 1);
    QTest::newRow("Persian, in its own calendar")
        << QStringLiteral("fa_IR") << QString::fromUtf8("آبان ۱۴۰۵") << QString::fromUtf8("ش")
        << QString::fromUtf8("۲۵") << 6 << QDate(2026, 10, 23);
}

void TestMDatePicker::showsAMonthAsTheLocaleWritesIt()
{
    QFETCH(QString, locale);
    QFETCH(QString, title);
    QFETCH(QString, firstHeading);
    QFETCH(QString, firstCell);
    QFETCH(int, dimmedBefore);
    QFETCH(QDate, month);

    MLocale::setDefault(MLocale(locale));
    const MCellGrid *grid = gridOf(m_picker);
    QCOMPARE(this->title(), title);
    QCOMPARE(grid->headings().size(), 7);
    QCOMPARE(grid->headings().first(), firstHeading);
    QVERIFY2(firstCell.startsWith(grid->cells().first().text),
             qPrintable(grid->cells().first().text));
    for (int i = 0; i <= dimmedBefore; ++i)
        QCOMPARE(grid->cells().at(i).isDimmed, i < dimmedBefore);
    QCOMPARE(m_picker->shownMonth(), month);
    QCOMPARE(grid->chosen(), dimmedBefore + int(month.daysTo(today)));
}

void TestMDatePicker::choosesWhatIsTapped()
{
    QSignalSpy changed(m_picker, &MDatePicker::dateChanged);
    QSignalSpy tapped(m_picker, &MDatePicker::dateTapped);
    tapCell(QStringLiteral("24"));
    QCOMPARE(m_picker->date(), QDate(2026, 11, 24));
    tapCell(QStringLiteral("24"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(tapped.count(), 2);
    // A day of the next month leads there.
    tapCell(QStringLiteral("2"), true);
    QCOMPARE(m_picker->date(), QDate(2026, 12, 2));
    QCOMPARE(title(), QStringLiteral("December 2026"));
}

void TestMDatePicker::ignoresTouchesThatAreTakenOver()
{
    MCellGrid *grid = gridOf(m_picker);
    const QPointF place = grid->mapToScene(grid->cellRect(10).center());
    m_screen->press(place);
    MCancelEvent cancel;
    QApplication::sendEvent(grid, &cancel);
    m_screen->release(place);
    m_screen->press(place);
    m_screen->move(place + QPointF(100, 0));
    m_screen->release(place + QPointF(100, 0));
    QCOMPARE(m_picker->date(), today);
}

void TestMDatePicker::turnsMonthsAndYears()
{
    m_screen->tap(button(2)->sceneBoundingRect().center());
    QCOMPARE(title(), QStringLiteral("December 2026"));
    m_screen->tap(button(2)->sceneBoundingRect().center());
    QCOMPARE(m_picker->shownMonth(), QDate(2027, 1, 1));
    QCOMPARE(m_picker->date(), today);
    m_screen->tap(button(1)->sceneBoundingRect().center());
    QCOMPARE(title(), QStringLiteral("2027"));
    for (int i = 0; i < 3; ++i)
        m_screen->tap(button(0)->sceneBoundingRect().center());
    QCOMPARE(title(), QStringLiteral("2024"));
    TouchScreen::layOut();
    tapCell(QStringLiteral("Feb"));
    QCOMPARE(title(), QStringLiteral("February 2024"));
    TouchScreen::layOut();
    tapCell(QStringLiteral("29"));
    QCOMPARE(m_picker->date(), QDate(2024, 2, 29));
}

void TestMDatePicker::goesByKey_data()
{
    QTest::addColumn<QDate>("start");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QDate>("date");
    QTest::newRow("right") << today << Qt::Key_Right << Qt::LeftToRight << QDate(2026, 11, 22);
    QTest::newRow("left in a layout from the right")
        << today << Qt::Key_Left << Qt::RightToLeft << QDate(2026, 11, 22);
    QTest::newRow("down") << today << Qt::Key_Down << Qt::LeftToRight << QDate(2026, 11, 28);
    QTest::newRow("up from the first week")
        << QDate(2026, 11, 1) << Qt::Key_Up << Qt::LeftToRight << QDate(2026, 10, 25);
    QTest::newRow("page down") << today << Qt::Key_PageDown << Qt::LeftToRight
                               << QDate(2026, 12, 21);
    QTest::newRow("page down to a shorter month")
        << QDate(2026, 1, 31) << Qt::Key_PageDown << Qt::LeftToRight << QDate(2026, 2, 28);
    QTest::newRow("page up") << today << Qt::Key_PageUp << Qt::LeftToRight << QDate(2026, 10, 21);
    QTest::newRow("home") << QDate(2020, 2, 29) << Qt::Key_Home << Qt::LeftToRight << today;
}

void TestMDatePicker::goesByKey()
{
    QFETCH(QDate, start);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QDate, date);

    m_picker->setLayoutDirection(direction);
    m_picker->setDate(start);
    QSignalSpy tapped(m_picker, &MDatePicker::dateTapped);
    gridOf(m_picker)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_screen->view, key);
    QCOMPARE(m_picker->date(), date);
    QCOMPARE(tapped.count(), 0);
    QTest::keyClick(&m_screen->view, Qt::Key_Space);
    QCOMPARE(tapped.count(), 1);
}

void TestMDatePicker::goesThroughTheMonthsOfAYearByKey()
{
    button(1)->click();
    gridOf(m_picker)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_screen->view, Qt::Key_Up);
    QTest::keyClick(&m_screen->view, Qt::Key_Left);
    QCOMPARE(m_picker->shownMonth(), QDate(2026, 7, 1));
    QCOMPARE(title(), QStringLiteral("2026"));
    QTest::keyClick(&m_screen->view, Qt::Key_Return);
    QCOMPARE(title(), QStringLiteral("July 2026"));
    QCOMPARE(m_picker->date(), today);
}

void TestMDatePicker::staysWithinItsRange()
{
    m_picker->setRange(QDate(2026, 11, 10), QDate(2027, 2, 10));
    QVERIFY(!button(0)->isEnabled());
    const QVector<MCellGrid::Cell> cells = gridOf(m_picker)->cells();
    QVERIFY(!cells[14].isEnabled); // the 9th
    QVERIFY(cells[15].isEnabled);
    tapCell(QStringLiteral("9"));
    QCOMPARE(m_picker->date(), today);
    m_picker->setDate(QDate(2030, 1, 1));
    QCOMPARE(m_picker->date(), QDate(2027, 2, 10));
    QVERIFY(button(0)->isEnabled());
    QVERIFY(!button(2)->isEnabled());
    m_picker->setDate(QDate());
    QCOMPARE(m_picker->date(), QDate(2027, 2, 10));
    button(1)->click();
    QVERIFY(button(0)->isEnabled());
    QVERIFY(gridOf(m_picker)->cells().at(1).isEnabled);
    QVERIFY(!gridOf(m_picker)->cells().at(2).isEnabled);
    m_picker->setRange(QDate(2026, 5, 5), QDate(2026, 1, 1));
    QCOMPARE(m_picker->date(), QDate(2026, 5, 5));
    QCOMPARE(m_picker->maximumDate(), QDate(2026, 5, 5));
}

void TestMDatePicker::marksToday()
{
    const auto marked = [this] {
        QStringList texts;
        const QVector<MCellGrid::Cell> cells = gridOf(m_picker)->cells();
        for (const MCellGrid::Cell &cell : cells) {
            if (cell.isMarked)
                texts.append(cell.spokenText);
        }
        return texts;
    };
    QCOMPARE(marked(), QStringList{QStringLiteral("Saturday, 21 November 2026")});
    m_picker->setToday(today.addDays(1));
    QCOMPARE(marked(), QStringList{QStringLiteral("Sunday, 22 November 2026")});
    m_picker->showMonthOf(QDate(2026, 7, 1));
    QCOMPARE(marked(), QStringList());
}

void TestMDatePicker::followsTheLocale()
{
    m_picker->setDate(QDate(2026, 3, 21));
    MLocale::setDefault(MLocale(QStringLiteral("fa_IR")));
    // The first day of the Persian year.
    QCOMPARE(m_picker->shownMonth(), QDate(2026, 3, 21));
    button(1)->click();
    QCOMPARE(gridOf(m_picker)->cells().size(), 12);
    button(0)->click();
    QCOMPARE(m_picker->shownMonth(), QDate(2025, 3, 21));
}

QTEST_MAIN(TestMDatePicker)
#include "tst_mdatepicker.moc"
