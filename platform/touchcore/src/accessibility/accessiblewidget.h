// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#ifndef TOUCHCORE_ACCESSIBLEWIDGET_H
#define TOUCHCORE_ACCESSIBLEWIDGET_H

#include <QAccessibleActionInterface>
#include <QAccessibleObject>
#include <QAccessibleValueInterface>

class MWidget;

/// One widget as those see it who read the screen for the person.
class AccessibleWidget : public QAccessibleObject,
                         public QAccessibleActionInterface,
                         public QAccessibleValueInterface
{
public:
    explicit AccessibleWidget(MWidget *widget);

    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text type) const override;
    QRect rect() const override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    MWidget *widget() const;
    /// Where a part of the widget is seen on the screen; empty when no window shows it.
    QRect onScreen(const QRectF &part) const;

private:
    /// Presses and releases in the middle, as a finger would.
    void tap();
};

#endif
