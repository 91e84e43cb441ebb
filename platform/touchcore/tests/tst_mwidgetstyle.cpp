// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mwidgetstyle.h>

#include <QImage>
#include <QPainter>
#include <QTest>

namespace
{
QImage drawn(const MWidgetStyle &style, const QRectF &rect,
             Qt::LayoutDirection direction = Qt::LeftToRight)
{
    QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    style.drawBackground(&painter, rect, direction);
    return image;
}
} // namespace

class TestMWidgetStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mirrorsMarginsAndPaddings();
    void fillsWhatLiesInsideTheMargins();
    void roundsCornersAndBorders();
    void shadesAroundTheFrame();
};

void TestMWidgetStyle::mirrorsMarginsAndPaddings()
{
    MWidgetStyle style;
    style.setMarginLeft(1);
    style.setMarginTop(2);
    style.setMarginRight(3);
    style.setPaddingLeft(4);
    style.setPaddingBottom(5);
    QCOMPARE(style.margins(), QMarginsF(1, 2, 3, 0));
    QCOMPARE(style.margins(Qt::RightToLeft), QMarginsF(3, 2, 1, 0));
    QCOMPARE(style.paddings(Qt::RightToLeft), QMarginsF(0, 0, 4, 5));
}

void TestMWidgetStyle::fillsWhatLiesInsideTheMargins()
{
    MWidgetStyle style;
    QCOMPARE(drawn(style, {10, 10, 40, 40}).pixelColor(30, 30), QColor(Qt::transparent));
    style.setBackgroundColor(Qt::green);
    style.setMarginLeft(8);
    const QImage image = drawn(style, {10, 10, 40, 40});
    QCOMPARE(image.pixelColor(17, 30), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(18, 10), QColor(Qt::green));
    QCOMPARE(image.pixelColor(49, 49), QColor(Qt::green));
    QCOMPARE(image.pixelColor(50, 49), QColor(Qt::transparent));
    const QImage mirrored = drawn(style, {10, 10, 40, 40}, Qt::RightToLeft);
    QCOMPARE(mirrored.pixelColor(10, 30), QColor(Qt::green));
    QCOMPARE(mirrored.pixelColor(42, 30), QColor(Qt::transparent));
}

void TestMWidgetStyle::roundsCornersAndBorders()
{
    MWidgetStyle style;
    style.setBackgroundColor(Qt::green);
    style.setCornerRadius(10);
    style.setBorderColor(Qt::red);
    style.setBorderWidth(2);
    const QImage image = drawn(style, {10, 10, 40, 40});
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(30, 10), QColor(Qt::red));
    QCOMPARE(image.pixelColor(30, 11), QColor(Qt::red));
    QCOMPARE(image.pixelColor(30, 12), QColor(Qt::green));
    QCOMPARE(image.pixelColor(30, 9), QColor(Qt::transparent));
    style.setBorderColor(QColor());
    QCOMPARE(drawn(style, {10, 10, 40, 40}).pixelColor(30, 10), QColor(Qt::green));
}

void TestMWidgetStyle::shadesAroundTheFrame()
{
    MWidgetStyle style;
    style.setBackgroundColor(Qt::white);
    style.setCornerRadius(4);
    style.setShadow(8);
    style.setShadowColor(QColor(0, 0, 0, 200));
    const QImage image = drawn(style, {15, 15, 30, 30});
    const auto alpha = [&image](int x, int y) { return image.pixelColor(x, y).alpha(); };
    QCOMPARE(image.pixelColor(30, 30), QColor(Qt::white));
    QVERIFY2(alpha(30, 46) > 20, "the shadow falls below the frame");
    QVERIFY2(alpha(30, 46) > alpha(30, 13), "and more there than above");
    for (int x = 46; x < 53; ++x)
        QVERIFY2(alpha(x, 30) >= alpha(x + 1, 30), "it fades outwards");
    for (int i = 0; i < 60; ++i) {
        QCOMPARE(alpha(i, 6), 0); // nothing beyond its width
        QCOMPARE(alpha(i, 53), 0);
        QCOMPARE(alpha(6, i), 0);
        QCOMPARE(alpha(i, 30), alpha(59 - i, 30)); // both sides are alike
    }
}

QTEST_GUILESS_MAIN(TestMWidgetStyle)
#include "tst_mwidgetstyle.moc"
