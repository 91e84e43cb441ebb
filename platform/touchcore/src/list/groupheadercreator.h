// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_GROUPHEADERCREATOR_H
#define TOUCHCORE_GROUPHEADERCREATOR_H

#include <touchcore/mcellcreator.h>

/// The headers of a list to which nobody gave others: labels with the display text.
class GroupHeaderCreator : public MCellCreator
{
public:
    MWidget *createCell(const QModelIndex &index, MWidgetRecycler &recycler) const override;
    void updateCell(const QModelIndex &index, MWidget *cell) const override;
    QSizeF cellSize() const override;
};

#endif
