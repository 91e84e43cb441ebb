// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "groupheadercreator.h"

#include <touchcore/mlabel.h>

namespace
{
MLabel *newHeader()
{
    auto *label = new MLabel;
    label->setStyleName(QStringLiteral("ListGroupHeader"));
    return label;
}
} // namespace

MWidget *GroupHeaderCreator::createCell(const QModelIndex &index, MWidgetRecycler &recycler) const
{
    MWidget *header = recycler.take(MLabel::staticMetaObject.className());
    if (!header)
        header = newHeader();
    updateCell(index, header);
    return header;
}

void GroupHeaderCreator::updateCell(const QModelIndex &index, MWidget *cell) const
{
    static_cast<MLabel *>(cell)->setText(index.data().toString());
}

QSizeF GroupHeaderCreator::cellSize() const
{
    const std::unique_ptr<MLabel> label(newHeader());
    return label->effectiveSizeHint(Qt::PreferredSize);
}
