// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "accessiblewidget.h"

#include "accessibletexts.h"

#include <touchcore/mbutton.h>
#include <touchcore/mlist.h>
#include <touchcore/mprogressindicator.h>
#include <touchcore/mscenewindow.h>
#include <touchcore/mslider.h>
#include <touchcore/mtextedit.h>

#include <QAction>
#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QItemSelectionModel>
#include <QMouseEvent>

#include <algorithm>

namespace
{
QGraphicsView *viewOf(const QGraphicsItem *item)
{
    return item->scene() ? item->scene()->views().value(0) : nullptr;
}

bool isSelected(const MWidget *widget)
{
    const auto *list = qobject_cast<const MList *>(widget->parentWidget());
    return list && list->selectionModel()
        && list->selectionModel()->isSelected(list->indexOf(widget));
}

bool offersMenu(const MWidget *widget)
{
    const QList<QAction *> actions = widget->actions();
    return std::any_of(actions.begin(), actions.end(),
                       [](const QAction *action) { return action->isVisible(); });
}

/// A text field lends its focus to the editor inside it.
bool canTakeFocus(const MWidget *widget)
{
    return widget->focusPolicy() != Qt::NoFocus || qobject_cast<const MTextEdit *>(widget);
}

bool hasFocus(const MWidget *widget)
{
    const QGraphicsItem *focused = widget->scene() ? widget->scene()->focusItem() : nullptr;
    return focused == widget
        || (qobject_cast<const MTextEdit *>(widget) && widget->isAncestorOf(focused));
}

bool canBePressed(QAccessible::Role role)
{
    return role == QAccessible::Button || role == QAccessible::RadioButton
        || role == QAccessible::CheckBox || role == QAccessible::ListItem
        || role == QAccessible::Client;
}
} // namespace

AccessibleWidget::AccessibleWidget(MWidget *widget) : QAccessibleObject(widget) { }

MWidget *AccessibleWidget::widget() const
{
    return static_cast<MWidget *>(object());
}

void *AccessibleWidget::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    const bool hasValue =
        qobject_cast<MSlider *>(widget()) || qobject_cast<MProgressIndicator *>(widget());
    return type == QAccessible::ValueInterface && hasValue
        ? static_cast<QAccessibleValueInterface *>(this)
        : nullptr;
}

QAccessibleInterface *AccessibleWidget::parent() const
{
    for (QGraphicsItem *above = widget()->parentItem(); above; above = above->parentItem()) {
        auto *container = qobject_cast<MWidget *>(above->toGraphicsObject());
        if (container && accessibleRole(container) != QAccessible::NoRole)
            return QAccessible::queryAccessibleInterface(container);
    }
    QGraphicsView *view = viewOf(widget());
    return view ? QAccessible::queryAccessibleInterface(view) : nullptr;
}

QAccessibleInterface *AccessibleWidget::child(int index) const
{
    MWidget *found = accessibleChildren(widget()).value(index);
    return found ? QAccessible::queryAccessibleInterface(found) : nullptr;
}

int AccessibleWidget::childCount() const
{
    return accessibleChildren(widget()).size();
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface *child) const
{
    return accessibleChildren(widget()).indexOf(qobject_cast<MWidget *>(child->object()));
}

QAccessibleInterface *AccessibleWidget::childAt(int x, int y) const
{
    return deepestChildAt(*this, x, y);
}

QAccessible::Role AccessibleWidget::role() const
{
    return accessibleRole(widget());
}

QAccessible::State AccessibleWidget::state() const
{
    QAccessible::State state;
    state.disabled = !widget()->isEnabled();
    state.invisible = !widget()->isVisible();
    const QGraphicsView *view = viewOf(widget());
    state.offscreen = view && !view->sceneRect().intersects(widget()->sceneBoundingRect());
    state.focusable = canTakeFocus(widget());
    state.focused = hasFocus(widget());
    state.selectable = role() == QAccessible::ListItem;
    state.selected = isSelected(widget());
    if (const auto *button = qobject_cast<const MButton *>(widget())) {
        state.checkable = button->isCheckable();
        state.checked = button->isChecked();
        state.pressed = button->isDown();
    }
    if (const auto *edit = qobject_cast<const MTextEdit *>(widget())) {
        state.editable = !edit->isReadOnly();
        state.readOnly = edit->isReadOnly();
        state.multiLine = edit->lineMode() == MTextEdit::MultiLine;
        state.passwordEdit = edit->echoMode() == QLineEdit::Password;
        state.invalid = edit->hasError();
    }
    state.modal = role() == QAccessible::Dialog;
    return state;
}

QString AccessibleWidget::text(QAccessible::Text type) const
{
    if (type == QAccessible::Name)
        return accessibleName(widget());
    if (type == QAccessible::Description)
        return widget()->property("accessibleDescription").toString();
    return type == QAccessible::Value ? accessibleValue(widget()) : QString();
}

QRect AccessibleWidget::rect() const
{
    return onScreen(widget()->rect());
}

QRect AccessibleWidget::onScreen(const QRectF &part) const
{
    const QGraphicsView *view = viewOf(widget());
    if (!view)
        return {};
    const QRect inView = view->mapFromScene(widget()->mapRectToScene(part)).boundingRect();
    // A polygon of whole pixels counts its last ones, too.
    return {view->viewport()->mapToGlobal(inView.topLeft()), inView.size() - QSize(1, 1)};
}

QStringList AccessibleWidget::actionNames() const
{
    QStringList names;
    if (widget()->isEnabled() && canBePressed(role())) {
        const auto *button = qobject_cast<const MButton *>(widget());
        names.append(button && button->isCheckable() ? toggleAction() : pressAction());
    }
    if (offersMenu(widget()))
        names.append(showMenuAction());
    if (canTakeFocus(widget()))
        names.append(setFocusAction());
    return names;
}

void AccessibleWidget::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    auto *button = qobject_cast<MButton *>(widget());
    if (name == setFocusAction() && widget()->focusPolicy() != Qt::NoFocus)
        widget()->setFocus(Qt::OtherFocusReason);
    else if (name == showMenuAction())
        widget()->openObjectMenu(widget()->mapToScene(widget()->rect().center()));
    else if (button)
        button->click();
    else
        tap();
}

QStringList AccessibleWidget::keyBindingsForAction(const QString &) const
{
    return {};
}

void AccessibleWidget::tap()
{
    const QGraphicsView *view = viewOf(widget());
    if (!view)
        return;
    QWidget *viewport = view->viewport();
    const QPointF place = view->mapFromScene(widget()->mapToScene(widget()->rect().center()));
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, viewport->mapToGlobal(place.toPoint()), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(viewport, &event);
    }
}

QVariant AccessibleWidget::currentValue() const
{
    return widget()->property("value");
}

void AccessibleWidget::setCurrentValue(const QVariant &value)
{
    if (auto *slider = qobject_cast<MSlider *>(widget()))
        slider->setValue(value.toInt());
}

QVariant AccessibleWidget::minimumValue() const
{
    return widget()->property("minimum");
}

QVariant AccessibleWidget::maximumValue() const
{
    return widget()->property("maximum");
}

QVariant AccessibleWidget::minimumStepSize() const
{
    return widget()->property("step");
}
