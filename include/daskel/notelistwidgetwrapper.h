// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTELISTWIDGETWRAPPER_H
#define DASKEL_NOTELISTWIDGETWRAPPER_H

#include <daskel/contentupdateif.h>
#include <touchcore/mwidgetcontroller.h>

class NoteListWidget;
class NoteListWidgetWrapperPrivate;

/// A note list that shows a text in its place while it holds no notes.
class NoteListWidgetWrapper : public MWidgetController, public ContentUpdateIF
{
    Q_OBJECT

public:
    /// Takes ownership of the list.
    explicit NoteListWidgetWrapper(NoteListWidget *list);
    ~NoteListWidgetWrapper() override;

    NoteListWidget *noteList() const;

    void setEmptyListLabelText(const QString &text);
    QString emptyListLabelText() const;
    void setEmptyListLabelStyle(const QString &styleName);
    QString emptyListLabelStyle() const;

    /// The list's.
    int updateTypeMask() const override;
    /// Passes the update to the list; when data changed, shows the label or the list.
    void updateContent(int mask) override;

public Q_SLOTS:
    /// The label alone, without panning; or the list, which pans.
    void updateLayout(bool showEmptyLabel);

private:
    std::unique_ptr<NoteListWidgetWrapperPrivate> d;
};

#endif
