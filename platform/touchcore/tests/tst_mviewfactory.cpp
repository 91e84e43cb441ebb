// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <touchcore/mtheme.h>
#include <touchcore/mviewfactory.h>
#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetview.h>

#include <QRegularExpression>
#include <QTest>

class Lamp : public MWidgetController
{
    Q_OBJECT
};

class DeskLamp : public Lamp
{
    Q_OBJECT
};

class Chair : public MWidgetController
{
    Q_OBJECT
};

class LampView : public MWidgetView
{
    Q_OBJECT

public:
    explicit LampView(Lamp *lamp) : MWidgetView(lamp) { }
};

class GlowingView : public LampView
{
    Q_OBJECT

public:
    using LampView::LampView;
};

class WoodenView : public MWidgetView
{
    Q_OBJECT

public:
    explicit WoodenView(Chair *chair) : MWidgetView(chair) { }
};

M_REGISTER_VIEW(LampView, Lamp)
M_REGISTER_VIEW(GlowingView, Lamp)
M_REGISTER_VIEW(WoodenView, Chair)

class TestMViewFactory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void choosesTheView_data();
    void choosesTheView();
    void warnsOnceOfWhatTheThemeGetsWrong();
    void keepsTheFirstOfAName();
};

void TestMViewFactory::initTestCase()
{
    QVERIFY(MTheme::instance()->load(R"({"views": {
        "Lamp/glowing": "GlowingView",
        "Lamp/": "LampView",
        "DeskLamp/dark": "LampView",
        "Lamp/dark": "GlowingView",
        "Chair/plain": "WoodenView",
        "DeskLamp/wrong": "WoodenView",
        "Chair/unknown": "NoView"
    }})",
                                     QStringLiteral("views.json")));
}

void TestMViewFactory::choosesTheView_data()
{
    QTest::addColumn<QString>("controller");
    QTest::addColumn<QString>("viewType");
    QTest::addColumn<QString>("view");
    const auto row = [](const char *name, const char *controller, const char *type,
                        const char *view) { QTest::newRow(name) << controller << type << view; };
    row("by the class's name", "Lamp", "", "LampView");
    row("by the name of a base class", "DeskLamp", "", "LampView");
    row("by the theme", "Lamp", "glowing", "GlowingView");
    row("by the theme for a base class", "DeskLamp", "glowing", "GlowingView");
    row("the nearest class of the theme", "DeskLamp", "dark", "LampView");
    row("a type that the theme does not know", "Lamp", "blinking", "LampView");
    row("by the theme alone", "Chair", "plain", "WoodenView");
    row("nothing fits", "Chair", "", "MWidgetView");
}

void TestMViewFactory::choosesTheView()
{
    QFETCH(QString, controller);
    QFETCH(QString, viewType);
    std::unique_ptr<MWidgetController> widget;
    if (controller == QLatin1String("Lamp"))
        widget = std::make_unique<Lamp>();
    else if (controller == QLatin1String("DeskLamp"))
        widget = std::make_unique<DeskLamp>();
    else
        widget = std::make_unique<Chair>();
    widget->setViewType(viewType);
    QTEST(QString::fromLatin1(widget->view()->metaObject()->className()), "view");
    QCOMPARE(widget->view()->controller(), widget.get());
}

void TestMViewFactory::warnsOnceOfWhatTheThemeGetsWrong()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("WoodenView.*DeskLamp")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("NoView.*Chair")));
    // Were it said again, the second message would be none that is ignored: it would be seen.
    for (int i = 0; i < 2; ++i) {
        DeskLamp lamp;
        lamp.setViewType(QStringLiteral("wrong"));
        QCOMPARE(lamp.view()->metaObject(), &LampView::staticMetaObject);
        Chair chair;
        chair.setViewType(QStringLiteral("unknown"));
        QCOMPARE(chair.view()->metaObject(), &MWidgetView::staticMetaObject);
    }
}

void TestMViewFactory::keepsTheFirstOfAName()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("LampView.*twice")));
    MViewFactory::registerView("LampView", "Chair", [](MWidgetController *controller) {
        return new MWidgetView(controller);
    });
    Lamp lamp;
    QCOMPARE(lamp.view()->metaObject(), &LampView::staticMetaObject);
    QVERIFY(MViewFactory::registeredViews().contains("GlowingView"));
}

QTEST_MAIN(TestMViewFactory)
#include "tst_mviewfactory.moc"
