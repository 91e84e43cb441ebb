// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mstylablewidget.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QTest>

class CardStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(int, columns, setColumns, 1)
};

class Card : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(CardStyle)

public:
    using MStylableWidget::MStylableWidget;
    int timesStyled = 0;

protected:
    void applyStyle() override
    {
        ++timesStyled;
        MStylableWidget::applyStyle();
    }
};

/// A base class that looks at its style before the widget's class is complete.
class HastyPanel : public MStylableWidget
{
    Q_OBJECT

public:
    HastyPanel()
    {
        setEnabled(false);
        setStyleMode("pressed");
        radiusInConstructor = style()->cornerRadius();
        effectiveSizeHint(Qt::PreferredSize);
    }
    int radiusInConstructor = 0;
};

class HastyCard : public HastyPanel
{
    Q_OBJECT
    M_STYLE(CardStyle)
};

class TestMStylableWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isStyledOnceBeforeItIsShown();
    void isStyledAnewWhenItMustBe_data();
    void isStyledAnewWhenItMustBe();
    void hasTheStyleOfItsWholeClass();
    void insetsItsLayout();
    void sizesGoByTheStyleAndTheLayout_data();
    void sizesGoByTheStyleAndTheLayout();
    void sharesItsStyle();
};

void TestMStylableWidget::initTestCase()
{
    QVERIFY(MTheme::instance()->load(R"({
        "classes": {
            "HastyPanel": {"cornerRadius": 5},
            "HastyCard": {"columns": 7, "cornerRadius": 6},
            "Card": {"paddingLeft": 16, "marginRight": 4, "columns": 2,
                     "disabled": {"columns": 0}}
        },
        "styles": {
            "Wide": {"minimumSize": [200, 20], "columns": 3},
            "Low": {"minimumSize": [-1, 10], "maximumSize": [-1, 30]},
            "Turning": {"landscape": {"columns": 4}}
        }
    })",
                                     QStringLiteral("card.json")));
}

void TestMStylableWidget::isStyledOnceBeforeItIsShown()
{
    QGraphicsScene scene;
    Card card;
    card.setStyleName(QStringLiteral("Wide"));
    card.setEnabled(false);
    QCOMPARE(card.timesStyled, 0);
    scene.addItem(&card);
    QCoreApplication::sendPostedEvents(&scene, QEvent::MetaCall);
    QCOMPARE(card.timesStyled, 1);
    QCOMPARE(card.effectiveSizeHint(Qt::MinimumSize), QSizeF(200, 20));
    QCOMPARE(card.timesStyled, 1);
}

using Change = std::function<void(Card &)>;
Q_DECLARE_METATYPE(Change)

void TestMStylableWidget::isStyledAnewWhenItMustBe_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("times");
    QTest::addColumn<int>("columns");
    const auto row = [](const char *name, const Change &change, int times, int columns) {
        QTest::newRow(name) << change << times << columns;
    };
    row(
        "another name", [](Card &card) { card.setStyleName(QStringLiteral("Wide")); }, 1, 3);
    row(
        "the same name", [](Card &card) { card.setStyleName(QString()); }, 0, 2);
    row(
        "disabled", [](Card &card) { card.setEnabled(false); }, 1, 0);
    row(
        "enabled again",
        [](Card &card) {
            card.setEnabled(false);
            card.setEnabled(true);
        },
        2, 2);
    row(
        "a mode without rules", [](Card &card) { card.setStyleMode("checked"); }, 1, 2);
    row(
        "right to left", [](Card &card) { card.setLayoutDirection(Qt::RightToLeft); }, 1, 2);
    row(
        "another scheme", [](Card &) { MTheme::instance()->setColorScheme(M::DarkScheme); }, 1, 2);
    row(
        "larger texts", [](Card &) { MTheme::instance()->setTextScale(1.3); }, 1, 2);
    row(
        "landscape",
        [](Card &card) {
            card.setStyleName(QStringLiteral("Turning"));
            MTheme::instance()->setOrientation(M::Landscape);
        },
        2, 4);
}

void TestMStylableWidget::isStyledAnewWhenItMustBe()
{
    QFETCH(Change, change);
    Card card;
    card.effectiveSizeHint(Qt::PreferredSize);
    card.timesStyled = 0;
    change(card);
    QTEST(card.timesStyled, "times");
    QTEST(card.style()->columns(), "columns");
    MTheme::instance()->setColorScheme(M::LightScheme);
    MTheme::instance()->setTextScale(1);
    MTheme::instance()->setOrientation(M::Portrait);
}

void TestMStylableWidget::hasTheStyleOfItsWholeClass()
{
    HastyCard card;
    QCOMPARE(card.radiusInConstructor, 5);
    QCOMPARE(card.style()->columns(), 7);
    QCOMPARE(card.style()->cornerRadius(), 6);
    QCOMPARE(card.styleContainer().mode(), QByteArray("pressed"));
}

void TestMStylableWidget::insetsItsLayout()
{
    Card card;
    auto *layout = new QGraphicsLinearLayout(&card);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *content = new QGraphicsWidget;
    layout->addItem(content);
    card.effectiveSizeHint(Qt::PreferredSize);
    card.resize(100, 50);
    layout->activate();
    QCOMPARE(card.contentsRectangle(), QRectF(16, 0, 80, 50));
    QCOMPARE(content->geometry(), QRectF(16, 0, 80, 50));
    card.setLayoutDirection(Qt::RightToLeft);
    layout->activate();
    QCOMPARE(card.contentsRectangle(), QRectF(4, 0, 80, 50));
    QCOMPARE(content->geometry(), QRectF(4, 0, 80, 50));
}

void TestMStylableWidget::sizesGoByTheStyleAndTheLayout_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSizeF>("content"); // empty: no layout
    QTest::addColumn<QSizeF>("minimum");
    QTest::newRow("the style's minimum") << QStringLiteral("Wide") << QSizeF() << QSizeF(200, 20);
    QTest::newRow("the contents need more in one side")
        << QStringLiteral("Wide") << QSizeF(100, 60) << QSizeF(200, 60);
    QTest::newRow("the contents need more in both")
        << QStringLiteral("Wide") << QSizeF(300, 60) << QSizeF(320, 60);
    QTest::newRow("a side that is not set goes by the contents")
        << QStringLiteral("Low") << QSizeF(100, 8) << QSizeF(120, 10);
}

void TestMStylableWidget::sizesGoByTheStyleAndTheLayout()
{
    QFETCH(QString, name);
    QFETCH(QSizeF, content);
    Card card;
    card.setStyleName(name);
    if (!content.isEmpty()) {
        auto *layout = new QGraphicsLinearLayout(&card);
        layout->setContentsMargins(0, 0, 0, 0);
        auto *widget = new QGraphicsWidget;
        widget->setMinimumSize(content);
        layout->addItem(widget);
    }
    QTEST(card.effectiveSizeHint(Qt::MinimumSize), "minimum");
}

void TestMStylableWidget::sharesItsStyle()
{
    Card first;
    Card second;
    QCOMPARE(first.style(), second.style());
    second.setEnabled(false);
    QVERIFY(first.style() != second.style());
}

QTEST_MAIN(TestMStylableWidget)
#include "tst_mstylablewidget.moc"
