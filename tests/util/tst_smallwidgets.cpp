// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"

#include <daskel/clickablelabel.h>
#include <daskel/mycolorlabel.h>
#include <touchcore/mapplication.h>
#include <touchcore/mbutton.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwidgetview.h>
#include <touchcore/mwindow.h>

#include <QGraphicsLinearLayout>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>

class TestSmallWidgets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void labelsAreClicked();
    void swatchesShowTheirColor_data();
    void swatchesShowTheirColor();
    void swatchesKeepTheirMargins();
    void buttonsAreAsLargeAsTheirContents();
};

/// Wherever the finger is when it leaves; a label below hears nothing.
void TestSmallWidgets::labelsAreClicked()
{
    MWindow window;
    window.resize(200, 200);
    window.show();
    ClickableLabel label(QStringLiteral("Tap"));
    label.setGeometry(50, 50, 60, 30);
    window.scene()->addItem(&label);
    QSignalSpy clicked(&label, &ClickableLabel::clicked);
    const auto touch = [&window](const QPoint &down, const QPoint &up) {
        QTest::mousePress(window.viewport(), Qt::LeftButton, Qt::NoModifier, down);
        QTest::mouseRelease(window.viewport(), Qt::LeftButton, Qt::NoModifier, up);
    };
    touch({60, 60}, {60, 60});
    QCOMPARE(clicked.count(), 1);
    touch({60, 60}, {150, 150});
    QCOMPARE(clicked.count(), 2);
    touch({10, 10}, {60, 60});
    QCOMPARE(clicked.count(), 2);
    window.scene()->removeItem(&label);
}

void TestSmallWidgets::swatchesShowTheirColor_data()
{
    addColumns<QColor, double, QColor>("color", "opacity", "shown");
    addRow("a colour", QColor(Qt::red), 1.0, QColor(Qt::red));
    addRow("half of it", QColor(Qt::red), 0.5, QColor(255, 127, 127));
    addRow("none", QColor(), 1.0, QColor(Qt::white));
    addRow("no colour of Qt's", QColor(Qt::color0), 1.0, QColor(Qt::white));
}

void TestSmallWidgets::swatchesShowTheirColor()
{
    QFETCH(QColor, color);
    QFETCH(double, opacity);
    QFETCH(QColor, shown);
    MyColorLabel swatch;
    swatch.resize(16, 16);
    swatch.setColor(color);
    swatch.setColorOpacity(opacity);
    QCOMPARE(swatch.color(), color);
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    swatch.paint(&painter, nullptr);
    const QColor middle = image.pixelColor(8, 8);
    QVERIFY(qAbs(middle.green() - shown.green()) <= 1);
    QCOMPARE(middle.red(), shown.red());
    // Round corners leave the outermost pixel free.
    QVERIFY(image.pixelColor(0, 0).green() >= middle.green());
}

void TestSmallWidgets::swatchesKeepTheirMargins()
{
    MTheme::instance()->load(
        R"({"styles": {"TestSwatch": {"marginLeft": 4, "marginTop": 6, "marginRight": 2,
                                      "marginBottom": 0}}})",
        QStringLiteral("test"));
    MyColorLabel swatch;
    swatch.setStyleName(QStringLiteral("TestSwatch"));
    swatch.resize(16, 16);
    swatch.setColor(Qt::red);
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    swatch.paint(&painter, nullptr);
    const QColor white(Qt::white);
    QCOMPARE(image.pixelColor(2, 12), white);
    QCOMPARE(image.pixelColor(10, 4), white);
    QCOMPARE(image.pixelColor(6, 12), QColor(Qt::red));
    QCOMPARE(image.pixelColor(10, 14), QColor(Qt::red));
    QCOMPARE(image.pixelColor(15, 12), white);
}

void TestSmallWidgets::buttonsAreAsLargeAsTheirContents()
{
    MTheme::instance()->addLibrary(QStringLiteral("libdaskel"));
    MTheme::instance()->load(
        R"({"styles": {"TestButton": {"paddingLeft": 10, "paddingTop": 20, "paddingRight": 30,
                                      "paddingBottom": 40}}})",
        QStringLiteral("test"));
    MButton button;
    button.setViewType(QStringLiteral("daskel"));
    button.setStyleName(QStringLiteral("TestButton"));
    QCOMPARE(button.view()->metaObject()->className(), "DaskelMButtonView");
    const QSizeF plain = button.effectiveSizeHint(Qt::PreferredSize);
    auto *layout = new QGraphicsLinearLayout(&button);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *content = new MWidget;
    content->setPreferredSize(300, 200);
    layout->addItem(content);
    for (const Qt::SizeHint which : {Qt::MinimumSize, Qt::PreferredSize})
        QCOMPARE(button.view()->sizeHint(which, QSizeF()), QSizeF(340, 260));
    content->setPreferredSize(0, 0);
    QCOMPARE(button.view()->sizeHint(Qt::PreferredSize, QSizeF()), plain);
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestSmallWidgets test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_smallwidgets.moc"
