// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "style/stylefiller.h"
#include "style/themevalues.h"
#include "styleclasses.h"

#include <touchcore/mbutton.h>
#include <touchcore/mbuttonstyle.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mtheme.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>
#include <QXmlStreamReader>
#include <QtMath>

#include <algorithm>

Q_DECLARE_METATYPE(const QMetaObject *)

namespace
{
const QString folder = QStringLiteral(":/daskel/themes/base/");
const QList<QByteArray> modes{"",         "pressed", "selected", "checked",
                              "disabled", "error",   "current",  "floating"};

/// The relative luminance and the contrast ratio of WCAG 2.1.
qreal luminance(const QColor &color)
{
    const auto linear = [](qreal part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

qreal contrast(const QColor &one, const QColor &other)
{
    const qreal lighter = qMax(luminance(one), luminance(other));
    const qreal darker = qMin(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

/// The rules of the toolkit's theme and of the calendar library's, apart from the process's theme.
class Rules
{
public:
    Rules()
    {
        m_values.rules = &m_rules;
        read(folder + QLatin1String("theme.json"));
        read(QStringLiteral(LIBRARY_THEME));
    }

    const ThemeRules &rules() const { return m_rules; }
    QStringList warnings() const { return m_warnings; }

    /// What is wrong with the rules of a class or a named style, for a style class.
    QStringList faults(const StyleClass &style, const QString &className, const QString &name) const
    {
        QStringList found;
        for (const M::Orientation orientation : {M::Portrait, M::Landscape}) {
            for (const QByteArray &mode : modes) {
                const StyleFiller filler(m_values, orientation, mode,
                                         [&found](const QString &text) { found.append(text); });
                const std::unique_ptr<MStyle> made(style.make());
                if (name.isEmpty())
                    filler.applyRulesOf(className, made.get());
                else
                    filler.applyNamed(name, made.get());
            }
        }
        found.removeDuplicates();
        return found;
    }

private:
    void read(const QString &fileName)
    {
        QFile file(fileName);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(fileName));
        QStringList includes;
        QVERIFY(readTheme(file.readAll(), fileName, &m_rules, &includes, &m_warnings));
        for (const QString &included : qAsConst(includes))
            read(folder + included);
    }

    ThemeRules m_rules;
    ThemeValues m_values;
    QStringList m_warnings;
};

/// Of all style classes the one that takes a rule best.
QStringList fewestFaults(const Rules &theme, const QString &className, const QString &name)
{
    QStringList fewest{QStringLiteral("there is no style class")};
    bool isFirst = true;
    for (const StyleClass &style : styleClasses()) {
        const QStringList found = theme.faults(style, className, name);
        if (isFirst || found.size() < fewest.size())
            fewest = found;
        isFirst = false;
    }
    return fewest;
}

/// The style of a button, a label or a row as the process's theme gives it.
QSharedPointer<const MStyle> styleOf(const QMetaObject *widget, const QString &name,
                                     const QByteArray &mode)
{
    if (widget == &MButton::staticMetaObject) {
        return MTheme::instance()->style([] { return new MButtonStyle; },
                                         &MButtonStyle::staticMetaObject, widget, name, mode);
    }
    return MTheme::instance()->style([] { return new MLabelStyle; }, &MLabelStyle::staticMetaObject,
                                     widget, name, mode);
}
} // namespace

/// The look that people get: what the colours, the rules and the pictures of the theme promise.
class TestBaseTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { MTheme::instance()->setColorScheme(M::LightScheme); }
    void hasContrast_data();
    void hasContrast();
    void rulesFit_data();
    void rulesFit();
    void targetsAreLargeEnough_data();
    void targetsAreLargeEnough();
    void textStandsOutFromItsFrame_data();
    void textStandsOutFromItsFrame();
    void iconsKeepToTheGrid_data();
    void iconsKeepToTheGrid();
    void turnsOnlyPicturesThatItHas();
    void paintsAGlyph();
};

void TestBaseTheme::initTestCase()
{
    QCOMPARE(MTheme::instance()->warnings(), QStringList());
    QCOMPARE(Rules().warnings(), QStringList());
    QFile file(QStringLiteral(LIBRARY_THEME));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(MTheme::instance()->load(file.readAll(), file.fileName()));
}

void TestBaseTheme::hasContrast_data()
{
    QTest::addColumn<M::ColorScheme>("scheme");
    QTest::addColumn<QString>("role");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<qreal>("atLeast");
    const struct {
        const char *role;
        const char *grounds;
        qreal atLeast;
    } promises[] = {
        {"text", "background surface raised", 12},
        {"text", "accentSoft", 7},
        {"secondaryText", "background surface raised", 6},
        {"secondaryText", "accentSoft", 4.5},
        {"accent", "background surface", 4.8},
        {"warning", "background surface", 4.8},
        {"done", "background surface", 4.8},
        {"onAccent", "accent", 4.5},
        // Large text and marks.
        {"accent", "accentSoft raised", 3},
        {"warning", "raised", 3},
        {"focusRing", "background surface raised accentSoft", 3},
    };
    for (const M::ColorScheme scheme : {M::LightScheme, M::DarkScheme}) {
        for (const auto &promise : promises) {
            const QStringList grounds =
                QString::fromLatin1(promise.grounds).split(QLatin1Char(' '));
            for (const QString &ground : grounds) {
                QTest::addRow("%s on %s, %s", promise.role, qPrintable(ground),
                              scheme == M::DarkScheme ? "dark" : "light")
                    << scheme << QString::fromLatin1(promise.role) << ground << promise.atLeast;
            }
        }
    }
}

void TestBaseTheme::hasContrast()
{
    QFETCH(M::ColorScheme, scheme);
    QFETCH(QString, role);
    QFETCH(QString, ground);
    QFETCH(qreal, atLeast);
    MTheme::instance()->setColorScheme(scheme);
    const qreal ratio =
        contrast(MTheme::instance()->color(role), MTheme::instance()->color(ground));
    QVERIFY2(ratio >= atLeast, qPrintable(QStringLiteral("only %1").arg(ratio)));
}

void TestBaseTheme::rulesFit_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("styleName");
    // Their style classes are the library's.
    const QStringList ofTheLibrary{QStringLiteral("NoteWidget"),
                                   QStringLiteral("DaskelApplicationHeader")};
    const Rules theme;
    const QStringList classes = theme.rules().classes.keys();
    for (const QString &name : classes) {
        if (!ofTheLibrary.contains(name))
            QTest::addRow("class %s", qPrintable(name)) << name << QString();
    }
    const QStringList styles = theme.rules().styles.keys();
    for (const QString &name : styles) {
        if (!ofTheLibrary.contains(name))
            QTest::addRow("style %s", qPrintable(name)) << QString() << name;
    }
}

void TestBaseTheme::rulesFit()
{
    QFETCH(QString, className);
    QFETCH(QString, styleName);
    const QStringList faults = fewestFaults(Rules(), className, styleName);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestBaseTheme::targetsAreLargeEnough_data()
{
    QTest::addColumn<const QMetaObject *>("widget");
    QTest::addColumn<QString>("styleName");
    const struct {
        const QMetaObject *widget;
        const char *ending;
    } pressed[] = {{&MButton::staticMetaObject, "Button"},
                   {&MListItem::staticMetaObject, "Item"},
                   {&MListItem::staticMetaObject, "Row"}};
    const Rules theme;
    for (const auto &kind : pressed) {
        QTest::addRow("%s %s", kind.widget->className(), kind.ending) << kind.widget << QString();
        const QStringList styles = theme.rules().styles.keys();
        for (const QString &name : styles) {
            if (name.endsWith(QLatin1String(kind.ending)))
                QTest::addRow("%s", qPrintable(name)) << kind.widget << name;
        }
    }
}

void TestBaseTheme::targetsAreLargeEnough()
{
    QFETCH(const QMetaObject *, widget);
    QFETCH(QString, styleName);
    for (const M::Orientation orientation : {M::Portrait, M::Landscape}) {
        MTheme::instance()->setOrientation(orientation);
        for (const QByteArray &mode : modes) {
            const auto style = styleOf(widget, styleName, mode);
            const QSizeF least =
                static_cast<const MWidgetStyle *>(style.data())->sizeHint(Qt::MinimumSize);
            QVERIFY2(least.width() >= 48 && least.height() >= 48,
                     qPrintable(QStringLiteral("%1 x %2").arg(least.width()).arg(least.height())));
        }
    }
    MTheme::instance()->setOrientation(M::Portrait);
}

void TestBaseTheme::textStandsOutFromItsFrame_data()
{
    QTest::addColumn<M::ColorScheme>("scheme");
    QTest::addColumn<const QMetaObject *>("widget");
    QTest::addColumn<QString>("styleName");
    const Rules theme;
    QStringList styles = theme.rules().styles.keys();
    styles.removeAll(QStringLiteral("CommonGroupHeaderWhite")); // its frame is its panel's
    for (const M::ColorScheme scheme : {M::LightScheme, M::DarkScheme}) {
        for (const QString &name : qAsConst(styles)) {
            const QMetaObject *widget = name.endsWith(QLatin1String("Button"))
                ? &MButton::staticMetaObject
                : &MLabel::staticMetaObject;
            if (theme.rules().styles.value(name).first().block.contains(QLatin1String("color")))
                QTest::addRow("%s, %s", qPrintable(name),
                              scheme == M::DarkScheme ? "dark" : "light")
                    << scheme << widget << name;
        }
    }
}

void TestBaseTheme::textStandsOutFromItsFrame()
{
    QFETCH(M::ColorScheme, scheme);
    QFETCH(const QMetaObject *, widget);
    QFETCH(QString, styleName);
    MTheme *theme = MTheme::instance();
    theme->setColorScheme(scheme);
    for (const QByteArray &mode : {QByteArray(), QByteArray("pressed"), QByteArray("checked")}) {
        const auto style = styleOf(widget, styleName, mode);
        const auto color = style->property("color").value<QColor>();
        const auto frame = style->property("backgroundColor").value<QColor>();
        const qreal ratio = frame.isValid()
            ? contrast(color, frame)
            : qMin(contrast(color, theme->color(QStringLiteral("background"))),
                   contrast(color, theme->color(QStringLiteral("surface"))));
        QVERIFY2(ratio >= 4.5, qPrintable(QStringLiteral("%1: %2").arg(mode.data()).arg(ratio)));
    }
}

void TestBaseTheme::iconsKeepToTheGrid_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    const QDir images(folder + QLatin1String("images"));
    const QStringList files = images.entryList({QStringLiteral("*.svg")});
    QVERIFY(files.size() > 40);
    for (const QString &file : files) {
        QTest::addRow("%s", qPrintable(file))
            << images.filePath(file)
            << (file.startsWith(QLatin1String("no-")) ? QSize(160, 120) : QSize(24, 24));
    }
}

void TestBaseTheme::iconsKeepToTheGrid()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);
    QFile svg(file);
    QVERIFY(svg.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&svg);
    int strokes = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (attributes.hasAttribute(QLatin1String("stroke-width"))) {
            QCOMPARE(attributes.value(QLatin1String("stroke-width")), QLatin1String("2"));
            QCOMPARE(attributes.value(QLatin1String("stroke-linecap")), QLatin1String("round"));
            ++strokes;
        }
        const auto fill = attributes.value(QLatin1String("fill"));
        if (!fill.isEmpty() && fill != QLatin1String("none"))
            QCOMPARE(xml.name(), QLatin1String("circle"));
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(strokes, 1);

    QSvgRenderer drawing(file);
    QCOMPARE(drawing.defaultSize(), size);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    int inked = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool isEdge = x == 0 || y == 0 || x == size.width() - 1 || y == size.height() - 1;
            const int alpha = qAlpha(image.pixel(x, y));
            QVERIFY2(!isEdge || alpha == 0, "a pixel around it is free");
            inked += alpha > 128;
        }
    }
    QVERIFY(inked > 10);
}

void TestBaseTheme::turnsOnlyPicturesThatItHas()
{
    const QSet<QString> mirrored = Rules().rules().mirroredImages;
    QVERIFY(!mirrored.isEmpty());
    for (const QString &id : mirrored)
        QVERIFY2(!MTheme::instance()->imageFile(id).isEmpty(), qPrintable(id));
}

void TestBaseTheme::paintsAGlyph()
{
    // Where the fonts are missing, all texts vanish without a word.
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(MTheme::instance()->font(QStringLiteral("title")));
    painter.drawText(image.rect(), Qt::AlignCenter, QStringLiteral("W"));
    painter.end();
    QImage blank(40, 40, QImage::Format_RGB32);
    blank.fill(Qt::white);
    QVERIFY(image != blank);
}

QTEST_MAIN(TestBaseTheme)
#include "tst_basetheme.moc"
