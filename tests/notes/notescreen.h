// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef NOTESCREEN_H
#define NOTESCREEN_H

#include "notesfixture.h"
#include "touchscreen.h"

#include <daskel/dskmphysics2dpanning.h>
#include <daskel/notelistwidget.h>
#include <touchcore/mpannableviewport.h>

/// A note list with day headers in a viewport of 360 by 400 pixels, and a finger.
class NoteScreen : public TouchScreen
{
public:
    explicit NoteScreen(bool showGroups = true)
        : viewport(new MPannableViewport), list(new NoteListWidget(&loader, showGroups, true))
    {
        scene.addItem(viewport);
        viewport->setGeometry(0, 0, 360, 400);
        viewport->setPhysics(new DskMPhysics2DPanning);
        physics()->advance(0);
    }
    ~NoteScreen()
    {
        if (!list->parentItem())
            delete list;
        delete viewport;
    }

    /// Puts \a content into the viewport, the list itself when it is null, and shows \a first.
    void show(const QString &first, QGraphicsWidget *content = nullptr)
    {
        viewport->setWidget(content ? content : list);
        loader.first = first;
        list->updateContent(1);
        layOut();
    }

    MPhysics2DPanning *physics() const { return viewport->physics(); }
    /// Pans by a finger that rests before it leaves, and waits until the list rests.
    void pan(qreal distance)
    {
        drag(physics(), QPointF(180, 200), QPointF(0, distance));
        comeToRest(physics());
        layOut();
    }

    QModelIndex row(int group, int note = -1) const
    {
        const QModelIndex header = list->itemModel()->index(group, 0);
        return note < 0 ? header : list->itemModel()->index(note, 0, header);
    }
    /// Where a row is seen, counted from the viewport's top.
    qreal seenAt(const QModelIndex &index) const
    {
        const MWidget *cell = list->cellAt(index);
        return cell ? cell->mapToItem(viewport, 0, 0).y() : qQNaN();
    }
    /// The first row in view, such as "2011-03-10" or "a".
    QString top() const
    {
        const QVariant shown = list->firstVisibleItem().data();
        const auto note = shown.value<KCalCore::Incidence::Ptr>();
        return note ? note->uid() : shown.toString();
    }
    /// A day of \a count notes, in the words of the loader.
    static QString day(const QDate &date, int count)
    {
        QString words = date.toString(Qt::ISODate);
        for (int i = 0; i < count; ++i)
            words += QStringLiteral(" %1/%2").arg(date.toString(Qt::ISODate)).arg(i);
        return words;
    }

    ScriptLoader loader;
    MPannableViewport *viewport;
    NoteListWidget *list;
};

#endif
