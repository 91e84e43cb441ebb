// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "picture.h"
#include "touchscreen.h"

#include <touchcore/mlabel.h>
#include <touchcore/mtheme.h>

#include <QFontMetricsF>
#include <QSignalSpy>
#include <QtTest>

namespace
{
const QString longText = QStringLiteral("Bring the blue folder, two copies of the contract and the "
                                        "keys of the storage room on the second floor, please");
const QString arabic = QString::fromUtf8("موعد مع الطبيب");
const int lineHeight = 22;

/// The label at a width, as high as it wants to be.
void fit(MLabel *label, qreal width)
{
    label->resize(width, label->effectiveSizeHint(Qt::PreferredSize, QSizeF(width, -1)).height());
}
} // namespace

class TestMLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_screen = std::make_unique<TouchScreen>();
        m_label = new MLabel;
        m_screen->scene.addItem(m_label);
    }
    void cleanup()
    {
        MTheme::instance()->setTextScale(1);
        m_screen.reset();
    }

    void takesTheRoomItNeeds_data();
    void takesTheRoomItNeeds();
    void isShortenedWhenThereIsNoRoom_data();
    void isShortenedWhenThereIsNoRoom();
    void staysWithinItsWidth();
    void standsWhereItIsAligned_data();
    void standsWhereItIsAligned();
    void laysOutAgainWhenAnythingChanges_data();
    void laysOutAgainWhenAnythingChanges();
    void growsWithTheTextScale();
    void showsMarksOfPlainTextAsTyped();
    void readsRichTextAloudWithoutMarks();
    void loadsNothingThatRichTextNames();
    void tellsOfLinksAndOpensNothing();
    void leavesPressesToWhatLiesBelow();
    void isSharpAtEveryScale();

private:
    std::unique_ptr<TouchScreen> m_screen;
    MLabel *m_label = nullptr;
};

void TestMLabel::takesTheRoomItNeeds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isWrapped");
    QTest::addColumn<int>("maximumLines");
    QTest::addColumn<qreal>("width");
    QTest::addColumn<int>("lines");
    QTest::newRow("no text") << QString() << false << 0 << 200.0 << 1;
    QTest::newRow("one line") << longText << false << 0 << 200.0 << 1;
    QTest::newRow("a line break without wrapping")
        << QStringLiteral("one\ntwo") << false << 0 << 200.0 << 1;
    QTest::newRow("a short text with wrapping")
        << QStringLiteral("Short") << true << 0 << 200.0 << 1;
    QTest::newRow("a line break with wrapping")
        << QStringLiteral("one\ntwo") << true << 0 << 200.0 << 2;
    QTest::newRow("another line break")
        << QStringLiteral("one\r\n\r\ntwo") << true << 0 << 200.0 << 3;
    QTest::newRow("no more lines than allowed") << longText << true << 2 << 200.0 << 2;
    QTest::newRow("a word longer than the line")
        << QStringLiteral("Donaudampfschifffahrtsgesellschaft") << true << 0 << 150.0 << 2;
}

void TestMLabel::takesTheRoomItNeeds()
{
    QFETCH(QString, text);
    QFETCH(bool, isWrapped);
    QFETCH(int, maximumLines);
    QFETCH(qreal, width);
    QFETCH(int, lines);

    m_label->setText(text);
    m_label->setWordWrap(isWrapped);
    m_label->setMaximumLines(maximumLines);
    fit(m_label, width);
    QCOMPARE(m_label->size().height(), qreal(lines * lineHeight));
    QVERIFY(m_label->effectiveSizeHint(Qt::MinimumSize, QSizeF(width, -1)).height()
            <= m_label->size().height());
}

void TestMLabel::isShortenedWhenThereIsNoRoom_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isWrapped");
    QTest::addColumn<int>("maximumLines");
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<qreal>("width");
    QTest::addColumn<bool>("isElided");
    QTest::newRow("one line that fits") << arabic << false << 0 << Qt::ElideRight << 300.0 << false;
    QTest::newRow("one line too long") << longText << false << 0 << Qt::ElideRight << 300.0 << true;
    QTest::newRow("at its start") << longText << false << 0 << Qt::ElideLeft << 300.0 << true;
    QTest::newRow("wrapped without a limit")
        << longText << true << 0 << Qt::ElideRight << 300.0 << false;
    QTest::newRow("wrapped within the limit")
        << longText << true << 4 << Qt::ElideRight << 300.0 << false;
    QTest::newRow("wrapped beyond the limit")
        << longText << true << 2 << Qt::ElideRight << 300.0 << true;
    QTest::newRow("a line break beyond the limit")
        << QStringLiteral("one\ntwo") << true << 1 << Qt::ElideRight << 300.0 << true;
    QTest::newRow("cut off without a mark")
        << longText << false << 0 << Qt::ElideNone << 300.0 << true;
}

void TestMLabel::isShortenedWhenThereIsNoRoom()
{
    QFETCH(QString, text);
    QFETCH(bool, isWrapped);
    QFETCH(int, maximumLines);
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(qreal, width);
    QFETCH(bool, isElided);

    m_label->setText(text);
    m_label->setWordWrap(isWrapped);
    m_label->setMaximumLines(maximumLines);
    m_label->setTextElide(mode);
    fit(m_label, width);
    QCOMPARE(m_label->isElided(), isElided);
    m_label->resize(3000, m_label->size().height());
    QCOMPARE(m_label->isElided(), text.contains(QLatin1Char('\n')));
}

void TestMLabel::staysWithinItsWidth()
{
    m_label->setPos(100, 100);
    m_label->setText(longText);
    m_label->setWordWrap(true);
    for (const int lines : {1, 2, 3}) {
        m_label->setMaximumLines(lines);
        for (qreal width = 60; width < 260; width += 7) {
            fit(m_label, width);
            QImage image(360, 600, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            m_screen->scene.render(&painter, QRectF(image.rect()), QRectF(image.rect()));
            painter.end();
            // The overhang of a letter may touch the next pixel.
            const QRect room = m_label->geometry().toAlignedRect().adjusted(-1, 0, 1, 0);
            QVERIFY2(room.contains(inkOf(image)), qPrintable(QString::number(width)));
        }
    }
}

void TestMLabel::standsWhereItIsAligned_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Qt::Alignment>("seen");
    const QString latin = QStringLiteral("Text");
    const auto top = Qt::AlignTop;
    QTest::newRow("leading") << latin << (Qt::AlignLeading | top) << Qt::LeftToRight
                             << (Qt::AlignLeft | top);
    QTest::newRow("leading from the right")
        << latin << (Qt::AlignLeading | top) << Qt::RightToLeft << (Qt::AlignRight | top);
    QTest::newRow("Arabic in a layout from the left")
        << arabic << (Qt::AlignLeading | top) << Qt::LeftToRight << (Qt::AlignLeft | top);
    QTest::newRow("Arabic in a layout from the right")
        << arabic << (Qt::AlignLeading | top) << Qt::RightToLeft << (Qt::AlignRight | top);
    QTest::newRow("trailing") << latin << (Qt::AlignTrailing | Qt::AlignBottom) << Qt::LeftToRight
                              << (Qt::AlignRight | Qt::AlignBottom);
    QTest::newRow("in the middle") << latin << Qt::Alignment(Qt::AlignCenter) << Qt::LeftToRight
                                   << Qt::Alignment(Qt::AlignCenter);
}

void TestMLabel::standsWhereItIsAligned()
{
    QFETCH(QString, text);
    QFETCH(Qt::Alignment, alignment);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(Qt::Alignment, seen);

    m_label->setText(text);
    m_label->setAlignment(alignment);
    m_label->setLayoutDirection(direction);
    m_label->resize(300, 100);
    const QRect ink = inkOf(pictureOf(m_label));
    QVERIFY(!ink.isEmpty());
    const int left = ink.left();
    const int right = 299 - ink.right();
    QCOMPARE(left < 5, bool(seen & Qt::AlignLeft));
    QCOMPARE(right < 5, bool(seen & Qt::AlignRight));
    QCOMPARE(qAbs(left - right) < 5, bool(seen & Qt::AlignHCenter));
    QCOMPARE(ink.bottom() < lineHeight + 4, bool(seen & Qt::AlignTop));
    QCOMPARE(ink.top() > 100 - lineHeight, bool(seen & Qt::AlignBottom));
}

void TestMLabel::laysOutAgainWhenAnythingChanges_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QByteArray("text") << QVariant(QStringLiteral("Other"));
    QTest::newRow("word wrap") << QByteArray("wordWrap") << QVariant(true);
    QTest::newRow("style") << QByteArray("styleName") << QVariant(QStringLiteral("TitleLabel"));
    QTest::newRow("alignment") << QByteArray("alignment") << QVariant(int(Qt::AlignTrailing));
    QTest::newRow("elision") << QByteArray("textElide") << QVariant(int(Qt::ElideLeft));
    QTest::newRow("format") << QByteArray("textFormat") << QVariant(int(Qt::RichText));
    QTest::newRow("direction") << QByteArray("layoutDirection") << QVariant(int(Qt::RightToLeft));
    QTest::newRow("enabled") << QByteArray("enabled") << QVariant(false);
}

void TestMLabel::laysOutAgainWhenAnythingChanges()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);

    m_label->setText(
        QStringLiteral("<b>Bring</b> the blue folder and the keys of the storage room"));
    m_label->resize(205, 60);
    const QImage before = pictureOf(m_label);
    QVERIFY(m_label->setProperty(property, value));
    QVERIFY(pictureOf(m_label) != before);
}

void TestMLabel::growsWithTheTextScale()
{
    m_label->setText(longText);
    m_label->setWordWrap(true);
    fit(m_label, 300);
    const qreal before = m_label->size().height();
    MTheme::instance()->setTextScale(1.5);
    fit(m_label, 300);
    QVERIFY(m_label->size().height() > 1.5 * before);
    QCOMPARE(std::fmod(m_label->size().height(), lineHeight * 1.5), 0.0);
}

void TestMLabel::showsMarksOfPlainTextAsTyped()
{
    m_label->setText(QStringLiteral("<b>x</b>"));
    const qreal asTyped = m_label->effectiveSizeHint(Qt::PreferredSize).width();
    m_label->setTextFormat(Qt::AutoText);
    QVERIFY(m_label->effectiveSizeHint(Qt::PreferredSize).width() < asTyped / 2);
}

void TestMLabel::readsRichTextAloudWithoutMarks()
{
    m_label->setText(QStringLiteral("a &lt; b &amp; <b>c</b>"));
    QCOMPARE(m_label->plainText(), m_label->text());
    m_label->setTextFormat(Qt::RichText);
    QCOMPARE(m_label->plainText(), QStringLiteral("a < b & c"));
}

void TestMLabel::loadsNothingThatRichTextNames()
{
    QTemporaryDir folder;
    QImage secret(50, 50, QImage::Format_RGB32);
    secret.fill(Qt::red);
    const QString file = folder.filePath(QStringLiteral("secret.png"));
    QVERIFY(secret.save(file));
    m_label->setTextFormat(Qt::RichText);
    m_label->setText(QStringLiteral("<img src=\"%1\"><img src=\"file://%1\">").arg(file));
    m_label->resize(300, 100);
    QCOMPARE(pixelsOf(pictureOf(m_label), Qt::red), 0);
}

void TestMLabel::tellsOfLinksAndOpensNothing()
{
    QSignalSpy activated(m_label, &MLabel::linkActivated);
    m_label->setTextFormat(Qt::RichText);
    m_label->setText(QStringLiteral("<a href=\"geo:60,24\">Where we meet</a> and more"));
    m_label->resize(300, 40);
    m_screen->tap({40, 20});
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.takeFirst().first().toString(), QStringLiteral("geo:60,24"));
    m_screen->tap({40, 2});
    m_screen->tap({250, 20});
    m_screen->press({40, 20});
    m_screen->move({250, 20});
    m_screen->release({250, 20});
    QCOMPARE(activated.count(), 0);
    m_screen->press({40, 20});
    MCancelEvent cancel;
    QApplication::sendEvent(m_label, &cancel);
    m_screen->release({40, 20});
    QCOMPARE(activated.count(), 0);
}

void TestMLabel::leavesPressesToWhatLiesBelow()
{
    Touchable below;
    m_screen->scene.addItem(&below);
    below.resize(300, 40);
    m_label->setParentItem(&below);
    m_label->setText(longText);
    m_label->resize(300, 40);
    m_screen->tap({40, 20});
    QCOMPARE(below.touches, (QStringList{QStringLiteral("press"), QStringLiteral("release")}));
    m_label->setParentItem(nullptr);
}

void TestMLabel::isSharpAtEveryScale()
{
    m_label->setText(QStringLiteral("Sharp"));
    m_label->resize(100, 30);
    const QImage once = pictureOf(m_label);
    for (const int scale : {2, 3}) {
        const QImage image = pictureOf(m_label, scale);
        const QRect ink = inkOf(image);
        const QRect expected = inkOf(once);
        QVERIFY(qAbs(ink.width() - scale * expected.width()) <= 2 * scale);
        QVERIFY(qAbs(ink.top() - scale * expected.top()) <= 2 * scale);
        // An enlarged bitmap would have no more than its steps.
        QImage blown = once.scaled(image.size());
        blown.setDevicePixelRatio(scale);
        QVERIFY(image != blown);
    }
}

QTEST_MAIN(TestMLabel)
#include "tst_mlabel.moc"
