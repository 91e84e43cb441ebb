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
    void setItem(QGraphicsLayoutItem *item);

    int count() const override { return m_item ? 1 : 0; }
    QGraphicsLayoutItem *itemAt(int index) const override { return index == 0 ? m_item : nullptr; }
    void removeAt(int index) override;
    void setGeometry(const QRectF &rect) override;

protected:
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF &constraint) const override;

private:
    QGraphicsLayoutItem *m_item = nullptr;
    std::function<void()> m_arrange;
};

#endif
