// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "gallerylistmodel.h"
#include "gallerypages.h"

#include <touchcore/mcellcreator.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlist.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mwidgetrecycler.h>

#include <QGraphicsLinearLayout>

namespace
{
/// A row of two lines.
class GalleryCell : public MListItem
{
    Q_OBJECT

public:
    GalleryCell() : m_title(new MLabel(this)), m_details(new MLabel(this))
    {
        auto *layout = new QGraphicsLinearLayout(Qt::Vertical, this);
        layout->setContentsMargins(0, 8, 0, 8);
        layout->setSpacing(2);
        layout->addStretch();
        layout->addItem(m_title);
        layout->addItem(m_details);
        layout->addStretch();
        m_details->setStyleName(QStringLiteral("SupportLabel"));
    }

    void show(const QModelIndex &index)
    {
        m_title->setText(index.data(Qt::DisplayRole).toString());
        const QString details = index.data(GalleryListModel::DetailsRole).toString();
        m_details->setText(details);
        m_details->setVisible(!details.isEmpty());
    }

private:
    MLabel *m_title;
    MLabel *m_details;
};

class GalleryCellCreator : public MCellCreator
{
public:
    MWidget *createCell(const QModelIndex &index, MWidgetRecycler &recycler) const override
    {
        auto *cell = static_cast<GalleryCell *>(recycler.take("GalleryCell"));
        if (!cell)
            cell = new GalleryCell;
        updateCell(index, cell);
        return cell;
    }

    void updateCell(const QModelIndex &index, MWidget *cell) const override
    {
        static_cast<GalleryCell *>(cell)->show(index);
    }

    QSizeF cellSize() const override { return {0, 60}; }
};

MList *newList(GalleryListModel *model)
{
    auto *list = new MList;
    model->setParent(list);
    list->setCellCreator(new GalleryCellCreator);
    list->setShowGroups(true);
    list->setItemModel(model);
    return list;
}
} // namespace

QGraphicsWidget *makeListPage()
{
    return newList(new GalleryListModel(500, 20));
}

/// Grows by ten groups wherever it comes to rest at an end.
QGraphicsWidget *makeEndlessListPage()
{
    auto *model = new GalleryListModel(20, 5);
    MList *list = newList(model);
    QObject::connect(list, &MList::panningStopped, model, [list, model] {
        const QModelIndex first = list->firstVisibleItem();
        const QModelIndex last = list->lastVisibleItem();
        if (first.row() == 0 && first.parent().row() <= 0)
            model->addGroupsAbove(10);
        if (last.parent().row() == model->rowCount() - 1)
            model->addGroupsBelow(10);
    });
    return list;
}

#include "listpages.moc"
