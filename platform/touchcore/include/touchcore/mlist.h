// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLIST_H
#define TOUCHCORE_MLIST_H

#include <touchcore/mcellcreator.h>
#include <touchcore/mstylablewidget.h>

#include <QModelIndexList>

class MListPrivate;
class QAbstractItemModel;
class QItemSelectionModel;

/// A long list that shows the rows of an item model, one below the other.
///
/// It stands in an MPannableViewport, alone or inside a layout, is as high as all its rows, and has
/// widgets (cells) for the rows in view only. A model has one level of rows, or two with groups: a
/// top-level row is then a header, with its children below it. Rows may differ in height; one that
/// has not been in view counts with its creator's cellSize(), and what is seen stays in place when
/// the true height turns out.
///
/// Keys: arrows, Page Up and Down, Home and End move the current row; Space and Return tap it, the
/// menu key is a long press. UI thread only.
class MList : public MStylableWidget
{
    Q_OBJECT

public:
    /// Where scrollTo() shows a row. The values are part of the interface.
    enum ScrollHint {
        EnsureVisible = 0, ///< wherever it takes the shortest way
        PositionAtTop = 1,
        PositionAtBottom = 2,
        PositionAtCenter = 3,
    };
    Q_ENUM(ScrollHint)

    /// What a tap on a row does to the selection.
    enum SelectionMode {
        NoSelection = 0,
        SingleSelection = 1, ///< the row alone is selected
        MultiSelection = 2, ///< the row is selected, or no longer
    };
    Q_ENUM(SelectionMode)

    explicit MList(QGraphicsItem *parent = nullptr);
    ~MList() override;

    /// Shows \a model, not owned; null shows nothing. It comes with a new, empty selectionModel().
    void setItemModel(QAbstractItemModel *model);
    QAbstractItemModel *itemModel() const;

    /// What makes the cells; owned. Without one, or null, nothing is shown.
    void setCellCreator(MCellCreator *creator);
    const MCellCreator *cellCreator() const;
    /// What makes the group headers; owned. Null goes back to labels of the style
    /// "ListGroupHeader" with the display text.
    void setHeaderCreator(MCellCreator *creator);
    const MCellCreator *headerCreator() const;

    /// Whether top-level rows are headers of groups. Off by default.
    bool showGroups() const;
    void setShowGroups(bool showGroups);
    /// Whether the header of the first group in view stays at the top of the view. Off by default.
    bool stickyHeaders() const;
    void setStickyHeaders(bool stickyHeaders);

    /// Whether rows in view stay where they are when rows above them come or go, by moving the
    /// viewport. On by default; an owner that moves the viewport itself (from its setGeometry())
    /// turns it off.
    bool anchorsOnInsert() const;
    void setAnchorsOnInsert(bool anchorsOnInsert);

    /// Null without an item model. Its current index is the row that keys move from.
    QItemSelectionModel *selectionModel() const;
    SelectionMode selectionMode() const;
    void setSelectionMode(SelectionMode mode);

    /// Moves the viewport at once so that the row \a index is seen; a running pan ends. An index of
    /// another model, or an invalid one, changes nothing.
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible);

    /// The cell of a row, null when the row is not in view.
    MWidget *cellAt(const QModelIndex &index) const;
    /// The row that \a cell shows; invalid when it is none of the cells in view.
    QModelIndex indexOf(const QGraphicsItem *cell) const;
    /// The row at \a position (pixels of the list), invalid when there is none.
    QModelIndex indexAt(const QPointF &position) const;
    /// The first and the last row of which at least a pixel is in view, headers included; invalid
    /// when none is.
    QModelIndex firstVisibleItem() const;
    QModelIndex lastVisibleItem() const;
    /// These and all between them.
    QModelIndexList visibleItems() const;

    void setGeometry(const QRectF &rect) override;

Q_SIGNALS:
    /// Those of the viewport in which the list stands.
    void panningStarted();
    void panningStopped();
    /// A row (or header) was tapped, or activated by key. Comes once the touch is over.
    void itemClicked(const QModelIndex &index);
    /// A row whose cell has no menu of its own was pressed long, or asked for its menu by key.
    /// \a scenePosition: where a menu may open.
    void itemLongPressed(const QModelIndex &index, const QPointF &scenePosition);

protected:
    void applyStyle() override;
    bool event(QEvent *event) override;
    bool sceneEventFilter(QGraphicsItem *watched, QEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;

private:
    std::unique_ptr<MListPrivate> d;
};

#endif
