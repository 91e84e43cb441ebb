// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTELISTWIDGET_H
#define DASKEL_NOTELISTWIDGET_H

#include <daskel/contentupdateif.h>
#include <touchcore/mlist.h>

#include <QDateTime>
#include <QMultiHash>
#include <QStringList>

class AbstractNoteLoader;
class MPannableViewport;
class NoteListWidgetPrivate;

/// The list of notes: a row for each occurrence that its loader hands over, grouped by day or by
/// what the loader chooses, growing at both ends as the person scrolls.
///
/// It reloads when the data change, unless its owner has asked it to let updates pass: whoever
/// changes data from within the list already shows the change. It stands in an MPannableViewport.
/// The loader is not owned. UI thread only.
class NoteListWidget : public MList, public ContentUpdateIF
{
    Q_OBJECT

public:
    /// \a showGroups: with a header above each group. \a customHeaders: date headers on which today
    /// is marked. \a loader may be null.
    NoteListWidget(AbstractNoteLoader *loader, bool showGroups, bool customHeaders);
    NoteListWidget(QGraphicsItem *parent, AbstractNoteLoader *loader, bool showGroups,
                   bool customHeaders);
    ~NoteListWidget() override;

    /// The list is empty until the next updateContent().
    void setItemLoader(AbstractNoteLoader *loader);

    /// The style name of every row.
    void setItemStyleName(const QString &styleName);
    QString itemStyleName() const;

    /// Who is told when a note of the list is to be deleted: NoteWidget::setDeleteNoteReceiver() of
    /// every row. To be set before the first rows are shown.
    void setDeleteNoteReceiver(QObject *receiver, const char *slot);

    /// How many notes the loader has handed over.
    int noteCount() const;

    /// Data only.
    int updateTypeMask() const override;
    /// Reloads and emits listReloaded(), whatever \a mask says; or lets the update pass, which uses
    /// up one setRefreshDisabled().
    void updateContent(int mask) override;

    /// The next updateContent() passes; calls add up, to 65535.
    void setRefreshDisabled();
    /// Takes back one setRefreshDisabled(), if there is one.
    void setRefreshEnabled();
    bool refreshEnabled() const;

    /// Brings the day of \a date to the top, or the nearest earlier one that the list holds; today,
    /// when it is more than 14 days ago or more than 28 days ahead.
    void switchDate(const QDateTime &date);

    /// The UIDs of the selected rows, one for each row.
    QStringList getSelectionUidList() const;
    /// The starts of the selected rows by UID, one entry for each row.
    QMultiHash<QString, QDateTime> getSelectionUidHash() const;

    /// The viewport that the list stands in, null when there is none.
    MPannableViewport *parentViewport() const;

    void setGeometry(const QRectF &rect) override;

public Q_SLOTS:
    void contentUpdated(int mask);
    void selectAll();
    void deselectAll();
    void listStarted();
    void listStopped();
    void viewportPositionChanged(QPointF position);
    void viewportMouseReleased();
    void ensureListScrolled();

Q_SIGNALS:
    /// A row was tapped.
    void noteClicked();
    void listReloaded();

private:
    std::unique_ptr<NoteListWidgetPrivate> d;
};

#endif
