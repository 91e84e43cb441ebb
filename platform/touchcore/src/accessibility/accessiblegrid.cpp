// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "accessiblegrid.h"

#include <touchcore/mcellgrid.h>

AccessibleGrid::AccessibleGrid(MCellGrid *grid) : AccessibleWidget(grid) { }

AccessibleGrid::~AccessibleGrid()
{
    for (const QAccessible::Id id : qAsConst(m_cells)) {
        if (id)
            QAccessible::deleteAccessibleInterface(id);
    }
}

MCellGrid *AccessibleGrid::grid() const
{
    return static_cast<MCellGrid *>(object());
}

QRect AccessibleGrid::cellRect(int index) const
{
    return onScreen(grid()->cellRect(index));
}

QAccessibleInterface *AccessibleGrid::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    if (m_cells.size() <= index)
        m_cells.resize(index + 1);
    if (!m_cells[index]) {
        auto *cell = new AccessibleCell(this, index);
        // QAccessible owns it from here. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
        m_cells[index] = QAccessible::registerAccessibleInterface(cell);
    }
    return QAccessible::accessibleInterface(m_cells[index]);
}

int AccessibleGrid::childCount() const
{
    return grid()->cells().size();
}

int AccessibleGrid::indexOfChild(const QAccessibleInterface *child) const
{
    const bool isOwn = child->role() == QAccessible::Cell && child->parent() == this;
    return isOwn ? static_cast<const AccessibleCell *>(child)->index() : -1;
}

QAccessibleInterface *AccessibleGrid::focusChild() const
{
    return grid()->hasFocus() ? child(grid()->chosen()) : nullptr;
}

AccessibleCell::AccessibleCell(const AccessibleGrid *grid, int index) : m_grid(grid), m_index(index)
{
}

bool AccessibleCell::isValid() const
{
    return m_grid->isValid() && m_index < m_grid->childCount();
}

void *AccessibleCell::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QAccessibleInterface *AccessibleCell::parent() const
{
    return QAccessible::queryAccessibleInterface(m_grid->grid());
}

QAccessible::State AccessibleCell::state() const
{
    const MCellGrid *grid = m_grid->grid();
    const QAccessible::State around = m_grid->state();
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = around.invisible;
    state.offscreen = around.offscreen;
    state.disabled = around.disabled || !grid->cells().value(m_index).isEnabled;
    state.selectable = !state.disabled;
    state.selected = m_index == grid->chosen();
    state.focusable = around.focusable;
    state.focused = around.focused && state.selected;
    return state;
}

QString AccessibleCell::text(QAccessible::Text type) const
{
    if (type != QAccessible::Name)
        return {};
    const MCellGrid::Cell cell = m_grid->grid()->cells().value(m_index);
    return cell.spokenText.isEmpty() ? cell.text : cell.spokenText;
}

QRect AccessibleCell::rect() const
{
    return m_grid->cellRect(m_index);
}

QStringList AccessibleCell::actionNames() const
{
    return state().disabled ? QStringList() : QStringList{pressAction()};
}

void AccessibleCell::doAction(const QString &name)
{
    // Not by a tap in its middle: a cell that is panned out of view can be chosen, too.
    if (actionNames().contains(name))
        Q_EMIT m_grid->grid()->cellClicked(m_index);
}
