// SPDX-FileCopyrightText: 2026 The daskel authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "accessibletexts.h"

#include <touchcore/mapplicationpage.h>
#include <touchcore/mbanner.h>
#include <touchcore/mbutton.h>
#include <touchcore/mbuttongroup.h>
#include <touchcore/mcellgrid.h>
#include <touchcore/mdialog.h>
#include <touchcore/mimagewidget.h>
#include <touchcore/mlabel.h>
#include <touchcore/mlist.h>
#include <touchcore/mlistitem.h>
#include <touchcore/mprogressindicator.h>
#include <touchcore/mseparator.h>
#include <touchcore/msheet.h>
#include <touchcore/mslider.h>
#include <touchcore/mtextedit.h>

#include <algorithm>

namespace
{
struct RoleOfClass {
    const QMetaObject *widgetClass;
    QAccessible::Role role;
};

QAccessible::Role buttonRole(const MButton *button)
{
    if (!button->isCheckable())
        return QAccessible::Button;
    return button->group() && button->group()->isExclusive() ? QAccessible::RadioButton
                                                             : QAccessible::CheckBox;
}

bool isCell(const MWidget *widget)
{
    const auto *list = qobject_cast<const MList *>(widget->parentWidget());
    return list && list->indexOf(widget).isValid();
}

/// A picture beside a text says nothing more than the text.
bool isDecoration(const MWidget *widget)
{
    return qobject_cast<const MSeparator *>(widget) || qobject_cast<const MImageWidget *>(widget);
}

QString joinedTexts(const MWidget *widget)
{
    QStringList texts;
    const QList<MWidget *> children = accessibleChildren(widget);
    for (const MWidget *child : children) {
        const QString text = accessibleName(child);
        if (!text.isEmpty())
            texts.append(text);
    }
    return texts.join(QStringLiteral(", "));
}
} // namespace

QAccessible::Role accessibleRole(const MWidget *widget)
{
    if (const auto *button = qobject_cast<const MButton *>(widget))
        return buttonRole(button);
    if (isCell(widget))
        return QAccessible::ListItem;
    if (isDecoration(widget) && widget->property("accessibleName").toString().isEmpty())
        return QAccessible::NoRole;
    static const RoleOfClass roles[] = {
        {&MLabel::staticMetaObject, QAccessible::StaticText},
        {&MTextEdit::staticMetaObject, QAccessible::EditableText},
        {&MList::staticMetaObject, QAccessible::List},
        {&MListItem::staticMetaObject, QAccessible::ListItem},
        {&MSlider::staticMetaObject, QAccessible::Slider},
        {&MProgressIndicator::staticMetaObject, QAccessible::ProgressBar},
        {&MCellGrid::staticMetaObject, QAccessible::Table},
        {&MImageWidget::staticMetaObject, QAccessible::Graphic},
        {&MDialog::staticMetaObject, QAccessible::Dialog},
        {&MBanner::staticMetaObject, QAccessible::AlertMessage},
        {&MSheet::staticMetaObject, QAccessible::Pane},
        {&MApplicationPage::staticMetaObject, QAccessible::Pane},
    };
    for (const RoleOfClass &known : roles) {
        if (known.widgetClass->cast(const_cast<MWidget *>(widget)))
            return known.role;
    }
    // Other controls that take the keyboard stand for themselves.
    return widget->focusPolicy() != Qt::NoFocus ? QAccessible::Client : QAccessible::NoRole;
}

QString accessibleName(const MWidget *widget)
{
    QString given = widget->property("accessibleName").toString();
    if (!given.isEmpty())
        return given;
    if (const auto *label = qobject_cast<const MLabel *>(widget))
        return label->plainText();
    if (const auto *edit = qobject_cast<const MTextEdit *>(widget))
        return edit->prompt();
    for (const char *property : {"text", "title"}) {
        QString text = widget->property(property).toString();
        if (!text.isEmpty())
            return text;
    }
    const QAccessible::Role role = accessibleRole(widget);
    return role == QAccessible::ListItem ? joinedTexts(widget) : QString();
}

QString accessibleValue(const MWidget *widget)
{
    if (const auto *grid = qobject_cast<const MCellGrid *>(widget)) {
        const MCellGrid::Cell chosen = grid->cells().value(grid->chosen());
        return chosen.spokenText.isEmpty() ? chosen.text : chosen.spokenText;
    }
    const auto *edit = qobject_cast<const MTextEdit *>(widget);
    return edit && edit->echoMode() == QLineEdit::Normal ? edit->text() : QString();
}

QAccessibleInterface *deepestChildAt(const QAccessibleInterface &container, int x, int y)
{
    for (int i = container.childCount() - 1; i >= 0; --i) {
        QAccessibleInterface *candidate = container.child(i);
        if (candidate->rect().contains(x, y)) {
            QAccessibleInterface *inside = candidate->childAt(x, y);
            return inside ? inside : candidate;
        }
    }
    return nullptr;
}

QList<MWidget *> accessibleChildren(const QGraphicsItem *item)
{
    QList<MWidget *> found;
    QList<QGraphicsItem *> children = item->childItems();
    std::stable_sort(
        children.begin(), children.end(),
        [](const QGraphicsItem *a, const QGraphicsItem *b) { return a->pos().y() < b->pos().y(); });
    for (QGraphicsItem *child : qAsConst(children)) {
        if (!child->isVisible())
            continue;
        auto *widget = qobject_cast<MWidget *>(child->toGraphicsObject());
        if (widget && accessibleRole(widget) != QAccessible::NoRole)
            found.append(widget);
        else
            found += accessibleChildren(child);
    }
    return found;
}
