// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLISTITEM_H
#define TOUCHCORE_MLISTITEM_H

#include <touchcore/mstylablewidget.h>

/// A row that can be tapped. What it shows are the widgets of the layout that its owner gives it.
///
/// While it is pressed the style's "pressed" block holds; the keyboard's space and enter keys tap
/// it.
class MListItem : public MStylableWidget
{
    Q_OBJECT
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)

public:
    explicit MListItem(QGraphicsItem *parent = nullptr);
    ~MListItem() override;

    /// Whether the row is the chosen one of its list: the style's "selected" block holds.
    bool isSelected() const { return m_isSelected; }
    void setSelected(bool isSelected);
    bool isDown() const { return m_isDown; }

Q_SIGNALS:
    void clicked();
    /// Pressed for long, or asked for its menu by keyboard or secondary button, at \a
    /// scenePosition. The object menu, when there are actions, opens besides.
    void longTapped(const QPointF &scenePosition);

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void cancelEvent() override;

private:
    void setDown(bool isDown);
    void applyMode();

    bool m_isDown = false;
    bool m_isSelected = false;
};

#endif
