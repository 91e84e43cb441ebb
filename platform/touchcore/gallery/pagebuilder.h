// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef PAGEBUILDER_H
#define PAGEBUILDER_H

#include <QString>

class MLabel;
class MStylableWidget;
class QGraphicsLayoutItem;
class QGraphicsLinearLayout;
class QGraphicsWidget;

/// Builds a page from the top down: captions with what belongs to them below.
class PageBuilder
{
public:
    enum Edges {
        PageEdges, ///< the page's margins around it
        NoEdges, ///< for what stands in a dialog, which has paddings of its own
    };

    explicit PageBuilder(Edges edges = PageEdges);

    /// The finished page, with the room that is left at its end; belongs to the caller.
    QGraphicsWidget *page();
    void addCaption(const QString &text);
    void add(QGraphicsLayoutItem *item);
    /// From edge to edge of the page, for rows that have paddings of their own.
    void addWide(QGraphicsLayoutItem *item);
    /// Beside each other, each as wide as it wants to be.
    void addRow(const QList<QGraphicsLayoutItem *> &items);
    /// The same without room between them.
    void addJoined(const QList<QGraphicsLayoutItem *> &items);

private:
    void addRow(const QList<QGraphicsLayoutItem *> &items, qreal spacing);
    QGraphicsLinearLayout *newRow();

    const qreal m_margin;
    QGraphicsWidget *m_page;
    QGraphicsLinearLayout *m_layout;
};

#endif
