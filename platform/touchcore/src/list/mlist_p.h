// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MLIST_P_H
#define TOUCHCORE_MLIST_P_H

#include "listrows.h"

#include <touchcore/mlist.h>

#include <QItemSelectionModel>
#include <QPointer>
#include <QTimer>

class FocusRing;
class MPannableViewport;

/// A widget that shows a row.
struct ListCell {
    QPersistentModelIndex index;
    MWidget *widget;
    int row;
    bool isHeader;
    /// Where its row began when the cell was placed.
    qreal top;
};

class MListPrivate
{
public:
    explicit MListPrivate(MList *owner);
    ~MListPrivate();

    // What the model tells (mlistrows.cpp).
    void followModel();
    /// All rows anew, in new cells.
    void reset();
    void rebuildRows();
    /// Rows came, went or moved.
    void rowsChanged();
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    /// Tells what the list stands in that its height is another one.
    void tellHeight();
    void requestLayout();

    // What is in view (mlistcells.cpp).
    void followViewport();
    /// The part of the list that is in view.
    QRectF seen() const;
    /// Makes cells for the rows in view, gives up the others, and keeps what is seen in place.
    void layOut();
    /// The header that stands at \a top though its own place is above; -1 if none does.
    int stuckHeader(qreal top) const;
    /// Finds the rows of all cells anew; gives up the cells of those that went.
    void relocateCells();
    /// Null when the row has none: it is not in view.
    ListCell *cellOfRow(int row);
    const ListCell *cellOfWidget(const QGraphicsItem *widget) const;
    void recycle(const ListCell &cell);
    void recycleAll();
    const MCellCreator &creatorOf(bool isHeader) const;

    // Going to rows, selecting them (mlistinput.cpp).
    /// How far the viewport has to move to show the row as \a hint says.
    qreal wayTo(int row, MList::ScrollHint hint) const;
    bool isChoosable(int row) const;
    /// The first row from \a row on, in steps of \a step, that can be the current one; -1 if none.
    int choosableFrom(int row, int step) const;
    int currentRow() const;
    void makeCurrent(int row);
    /// Moves the current row by key; answers whether the key is one of those.
    bool moveCurrent(int key);
    /// Pans to a row as the person does.
    void reveal(int row);
    void tap(const QModelIndex &index);
    void tapLater(const QModelIndex &index);
    void showSelection();
    void updateFocusRing();
    /// Lets the current row's cell have a key; answers whether it took it.
    bool offerKey(QKeyEvent *event);
    /// The release of the key will not come to the cell that has its press.
    void cancelKey();

    MList *q;
    ListRows rows;
    std::unique_ptr<MCellCreator> cellCreator;
    std::unique_ptr<MCellCreator> headerCreator;
    MWidgetRecycler cellRecycler;
    MWidgetRecycler headerRecycler;
    std::unique_ptr<QItemSelectionModel> selection;
    /// What the model's signals are connected to: goes when the model does.
    std::unique_ptr<QObject> modelContext;
    QPointer<MPannableViewport> viewport;
    std::unique_ptr<QObject> viewportContext;

    /// In the order of their rows.
    std::vector<ListCell> cells;
    bool hasStickyHeaders = false;
    bool anchorsOnInsert = true;
    MList::SelectionMode selectionMode = MList::NoSelection;
    bool haveRowsChanged = false;
    bool isLayingOut = false;
    bool isLayoutOutdated = false;
    /// Until the next request for a layout.
    bool hasLeftViewport = false;
    qreal toldHeight = 0;
    /// The keyboard is in use: the current row wears a ring while the list has the focus.
    bool isKeyboardUsed = false;
    QPointer<FocusRing> focusRing;
    QPersistentModelIndex pressed;
    QPersistentModelIndex tapped;
    QTimer tapTimer;
    QPointer<MWidget> keyReceiver;

private:
    struct Anchor {
        int row;
        qreal offset;
    };

    void layOutOnce();
    Anchor anchorIn(const QRectF &view) const;
    void recycleOutside(qreal top, qreal bottom);
    bool makeCells(qreal top, qreal bottom);
    bool makeCell(int row);
    void placeCells(qreal top);
};

#endif
