// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTELISTWIDGET_P_H
#define DASKEL_NOTELISTWIDGET_P_H

#include "notecellcreator.h"

#include <daskel/notelistwidget.h>

#include <QPointF>
#include <QTimer>

class NoteWidgetItemModel;

class NoteListWidgetPrivate
{
public:
    explicit NoteListWidgetPrivate(NoteListWidget *widget);

    void initialize(AbstractNoteLoader *loader, bool showGroups, bool customHeaders);
    NoteWidgetItemModel *noteModel() const;
    /// Hears of the viewport's position and of the finger leaving it, once.
    void watchViewport();
    void loadEarlier();

    /// How far the list reaches below what is seen, in pixels; 0 or less at the bottom.
    qreal roomBelow() const;

    enum Direction { None, TowardsTop, TowardsBottom };

    NoteListWidget *q;
    bool rowAddedAbove = false;
    bool ignoreNextStop = false;
    bool isPanning = false;
    bool isPointerReleased = false;
    QTimer scrollTimer;
    QPointF lastPosition;
    Direction panDirection = None;
    NoteCellCreator *cellCreator = nullptr; ///< owned by the list
    quint16 refreshesToPass = 0;
};

#endif
