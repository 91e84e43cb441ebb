// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef DASKEL_NOTEWIDGETVIEW_H
#define DASKEL_NOTEWIDGETVIEW_H

#include "notedetails.h"
#include "notetimes.h"

#include <daskel/notewidgetstyle.h>
#include <touchcore/mwidgetview.h>

#include <QStringList>

class NoteWidget;

/// A note on its own ground: the frame, the stripe in its notebook's colour, the marks at the far
/// end, and its texts in lines, as many as there is room for.
class NoteWidgetView : public MWidgetView
{
    Q_OBJECT
    M_STYLE(NoteWidgetStyle)

public:
    explicit NoteWidgetView(NoteWidget *controller);

    void updateData(const QList<const char *> &modifications) override;
    void applyStyle() override;
    void drawBackground(QPainter *painter) const override;
    void drawContents(QPainter *painter) const override;

protected:
    NoteWidget *note() const;
    const NoteDetails &details() const { return m_details; }
    const NoteTimes &times() const { return m_times; }
    /// From the edge to where the texts begin.
    qreal stripeRoom() const;
    /// How wide the marks are with the room around them.
    qreal marksRoom() const;
    /// The note or its style changed: reads anew what does not stand in the model.
    virtual void showNote();
    virtual void drawTexts(QPainter *painter) const;

private:
    void drawStripe(QPainter *painter) const;
    void drawMarks(QPainter *painter) const;

    NoteDetails m_details;
    NoteTimes m_times;
    QStringList m_marks; ///< pictures, from the inner to the outer one
};

#endif
