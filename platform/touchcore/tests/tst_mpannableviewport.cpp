// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "touchscreen.h"

#include <touchcore/mpannableviewport.h>
#include <touchcore/mphysics2dpanning.h>
#include <touchcore/mpositionindicator.h>
#include <touchcore/mtheme.h>

#include <QGraphicsLinearLayout>
#include <QGraphicsProxyWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

namespace
{
/// Content of a fixed height that may move its viewport when it is told of a new geometry.
class Content : public Touchable
{
public:
    explicit Content(qreal height) : m_height(height) { }

    void setHeight(qreal height)
    {
        m_height = height;
        updateGeometry();
    }
    void setGeometry(const QRectF &rect) override
    {
        if (onGeometry)
            onGeometry(rect);
        Touchable::setGeometry(rect);
    }

    std::function<void(const QRectF &)> onGeometry;
    qreal width = 100;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override
    {
        if (which == Qt::MaximumSize)
            return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
        if (which != Qt::PreferredSize)
            return {0, 0};
        return {constraint.width() >= 0 ? constraint.width() : width, m_height};
    }

private:
    qreal m_height;
};

/// Tells of its release first, as a list does that loads more when the finger leaves it.
class TellingPanning : public MPhysics2DPanning
{
    Q_OBJECT

public Q_SLOTS:
    void pointerRelease() override
    {
        Q_EMIT pointerReleased();
        MPhysics2DPanning::pointerRelease();
    }

Q_SIGNALS:
    void pointerReleased();
};
} // namespace

class TestMPannableViewport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void widgetIsAtLeastAsLargeAsTheViewport_data();
    void widgetIsAtLeastAsLargeAsTheViewport();
    void replacedAndDeletedWidgetsLeaveNothing();
    void hearsThatTheContentChanged();
    void contentGrowsAboveWithoutMoving();
    void movesByWholePixels();

    void takesATouchOverOnceItIsAPan_data();
    void takesATouchOverOnceItIsAPan();
    void pansByTouchScreen();
    void pansFromItsOwnBackground();
    void secondTapIsAPress();
    void touchOnMovingContentOnlyStopsIt();
    void touchThatGoesElsewhereIsLetGo();
    void embeddedWidgetsKeepTheirTouches();
    void innerViewportKeepsItsPan();
    void policiesDecide_data();
    void policiesDecide();
    void derivedPhysicsHearsOfTheRelease();

    void pansByWheel_data();
    void pansByWheel();
    void wheelAtAnEdgeGoesOn();
    void pansByKeys_data();
    void pansByKeys();
    void focusComesIntoView();
    void cursorStaysInView();
    void indicatorTellsThePlaceAndFades();
    void indicatorStandsAtTheEndOfTheReadingDirection();

private:
    qreal y() const { return m_viewport->position().y(); }
    MPhysics2DPanning *physics() const { return m_viewport->physics(); }
    Content *show(qreal height);

    std::unique_ptr<TouchScreen> m_screen;
    MPannableViewport *m_viewport = nullptr;
};

void TestMPannableViewport::init()
{
    m_screen = std::make_unique<TouchScreen>();
    m_viewport = new MPannableViewport;
    m_screen->scene.addItem(m_viewport);
    m_viewport->setGeometry(0, 100, 360, 400);
    physics()->advance(0);
}

void TestMPannableViewport::cleanup()
{
    m_screen.reset();
}

Content *TestMPannableViewport::show(qreal height)
{
    auto *content = new Content(height);
    m_viewport->setWidget(content);
    return content;
}

void TestMPannableViewport::widgetIsAtLeastAsLargeAsTheViewport_data()
{
    QTest::addColumn<qreal>("height");
    QTest::addColumn<qreal>("maximum");
    QTest::addColumn<qreal>("expected");
    QTest::newRow("higher") << 1000.0 << -1.0 << 1000.0;
    QTest::newRow("lower") << 100.0 << -1.0 << 400.0;
    QTest::newRow("lower and fixed") << 100.0 << 100.0 << 100.0;
}

void TestMPannableViewport::widgetIsAtLeastAsLargeAsTheViewport()
{
    QFETCH(qreal, height);
    QFETCH(qreal, maximum);
    QFETCH(qreal, expected);
    Content *content = show(height);
    if (maximum >= 0)
        content->setMaximumHeight(maximum);
    TouchScreen::layOut();
    QCOMPARE(content->geometry(), QRectF(0, 0, 360, expected));
    QCOMPARE(physics()->range().height(), qMax(0.0, expected - 400));

    m_viewport->resize(300, 200);
    QCOMPARE(content->size().width(), 300.0);
}

void TestMPannableViewport::replacedAndDeletedWidgetsLeaveNothing()
{
    const QPointer<Content> first = show(1000);
    m_viewport->setPosition(QPointF(0, 300));
    Content *second = show(800);
    QVERIFY(!first);
    QCOMPARE(y(), 0.0);
    delete second;
    QVERIFY(!m_viewport->widget());
    TouchScreen::layOut();
    QCOMPARE(physics()->range().height(), 0.0);
}

/// A widget without a layout around it tells nobody of its size hints: the pane has one.
void TestMPannableViewport::hearsThatTheContentChanged()
{
    for (const bool isHidden : {false, true}) {
        Content *content = show(1000);
        TouchScreen::layOut();
        m_viewport->setVisible(!isHidden);
        content->setHeight(2000);
        TouchScreen::layOut();
        QCOMPARE(content->size().height(), 2000.0);
        QCOMPARE(physics()->range().height(), 1600.0);

        content->setHeight(500);
        m_viewport->updateExtent();
        QCOMPARE(physics()->range().height(), 100.0);
    }
}

/// The content moves the viewport by its growth before it takes its geometry: nothing that is seen
/// moves. That needs the range to be large enough by then, and a geometry that is not that of
/// before the move.
void TestMPannableViewport::contentGrowsAboveWithoutMoving()
{
    Content *content = show(1000);
    auto *row = new Touchable(content);
    row->setGeometry(0, 900, 360, 50);
    m_viewport->setPosition(QPointF(0, 600));
    QCOMPARE(row->scenePos().y(), 400.0);

    content->onGeometry = [&](const QRectF &rect) {
        const qreal growth = rect.height() - content->size().height();
        m_viewport->setPosition(m_viewport->position() + QPointF(0, growth));
        row->moveBy(0, growth);
    };
    content->setHeight(3000);
    QCOMPARE(row->scenePos().y(), 400.0);
    TouchScreen::layOut();
    QCOMPARE(y(), 2600.0);
    QCOMPARE(row->scenePos().y(), 400.0);
    QCOMPARE(content->geometry(), QRectF(0, 0, 360, 3000));
}

void TestMPannableViewport::movesByWholePixels()
{
    Content *content = show(1000);
    m_viewport->setPosition(QPointF(0, 10.6));
    QCOMPARE(content->scenePos().y(), 89.0);
    QCOMPARE(content->pos(), QPointF(0, 0));
}

void TestMPannableViewport::takesATouchOverOnceItIsAPan_data()
{
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<qreal>("panned");
    QTest::newRow("a tap that trembles") << QPointF(3, -12) << 0.0;
    QTest::newRow("up") << QPointF(0, -40) << 28.0;
    QTest::newRow("aslant") << QPointF(30, -40) << 28.0;
    QTest::newRow("mostly sideways, as on a slider") << QPointF(80, -40) << 0.0;
}

void TestMPannableViewport::takesATouchOverOnceItIsAPan()
{
    QFETCH(QPointF, way);
    QFETCH(qreal, panned);
    Content *content = show(1000);
    QSignalSpy started(m_viewport, &MPannableViewport::panningStarted);
    QSignalSpy stopped(m_viewport, &MPannableViewport::panningStopped);
    m_screen->drag(physics(), QPointF(100, 300), way);
    QCOMPARE(y(), panned);
    const bool isPan = panned != 0;
    QCOMPARE(content->touches.last(), isPan ? QStringLiteral("cancel") : QStringLiteral("release"));
    QCOMPARE(started.count(), int(isPan));
    QCOMPARE(stopped.count(), int(isPan));
    QVERIFY(!m_screen->scene.mouseGrabberItem());
}

/// Nothing of ours handles touch points: they arrive as a mouse. Points outside the screen of this
/// platform (800 x 600) would not arrive.
void TestMPannableViewport::pansByTouchScreen()
{
    Content *content = show(1000);
    QTouchDevice *device = QTest::createTouchDevice();
    QWindow *window = m_screen->view.windowHandle();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QTest::touchEvent(window, device).press(0, QPoint(100, 300), window);
    for (int i = 1; i <= 8; ++i)
        QTest::touchEvent(window, device).move(0, QPoint(100, 300 - 10 * i), window);
    QCOMPARE(y(), 68.0);
    QTest::touchEvent(window, device).release(0, QPoint(100, 220), window);
    QCOMPARE(content->touches, QStringList({QStringLiteral("press"), QStringLiteral("cancel")}));
}

void TestMPannableViewport::pansFromItsOwnBackground()
{
    Content *content = show(1000);
    content->setAcceptedMouseButtons(Qt::NoButton);
    m_screen->drag(physics(), QPointF(100, 300), QPointF(0, -50));
    QCOMPARE(y(), 38.0);
    m_screen->flick(physics(), QPointF(100, 300), QPointF(0, -100), 4);
    QVERIFY(physics()->isMoving());
    QVERIFY(!m_screen->scene.mouseGrabberItem());
}

void TestMPannableViewport::secondTapIsAPress()
{
    Content *content = show(1000);
    m_screen->tap(QPointF(100, 300));
    m_screen->pressAgain(QPointF(100, 300));
    for (int i = 1; i <= 5; ++i)
        m_screen->move(QPointF(100, 300 - 10 * i));
    QCOMPARE(y(), 38.0);
    QCOMPARE(content->touches.last(), QStringLiteral("cancel"));
    m_screen->release(QPointF(100, 250));
}

void TestMPannableViewport::touchOnMovingContentOnlyStopsIt()
{
    Content *content = show(9000);
    m_screen->flick(physics(), QPointF(100, 300), QPointF(0, -100), 5);
    physics()->advance(0.1);
    content->touches.clear();
    const qreal held = y();
    m_screen->press(QPointF(100, 300));
    physics()->advance(0.2);
    QCOMPARE(y(), held);
    m_screen->move(QPointF(100, 295));
    QCOMPARE(y(), held + 5);
    physics()->advance(0.2);
    m_screen->release(QPointF(100, 295));
    QVERIFY(!physics()->isMoving());
    QVERIFY(content->touches.isEmpty());

    m_screen->tap(QPointF(100, 300));
    QCOMPARE(content->touches, QStringList({QStringLiteral("press"), QStringLiteral("release")}));
}

/// As when a long press opens a menu: no release comes.
void TestMPannableViewport::touchThatGoesElsewhereIsLetGo()
{
    m_viewport->setPhysics(new TellingPanning);
    Content *content = show(1000);
    QSignalSpy released(static_cast<TellingPanning *>(physics()), &TellingPanning::pointerReleased);
    m_screen->press(QPointF(100, 300));
    QCoreApplication::processEvents();
    QCOMPARE(released.count(), 0);
    content->ungrabMouse();
    QTRY_COMPARE(released.count(), 1);
    m_screen->move(QPointF(100, 200));
    QCOMPARE(y(), 0.0);
    m_screen->release(QPointF(100, 200));

    m_screen->draw(physics(), QPointF(100, 300), QPointF(0, -40), 4);
    m_viewport->hide();
    QCOMPARE(released.count(), 2);
    m_screen->release(QPointF(100, 260));
}

void TestMPannableViewport::embeddedWidgetsKeepTheirTouches()
{
    Content *content = show(1000);
    auto *edit = new QLineEdit(QStringLiteral("a text to be marked by a finger"));
    auto *editProxy = new QGraphicsProxyWidget(content);
    editProxy->setWidget(edit);
    editProxy->setGeometry(QRectF(0, 0, 360, 48));
    auto *button = new QPushButton;
    auto *buttonProxy = new QGraphicsProxyWidget(content);
    buttonProxy->setWidget(button);
    buttonProxy->setGeometry(QRectF(0, 60, 360, 48));
    QSignalSpy clicked(button, &QPushButton::clicked);

    m_screen->tap(QPointF(100, 120));
    QVERIFY(editProxy->hasFocus());
    QTest::keyClick(m_screen->view.viewport(), Qt::Key_X);
    QVERIFY(edit->text().contains(QLatin1Char('x')));
    m_screen->drag(physics(), QPointF(10, 120), QPointF(100, -5));
    QVERIFY(edit->hasSelectedText());
    m_screen->tap(QPointF(100, 180));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(y(), 0.0);

    m_screen->drag(physics(), QPointF(100, 180), QPointF(0, -42));
    QCOMPARE(y(), 30.0);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!button->isDown());
}

void TestMPannableViewport::innerViewportKeepsItsPan()
{
    Content *content = show(2000);
    auto *inner = new MPannableViewport(content);
    inner->setGeometry(0, 0, 360, 200);
    inner->setWidget(new Content(1000));
    auto *sideways = new MPannableViewport(content);
    sideways->setVerticalPanningPolicy(MPannableViewport::PanningAlwaysOff);
    sideways->setHorizontalPanningPolicy(MPannableViewport::PanningAsNeeded);
    sideways->setGeometry(0, 200, 360, 100);
    auto *wide = new Content(100);
    wide->width = 1000;
    sideways->setWidget(wide);
    inner->physics()->advance(0);

    m_screen->drag(inner->physics(), QPointF(100, 250), QPointF(0, -100));
    QCOMPARE(inner->position().y(), 88.0);
    QCOMPARE(y(), 0.0);
    m_screen->drag(sideways->physics(), QPointF(200, 350), QPointF(-100, -60));
    QCOMPARE(sideways->position(), QPointF(88, 0));
    QCOMPARE(y(), 0.0);
    m_screen->drag(sideways->physics(), QPointF(200, 350), QPointF(-10, -60));
    QCOMPARE(sideways->position(), QPointF(88, 0));
    QCOMPARE(y(), 48.0);
}

void TestMPannableViewport::policiesDecide_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<qreal>("height");
    QTest::addColumn<bool>("gives");
    QTest::newRow("always on, all in view") << 0 << 100.0 << true;
    QTest::newRow("always off") << 1 << 1000.0 << false;
    QTest::newRow("as needed, all in view") << 2 << 100.0 << false;
    QTest::newRow("as needed") << 2 << 1000.0 << true;
}

void TestMPannableViewport::policiesDecide()
{
    QFETCH(int, policy);
    QFETCH(qreal, height);
    QFETCH(bool, gives);
    Content *content = show(height);
    m_viewport->setVerticalPanningPolicy(MPannableViewport::PanningPolicy(policy));
    m_screen->draw(physics(), QPointF(100, 300), QPointF(0, -72), 4);
    QCOMPARE(y() != 0, gives);
    QCOMPARE(content->touches.contains(QStringLiteral("cancel")), gives);
    QVERIFY(!m_screen->wheel(QPointF(100, 300), QPoint(0, 120)));
    m_screen->release(QPointF(100, 228));
}

void TestMPannableViewport::derivedPhysicsHearsOfTheRelease()
{
    show(1000);
    m_viewport->setPosition(QPointF(0, 250));
    auto *telling = new TellingPanning;
    m_viewport->setPhysics(telling);
    QCOMPARE(y(), 250.0);
    QCOMPARE(telling->range().height(), 600.0);
    QStringList order;
    connect(telling, &TellingPanning::pointerReleased, this, [&] { order << "released"; });
    connect(m_viewport, &MPannableViewport::panningStopped, this, [&] { order << "stopped"; });
    m_screen->drag(physics(), QPointF(100, 300), QPointF(0, -62));
    QCOMPARE(order, QStringList({"released", "stopped"}));
    QCOMPARE(y(), 300.0);
}

void TestMPannableViewport::pansByWheel_data()
{
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<QPoint>("pixels");
    QTest::addColumn<qreal>("atOnce");
    QTest::addColumn<qreal>("atLast");
    QTest::newRow("a notch down glides") << QPoint(0, -120) << QPoint() << 0.0 << 56.0;
    QTest::newRow("two notches") << QPoint(0, -240) << QPoint() << 0.0 << 112.0;
    QTest::newRow("pixels are exact") << QPoint(0, -120) << QPoint(3, -33) << 33.0 << 33.0;
    QTest::newRow("further than the end") << QPoint(0, -999) << QPoint(0, -9999) << 600.0 << 600.0;
}

void TestMPannableViewport::pansByWheel()
{
    QFETCH(QPoint, angle);
    QFETCH(QPoint, pixels);
    QFETCH(qreal, atOnce);
    QFETCH(qreal, atLast);
    show(1000);
    // The exact distance is known from the first time that the viewport was drawn.
    m_screen->view.grab();
    QSignalSpy stopped(m_viewport, &MPannableViewport::panningStopped);
    QVERIFY(m_screen->wheel(QPointF(100, 300), angle, pixels));
    QCOMPARE(y(), atOnce);
    TouchScreen::comeToRest(physics());
    QCOMPARE(y(), atLast);
    QCOMPARE(stopped.count(), 1);
}

void TestMPannableViewport::wheelAtAnEdgeGoesOn()
{
    Content *content = show(2000);
    auto *inner = new MPannableViewport(content);
    inner->setGeometry(0, 0, 360, 200);
    inner->setWidget(new Content(230));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(m_screen->wheel(QPointF(100, 200), QPoint(0, -120)));
        inner->physics()->advance(0.5);
        physics()->advance(0.5);
    }
    QCOMPARE(inner->position().y(), 30.0);
    QVERIFY(y() > 50);
}

void TestMPannableViewport::pansByKeys_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<qreal>("expected");
    QTest::newRow("down") << QList<int>{Qt::Key_Down} << 56.0;
    QTest::newRow("down, down, up") << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Up} << 56.0;
    QTest::newRow("a page leaves a step in view") << QList<int>{Qt::Key_PageDown} << 344.0;
    QTest::newRow("end") << QList<int>{Qt::Key_End} << 1600.0;
    QTest::newRow("end, page up") << QList<int>{Qt::Key_End, Qt::Key_PageUp} << 1256.0;
    QTest::newRow("end, home") << QList<int>{Qt::Key_End, Qt::Key_Home} << 0.0;
    QTest::newRow("no way sideways") << QList<int>{Qt::Key_Right} << 0.0;
}

/// Text alone has no place for the focus: the viewport is one then.
void TestMPannableViewport::pansByKeys()
{
    QFETCH(QList<int>, keys);
    QFETCH(qreal, expected);
    show(2000);
    QTest::keyClick(m_screen->view.viewport(), Qt::Key_Tab);
    QVERIFY(m_viewport->hasFocus());
    for (const int key : keys) {
        QTest::keyClick(m_screen->view.viewport(), Qt::Key(key));
        TouchScreen::comeToRest(physics());
    }
    QCOMPARE(m_viewport->position(), QPointF(0, expected));
}

void TestMPannableViewport::focusComesIntoView()
{
    Content *content = show(2000);
    QList<Touchable *> stops;
    for (const qreal top : {50.0, 900.0, 1950.0}) {
        auto *stop = new Touchable(content);
        stop->setGeometry(0, top, 360, 40);
        stop->setFocusPolicy(Qt::StrongFocus);
        stops << stop;
    }
    m_viewport->updateExtent();
    QCOMPARE(m_viewport->focusPolicy(), Qt::NoFocus);
    const QList<qreal> expected{0, 540, 1590};
    for (int i = 0; i < expected.size(); ++i) {
        QTest::keyClick(m_screen->view.viewport(), Qt::Key_Tab);
        QVERIFY(stops[i]->hasFocus());
        QCOMPARE(y(), expected[i]);
    }
    QTest::keyClick(m_screen->view.viewport(), Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(y(), 900.0);
    m_viewport->setPosition(QPointF(0, 70));
    m_screen->tap(QPointF(10, 110));
    QCOMPARE(y(), 70.0);

    // An on-screen keyboard opens below the last stop.
    stops[1]->setFocus();
    QCOMPARE(y(), 540.0);
    m_viewport->resize(360, 150);
    QCOMPARE(y(), 790.0);
}

void TestMPannableViewport::cursorStaysInView()
{
    Content *content = show(2000);
    auto *edit = new QPlainTextEdit(QString(60, QLatin1Char('\n')));
    auto *proxy = new QGraphicsProxyWidget(content);
    proxy->setWidget(edit);
    proxy->setGeometry(QRectF(0, 0, 360, 2000));
    proxy->setFocus();
    const auto cursorAt = [&] {
        return proxy->mapToItem(m_viewport, edit->cursorRect().center()).y();
    };
    for (int line = 0; line < 59; ++line) {
        QTest::keyClick(m_screen->view.viewport(), Qt::Key_Down);
        QCoreApplication::processEvents();
        QVERIFY(cursorAt() > 0 && cursorAt() < 400);
    }
    QVERIFY(y() > 100);

    // Moved away by a finger, it comes back with the next letter.
    m_viewport->setPosition(QPointF(0, 0));
    QCoreApplication::processEvents();
    QCOMPARE(y(), 0.0);
    QTest::keyClick(m_screen->view.viewport(), Qt::Key_X);
    QTRY_VERIFY(cursorAt() < 400);
}

void TestMPannableViewport::indicatorTellsThePlaceAndFades()
{
    MTheme::instance()->load(
        R"({"classes":{"MPositionIndicator":{"hideDelay":20,"fadeDuration":30,"minimumLength":32}}})",
        QStringLiteral("test"));
    MPositionIndicator *indicator = m_viewport->positionIndicator();
    show(100);
    QVERIFY(indicator->barRect(Qt::Vertical).isEmpty());
    show(800);
    QVERIFY(!indicator->isVisible());

    m_viewport->setPosition(QPointF(0, 400));
    QVERIFY(indicator->isVisible());
    QCOMPARE(indicator->opacity(), 1.0);
    const QRectF bar = indicator->barRect(Qt::Vertical);
    QCOMPARE(bar.bottom(), 400.0 - indicator->style()->edgeGap());
    QCOMPARE(bar.right(), 360.0 - indicator->style()->edgeGap());
    QCOMPARE(bar.top(), 200.0);
    QVERIFY(indicator->barRect(Qt::Horizontal).isEmpty());
    QTRY_VERIFY(!indicator->isVisible());

    show(1e6);
    QCOMPARE(indicator->barRect(Qt::Vertical).height(), 32.0);
}

void TestMPannableViewport::indicatorStandsAtTheEndOfTheReadingDirection()
{
    m_viewport->setLayoutDirection(Qt::RightToLeft);
    show(1000);
    m_viewport->setPosition(QPointF(0, 10));
    const MPositionIndicator *indicator = m_viewport->positionIndicator();
    QCOMPARE(indicator->barRect(Qt::Vertical).left(), qreal(indicator->style()->edgeGap()));

    // It takes no touches.
    m_screen->tap(QPointF(2, 110));
    QCOMPARE(static_cast<Content *>(m_viewport->widget())->touches.size(), 2);
}

QTEST_MAIN(TestMPannableViewport)
#include "tst_mpannableviewport.moc"
