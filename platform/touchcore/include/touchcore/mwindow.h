// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MWINDOW_H
#define TOUCHCORE_MWINDOW_H

#include <touchcore/mnamespace.h>

#include <QGraphicsView>

#include <memory>

class MSceneManager;
class MWindowPrivate;

/// A window of the program. It shows scene windows, see sceneManager().
///
/// It has its own scene, as large as itself, drawn without frame and scroll bars. A press that
/// stays for 500 milliseconds within 12 pixels becomes a long press: a context menu event for what
/// is pressed, and the press is cancelled. Escape and the back key, when nothing with the focus
/// takes them, go back. Created and deleted by the program. UI thread only.
class MWindow : public QGraphicsView
{
    Q_OBJECT

public:
    explicit MWindow(QWidget *parent = nullptr);
    ~MWindow() override;

    MSceneManager *sceneManager() const;

    /// By the window's shape and rotation: portrait when it is higher than wide.
    M::Orientation orientation() const;
    /// How the contents are turned against the window, clockwise: 0, 90, 180 or 270 degrees; others
    /// are refused. For screens that do not turn by themselves.
    void setRotationAngle(int degrees);
    int rotationAngle() const;

    /// Whether the person can see the window: it is shown and not minimised.
    bool isOnDisplay() const;
    /// Whether a key was pressed later than the pointer: then the focus shows itself.
    bool isKeyboardInUse() const;

    /// Until the program is no longer prestarted, a window that is shown stays hidden.
    void setVisible(bool isVisible) override;

public Q_SLOTS:
    /// As the back key: MSceneWindow::goBack() of the window on top.
    void goBack();

Q_SIGNALS:
    /// Sent when theme and geometry are those of the new orientation.
    void orientationChanged(const M::Orientation &orientation);
    /// The person wants to close the window. When something is connected here, the window stays
    /// open and that decides; otherwise it closes.
    void closeRequested();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;

private:
    friend class MApplication;
    void showIfHeldBack();

    std::unique_ptr<MWindowPrivate> d;
};

#endif
