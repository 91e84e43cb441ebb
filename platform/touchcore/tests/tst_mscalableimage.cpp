// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mscalableimage.h>
#include <touchcore/mtheme.h>

#include <QApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>

namespace
{
QImage canvas(const QSize &size, qreal scale)
{
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}

/// The icon as its drawing says, in device pixels.
QImage rendered(const QString &id, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(MTheme::instance()->imageFile(id)).render(&painter);
    return image;
}

QImage drawn(const MScalableImage &image, const QSize &size, const QRectF &rect, qreal scale = 1,
             const QColor &tint = QColor(), Qt::LayoutDirection direction = Qt::LeftToRight)
{
    QImage result = canvas(size, scale);
    QPainter painter(&result);
    image.draw(rect, &painter, tint, direction);
    painter.end();
    result.setDevicePixelRatio(1);
    return result;
}
} // namespace

class TestMScalableImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isSharp_data();
    void isSharp();
    void takesTheTint();
    void turnsRoundFromRightToLeft_data();
    void turnsRoundFromRightToLeft();
    void keepsTheBordersOfANinePatch_data();
    void keepsTheBordersOfANinePatch();
    void shrinksBordersThatDoNotFit();
    void knowsItsSize_data();
    void knowsItsSize();
    void drawsNothingWithoutAPicture_data();
    void drawsNothingWithoutAPicture();

private:
    QTemporaryDir m_folder;
    QString m_frame;
};

void TestMScalableImage::initTestCase()
{
    // Red corners of 3 pixels, blue sides, a green middle.
    m_frame = m_folder.filePath(QStringLiteral("frame.png"));
    QImage frame(12, 10, QImage::Format_ARGB32);
    frame.fill(Qt::blue);
    QPainter painter(&frame);
    for (const QPoint corner : {QPoint(0, 0), QPoint(9, 0), QPoint(0, 7), QPoint(9, 7)})
        painter.fillRect(QRect(corner, QSize(3, 3)), Qt::red);
    painter.fillRect(3, 3, 6, 4, Qt::green);
    painter.end();
    QVERIFY(frame.save(m_frame));
    QFile broken(m_folder.filePath(QStringLiteral("broken.svg")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("<svg");
}

void TestMScalableImage::isSharp_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<QPointF>("origin"); // of the painter
    QTest::addColumn<QPointF>("corner");
    QTest::addColumn<QPoint>("pixel");
    const auto row = [](const char *name, qreal scale, const QPointF &origin, const QPointF &corner,
                        const QPoint &pixel) {
        QTest::newRow(name) << scale << origin << corner << pixel;
    };
    row("scale 1", 1, {0, 0}, {4, 4}, {4, 4});
    row("scale 1 between pixels", 1, {0, 0}, {4.5, 3.4}, {5, 3});
    row("scale 1.5", 1.5, {0, 0}, {4, 4}, {6, 6});
    row("scale 2 on half a pixel", 2, {0, 0}, {4.5, 4.3}, {9, 9});
    row("scale 2 below a moved item", 2, {1.3, 2.7}, {1, 1}, {5, 7});
    row("scale 3", 3, {0, 0}, {4, 4}, {12, 12});
}

void TestMScalableImage::isSharp()
{
    QFETCH(qreal, scale);
    QFETCH(QPointF, origin);
    QFETCH(QPointF, corner);
    QFETCH(QPoint, pixel);
    const QString id = QStringLiteral("settings");
    QImage image = canvas({32, 32}, scale);
    QPainter painter(&image);
    painter.translate(origin);
    MScalableImage(id).draw({corner, QSizeF(24, 24)}, &painter);
    painter.end();
    image.setDevicePixelRatio(1);
    const int pixels = qRound(24 * scale);
    QCOMPARE(image.copy(QRect(pixel, QSize(pixels, pixels))), rendered(id, pixels));
}

void TestMScalableImage::takesTheTint()
{
    const MScalableImage icon(QStringLiteral("add"));
    const QRectF all(0, 0, 24, 24);
    const QImage black = drawn(icon, {24, 24}, all);
    const QImage tinted = drawn(icon, {24, 24}, all, 1, QColor(200, 100, 50));
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x)
            QCOMPARE(qAlpha(tinted.pixel(x, y)), qAlpha(black.pixel(x, y)));
    }
    QCOMPARE(tinted.pixelColor(12, 12), QColor(200, 100, 50));
    QCOMPARE(black.pixelColor(12, 12), QColor(Qt::black));
    const QImage faint = drawn(icon, {24, 24}, all, 1, QColor(200, 100, 50, 128));
    QVERIFY(qAbs(faint.pixelColor(12, 12).alpha() - 128) <= 1);
}

void TestMScalableImage::turnsRoundFromRightToLeft_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("isTurned");
    QTest::newRow("back points to where one came from") << QStringLiteral("back") << true;
    QTest::newRow("a chevron") << QStringLiteral("chevron-right") << true;
    QTest::newRow("a magnifier is a thing") << QStringLiteral("search") << false;
    QTest::newRow("a clock runs the same way everywhere") << QStringLiteral("clock") << false;
}

void TestMScalableImage::turnsRoundFromRightToLeft()
{
    QFETCH(QString, id);
    QFETCH(bool, isTurned);
    const QRectF all(0, 0, 24, 24);
    const QImage plain = drawn(MScalableImage(id), {24, 24}, all);
    const QImage turned = drawn(MScalableImage(id), {24, 24}, all, 1, QColor(), Qt::RightToLeft);
    QVERIFY(plain != plain.mirrored(true, false));
    QCOMPARE(turned, isTurned ? plain.mirrored(true, false) : plain);
}

void TestMScalableImage::keepsTheBordersOfANinePatch_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::newRow("scale 1") << 1.0;
    QTest::newRow("scale 2") << 2.0;
}

void TestMScalableImage::keepsTheBordersOfANinePatch()
{
    QFETCH(qreal, scale);
    const MScalableImage frame(m_frame, QMargins(3, 3, 3, 3));
    const QImage image = drawn(frame, {40, 30}, {5, 5, 30, 20}, scale);
    const auto at = [&](qreal x, qreal y) {
        return image.pixelColor(int(x * scale), int(y * scale));
    };
    QCOMPARE(at(4.5, 15), QColor(Qt::transparent));
    QCOMPARE(at(5, 5), QColor(Qt::red));
    QCOMPARE(at(7.5, 7.5), QColor(Qt::red));
    QCOMPARE(at(8, 5), QColor(Qt::blue));
    QCOMPARE(at(31.5, 7), QColor(Qt::blue));
    QCOMPARE(at(32, 24.5), QColor(Qt::red));
    QCOMPARE(at(8, 8), QColor(Qt::green));
    QCOMPARE(at(31.5, 21.5), QColor(Qt::green));
    QCOMPARE(at(35, 15), QColor(Qt::transparent));
}

void TestMScalableImage::shrinksBordersThatDoNotFit()
{
    const MScalableImage frame(m_frame, QMargins(3, 3, 3, 3));
    const QImage image = drawn(frame, {12, 12}, {4, 2, 4, 8});
    QCOMPARE(image.pixelColor(3, 5), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(8, 5), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(4, 2), QColor(Qt::red));
    QCOMPARE(image.pixelColor(7, 9), QColor(Qt::red));
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::blue));
}

void TestMScalableImage::knowsItsSize_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("icon") << QStringLiteral("check") << QSizeF(24, 24);
    QTest::newRow("drawing") << QStringLiteral("no-events") << QSizeF(160, 120);
    QTest::newRow("bitmap") << m_frame << QSizeF(12, 10);
    QTest::newRow("resource") << QStringLiteral(":/daskel/themes/base/images/back.svg")
                              << QSizeF(24, 24);
    QTest::newRow("none") << QString() << QSizeF();
}

void TestMScalableImage::knowsItsSize()
{
    QFETCH(QString, id);
    QTEST(MScalableImage(id).naturalSize(), "size");
}

void TestMScalableImage::drawsNothingWithoutAPicture_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("warning");
    QTest::newRow("null") << QString() << QString();
    QTest::newRow("unknown") << QStringLiteral("nowhere")
                             << QStringLiteral("The theme has no picture named \"nowhere\".");
    const QString broken = m_folder.filePath(QStringLiteral("broken.svg"));
    QTest::newRow("broken") << broken
                            << QStringLiteral("This picture cannot be read: \"%1\".").arg(broken);
    const QString gone = m_folder.filePath(QStringLiteral("gone.png"));
    QTest::newRow("gone") << gone
                          << QStringLiteral("This picture cannot be read: \"%1\".").arg(gone);
}

void TestMScalableImage::drawsNothingWithoutAPicture()
{
    QFETCH(QString, id);
    QFETCH(QString, warning);
    // A drawing that is broken has Qt say so, too.
    static QStringList said;
    said.clear();
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { said.append(text); });
    const QRectF all(0, 0, 24, 24);
    const QImage once = drawn(MScalableImage(id), {24, 24}, all);
    const QImage again = drawn(MScalableImage(id), {24, 24}, QRectF(0, 0, 20, 20), 2);
    qInstallMessageHandler(before);
    QCOMPARE(once, canvas({24, 24}, 1));
    QCOMPARE(said.count(warning), warning.isEmpty() ? 0 : 1);
    Q_UNUSED(again)
}

QTEST_MAIN(TestMScalableImage)
#include "tst_mscalableimage.moc"
