// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/focusring.h"

#include <touchcore/mtheme.h>
#include <touchcore/mviewfactory.h>
#include <touchcore/mwidgetcontroller.h>
#include <touchcore/mwidgetmodel.h>
#include <touchcore/mwidgetview.h>

#include <QFocusEvent>
#include <QGraphicsScene>
#include <QPointer>
#include <QTest>

class DialModel : public MWidgetModel
{
    Q_OBJECT
    M_MODEL_PROPERTY(int, value, setValue)
    M_MODEL_PROPERTY(QString, unit, setUnit)
};

class Dial : public MWidgetController
{
    Q_OBJECT

public:
    Dial() : MWidgetController(new DialModel, nullptr) { setFocusPolicy(Qt::StrongFocus); }

    DialModel *dialModel() const { return static_cast<DialModel *>(model()); }
    QStringList heard;

    void updateData(const QList<const char *> &modifications) override
    {
        for (const char *name : modifications)
            heard.append(QString::fromLatin1(name));
        MWidgetController::updateData(modifications);
    }
};

class DialStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(int, ticks, setTicks, 10)
};

class DialView : public MWidgetView
{
    Q_OBJECT
    M_STYLE(DialStyle)

public:
    explicit DialView(Dial *dial) : MWidgetView(dial) { }

    void updateData(const QList<const char *> &modifications) override
    {
        updates.append(QString::number(modifications.size()));
        MWidgetView::updateData(modifications);
    }
    void applyStyle() override
    {
        ++timesStyled;
        MWidgetView::applyStyle();
    }
    void drawContents(QPainter *) const override { ++timesDrawn; }

    QStringList updates;
    int timesStyled = 0;
    mutable int timesDrawn = 0;
};

class RoundDialView : public DialView
{
    Q_OBJECT

public:
    using DialView::DialView;
};

M_REGISTER_VIEW(DialView, Dial)
M_REGISTER_VIEW(RoundDialView, Dial)

class TestMWidgetController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tellsTheViewWhatChanged();
    void replacesTheModel();
    void keepsAModelThatBelongsToAnother();
    void replacesTheView();
    void takesTheModeOfBeingDisabled();
    void restylesWithTheTheme();
    void takesSizesFromTheStyle();
    void reachesAsFarAsItsShadow();
    void showsTheFocusRing_data();
    void showsTheFocusRing();
    void keepsTheRingWhileTheWindowIsAway();

private:
    static DialView *viewOf(const Dial &dial) { return static_cast<DialView *>(dial.view()); }
};

void TestMWidgetController::initTestCase()
{
    QVERIFY(MTheme::instance()->load(R"({
        "views": {"Dial/round": "RoundDialView"},
        "classes": {"Dial": {
            "minimumSize": [48, 48], "preferredSize": [80, -1], "ticks": 12, "shadow": 6,
            "paddingLeft": 4, "marginTop": 3,
            "disabled": {"ticks": 0}, "pressed": {"ticks": 13}}},
        "styles": {"Fine": {"ticks": 60, "focusOffset": -3}}
    })",
                                     QStringLiteral("dial.json")));
}

void TestMWidgetController::tellsTheViewWhatChanged()
{
    Dial dial;
    dial.dialModel()->setValue(3); // before there is a view
    QCOMPARE(viewOf(dial)->updates, QStringList({QStringLiteral("2")}));
    dial.dialModel()->setValue(4);
    {
        const MModelTransaction transaction(dial.model());
        dial.dialModel()->setValue(5);
        dial.dialModel()->setUnit(QStringLiteral("V"));
    }
    QCOMPARE(viewOf(dial)->updates.join(QLatin1Char(' ')), QStringLiteral("2 1 2"));
    QCOMPARE(dial.heard.mid(1).join(QLatin1Char(' ')), QStringLiteral("value value unit"));
}

void TestMWidgetController::replacesTheModel()
{
    Dial dial;
    viewOf(dial)->updates.clear();
    const QPointer<MWidgetModel> first = dial.model();
    auto *second = new DialModel;
    dial.setModel(second);
    dial.setModel(second);
    QVERIFY(first.isNull());
    QCOMPARE(viewOf(dial)->updates, QStringList({QStringLiteral("2")}));
    QCOMPARE(dial.heard.join(QLatin1Char(' ')), QStringLiteral("value unit"));
    second->setValue(1);
    QCOMPARE(viewOf(dial)->updates.size(), 2);
}

void TestMWidgetController::keepsAModelThatBelongsToAnother()
{
    DialModel model;
    QObject owner;
    auto *shared = new DialModel;
    shared->setParent(&owner);
    {
        Dial dial;
        dial.setModel(shared);
        dial.setModel(new DialModel);
        viewOf(dial)->updates.clear();
        shared->setValue(9);
        QVERIFY(viewOf(dial)->updates.isEmpty());
        dial.setModel(shared);
    }
    QCOMPARE(shared->value(), 9);
}

void TestMWidgetController::replacesTheView()
{
    Dial dial;
    const QPointer<MWidgetView> first = dial.view();
    dial.setViewType(QStringLiteral("round"));
    QVERIFY(first.isNull());
    QCOMPARE(dial.view()->metaObject(), &RoundDialView::staticMetaObject);
    QCOMPARE(viewOf(dial)->updates, QStringList({QStringLiteral("2")}));
    QCOMPARE(viewOf(dial)->style()->ticks(), 12);
}

void TestMWidgetController::takesTheModeOfBeingDisabled()
{
    Dial dial;
    dial.setEnabled(false);
    QCOMPARE(viewOf(dial)->style()->ticks(), 0); // also when it was so before the view was made
    dial.setEnabled(true);
    QCOMPARE(viewOf(dial)->style()->ticks(), 12);
    dial.setEnabled(false);
    QCOMPARE(viewOf(dial)->style()->ticks(), 0);
}

void TestMWidgetController::restylesWithTheTheme()
{
    Dial dial;
    DialView *view = viewOf(dial);
    view->setStyleMode("pressed");
    view->setStyleMode("pressed");
    QCOMPARE(view->timesStyled, 2);
    QCOMPARE(view->style()->ticks(), 13);
    dial.setStyleName(QStringLiteral("Fine"));
    QCOMPARE(view->style()->ticks(), 60);
    MTheme::instance()->setColorScheme(M::DarkScheme);
    MTheme::instance()->setColorScheme(M::LightScheme);
    QCOMPARE(view->timesStyled, 5);
    QCOMPARE(view->style()->ticks(), 60);
}

void TestMWidgetController::takesSizesFromTheStyle()
{
    Dial dial;
    QCOMPARE(dial.effectiveSizeHint(Qt::MinimumSize), QSizeF(48, 48));
    QCOMPARE(dial.preferredWidth(), 80.0);
    dial.resize(100, 60);
    QCOMPARE(dial.view()->contentsRect(), QRectF(4, 3, 96, 57));
    dial.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(dial.view()->contentsRect(), QRectF(0, 3, 96, 57));
}

void TestMWidgetController::reachesAsFarAsItsShadow()
{
    Dial dial;
    dial.resize(100, 60);
    dial.view();
    QCOMPARE(dial.boundingRect(), QRectF(-6, -6, 112, 72));
    QCOMPARE(dial.shape().boundingRect(), QRectF(0, 0, 100, 60));
}

void TestMWidgetController::showsTheFocusRing_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("tab") << Qt::TabFocusReason << true;
    QTest::newRow("back by tab") << Qt::BacktabFocusReason << true;
    QTest::newRow("shortcut") << Qt::ShortcutFocusReason << true;
    QTest::newRow("finger") << Qt::MouseFocusReason << false;
    QTest::newRow("program") << Qt::OtherFocusReason << false;
    QTest::newRow("window, without a ring before") << Qt::ActiveWindowFocusReason << false;
}

namespace
{
FocusRing *ringOf(const QGraphicsItem &item)
{
    for (QGraphicsItem *child : item.childItems()) {
        if (auto *ring = dynamic_cast<FocusRing *>(child))
            return ring;
    }
    return nullptr;
}

/// A dial in a scene, which is where events come from.
struct ShownDial {
    QGraphicsScene scene;
    Dial &dial = *new Dial;

    ShownDial()
    {
        scene.addItem(&dial);
        dial.resize(100, 60);
    }
    void send(QEvent::Type type, Qt::FocusReason reason)
    {
        QFocusEvent event(type, reason);
        scene.sendEvent(&dial, &event);
    }
    FocusRing *ring() const { return ringOf(dial); }
};
} // namespace

void TestMWidgetController::showsTheFocusRing()
{
    QFETCH(Qt::FocusReason, reason);
    QFETCH(bool, isShown);
    ShownDial shown;
    shown.send(QEvent::FocusIn, reason);
    QCOMPARE(shown.ring() != nullptr, isShown);
    if (isShown)
        QCOMPARE(shown.ring()->boundingRect(), QRectF(-4, -4, 108, 68));
    shown.send(QEvent::FocusOut, Qt::MouseFocusReason);
    QVERIFY(!shown.ring());
    shown.dial.setStyleName(QStringLiteral("Fine"));
    shown.send(QEvent::FocusIn, reason);
    if (isShown) // a ring inside of the widget
        QCOMPARE(shown.ring()->boundingRect(), QRectF(1, 1, 98, 58));
}

void TestMWidgetController::keepsTheRingWhileTheWindowIsAway()
{
    ShownDial shown;
    shown.send(QEvent::FocusIn, Qt::TabFocusReason);
    shown.send(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QVERIFY(!shown.ring());
    shown.send(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QVERIFY(shown.ring());
    shown.send(QEvent::FocusOut, Qt::MouseFocusReason);
    shown.send(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QVERIFY(!shown.ring());
}

QTEST_MAIN(TestMWidgetController)
#include "tst_mwidgetcontroller.moc"
