// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "style/stylefiller.h"
#include "style/themevalues.h"

#include <touchcore/mscalableimage.h>
#include <touchcore/mstyle.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

class RuleStyle : public MStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(int, value, setValue, 1)
    M_STYLE_ATTRIBUTE(double, ratio, setRatio, 0.5)
    M_STYLE_ATTRIBUTE(QColor, color, setColor, Qt::black)
    M_STYLE_ATTRIBUTE(QFont, font, setFont)
    M_STYLE_ATTRIBUTE(QSizeF, extent, setExtent)
    M_STYLE_ATTRIBUTE(QSize, cells, setCells)
    M_STYLE_ATTRIBUTE(MScalableImage, image, setImage)
    M_STYLE_ATTRIBUTE(bool, isWide, setIsWide, false)
    M_STYLE_ATTRIBUTE(QString, text, setText)
    M_STYLE_ATTRIBUTE(QPointF, point, setPoint)
};

class Plant : public QObject
{
    Q_OBJECT
};

class Rose : public Plant
{
    Q_OBJECT
};

/// One theme, without the process's own.
class Rules
{
public:
    Rules() { m_values.rules = &m_rules; }

    bool read(const QByteArray &json, const QString &source = QStringLiteral("t.json"))
    {
        return readTheme(json, source, &m_rules, &m_includes, &m_warnings);
    }
    void fill(MStyle *style, const QMetaObject *widget, const QString &name,
              M::Orientation orientation = M::Portrait, const QByteArray &mode = {})
    {
        const StyleFiller filler(m_values, orientation, mode,
                                 [this](const QString &text) { m_warnings.append(text); });
        filler.applyClasses(widget, style);
        if (!name.isEmpty())
            filler.applyNamed(name, style);
    }

    ThemeValues m_values;
    ThemeRules m_rules;
    QStringList m_includes;
    QStringList m_warnings;
};

class TestStyleRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheOrder_data();
    void keepsTheOrder();
    void convertsValues_data();
    void convertsValues();
    void fontsHaveFamilies();
    void takesColorsOfTheScheme_data();
    void takesColorsOfTheScheme();
    void warns_data();
    void warns();
    void knowsWhetherOrientationMatters_data();
    void knowsWhetherOrientationMatters();
};

void TestStyleRules::keepsTheOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<M::Orientation>("orientation");
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<int>("value");

    QTest::newRow("derived over base class") << QString() << M::Portrait << QByteArray() << 20;
    QTest::newRow("landscape over plain") << QString() << M::Landscape << QByteArray() << 21;
    QTest::newRow("mode over orientation")
        << QString() << M::Landscape << QByteArray("pressed") << 22;
    QTest::newRow("a mode without a block")
        << QString() << M::Portrait << QByteArray("error") << 20;
    QTest::newRow("the name over the class")
        << QStringLiteral("named") << M::Portrait << QByteArray() << 30;
    QTest::newRow("the name's plain value over the class's mode")
        << QStringLiteral("named") << M::Portrait << QByteArray("pressed") << 30;
    QTest::newRow("what a style extends")
        << QStringLiteral("heir") << M::Portrait << QByteArray() << 30;
    QTest::newRow("its own block over what it extends")
        << QStringLiteral("heir") << M::Portrait << QByteArray("checked") << 41;
    QTest::newRow("two steps") << QStringLiteral("grandheir") << M::Portrait << QByteArray() << 50;
    QTest::newRow("extends stays when a later file adds to the style")
        << QStringLiteral("layered") << M::Portrait << QByteArray("checked") << 41;
    QTest::newRow("a later file over an earlier one")
        << QStringLiteral("layered") << M::Portrait << QByteArray("disabled") << 62;
}

void TestStyleRules::keepsTheOrder()
{
    QFETCH(QString, name);
    QFETCH(M::Orientation, orientation);
    QFETCH(QByteArray, mode);
    Rules theme;
    QVERIFY(theme.read(R"({
        "classes": {
            "Plant": {"value": 10, "landscape": {"value": 11}, "pressed": {"value": 12}},
            "Rose": {"value": 20, "landscape": {"value": 21}, "pressed": {"value": 22}}
        },
        "styles": {
            "named": {"value": 30},
            "heir": {"extends": "named", "checked": {"value": 41}},
            "grandheir": {"extends": "heir", "value": 50},
            "layered": {"extends": "heir", "disabled": {"value": 61}}
        }})"));
    QVERIFY(theme.read(R"({"styles": {"layered": {"disabled": {"value": 62}}}})",
                       QStringLiteral("later.json")));
    RuleStyle style;
    theme.fill(&style, &Rose::staticMetaObject, name, orientation, mode);
    QTEST(style.value(), "value");
    QCOMPARE(theme.m_warnings, QStringList());
}

void TestStyleRules::convertsValues_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QVariant>("expected"); // invalid: refused
    const auto row = [](const char *attribute, const char *json, const QVariant &expected = {}) {
        QTest::addRow("%s %s", attribute, json)
            << QByteArray(attribute) << QByteArray(json) << expected;
    };
    row("value", "12", 12);
    row("value", "-4", -4);
    row("value", R"("@gap")", 8);
    row("value", R"("gap")");
    row("value", R"("@none")");
    row("value", "1.5");
    row("value", "true");
    row("value", R"("12")");
    row("ratio", "0.25", 0.25);
    row("ratio", R"("@gap")", 8.0);
    row("extent", "[-1, 48]", QSizeF(-1, 48));
    row("extent", R"(["@gap", 1.5])", QSizeF(8, 1.5));
    row("extent", "[1]");
    row("extent", "48");
    row("extent", R"([1, "wide"])");
    row("cells", "[2, 3]", QSize(2, 3));
    row("color", R"("@ink")", QColor(1, 2, 3));
    row("color", R"("@ink/50")", QColor(1, 2, 3, 128));
    row("color", R"("#040506")", QColor(4, 5, 6));
    row("color", R"("#040506/0")", QColor(4, 5, 6, 0));
    row("color", R"("white")", QColor(Qt::white));
    row("color", R"("")", QColor());
    row("color", R"("ink")");
    row("color", R"("@white")");
    row("color", R"("@ink/101")");
    row("color", R"("@ink/half")");
    row("color", R"("#0405")");
    row("color", "7");
    row("image", R"("check")", QVariant::fromValue(MScalableImage(QStringLiteral("check"))));
    row("image", R"(["frame", 1, 2, 3, 4])",
        QVariant::fromValue(MScalableImage(QStringLiteral("frame"), QMargins(1, 2, 3, 4))));
    row("image", R"(["frame", 1, 2, 3])");
    row("image", R"(["frame", 1, 2, 3, -4])");
    row("image", R"(["frame", 1, 2, 3, "4"])");
    row("isWide", "true", true);
    row("isWide", "1");
    row("isWide", R"("true")");
    row("text", R"("@ink")", QStringLiteral("@ink"));
    row("text", "3");
    row("point", "[1, 2]");
    row("font", R"("@none")");
    row("font", R"("bold")");
    row("font", R"("16px blod")");
    row("font", R"("0px")");
    row("font", R"("16px 'Half")");
    row("font", "16");
}

void TestStyleRules::convertsValues()
{
    QFETCH(QByteArray, attribute);
    QFETCH(QByteArray, json);
    QFETCH(QVariant, expected);
    Rules theme;
    QVERIFY(theme.read(R"({"palette": {"ink": "#010203"}, "measures": {"gap": 8}})"));
    QVERIFY(theme.read("{\"classes\": {\"Plant\": {\"" + attribute + "\": " + json + "}}}"));
    RuleStyle style;
    const QVariant untouched = style.property(attribute.constData());
    theme.fill(&style, &Plant::staticMetaObject, QString());
    const QVariant filled = style.property(attribute.constData());
    if (expected.isValid()) {
        QCOMPARE(theme.m_warnings, QStringList());
        if (attribute == "image")
            QCOMPARE(filled.value<MScalableImage>(), expected.value<MScalableImage>());
        else if (attribute == "color") // opacities are kept more finely than QColor compares
            QCOMPARE(filled.value<QColor>().rgba(), expected.value<QColor>().rgba());
        else
            QCOMPARE(filled, expected);
    } else {
        const QString place = QStringLiteral("t.json: Plant.%1: ").arg(QLatin1String(attribute));
        QCOMPARE(theme.m_warnings.size(), 1);
        QVERIFY2(theme.m_warnings.first().startsWith(place), qPrintable(theme.m_warnings.first()));
        if (attribute == "image")
            QVERIFY(filled.value<MScalableImage>().isNull());
        else
            QCOMPARE(filled, untouched);
    }
}

void TestStyleRules::fontsHaveFamilies()
{
    Rules theme;
    QVERIFY(theme.read(R"({"fontFamilies": ["Noto Sans", "sans-serif"],
        "fonts": {"title": "20px medium", "note": "14px 'Noto Serif' italic bold",
        "gone": "16px strikeout"}})"));
    const QFont title = theme.m_values.font(QStringLiteral("title")).value_or(QFont());
    QCOMPARE(title.pixelSize(), 20);
    QCOMPARE(title.weight(), int(QFont::Medium));
    QCOMPARE(title.families(),
             QStringList({QStringLiteral("Noto Sans"), QStringLiteral("sans-serif")}));
    const QFont note = theme.m_values.font(QStringLiteral("note")).value_or(QFont());
    QCOMPARE(note.families().first(), QStringLiteral("Noto Serif"));
    QVERIFY(note.italic());
    QCOMPARE(note.weight(), int(QFont::Bold));
    QVERIFY(!note.strikeOut());
    QVERIFY(theme.m_values.font(QStringLiteral("gone")).value_or(QFont()).strikeOut());
    QVERIFY(!theme.m_values.font(QStringLiteral("20px")));
}

void TestStyleRules::takesColorsOfTheScheme_data()
{
    QTest::addColumn<QString>("role");
    QTest::addColumn<QColor>("light");
    QTest::addColumn<QColor>("dark");
    QTest::newRow("both") << QStringLiteral("ink") << QColor(Qt::black) << QColor(Qt::white);
    QTest::newRow("light only") << QStringLiteral("spot") << QColor(Qt::red) << QColor(Qt::red);
    QTest::newRow("dark only") << QStringLiteral("star") << QColor() << QColor(Qt::yellow);
    QTest::newRow("translucent twice")
        << QStringLiteral("veil/50") << QColor(0, 0, 0, 64) << QColor(0, 0, 0, 64);
    QTest::newRow("none") << QStringLiteral("black") << QColor() << QColor();
}

void TestStyleRules::takesColorsOfTheScheme()
{
    QFETCH(QString, role);
    Rules theme;
    QVERIFY(theme.read(R"({"palette": {"ink": "black", "spot": "red", "veil": "#80000000"},
                           "darkPalette": {"ink": "white", "star": "yellow"}})"));
    QFETCH(QColor, light);
    QFETCH(QColor, dark);
    QCOMPARE(theme.m_values.color(role).name(QColor::HexArgb), light.name(QColor::HexArgb));
    theme.m_values.isDark = true;
    QCOMPARE(theme.m_values.color(role).name(QColor::HexArgb), dark.name(QColor::HexArgb));
}

void TestStyleRules::warns_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, const char *json, const char *warning) {
        QTest::newRow(name) << QByteArray(json) << QString::fromUtf8(warning);
    };
    row("no JSON", "{\n\"styles\": {\n,}}", "t.json:3: ");
    row("no object", "[1]", "t.json: a theme is a JSON object");
    row("empty", "", "t.json:1: ");
    row("unknown section", R"({"colours": {}})", "t.json: there is no section \"colours\"");
    row("section of a wrong type", R"({"styles": []})", "t.json: \"styles\" must be an object");
    row("families", R"({"fontFamilies": "Noto"})",
        "t.json: \"fontFamilies\" must be a list of texts");
    row("include", R"({"include": {}})", "t.json: \"include\" must be a list of texts");
    row("colour", R"({"palette": {"ink": "blak"}})", "t.json: palette.ink must be a colour");
    row("dark colour", R"({"darkPalette": {"ink": 3}})",
        "t.json: darkPalette.ink must be a colour");
    row("measure", R"({"measures": {"gap": 1.5}})", "t.json: measures.gap must be a whole number");
    row("measure as text", R"({"measures": {"gap": "8"}})",
        "t.json: measures.gap must be a whole number");
    row("font", R"({"fonts": {"body": 16}})", "t.json: fonts.body must be a text");
    row("view", R"({"views": {"MButton/a": {}}})", "t.json: views.MButton/a must be a text");
    row("rule", R"({"classes": {"Plant": 3}})", "t.json: classes.Plant must be an object");
    row("block", R"({"classes": {"Plant": {"pressed": 3}}})",
        "t.json: Plant.pressed must be an object");
    row("block in a block", R"({"classes": {"Plant": {"landscape": {"pressed": {}}}}})",
        "t.json: Plant.landscape cannot hold another block");
    row("unknown attribute", R"({"classes": {"Plant": {"colour": "#000"}}})",
        "t.json: Plant: RuleStyle has no attribute \"colour\"");
    row("unknown mode", R"({"classes": {"Plant": {"presed": {"value": 1}}}})",
        "t.json: Plant: RuleStyle has no attribute \"presed\"");
    row("attribute of every object", R"({"classes": {"Plant": {"objectName": "x"}}})",
        "t.json: Plant: RuleStyle has no attribute \"objectName\"");
    row("unknown style", R"({})", "no theme has the style \"named\"");
    row("unknown base", R"({"styles": {"named": {"extends": "base"}}})",
        "t.json: named extends \"base\", which no theme has");
    row("a style that extends itself", R"({"styles": {"named": {"extends": "named"}}})",
        "t.json: the style \"named\" extends itself");
    row("a circle", R"({"styles": {"named": {"extends": "b"}, "b": {"extends": "named"}}})",
        "t.json: the style \"named\" extends itself");
}

void TestStyleRules::warns()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, warning);
    Rules theme;
    theme.read(json);
    RuleStyle style;
    if (theme.m_warnings.isEmpty()) {
        const bool isNamed = warning.contains(QLatin1String("named"));
        theme.fill(&style, &Plant::staticMetaObject, isNamed ? QStringLiteral("named") : QString());
    }
    QCOMPARE(theme.m_warnings.size(), 1);
    QVERIFY2(theme.m_warnings.first().startsWith(warning), qPrintable(theme.m_warnings.first()));
    QCOMPARE(style.value(), 1);
}

void TestStyleRules::knowsWhetherOrientationMatters_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("matters");
    QTest::newRow("no block") << QByteArray(R"({"classes": {"Plant": {"value": 1}}})") << false;
    QTest::newRow("a mode") << QByteArray(R"({"classes": {"Plant": {"pressed": {}}}})") << false;
    QTest::newRow("landscape") << QByteArray(R"({"styles": {"a": {"landscape": {}}}})") << true;
    QTest::newRow("portrait") << QByteArray(R"({"classes": {"Plant": {"portrait": {}}}})") << true;
}

void TestStyleRules::knowsWhetherOrientationMatters()
{
    QFETCH(QByteArray, json);
    Rules theme;
    QVERIFY(theme.read(json));
    QTEST(theme.m_rules.dependOnOrientation, "matters");
}

QTEST_MAIN(TestStyleRules)
#include "tst_stylerules.moc"
