// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MWIDGET_H
#define TOUCHCORE_MWIDGET_H

#include <QGraphicsWidget>

#include <memory>

class MWidgetPrivate;

/// The base of everything that is shown: a graphics widget that knows whether it is on display and
/// that offers its actions as an object menu.
///
/// Owned by its parent item, as in Qt. UI thread only.
class MWidget : public QGraphicsWidget
{
    Q_OBJECT

public:
    explicit MWidget(QGraphicsItem *parent = nullptr);
    ~MWidget() override;

    /// Whether the widget belongs to a scene window that is shown and is not hidden itself. A page
    /// that is covered by another page is not on display.
    bool isOnDisplay() const;

    /// Public here, since views and layouts tell a widget that its size hints changed.
    using QGraphicsWidget::updateGeometry;

    /// Tells the MWidgets of the tree below \a root, it included, that they enter (or leave) the
    /// display; hidden branches count as not on display. Called by the scene manager.
    static void updateDisplayState(QGraphicsItem *root, bool isOnDisplay);

    /// Opens the object menu, a list of the actions() that are visible. \a scenePosition is where
    /// the finger or the pointer was. Answers false when there is nothing to offer.
    bool openObjectMenu(const QPointF &scenePosition);

Q_SIGNALS:
    void displayEntered();
    void displayExited();

protected:
    /// The widget becomes visible to the person. The base emits displayEntered().
    virtual void enterDisplayEvent();
    /// The widget is covered, hidden or removed. The base emits displayExited().
    virtual void exitDisplayEvent();
    /// The touch that the widget was following turned out to be a pan (or was taken away): forget
    /// the press, a release will not come.
    virtual void cancelEvent();

    /// Reacts to a long press, the menu key and the secondary button by opening the object menu;
    /// without actions the event goes on to the parent.
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    bool event(QEvent *event) override;

private:
    /// Sends the enter or exit event when what is shown has changed.
    void announceDisplay();

    std::unique_ptr<MWidgetPrivate> d;
};

/// Sent to a widget whose touch was taken over; ends in MWidget::cancelEvent().
class MCancelEvent : public QEvent
{
public:
    MCancelEvent();
    static QEvent::Type eventType();
};

#endif
