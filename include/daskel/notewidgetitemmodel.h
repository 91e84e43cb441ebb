// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEWIDGETITEMMODEL_H
#define DASKEL_NOTEWIDGETITEMMODEL_H

#include <QAbstractItemModel>

#include <memory>

class AbstractNoteLoader;
class NoteWidgetItemModelPrivate;

/// The rows of a note list: a flat list of incidences, or group headers with their incidences below
/// them. It grows at either end as its loader hands over earlier or later batches.
///
/// A row keeps only which occurrence it stands for and looks its incidence up in DbInstance when it
/// is asked, so that it always shows what is stored. Once a batch brought headers, every incidence
/// belongs to one, for as long as the model lives. One column. UI thread only.
class NoteWidgetItemModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role {
        /// A header's label (QString) or the incidence (KCalCore::Incidence::Ptr, null when it was
        /// deleted).
        IncidenceRole = Qt::DisplayRole,
        StartRole = 1, ///< QDateTime of the occurrence; of a header, its date
        EndRole = 2,
    };

    /// What a look at the edges did; the values are fixed.
    enum EdgeResult {
        NothingLoaded = 0,
        LoadedAbove = 1,
        LoadedBelow = 2, ///< or tried to: a load at the bottom always counts as a change
        LoadedBoth = 3,
    };

    /// Becomes the backend of \a loader, which is not owned and stays as long as the model.
    explicit NoteWidgetItemModel(AbstractNoteLoader *loader, QObject *parent = nullptr);
    ~NoteWidgetItemModel() override;

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// A row whose incidence is still there can be selected and checked.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// The loader's count of incidences.
    int noteCount() const;
    /// Clears everything and has the loader begin anew.
    void reload();
    /// Has the loader hand over the batch above (below); answers how many incidences it brought.
    int loadEarlier();
    int loadLater();
    /// Loads where the visible rows reach an edge. Both invalid: nothing is visible.
    int loadAtEdges(const QModelIndex &firstVisible, const QModelIndex &lastVisible);

private:
    friend class NoteWidgetItemModelPrivate;
    std::unique_ptr<NoteWidgetItemModelPrivate> d;
};

#endif
