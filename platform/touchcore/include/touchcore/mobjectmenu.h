// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MOBJECTMENU_H
#define TOUCHCORE_MOBJECTMENU_H

#include <touchcore/mscenewindow.h>

class MObjectMenuPrivate;
class MWidget;
class QAction;

/// A menu of what can be done with the thing that was pressed for long, or of the actions that do
/// not fit into a header.
///
/// It comes up beside the finger, wholly within the window, and deletes itself when it is done. A
/// tap on a row, or enter on it, closes the menu and triggers the action; a press beside it, Escape
/// and the back key only close it. It scrolls when there are more rows than room. A separator among
/// the actions stands as a line.
class MObjectMenu : public MSceneWindow
{
    Q_OBJECT
    M_STYLE(MObjectMenuStyle)

public:
    /// Shows those of \a actions that are visible. They are not owned; a row whose action goes, or
    /// becomes invisible, goes with it.
    explicit MObjectMenu(const QList<QAction *> &actions, QGraphicsItem *parent = nullptr);
    ~MObjectMenu() override;

    /// Opens the menu of \a widget's actions; MWidget::openObjectMenu() calls it. Answers false
    /// when the widget is in no MWindow.
    static bool open(MWidget *widget, const QPointF &scenePosition);
    /// Appears at \a scenePosition in the window that shows \a owner, and closes when the owner
    /// goes. Without a window it deletes itself and answers false.
    bool popUp(QGraphicsWidget *owner, const QPointF &scenePosition);

protected:
    QRectF place(const QSizeF &area) const override;
    Motion motion() const override;
    bool isModal() const override;
    void pressedOutside() override;
    void applyStyle() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::unique_ptr<MObjectMenuPrivate> d;
};

#endif
