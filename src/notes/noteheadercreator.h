// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEHEADERCREATOR_H
#define DASKEL_NOTEHEADERCREATOR_H

#include <touchcore/mcellcreator.h>
#include <touchcore/mstylablewidget.h>

class MLabel;

/// The header of one day in a note list.
class NoteListHeaderWidget : public MStylableWidget
{
    Q_OBJECT

public:
    explicit NoteListHeaderWidget(QGraphicsItem *parent = nullptr);

    void show(const QString &label, bool isToday);

private:
    MLabel *m_label;
};

/// Makes the day headers; today's stands out.
class NoteHeaderCreator : public MCellCreator
{
public:
    MWidget *createCell(const QModelIndex &index, MWidgetRecycler &recycler) const override;
    void updateCell(const QModelIndex &index, MWidget *cell) const override;
    QSizeF cellSize() const override;

private:
    mutable QSizeF m_cellSize;
};

#endif
