// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "badge.h"

#include <touchcore/mtheme.h>

#include <QFile>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QTest>

/// What the README shows works as it says.
class TestReadmeExample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsABadge();
};

void TestReadmeExample::showsABadge()
{
    QFile theme(QStringLiteral(EXAMPLE_THEME));
    QVERIFY(theme.open(QIODevice::ReadOnly));
    QVERIFY(MTheme::instance()->load(theme.readAll(), theme.fileName()));

    QGraphicsScene scene;
    Badge badge;
    scene.addItem(&badge);
    badge.model()->setCount(3);
    QCOMPARE(badge.effectiveSizeHint(Qt::PreferredSize), QSizeF(24, 24));
    badge.model()->setCount(10000);
    QVERIFY(badge.effectiveSizeHint(Qt::PreferredSize).width() > 30);

    badge.resize(100, 24);
    const auto drawn = [&scene] {
        QImage image(100, 24, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        scene.render(&painter, image.rect(), image.rect());
        return image;
    };
    const QColor accent = MTheme::instance()->color(QStringLiteral("accent"));
    QCOMPARE(drawn().pixelColor(0, 0), QColor(Qt::transparent));
    QCOMPARE(drawn().pixelColor(10, 12), accent);
    QImage blank(40, 16, QImage::Format_ARGB32_Premultiplied);
    blank.fill(accent);
    QVERIFY2(drawn().copy(30, 4, 40, 16) != blank, "there is a number on it");
    badge.setEnabled(false);
    QCOMPARE(drawn().pixelColor(10, 12), MTheme::instance()->color(QStringLiteral("line")));
    QCOMPARE(MTheme::instance()->warnings(), QStringList());
}

QTEST_MAIN(TestReadmeExample)
#include "tst_readmeexample.moc"
