// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTECELLCREATOR_H
#define DASKEL_NOTECELLCREATOR_H

#include <touchcore/mcellcreator.h>

#include <QPointer>
#include <QSizeF>
#include <QString>

class NoteListWidget;

/// Makes the rows of a note list: a note widget of the incidence's kind, or a line of text for a
/// day that the loader left empty on purpose.
class NoteCellCreator : public MCellCreator
{
public:
    explicit NoteCellCreator(NoteListWidget *list);

    QString itemStyleName() const { return m_itemStyleName; }
    void setItemStyleName(const QString &styleName) { m_itemStyleName = styleName; }

    /// Every row that is made from now on tells \a receiver.
    void setDeleteNoteReceiver(QObject *receiver, const char *slot)
    {
        m_deleteReceiver = receiver;
        m_deleteSlot = slot;
    }

    MWidget *createCell(const QModelIndex &index, MWidgetRecycler &recycler) const override;
    void updateCell(const QModelIndex &index, MWidget *cell) const override;
    /// That of a row which stands for all, measured once.
    QSizeF cellSize() const override;

private:
    NoteListWidget *m_list;
    QString m_itemStyleName;
    QPointer<QObject> m_deleteReceiver;
    QByteArray m_deleteSlot;
    mutable QSizeF m_cellSize;
};

#endif
