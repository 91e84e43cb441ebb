// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef NOTELISTCONTENT_H
#define NOTELISTCONTENT_H

#include <daskel/visibilitynotificationif.h>
#include <kcalcompat/kdatetime.h>
#include <touchcore/mwidgetcontroller.h>

#include <QModelIndex>

#include <memory>

class AbstractNoteLoader;
class DaskelPageHeaderWidget;
class EmptyView;
class MPannableViewport;
class NoteDeletion;
class NoteListWidget;
class NoteWidgetItemModel;
class QGraphicsLinearLayout;

/// The content of a page that lists notes: a header, and below it the list or, while there are no
/// notes, what can be done about that.
///
/// It is refreshed while it can be seen, with the rows in view staying where they are, and loads
/// what comes next before the person gets there. UI thread only.
class NoteListContent : public MWidgetController, public VisibilityNotificationIF
{
    Q_OBJECT

public:
    struct Empty {
        QString image;
        QString text;
        QString button;
    };

    ~NoteListContent() override;

    DaskelPageHeaderWidget *header() const { return m_header; }
    NoteListWidget *list() const { return m_list; }
    MPannableViewport *viewport() const { return m_viewport; }

    void notifyUpdate(unsigned int reasons) override;
    unsigned int notificationMask() const override;

    /// Takes its texts anew from the catalogues, the rows included.
    virtual void retranslate();

Q_SIGNALS:
    void noteChosen(const QString &uid, const KDateTime &recurrenceId, const QDateTime &start);
    /// The button of the empty list was tapped.
    void importWanted();

protected:
    /// \a hasDays: the groups are days. The content owns the loader; \a deletion is told what is to
    /// be deleted.
    NoteListContent(std::unique_ptr<AbstractNoteLoader> loader, bool showGroups, bool hasDays,
                    NoteDeletion *deletion);

    virtual QString title() const = 0;
    virtual Empty emptyText() const = 0;
    /// Whether the list is not worth showing.
    virtual bool isEmpty() const;
    /// Before the list is read anew: \a topDay is the day at the top of the view.
    virtual void prepareReload(const QDate &topDay);
    /// What is seen has changed.
    virtual void viewChanged() { }
    /// What the Home key does.
    virtual void goHome();

    /// The row of the header, for more buttons.
    QGraphicsLinearLayout *headerRow() const { return m_headerRow; }
    NoteWidgetItemModel *noteModel() const;
    AbstractNoteLoader *loader() const { return m_loader.get(); }
    /// The day that the uppermost row in view belongs to; invalid without rows or days.
    QDate topDay() const;
    /// Has what lies before and behind loaded where it is near.
    void lookAtEdges();
    void showListOrEmpty();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A row in view and how far below the top of the view it begins.
    struct Place {
        QString uid;
        QDateTime start;
        qreal distance = 0;
    };
    Place placeInView() const;
    void restore(const Place &place);
    void open(const QModelIndex &index);
    void deleteCurrent();
    void tellFailedSave();

    std::unique_ptr<AbstractNoteLoader> m_loader;
    NoteDeletion *m_deletion;
    DaskelPageHeaderWidget *m_header;
    QGraphicsLinearLayout *m_headerRow = nullptr;
    QGraphicsLinearLayout *m_layout = nullptr;
    MPannableViewport *m_viewport;
    NoteListWidget *m_list;
    EmptyView *m_empty;
    bool m_isLookDue = false;
    bool m_isLoading = false;
};

#endif
