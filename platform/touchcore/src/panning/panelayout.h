// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_PANELAYOUT_H
#define TOUCHCORE_PANELAYOUT_H

#include <QGraphicsLayout>

#include <functional>

/// The layout of a viewport's pane, around its one widget. It sizes nothing by itself: it is there
/// because a widget tells only a layout that its size hints changed, and it passes that on.
class PaneLayout : public QGraphicsLayout
{
public:
    PaneLayout(QGraphicsLayoutItem *pane, const std::function<void()> &arrange);

    /// Null takes the widget out.
    void setWidget(QGraphicsWidget *widget);
    /// Null when there is none, or none any more: it was deleted or went to another layout.
    QGraphicsWidget *widget() const { return m_widget; }

    int count() const override { return m_widget ? 1 : 0; }
    QGraphicsLayoutItem *itemAt(int index) const override;
    void removeAt(int index) override;
    void setGeometry(const QRectF &rect) override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;

private:
    QGraphicsWidget *m_widget = nullptr;
    std::function<void()> m_arrange;
};

#endif
