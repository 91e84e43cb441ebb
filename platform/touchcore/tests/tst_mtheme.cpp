// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mtheme.h>
#include <touchcore/mwidgetstyle.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using Files = QMap<QString, QByteArray>;
Q_DECLARE_METATYPE(Files)

namespace
{
const QByteArray drawing = R"(<svg xmlns="http://www.w3.org/2000/svg" width="4" height="4"/>)";

MTheme &theme()
{
    return *MTheme::instance();
}
} // namespace

/// There is one theme: each case uses libraries and names of its own.
class TestMTheme : public QObject
{
    Q_OBJECT

public:
    explicit TestMTheme(const QString &dataFolder) : m_themes(dataFolder) { }

private Q_SLOTS:
    void addsLibraries_data();
    void addsLibraries();
    void putsThePersonsThemeAboveTheInstalledOne();
    void findsPicturesOfTheLastLibraryFirst();
    void addsALibraryOnce();
    void refusesWhatItCannotRead();
    void switchesTheScheme();
    void boundsTheTextScale_data();
    void boundsTheTextScale();
    void tellsOfTheOrientationWhereItMatters();
    void sharesStyles();
    void warnsOnceOfUnknownNames();

private:
    void write(const QString &library, const Files &files) const;
    QSharedPointer<const MStyle> styleNamed(const QString &name, const QByteArray &mode = {}) const
    {
        return theme().style([] { return new MWidgetStyle; }, &MWidgetStyle::staticMetaObject,
                             &QObject::staticMetaObject, name, mode);
    }

    const QDir m_themes;
};

void TestMTheme::write(const QString &library, const Files &files) const
{
    for (auto each = files.begin(); each != files.end(); ++each) {
        const QString name = m_themes.filePath(library + QLatin1Char('/') + each.key());
        QVERIFY(QDir().mkpath(QFileInfo(name).path()));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(each.value());
    }
}

void TestMTheme::addsLibraries_data()
{
    QTest::addColumn<Files>("files");
    QTest::addColumn<bool>("isAdded");
    QTest::addColumn<int>("probe");
    QTest::addColumn<QString>("warning");
    const QString main = QStringLiteral("theme.json");
    const QString other = QStringLiteral("other.json");

    QTest::newRow("one file") << Files{{main, R"({"measures": {"probe": 1}})"}} << true << 1
                              << QString();
    QTest::newRow("what is included stands above")
        << Files{{main, R"({"include": ["other.json"], "measures": {"probe": 1}})"},
                 {other, R"({"measures": {"probe": 2}})"}}
        << true << 2 << QString();
    QTest::newRow("a file that includes itself")
        << Files{{main, R"({"include": ["theme.json"], "measures": {"probe": 3}})"}} << false << 3
        << QStringLiteral("theme.json: includes itself");
    QTest::newRow("a circle of files")
        << Files{{main, R"({"include": ["other.json"], "measures": {"probe": 4}})"},
                 {other, R"({"include": ["theme.json"]})"}}
        << false << 4 << QStringLiteral("theme.json: includes itself");
    QTest::newRow("an included file is missing")
        << Files{{main, R"({"include": ["other.json"], "measures": {"probe": 5}})"}} << false << 5
        << QStringLiteral("other.json: ");
    QTest::newRow("a torn file changes nothing") << Files{{main, R"({"measures": {"probe": 6})"}}
                                                 << false << 5 << QStringLiteral("theme.json:1: ");
    QTest::newRow("no theme") << Files() << false << 5
                              << QStringLiteral("There is no theme of the library \"");
}

void TestMTheme::addsLibraries()
{
    QFETCH(Files, files);
    QFETCH(QString, warning);
    const QString library = QString::fromLatin1(QTest::currentDataTag()).remove(QLatin1Char(' '));
    write(library, files);
    if (!warning.isEmpty()) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(warning)));
    }
    const int before = theme().warnings().size();
    QTEST(theme().addLibrary(library), "isAdded");
    QTEST(theme().measure(QStringLiteral("probe")), "probe");
    QCOMPARE(theme().warnings().size(), before + (warning.isEmpty() ? 0 : 1));
}

void TestMTheme::putsThePersonsThemeAboveTheInstalledOne()
{
    // The build has put a theme of this library beside the program.
    write(QStringLiteral("installed"),
          {{QStringLiteral("theme.json"), R"({"measures": {"installedProbe": 2}})"},
           {QStringLiteral("images/probe.svg"), drawing}});
    QVERIFY(theme().addLibrary(QStringLiteral("installed")));
    QCOMPARE(theme().measure(QStringLiteral("installedProbe")), 2);
    QCOMPARE(theme().measure(QStringLiteral("installedOther")), 7);
    QCOMPARE(theme().imageFile(QStringLiteral("probe")),
             m_themes.filePath(QStringLiteral("installed/images/probe.svg")));
}

void TestMTheme::findsPicturesOfTheLastLibraryFirst()
{
    QCOMPARE(theme().imageFile(QStringLiteral("check")),
             QStringLiteral(":/daskel/themes/base/images/check.svg"));
    QCOMPARE(theme().imageFile(QStringLiteral("leaf")), QString());
    for (const char *library : {"first", "second"}) {
        write(QLatin1String(library),
              {{QStringLiteral("theme.json"), "{}"},
               {QStringLiteral("images/check.svg"), drawing},
               {QStringLiteral("images/leaf.png"), drawing}});
        QVERIFY(theme().addLibrary(QLatin1String(library)));
        const QString images =
            m_themes.filePath(QLatin1String(library) + QLatin1String("/images/"));
        QCOMPARE(theme().imageFile(QStringLiteral("check")), images + QLatin1String("check.svg"));
        QCOMPARE(theme().imageFile(QStringLiteral("leaf")), images + QLatin1String("leaf.png"));
    }
    QVERIFY(theme().isMirrored(QStringLiteral("back")));
    QVERIFY(!theme().isMirrored(QStringLiteral("check")));
}

void TestMTheme::addsALibraryOnce()
{
    write(QStringLiteral("once"), {{QStringLiteral("theme.json"), "{}"}});
    QSignalSpy changes(&theme(), &MTheme::changed);
    theme().registerStylableType("PageHeader", QStringLiteral("once"));
    theme().registerStylableType("OtherClass", QStringLiteral("once"));
    QVERIFY(theme().addLibrary(QStringLiteral("once")));
    QCOMPARE(changes.size(), 1);
}

void TestMTheme::refusesWhatItCannotRead()
{
    QSignalSpy changes(&theme(), &MTheme::changed);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^text:1: ")));
    QVERIFY(!theme().load("{", QStringLiteral("text")));
    QVERIFY(changes.isEmpty());
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^text: .*include \"a.json\"")));
    QVERIFY(theme().load(R"({"include": ["a.json"]})", QStringLiteral("text")));
    QCOMPARE(changes.size(), 1);
}

void TestMTheme::switchesTheScheme()
{
    QVERIFY(theme().load(
        R"({"palette": {"probe": "white"}, "darkPalette": {"probe": "black"},
            "styles": {"probeStyle": {"backgroundColor": "@probe"}}})",
        QStringLiteral("scheme")));
    const auto background = [this] {
        const auto style = styleNamed(QStringLiteral("probeStyle"));
        return static_cast<const MWidgetStyle *>(style.data())->backgroundColor();
    };
    QSignalSpy changes(&theme(), &MTheme::changed);
    QCOMPARE(background(), QColor(Qt::white));
    theme().setColorScheme(M::DarkScheme);
    theme().setColorScheme(M::DarkScheme);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(background(), QColor(Qt::black));
    QCOMPARE(theme().color(QStringLiteral("probe")), QColor(Qt::black));
    theme().setColorScheme(M::LightScheme);
    QCOMPARE(background(), QColor(Qt::white));
}

void TestMTheme::boundsTheTextScale_data()
{
    QTest::addColumn<qreal>("wanted");
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<int>("pixels");
    QTest::newRow("larger") << 1.5 << 1.5 << 24;
    QTest::newRow("too large") << 9.0 << 3.0 << 48;
    QTest::newRow("too small") << 0.0 << 0.5 << 8;
    QTest::newRow("as it is") << 1.0 << 1.0 << 16;
}

void TestMTheme::boundsTheTextScale()
{
    QFETCH(qreal, wanted);
    QSignalSpy changes(&theme(), &MTheme::changed);
    theme().setTextScale(wanted);
    theme().setTextScale(wanted);
    QTEST(theme().textScale(), "scale");
    QTEST(theme().font(QStringLiteral("body")).pixelSize(), "pixels");
    QCOMPARE(changes.size(), 1);
}

void TestMTheme::tellsOfTheOrientationWhereItMatters()
{
    QVERIFY(theme().load(R"({"styles": {"turning": {"landscape": {"cornerRadius": 3}}}})",
                         QStringLiteral("orientation")));
    const auto radius = [this] {
        const auto style = styleNamed(QStringLiteral("turning"));
        return static_cast<const MWidgetStyle *>(style.data())->cornerRadius();
    };
    QSignalSpy changes(&theme(), &MTheme::changed);
    QCOMPARE(radius(), 0);
    theme().setOrientation(M::Landscape);
    theme().setOrientation(M::Landscape);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(radius(), 3);
    theme().setOrientation(M::Portrait);
    QCOMPARE(radius(), 0);
}

void TestMTheme::sharesStyles()
{
    QVERIFY(theme().load(R"({"styles": {"shared": {"shadow": 4}}})", QStringLiteral("shared")));
    QCOMPARE(theme().styleCount(), 0);
    const auto first = styleNamed(QStringLiteral("shared"));
    QCOMPARE(styleNamed(QStringLiteral("shared")), first);
    QCOMPARE(theme().styleCount(), 1);
    QVERIFY(styleNamed(QStringLiteral("shared"), "pressed") != first);
    QVERIFY(styleNamed(QString()) != first);
    QCOMPARE(theme().styleCount(), 3);
    // Who still draws with it while the theme changes has it to the end.
    theme().setColorScheme(M::DarkScheme);
    theme().setColorScheme(M::LightScheme);
    QCOMPARE(theme().styleCount(), 0);
    QCOMPARE(static_cast<const MWidgetStyle *>(first.data())->shadow(), 4);
}

void TestMTheme::warnsOnceOfUnknownNames()
{
    const int before = theme().warnings().size();
    QTest::ignoreMessage(QtWarningMsg, "The theme has no colour \"nothing\".");
    QTest::ignoreMessage(QtWarningMsg, "The theme has no measure \"nothing\".");
    QTest::ignoreMessage(QtWarningMsg, "The theme has no font \"nothing\".");
    QTest::ignoreMessage(QtWarningMsg, "no theme has the style \"nothing\"");
    const QString nothing = QStringLiteral("nothing");
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!theme().color(nothing).isValid());
        QCOMPARE(theme().measure(nothing), 0);
        QCOMPARE(theme().font(nothing), QFont());
        QVERIFY(styleNamed(nothing));
    }
    QCOMPARE(theme().warnings().size(), before + 4);
}

int main(int argc, char *argv[])
{
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    QApplication application(argc, argv);
    TestMTheme test(data.filePath(QStringLiteral("daskel/themes")));
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mtheme.moc"
