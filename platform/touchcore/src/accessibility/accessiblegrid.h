// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_ACCESSIBLEGRID_H
#define TOUCHCORE_ACCESSIBLEGRID_H

#include "accessiblewidget.h"

#include <QVector>

class MCellGrid;

/// A grid whose cells are no widgets: each is a child of its own, such as a day of a month.
class AccessibleGrid : public AccessibleWidget
{
public:
    explicit AccessibleGrid(MCellGrid *grid);
    ~AccessibleGrid() override;

    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;

    MCellGrid *grid() const;
    QRect cellRect(int index) const;

private:
    /// Of the cells that were asked for, by their places; the cache of QAccessible owns them.
    mutable QVector<QAccessible::Id> m_cells;
};

/// One cell, by its place: what stands there may change.
class AccessibleCell : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleCell(const AccessibleGrid *grid, int index);

    /// False while the grid has fewer cells.
    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }

    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override;
    QString text(QAccessible::Text type) const override;
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

    int index() const { return m_index; }

private:
    /// Outlives its cells, since it deletes them.
    const AccessibleGrid *m_grid;
    int m_index;
};

#endif
