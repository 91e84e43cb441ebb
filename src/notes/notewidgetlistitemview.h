// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEWIDGETLISTITEMVIEW_H
#define DASKEL_NOTEWIDGETLISTITEMVIEW_H

#include "notewidgetview.h"

#include <memory>

class NoteWidgetListItemViewPrivate;

/// A note as a row of a list: stripe, times in a column, title with the place below it, marks.
class NoteWidgetListItemView : public NoteWidgetView
{
    Q_OBJECT
    M_STYLE(NoteWidgetListItemStyle)

public:
    explicit NoteWidgetListItemView(NoteWidget *controller);
    ~NoteWidgetListItemView() override;

protected:
    void showNote() override;
    void drawTexts(QPainter *painter) const override;

private:
    qreal timeColumnWidth() const;
    QString titleStyle() const;
    /// What stands below the title: the place, and that it is cancelled.
    QString subtitle() const;

    std::unique_ptr<NoteWidgetListItemViewPrivate> d;
};

#endif
