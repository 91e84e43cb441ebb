// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtable.h"

#include <daskel/daskelpageheaderwidget.h>
#include <touchcore/mapplication.h>
#include <touchcore/mbutton.h>
#include <touchcore/mimagewidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mseparator.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>

#include <memory>

class TestPageHeader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void arrangesItsParts_data();
    void arrangesItsParts();
    void namesItsStyles();
    void colorsItsBackground_data();
    void colorsItsBackground();
    void keepsTheTitleReadable();
    void fadesTheColorDownwards();
    void wrapsTheTitle();
    void mirrorsItself();

private:
    template <class Part> Part *part() const
    {
        for (QGraphicsItem *item : m_header->childItems()) {
            if (auto *found = dynamic_cast<Part *>(item))
                return found;
        }
        return nullptr;
    }
    QString row() const;
    QImage picture() const;

    std::unique_ptr<DaskelPageHeaderWidget> m_header;
};

void TestPageHeader::init()
{
    MTheme::instance()->setColorScheme(M::LightScheme);
    m_header = std::make_unique<DaskelPageHeaderWidget>();
    m_header->setTitle(QStringLiteral("November"));
}

void TestPageHeader::cleanup()
{
    m_header.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

/// What stands in the header: i(con), t(itle), b(utton) in their row, s(eparator) below.
QString TestPageHeader::row() const
{
    auto *main = static_cast<QGraphicsLinearLayout *>(m_header->layout());
    auto *row = static_cast<QGraphicsLinearLayout *>(main->itemAt(0));
    QString names;
    for (int i = 0; i < row->count(); ++i) {
        const QGraphicsItem *item = row->itemAt(i)->graphicsItem();
        names += item == part<MImageWidget>() ? QLatin1Char('i')
            : item == part<MButton>()         ? QLatin1Char('b')
            : item == part<MLabel>()          ? QLatin1Char('t')
                                              : QLatin1Char('?');
    }
    for (int i = 1; i < main->count(); ++i)
        names += main->itemAt(i)->graphicsItem() == part<MSeparator>() ? QLatin1Char('s')
                                                                       : QLatin1Char('?');
    return names;
}

QImage TestPageHeader::picture() const
{
    QGraphicsScene scene;
    scene.addItem(m_header.get());
    m_header->resize(360, 56);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QImage image(360, 56, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), m_header->sceneBoundingRect());
    scene.removeItem(m_header.get());
    return image;
}

/// Each step shows (upper case) or takes away a part: I(con), B(utton), S(eparator).
void TestPageHeader::arrangesItsParts_data()
{
    addColumns<QString, QString>("steps", "row");
    const auto row = [](const char *name, const char *steps, const char *parts) {
        addRow(name, QString::fromLatin1(steps), QString::fromLatin1(parts));
    };
    row("at first", "", "t");
    row("an icon", "I", "it");
    row("another icon", "II", "it");
    row("no icon any more", "Ii", "t");
    row("a button", "B", "tb");
    row("a button twice", "BB", "tb");
    row("no button any more", "Bb", "t");
    row("no button ever", "b", "t");
    row("an icon after the button", "BI", "itb");
    row("a separator", "S", "ts");
    row("no separator any more", "SSs", "t");
    row("all, then none", "ISBbsi", "t");
}

void TestPageHeader::arrangesItsParts()
{
    QFETCH(QString, steps);
    for (const QChar step : steps) {
        if (step.toLower() == QLatin1Char('i'))
            m_header->setImage(step.isUpper() ? QStringLiteral("note") : QString());
        else if (step.toLower() == QLatin1Char('b'))
            m_header->setButtonVisible(step.isUpper());
        else
            m_header->setSeparatorVisible(step.isUpper());
    }
    QTEST(row(), "row");
    const QString parts = row();
    QCOMPARE(part<MImageWidget>()->isVisible(), parts.contains('i'));
    QCOMPARE(m_header->image().isEmpty(), !parts.contains('i'));
    QCOMPARE(part<MButton>()->isVisible(), parts.contains('b'));
    QCOMPARE(part<MSeparator>()->isVisible(), parts.contains('s'));
}

void TestPageHeader::namesItsStyles()
{
    QCOMPARE(m_header->styleName(), QStringLiteral("DaskelApplicationHeader"));
    QCOMPARE(part<MImageWidget>()->styleName(), QStringLiteral("PageHeaderIcon"));
    QCOMPARE(m_header->getButtonWidget(), part<MButton>());
    QCOMPARE(part<MButton>()->styleName(), QStringLiteral("CommonHeaderButton"));
    m_header->setSeparatorStyle(QStringLiteral("CommonSeparator"));
    QCOMPARE(part<MSeparator>()->styleName(), QStringLiteral("CommonSeparator"));
    m_header->applyStyle();
    QVERIFY(!m_header->style()->labelStyle().isEmpty());
    QCOMPARE(part<MLabel>()->styleName(), m_header->style()->labelStyle());
    QCOMPARE(MTheme::instance()->warnings(), QStringList());
}

void TestPageHeader::colorsItsBackground_data()
{
    addColumns<QString, QColor, QColor>("style", "set", "shown");
    const QColor green(Qt::darkGreen);
    const QColor blue(Qt::blue);
    addRow("a colour", QStringLiteral("DaskelApplicationHeader"), green, green);
    addRow("the style's colour", QStringLiteral("TestBlueHeader"), QColor(), blue);
    addRow("the style's colour above the one that is set", QStringLiteral("TestBlueHeader"), green,
           blue);
}

/// The colour itself stands at the leading edge; a style that comes later is asked, too.
void TestPageHeader::colorsItsBackground()
{
    QFETCH(QString, style);
    QFETCH(QColor, set);
    MTheme::instance()->load(R"({"styles": {"TestBlueHeader": {"color": "#0000ff"}}})",
                             QStringLiteral("test"));
    m_header->setColor(set);
    m_header->setStyleName(style);
    m_header->applyStyle();
    QTEST(picture().pixelColor(1, 28), "shown");
    m_header->applyStyle();
    QTEST(picture().pixelColor(1, 28), "shown");
}

/// Whatever colour a notebook has, it is soft where the title stands.
void TestPageHeader::keepsTheTitleReadable()
{
    for (const M::ColorScheme scheme : {M::LightScheme, M::DarkScheme}) {
        MTheme::instance()->setColorScheme(scheme);
        m_header->setColor(QColor());
        const QColor plain = picture().pixelColor(350, 28);
        for (const QColor &color : {QColor(Qt::black), QColor(Qt::white), QColor(Qt::red)}) {
            m_header->setColor(color);
            const QColor soft = picture().pixelColor(350, 28);
            QVERIFY(qAbs(qGray(soft.rgb()) - qGray(plain.rgb())) <= 45);
        }
    }
}

void TestPageHeader::fadesTheColorDownwards()
{
    MTheme::instance()->load(
        R"({"styles": {"TestFadingHeader": {"gradient": true, "color": "#ff0000"}}})",
        QStringLiteral("test"));
    m_header->setStyleName(QStringLiteral("TestFadingHeader"));
    m_header->applyStyle();
    const QImage image = picture();
    QVERIFY(image.pixelColor(350, 1).green() < image.pixelColor(350, 28).green());
    QVERIFY(image.pixelColor(350, 28).green() < image.pixelColor(350, 54).green());
}

void TestPageHeader::wrapsTheTitle()
{
    QCOMPARE(m_header->title(), QStringLiteral("November"));
    const qreal oneLine = m_header->effectiveSizeHint(Qt::PreferredSize, QSizeF(360, -1)).height();
    m_header->setTitle(QStringLiteral("meeting ").repeated(60));
    const qreal height = m_header->effectiveSizeHint(Qt::PreferredSize, QSizeF(360, -1)).height();
    QVERIFY(height > oneLine);
    m_header->resize(360, height);
    m_header->layout()->activate();
    auto *label = part<MLabel>();
    QCOMPARE(label->maximumLines(), 3);
    QVERIFY(label->isElided());
    // Lines of equal height: three of them, no more.
    QVERIFY(height <= 3 * oneLine);
}

void TestPageHeader::mirrorsItself()
{
    m_header->setImage(QStringLiteral("note"));
    m_header->setButtonVisible(true);
    m_header->getButtonWidget()->setText(QStringLiteral("Today"));
    m_header->setColor(Qt::blue);
    QCOMPARE(picture().pixelColor(1, 28), QColor(Qt::blue));
    QVERIFY(part<MImageWidget>()->x() < part<MLabel>()->x());
    QVERIFY(part<MLabel>()->x() < part<MButton>()->x());
    m_header->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(picture().pixelColor(358, 28), QColor(Qt::blue));
    QVERIFY(part<MImageWidget>()->x() > part<MLabel>()->x());
    QVERIFY(part<MLabel>()->x() > part<MButton>()->x());
}

int main(int argc, char **argv)
{
    MApplication application(argc, argv);
    TestPageHeader test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pageheader.moc"
