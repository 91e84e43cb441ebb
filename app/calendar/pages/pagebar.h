// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef PAGEBAR_H
#define PAGEBAR_H

#include <touchcore/mstylablewidget.h>

class MButtonGroup;

/// Switches between the pages: at the bottom for one thumb in portrait, at the side in landscape.
class PageBar : public MStylableWidget
{
    Q_OBJECT

public:
    /// In the order of the bar; the numbers are those that the settings keep.
    enum Page { Agenda = 0, Todos = 1, Journals = 2 };
    static constexpr int pageCount = 3;

    /// \a current: the page that the bar belongs to.
    explicit PageBar(Page current, QGraphicsItem *parent = nullptr);

    /// Takes its texts anew from the catalogues.
    void retranslate();

Q_SIGNALS:
    void pageChosen(int page);

private:
    MButtonGroup *m_group;
    Page m_current;
};

#endif
