// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "picture.h"
#include "touchscreen.h"

#include <touchcore/mimagewidget.h>
#include <touchcore/mseparator.h>
#include <touchcore/mtheme.h>

#include <QTemporaryDir>
#include <QtTest>

/// Pictures and lines: what is only looked at.
class TestMImageWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_screen = std::make_unique<TouchScreen>(); }
    void cleanup() { m_screen.reset(); }

    void hasTheSizeOfThePicture();
    void keepsProportionsWhereThereIsLessRoom();
    void pointsTheOtherWayFromTheRight();
    void takesItsColourFromTheStyle();
    void drawsALine_data();
    void drawsALine();

private:
    MImageWidget *add(const QString &id);

    std::unique_ptr<TouchScreen> m_screen;
    QTemporaryDir m_folder;
    QString m_file;
};

void TestMImageWidget::initTestCase()
{
    // Red on the left, blue on the right.
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    QPainter painter(&image);
    painter.fillRect(20, 0, 20, 20, Qt::blue);
    painter.end();
    m_file = m_folder.filePath(QStringLiteral("two.png"));
    QVERIFY(image.save(m_file));
    QVERIFY(MTheme::instance()->load(
        R"({"classes": {"MImageWidget": {"tint": ""}},
            "styles": {"Small": {"imageSize": [20, 10]}, "Green": {"tint": "#00ff00"},
                       "Black": {"color": "#000000", "thickness": 3, "paddingLeft": 5}}})",
        QStringLiteral("test")));
}

MImageWidget *TestMImageWidget::add(const QString &id)
{
    auto *widget = new MImageWidget(id);
    m_screen->scene.addItem(widget);
    widget->resize(widget->effectiveSizeHint(Qt::PreferredSize));
    return widget;
}

void TestMImageWidget::hasTheSizeOfThePicture()
{
    MImageWidget *widget = add(m_file);
    QCOMPARE(widget->size(), QSizeF(40, 20));
    widget->setStyleName(QStringLiteral("Small"));
    QCOMPARE(widget->effectiveSizeHint(Qt::PreferredSize), QSizeF(20, 10));
    widget->setImage(QString());
    QCOMPARE(widget->effectiveSizeHint(Qt::PreferredSize), QSizeF(0, 0));
    QCOMPARE(widget->image(), QString());
}

void TestMImageWidget::keepsProportionsWhereThereIsLessRoom()
{
    MImageWidget *widget = add(m_file);
    widget->resize(100, 100);
    QCOMPARE(inkOf(pictureOf(widget)), QRect(30, 40, 40, 20));
    widget->resize(20, 50);
    QCOMPARE(inkOf(pictureOf(widget)), QRect(0, 20, 20, 10));
}

void TestMImageWidget::pointsTheOtherWayFromTheRight()
{
    MImageWidget *widget = add(m_file);
    const auto left = [widget] { return QColor(pictureOf(widget).pixel(5, 10)); };
    QCOMPARE(left(), QColor(Qt::red));
    widget->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(left(), QColor(Qt::red));
    const QString list = QStringLiteral("{\"mirrored\": [\"%1\"]}").arg(m_file);
    QVERIFY(MTheme::instance()->load(list.toUtf8(), QStringLiteral("test")));
    QCOMPARE(left(), QColor(Qt::blue));
    widget->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(left(), QColor(Qt::red));
}

void TestMImageWidget::takesItsColourFromTheStyle()
{
    MImageWidget *widget = add(m_file);
    widget->setStyleName(QStringLiteral("Green"));
    QCOMPARE(pixelsOf(pictureOf(widget), Qt::green), 800);
}

void TestMImageWidget::drawsALine_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QRect>("line");
    QTest::newRow("across") << Qt::Horizontal << QRect(5, 0, 95, 3);
    QTest::newRow("down") << Qt::Vertical << QRect(5, 0, 3, 100);
}

void TestMImageWidget::drawsALine()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QRect, line);

    auto *separator = new MSeparator;
    m_screen->scene.addItem(separator);
    separator->setStyleName(QStringLiteral("Black"));
    separator->setOrientation(orientation);
    const QSizeF hint = separator->effectiveSizeHint(Qt::PreferredSize);
    separator->resize(orientation == Qt::Horizontal ? QSizeF(100, hint.height())
                                                    : QSizeF(hint.width(), 100));
    QCOMPARE(inkOf(pictureOf(separator)), line);
}

QTEST_MAIN(TestMImageWidget)
#include "tst_mimagewidget.moc"
