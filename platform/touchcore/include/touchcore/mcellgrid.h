// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_MCELLGRID_H
#define TOUCHCORE_MCELLGRID_H

#include <touchcore/mstylablewidget.h>

#include <QFont>
#include <QVector>

class MCellGridPrivate;

/// How a grid of cells looks. Lengths are pixels at scale 1.
class MCellGridStyle : public MWidgetStyle
{
    Q_OBJECT
    M_STYLE_ATTRIBUTE(QFont, font, setFont)
    M_STYLE_ATTRIBUTE(QColor, color, setColor, Qt::black)
    /// Of cells that belong elsewhere, such as the days of the month before.
    M_STYLE_ATTRIBUTE(QColor, dimmedColor, setDimmedColor, Qt::gray)
    /// Of cells that cannot be chosen.
    M_STYLE_ATTRIBUTE(QColor, disabledColor, setDisabledColor, Qt::lightGray)
    /// Text and ring of marked cells, such as today.
    M_STYLE_ATTRIBUTE(QColor, markedColor, setMarkedColor, Qt::black)
    M_STYLE_ATTRIBUTE(QColor, chosenColor, setChosenColor, Qt::black)
    M_STYLE_ATTRIBUTE(QColor, chosenTextColor, setChosenTextColor, Qt::white)
    M_STYLE_ATTRIBUTE(QColor, pressedColor, setPressedColor)
    M_STYLE_ATTRIBUTE(QFont, headingFont, setHeadingFont)
    M_STYLE_ATTRIBUTE(QColor, headingColor, setHeadingColor, Qt::gray)
    M_STYLE_ATTRIBUTE(int, headingHeight, setHeadingHeight, 32)
    /// The least size of a cell; wider grids have wider cells.
    M_STYLE_ATTRIBUTE(QSizeF, cellSize, setCellSize, 48, 48)
    /// The patch of a chosen, pressed or marked cell: its height, and its width unless
    /// isPatchWide.
    M_STYLE_ATTRIBUTE(int, patchSize, setPatchSize, 40)
    M_STYLE_ATTRIBUTE(int, patchRadius, setPatchRadius, 20)
    /// The patch is as wide as the cell.
    M_STYLE_ATTRIBUTE(bool, isPatchWide, setIsPatchWide, false)
};

/// Texts in rows and columns, of which one is chosen by a tap: the days of a month, the hours of a
/// day. It fills the width with cells of equal size, from the start of the row.
class MCellGrid : public MStylableWidget
{
    Q_OBJECT
    M_STYLE(MCellGridStyle)

public:
    struct Cell {
        QString text;
        bool isDimmed = false;
        bool isMarked = false;
        bool isEnabled = true;
        /// What is read aloud; empty for the text.
        QString spokenText;
    };

    /// \a columns: from 1.
    explicit MCellGrid(int columns, QGraphicsItem *parent = nullptr);
    ~MCellGrid() override;

    int columns() const;
    void setColumns(int columns);
    /// A text above each column; empty for none.
    QStringList headings() const;
    void setHeadings(const QStringList &headings);

    QVector<Cell> cells() const;
    /// Takes back the choice when its cell is gone.
    void setCells(const QVector<Cell> &cells);

    /// Counted from 0; -1 when there is none.
    int chosen() const;
    /// Any number that has no cell means none.
    void setChosen(int index);

    /// In the coordinates of the grid; empty when there is no such cell.
    QRectF cellRect(int index) const;
    /// -1 where there is none.
    int cellAt(const QPointF &position) const;
    /// How many cells an arrow key goes on, or back; 0 for other keys.
    int cellsOf(const QKeyEvent &event) const;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

Q_SIGNALS:
    /// Tapped, also by key. The grid leaves it to its owner to choose it.
    void cellClicked(int index);
    /// An arrow key leads here from the chosen cell. One that leads out of the grid goes on to the
    /// parent.
    void cellReached(int index);

protected:
    void applyStyle() override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint = QSizeF()) const override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void ungrabMouseEvent(QEvent *event) override;
    void cancelEvent() override;

private:
    std::unique_ptr<MCellGridPrivate> d;
};

#endif
