// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "longpress.h"
#include "mscenemanager_p.h"
#include "windowlist.h"

#include <touchcore/mapplication.h>
#include <touchcore/mtheme.h>
#include <touchcore/mwindow.h>

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QGraphicsScene>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QPainter>

class MWindowPrivate
{
public:
    explicit MWindowPrivate(MWindow *window) : longPress(window) { }

    std::unique_ptr<MSceneManager> manager;
    LongPress longPress;
    int angle = 0;
    bool isKeyboardInUse = false;
    /// Shown by the program while it was prestarted.
    bool isHeldBack = false;
};

MWindow::MWindow(QWidget *parent) : QGraphicsView(parent), d(std::make_unique<MWindowPrivate>(this))
{
    auto *contents = new QGraphicsScene(this);
    // The index would be rebuilt with every frame of a pan.
    contents->setItemIndexMethod(QGraphicsScene::NoIndex);
    setScene(contents);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);
    setViewportUpdateMode(BoundingRectViewportUpdate);
    windowList().append(this);
    d->manager = std::make_unique<MSceneManager>(this);
    connect(contents, &QGraphicsScene::focusItemChanged, this, [](const QGraphicsItem *focused) {
        if (!focused || !(focused->flags() & QGraphicsItem::ItemAcceptsInputMethod))
            QGuiApplication::inputMethod()->hide();
    });
    connect(MTheme::instance(), &MTheme::changed, this, [this] { viewport()->update(); });
    d->manager->d->setView(viewport()->size(), 0);
}

MWindow::~MWindow()
{
    windowList().removeOne(this);
    d->manager.reset();
}

MSceneManager *MWindow::sceneManager() const
{
    return d->manager.get();
}

M::Orientation MWindow::orientation() const
{
    return d->manager->orientation();
}

void MWindow::setRotationAngle(int degrees)
{
    if (degrees % 90 != 0 || degrees < 0 || degrees >= 360) {
        qWarning("MWindow: %d is no angle that a screen is turned by.", degrees);
        return;
    }
    d->angle = degrees;
    d->manager->d->setView(viewport()->size(), degrees);
}

int MWindow::rotationAngle() const
{
    return d->angle;
}

bool MWindow::isOnDisplay() const
{
    return isVisible() && !isMinimized();
}

bool MWindow::isKeyboardInUse() const
{
    return d->isKeyboardInUse;
}

void MWindow::setVisible(bool isVisible)
{
    d->isHeldBack = isVisible && MApplication::isPrestarted();
    if (!d->isHeldBack)
        QGraphicsView::setVisible(isVisible);
}

void MWindow::showIfHeldBack()
{
    if (d->isHeldBack)
        setVisible(true);
}

void MWindow::goBack()
{
    if (MSceneWindow *top = d->manager->topWindow())
        top->goBack();
}

bool MWindow::event(QEvent *event)
{
    // Here, since the Tab key never comes as far as keyPressEvent().
    if (event->type() == QEvent::KeyPress) {
        d->isKeyboardInUse = true;
        const int key = static_cast<QKeyEvent *>(event)->key();
        // The scene would offer the focus to hidden widgets, too, and be content.
        if ((key == Qt::Key_Tab || key == Qt::Key_Backtab)
            && d->manager->d->tabInto(key == Qt::Key_Tab))
            return true;
    }
    return QGraphicsView::event(event);
}

void MWindow::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    d->manager->d->setView(viewport()->size(), d->angle);
}

void MWindow::showEvent(QShowEvent *event)
{
    QGraphicsView::showEvent(event);
    d->manager->d->update();
}

void MWindow::hideEvent(QHideEvent *event)
{
    QGraphicsView::hideEvent(event);
    d->manager->d->update();
}

void MWindow::changeEvent(QEvent *event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        windowList().removeOne(this);
        windowList().prepend(this);
        d->manager->d->tellOrientation();
        // The scene becomes active after this event; until then it takes no active panel.
        QMetaObject::invokeMethod(
            this, [this] { d->manager->d->activateTop(); }, Qt::QueuedConnection);
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        d->manager->root()->setLayoutDirection(layoutDirection());
        d->manager->d->placeAll();
    } else if (event->type() == QEvent::WindowStateChange) {
        d->manager->d->update();
    }
}

void MWindow::closeEvent(QCloseEvent *event)
{
    if (isSignalConnected(QMetaMethod::fromSignal(&MWindow::closeRequested))) {
        event->ignore();
        Q_EMIT closeRequested();
    } else {
        QGraphicsView::closeEvent(event);
    }
}

void MWindow::keyPressEvent(QKeyEvent *event)
{
    QGraphicsView::keyPressEvent(event);
    if (!event->isAccepted() && (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Back)) {
        event->accept();
        goBack();
    }
}

void MWindow::mousePressEvent(QMouseEvent *event)
{
    d->isKeyboardInUse = false;
    d->longPress.press(*event);
    QGraphicsView::mousePressEvent(event);
}

void MWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    // A quick second tap is a press like any other.
    d->longPress.press(*event);
    QGraphicsView::mouseDoubleClickEvent(event);
}

void MWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (!d->longPress.move(*event))
        QGraphicsView::mouseMoveEvent(event);
}

void MWindow::mouseReleaseEvent(QMouseEvent *event)
{
    if (!d->longPress.release())
        QGraphicsView::mouseReleaseEvent(event);
}

void MWindow::wheelEvent(QWheelEvent *event)
{
    QGraphicsView::wheelEvent(event);
    // Nothing of the window itself scrolls, and nothing around it should.
    event->accept();
}

void MWindow::contextMenuEvent(QContextMenuEvent *event)
{
    // The widget with the focus answers the menu key itself and knows its place.
    if (event->reason() == QContextMenuEvent::Keyboard)
        event->accept();
    else
        QGraphicsView::contextMenuEvent(event);
}

void MWindow::drawBackground(QPainter *painter, const QRectF &rect)
{
    if (!d->manager->d->hidesBackground())
        painter->fillRect(rect, MTheme::instance()->color(QStringLiteral("background")));
}
